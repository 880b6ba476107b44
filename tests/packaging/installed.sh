# Shared by the checks that run the unpacked package as an ordinary user with an empty home folder. Source it after
# common.sh, with the arguments PACKAGE_FOLDER MAKE-SAMPLE TAGGER SAMPLE_FOLDER.
need dpkg-deb setpriv
[ "$(id -u)" = 0 ] || skip "needs root to switch to a user who owns nothing"

# An unused user id: every file with that owner was written by the program.
user=64217
[ -z "$(getent passwd $user)" ] || skip "user id $user is in use"

root=$work/root
home=$work/home
music=$work/music
dpkg-deb --extract "$(echo "$1"/*.deb)" "$root"
copy_sample "$music" "$2" "$3" "$4"
chmod 755 "$work"
mkdir "$home" "$work/runtime"
chown $user:$user "$home" "$work/runtime"
chmod 700 "$home" "$work/runtime"

# In coverage builds the program would write its profile to the home folder.
as_user() { # VARIABLE=value... command
    (cd "$home" && exec setpriv --reuid=$user --regid=$user --clear-groups env -i PATH="$root/usr/bin:/usr/bin:/bin" \
        HOME="$home" XDG_RUNTIME_DIR="$work/runtime" LC_ALL=C.UTF-8 ${LLVM_PROFILE_FILE:+LLVM_PROFILE_FILE=/dev/null} "$@")
}
# Every file of that user, except in kernel file systems. Files that vanish during the search are no failure.
files_of_user() {
    { find / \( -fstype proc -o -fstype sysfs \) -prune -o -user $user -print 2>/dev/null || true; } | sort
}
# World-writable files that were changed; a user who owns nothing can change only these.
changed_files() {
    find / \( -fstype proc -o -fstype sysfs -o -path /dev -o -path "$work" \) -prune -o -type f -perm -002 -newer "$1" -print \
        2>/dev/null || true
}
# Fails where the program has written to other places than those that match the pattern.
only_in() { # pattern
    files_of_user >"$work/after"
    comm -13 "$work/before" "$work/after" >"$work/new"
    [ -s "$work/new" ] || fail "no new files were found"
    local elsewhere changed
    elsewhere=$(grep -v -e "$1" "$work/new" || true)
    [ -z "$elsewhere" ] || fail "new files elsewhere: $elsewhere"
    changed=$(changed_files "$work/mark")
    [ -z "$changed" ] || fail "changed files elsewhere: $changed"
}

files_of_user >"$work/before"
touch "$work/mark"
