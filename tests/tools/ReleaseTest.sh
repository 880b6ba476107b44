#!/bin/bash
# usage: ReleaseTest.sh SOURCE_FOLDER
# Updates a copy of the source to a new version and checks every place that names it; checks that the source archive has
# the same bytes wherever and whenever it is made, and what tools/release refuses.
set -eu -o pipefail
work=$(mktemp -d /tmp/tunedex-release.XXXXXX)
trap 'rm -rf --one-file-system "$work"' EXIT
fail() {
    echo "FAILED: $1" >&2
    exit 1
}
git -c safe.directory="$1" -C "$1" rev-parse HEAD >/dev/null 2>&1 || {
    echo "SKIPPED: the source is not a git checkout"
    exit 77
}

# The files as they are now, committed or not.
mkdir "$work/source"
(cd "$1" && git -c safe.directory="$1" ls-files -z --cached --others --exclude-standard |
    { xargs -0 ls -d 2>/dev/null || true; } | tar -cf - --no-recursion -T -) | tar -xf - -C "$work/source"
export GIT_CONFIG_GLOBAL=/dev/null GIT_CONFIG_SYSTEM=/dev/null GIT_AUTHOR_NAME=a GIT_AUTHOR_EMAIL=a@tunedex.example \
    GIT_COMMITTER_NAME=a GIT_COMMITTER_EMAIL=a@tunedex.example
cd "$work/source"
sed -i '0,/^## [0-9]/{/^## Not released yet/,/^$/d}' CHANGELOG.md
sed -i '0,/^## /s//## Not released yet\n\nA paragraph <with> `marks`.\n\nNew:\n\n- **One.**\n\n## /' CHANGELOG.md
git init -q . && git add -A && git commit -q -m one

refused() { # text arguments...
    local text=$1
    shift
    ! tools/release "$@" >"$work/log" 2>&1 || fail "it accepts $*"
    grep -q -- "$text" "$work/log" || fail "for $* it says $(cat "$work/log")"
    [ -z "$(git status --porcelain)" ] || fail "it changed files for $*"
}
refused 'is not major.minor.build' --only-update 9.8
refused 'does not follow' --only-update 0.9.9
refused 'does not follow' --only-update "$(sed -n 's/^project(tunedex VERSION \([0-9.]*\).*/\1/p' CMakeLists.txt)"
refused 'expected VERSION, or one step'
refused 'there is no check nonsense; there are test, ' --only-check nonsense
echo >stray
! tools/release --only-build "$work/out" >"$work/log" 2>&1 || fail "it builds a tree that is not committed"
rm stray

tools/release --only-update 9.8.7 --date 2031-02-03
has() { # file line, as a fixed text
    grep -qF -- "$2" "$1" || fail "$1 lacks: $2"
}
has CMakeLists.txt 'project(tunedex VERSION 9.8.7 '
has CHANGELOG.md '## 9.8.7, 2031-02-03'
has data/tunedex.1 '.TH TUNEDEX 1 "2031-02-03" "Tunedex 9.8" "User Commands"'
has data/Help.html 'Version 9.8.'
has data/tunedex.metainfo.xml '<release version="9.8.7" date="2031-02-03">'
has data/tunedex.metainfo.xml '<p>A paragraph &lt;with&gt; marks.</p>'
[ "$(dpkg-parsechangelog -l packaging/debian/changelog -S Version)" = 9.8.7-1 ] || fail "debian/changelog"
[ "$(dpkg-parsechangelog -l packaging/debian/changelog -S Date)" = "Mon, 03 Feb 2031 12:00:00 +0000" ] || fail "its date"
has tests/model/model.py 'VERSION = "9.8"'
has tests/output/golden/default.htm 'Tunedex v9.8 by'
! grep -rnE 'Tunedex v[0-9]' tests --include='*.cpp' --include='*.htm' --include='*.py' | grep -v 'v9\.8 ' || fail "other versions"
git diff --numstat --text | grep -v -E '^[0-9]+\s[0-9]+\s' && fail "a file was changed as a whole"
refused_section=$(tools/release --only-update 9.9.0 2>&1) && fail "there is no new section, and it goes on"
[[ $refused_section == *'no section "Not released yet"'* ]] || fail "it says $refused_section"
git commit -q -a -m two

mkdir "$work/a" "$work/b"
tools/source-archive "$work/a" >/dev/null
cp -r "$work/source" "$work/other"
touch "$work/other"/*
mkdir "$work/other/build"
echo x >"$work/other/build/stray"
(umask 077 && TZ=Asia/Tokyo "$work/other/tools/source-archive" "$work/b") >/dev/null
cmp "$work/a/tunedex-9.8.7.tar.gz" "$work/b/tunedex-9.8.7.tar.gz" || fail "archives differ"
tar -tzf "$work/a/tunedex-9.8.7.tar.gz" >"$work/list"
grep -q '^tunedex-9.8.7/packaging/debian/control$' "$work/list" || fail "the archive lacks files"
! grep -q '/build/' "$work/list" || fail "the archive has builds"
