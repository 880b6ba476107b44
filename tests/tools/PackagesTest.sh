#!/usr/bin/env bash
# Only missing packages are installed; if none is missing, no command runs.
# usage: PackagesTest.sh TOOLS/PACKAGES
set -euo pipefail
packages=$1
folder=$(mktemp -d)
trap 'rm -rf -- "$folder"' EXIT

# Fake commands: dpkg-query reads a list of installed packages, apt-get records its arguments.
mkdir "$folder/bin"
cat >"$folder/bin/dpkg-query" <<'END'
#!/usr/bin/env bash
grep -qx -- "${!#}" "$FOLDER/installed" && printf installed
END
cat >"$folder/bin/apt-get" <<'END'
#!/usr/bin/env bash
echo "$DEBIAN_FRONTEND: $*" >>"$FOLDER/calls"
END
cat >"$folder/bin/sudo" <<'END'
#!/usr/bin/env bash
exec "$@"
END
chmod +x "$folder"/bin/*
export FOLDER=$folder PATH=$folder/bin:$PATH

failures=0
check() { # WHAT EXPECTED FOUND
    if [[ $2 != "$3" ]]; then
        printf '%s:\n  expected: %s\n  found:    %s\n' "$1" "$2" "$3" >&2
        failures=1
    fi
}

"$packages" --list build sample >"$folder/installed"
: >"$folder/calls"
"$packages" build sample
check "nothing is missing" "" "$(cat "$folder/calls")"

sed -i '/^lame$/d; /^cmake$/d' "$folder/installed"
"$packages" build sample 2>/dev/null
options="-qq -o DPkg::Lock::Timeout=600"
check "two are missing" "noninteractive: $options update
noninteractive: $options install --yes --no-install-recommends cmake lame" "$(cat "$folder/calls")"

status=0
"$packages" nonsense 2>/dev/null || status=$?
check "an unknown section" 2 "$status"
exit "$failures"
