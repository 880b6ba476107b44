#!/usr/bin/env bash
# Exit status and files of the windowed program after unattended runs and without a usable display.
#
# usage: ExitStatus.sh PROGRAM
set -euo pipefail
program=$1
folder=$(mktemp -d)
trap 'rm -rf -- "$folder"' EXIT
fail() {
    echo "FAILED: $*" >&2
    cat -- "$folder/errors" >&2 || true
    exit 1
}
run() {
    status=0
    timeout 60 env "$@" 2>"$folder/errors" </dev/null || status=$?
}
mkdir -p "$folder/program" "$folder/config/Corvale Works" "$folder/music"
printf '[General]\nInstallationPath=%s\n' "$folder/program" >"$folder/config/Corvale Works/Tunedex.conf"
{ printf '\xFF\xFB\x90\x64' && head -c 4000 /dev/zero; } >"$folder/music/one.mp3"
printf 'Directory=%s\r\nOutputFile=%s\r\nActiveColumns=Title|Filename\r\n' "$folder/music" "$folder/list.txt" \
    >"$folder/program/Tunedex.cfg"
printf '"2026-01-02"\r\n7\r\n5\r\n3\r\n' >"$folder/program/stats.lst"
cp "$folder/program/stats.lst" "$folder/stats.before"
export XDG_CONFIG_HOME=$folder/config XDG_RUNTIME_DIR=$folder LC_ALL=C.UTF-8

# An unattended run writes the list and leaves the statistics unchanged.
run QT_QPA_PLATFORM=offscreen "$program" /auto
((status == 0)) || fail "an unattended run ended with $status"
[[ -s $folder/list.txt ]] || fail "an unattended run wrote no list"
cmp "$folder/program/stats.lst" "$folder/stats.before" || fail "an unattended run was counted"

# An unreachable display ends the program with status 2, without abort().
for arguments in "" /AUTO; do
    # shellcheck disable=SC2086
    run -u WAYLAND_DISPLAY -u QT_QPA_PLATFORM DISPLAY=:65535 "$program" $arguments
    ((status == 2)) || fail "without a display the program ended with $status"
    grep -q "could not open the display" "$folder/errors" || fail "no message about the display"
done

echo "passed"
