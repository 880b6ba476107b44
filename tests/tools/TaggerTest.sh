#!/usr/bin/env bash
# The tagger prints an error and exits with 2 for wrong usage and with 1 for a file error.
# usage: TaggerTest.sh TAGGER
set -euo pipefail
tagger=$1
folder=$(mktemp -d)
trap 'rm -rf -- "$folder"' EXIT
printf frames >"$folder/frames"

failures=0
expect() { # STATUS TEXT-IN-THE-MESSAGE ARGUMENT...
    local status=0 message
    message=$("$tagger" "${@:3}" 2>&1 >/dev/null) || status=$?
    if ((status != $1)) || [[ $message != *"$2"* ]]; then
        echo "tagger ${*:3}: status $status instead of $1, message: $message" >&2
        failures=1
    fi
}
expect 2 "expected two files" "$folder/frames"
expect 2 "unknown option --v3" "$folder/frames" "$folder/out" --v3
expect 2 "--title needs a value" "$folder/frames" "$folder/out" --title
expect 2 "not a valid value" "$folder/frames" "$folder/out" --v2 2.5
expect 2 "not a number from 0 to 255" "$folder/frames" "$folder/out" --track 256
expect 2 "does not fit" "$folder/frames" "$folder/out" --v2 2.3 --title 桜
expect 1 "cannot read" "$folder/missing" "$folder/out"
expect 1 "cannot write" "$folder/frames" "$folder/no/folder"
expect 0 "" "$folder/frames" "$folder/out" --v1 --title x
if [[ $(head -c 10 "$folder/out" | tr '\0' .) != framesTAGx ]]; then
    echo "the tag does not follow the frames" >&2
    failures=1
fi
exit "$failures"
