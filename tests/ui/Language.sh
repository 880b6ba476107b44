#!/usr/bin/env bash
# The program takes the language of its windows from the environment, and nothing else: the tip window is German, and an
# unattended run in German writes the list, the log and the messages of one in English.
#
# usage: Language.sh PROGRAM        (uses $DISPLAY)
set -euo pipefail
program=$1
folder=$(mktemp -d)
pid=
finish() {
    [[ -z $pid ]] || kill "$pid" 2>/dev/null || true
    rm -rf -- "$folder"
}
trap finish EXIT
fail() {
    echo "FAILED: $*" >&2
    exit 1
}

mkdir -p "$folder/program" "$folder/config/Corvale Works" "$folder/music"
settings="$folder/config/Corvale Works/Tunedex.conf"
printf '[General]\nInstallationPath=%s\nTipsOnStartup=1\n' "$folder/program" >"$settings"
printf '%5000s' x >"$folder/music/broken.mp3"
export XDG_CONFIG_HOME=$folder/config XDG_RUNTIME_DIR=$folder QT_LOGGING_RULES='*=false'
unset LC_ALL LC_MESSAGES LANGUAGE

# LANGUAGE before LANG: the title is German only if the first is read.
LANG=fr_FR.UTF-8 LANGUAGE=de QT_QPA_PLATFORM=xcb "$program" &
pid=$!
timeout 30 xdotool search --sync --onlyvisible --name '^Tipp des Tages$' >/dev/null || fail "the tip is not German"
kill "$pid"
wait "$pid" || true
pid=

# Prints what an unattended run in the language writes.
written() {
    rm -f "$folder/list.htm" "$folder/program/Tunedex.log"
    LC_TIME=C.UTF-8 LC_NUMERIC=C.UTF-8 LANG=$1 QT_QPA_PLATFORM=offscreen timeout 60 "$program" /AUTO 2>&1
    cat "$folder/list.htm" "$folder/program/Tunedex.log"
}
"$program" --write-defaults "$folder/program/Tunedex.cfg" || fail "no default settings"
{
    grep -vE '^(Directory|OutputFile|ErrorWarnings|ErrorLog)=' "$folder/program/Tunedex.cfg"
    printf 'Directory=%s\r\nOutputFile=%s\r\nErrorWarnings=0\r\nErrorLog=1\r\n' "$folder/music" "$folder/list.htm"
} >"$folder/settings"
mv "$folder/settings" "$folder/program/Tunedex.cfg"
english=$(written C.UTF-8)
[[ $english == *'decoding the headers'* ]] || fail "the run did not write its log: $english"
[[ $(written de_DE.UTF-8) == "$english" ]] || fail "an unattended run depends on the language"
