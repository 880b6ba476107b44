#!/usr/bin/env bash
# Drives the program by keyboard on an X server: closes the tip, enters a folder and an output file, creates the list,
# checks the progress window and the list, corrects a number refused by the options, creates the list again while the
# layout editor is open, quits with confirmation, and checks the statistics. Then checks the exit status of a start that
# fails and of a quit that cannot save.
#
# usage: RunOnScreen.sh PROGRAM        (uses $DISPLAY)
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
# Waits for a visible window whose name matches the regular expression and prints its id.
window() {
    timeout 30 xdotool search --sync --onlyvisible --name "$1" | head -n 1 || fail "no window is named $1"
}
# Waits until no visible window has a matching name.
gone() {
    for ((i = 0; i < 300; i++)); do
        xdotool search --onlyvisible --name "$1" >/dev/null 2>&1 || return 0
        sleep 0.1
    done
    fail "the window $1 does not close"
}

mkdir -p "$folder/program" "$folder/config/Corvale Works" "$folder/music/more"
printf '[General]\nInstallationPath=%s\nTipsOnStartup=1\n' "$folder/program" >"$folder/config/Corvale Works/Tunedex.conf"
for name in one two more/three; do
    { printf '\xFF\xFB\x90\x64' && head -c 4000 /dev/zero; } >"$folder/music/$name.mp3"
done

export QT_QPA_PLATFORM=xcb XDG_CONFIG_HOME=$folder/config XDG_RUNTIME_DIR=$folder LC_ALL=C.UTF-8 QT_LOGGING_RULES='*=false'
"$program" &
pid=$!

main=$(window '^Tunedex v')
tip=$(window '^Tip of the Day$')
xdotool windowfocus --sync "$tip"
xdotool key alt+s sleep 0.5 key Return # no more tips
gone '^Tip of the Day$'
grep -q '^TipsOnStartup=0$' "$folder/config/Corvale Works/Tunedex.conf" || fail "the tips choice was not saved"
xdotool windowfocus --sync "$main"
xdotool key alt+d type --delay 5 "$folder/music"
xdotool key alt+o type --delay 5 "$folder/lists/list.htm"
xdotool key alt+c

# The output folder is missing; Yes is the default answer.
question=$(window '^Error!$')
xdotool windowfocus --sync "$question"
xdotool key Return
progress=$(window '^Creating List$')
[[ -n $progress ]] || fail "no progress window"
gone '^Creating List$'

list=$folder/lists/list.htm
[[ -f $list ]] || fail "no list was written"
for name in one two three; do
    grep -q "$name.mp3" "$list" || fail "$name.mp3 is not listed"
done

# After the message the number box has the focus with its text selected, so typing replaces it.
xdotool windowfocus --sync "$main"
xdotool key alt+s
options=$(window '^Options$')
xdotool windowfocus --sync "$options"
xdotool key alt+f type --delay 5 "many"
xdotool key alt+u
refused=$(window '^Error$')
xdotool windowfocus --sync "$refused"
xdotool key Return
gone '^Error$'
xdotool sleep 0.5 type --delay 5 "2"
xdotool key alt+u
gone '^Options$'

# While the layout editor is open the main window creates a list of two pages and quits.
xdotool windowfocus --sync "$main"
xdotool key alt+s
options=$(window '^Options$')
xdotool windowfocus --sync "$options"
xdotool key alt+y
window '^Edit Layout$' >/dev/null
xdotool windowfocus --sync "$main"
xdotool key alt+c
window '^Creating List$' >/dev/null
gone '^Creating List$'
[[ -f ${list%.htm}.002.htm ]] || fail "no list was written while the layout editor was open"
window '^Edit Layout$' >/dev/null

# Cancel keeps the program running.
for answer in Escape Return; do
    kill -0 "$pid" || fail "the program has ended"
    xdotool windowfocus --sync "$main"
    xdotool key ctrl+q
    quit=$(window '^Quit\?$')
    xdotool windowfocus --sync "$quit"
    xdotool key "$answer"
    gone '^Quit\?$'
done
status=0
wait "$pid" || status=$?
pid=
((status == 0)) || fail "the program ended with $status"

mapfile -t counts < <(tr -d '\r' <"$folder/program/stats.lst")
[[ ${counts[0]} == \"????-??-??\" ]] || fail "first started: ${counts[0]}"
[[ "${counts[*]:1}" == "1 2 6" ]] || fail "counted: ${counts[*]:1}"
# Closes the message, waits for the program to end and checks its exit status.
answer_and_end() {
    local message status=0
    message=$(window '^Error!$')
    xdotool windowfocus --sync "$message"
    xdotool key Return
    wait "$pid" || status=$?
    pid=
    ((status == $1)) || fail "after the message the program ended with $status, not with $1"
}
mkdir "$folder/broken"
printf '[General]\nInstallationPath=%s\n' "$folder/broken" >"$folder/config/Corvale Works/Tunedex.conf"
ln -s Tunedex.cfg "$folder/broken/Tunedex.cfg" # a symbolic link to itself cannot be read
"$program" &
pid=$!
answer_and_end 2

rm "$folder/broken/Tunedex.cfg"
printf 'ConfirmQuit=0\r\n' >"$folder/broken/Tunedex.cfg"
mkdir "$folder/broken/stats.lst" # a folder cannot be replaced by a file
"$program" &
pid=$!
main=$(window '^Tunedex v')
xdotool windowfocus --sync "$main"
xdotool key alt+q
answer_and_end 1

echo "passed"
