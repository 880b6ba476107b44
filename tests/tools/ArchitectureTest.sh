#!/bin/bash
# usage: ArchitectureTest.sh SOURCE_FOLDER
# Checks that ARCHITECTURE.md names every source of the floors below the front ends.
set -eu
cd "$1"
status=0
for file in src/{core,scan,output,catalogue,settings,platform}/*.{h,cpp}; do
    name=$(basename "${file%.*}")
    grep -qw -- "$name" ARCHITECTURE.md || {
        echo "FAILED: ARCHITECTURE.md lacks $file"
        status=1
    }
done
exit $status
