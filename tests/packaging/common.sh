# Shared by the checks of this folder. Source it, after setting NAME to what the check is called.
set -eu -o pipefail

skip() { # reason
    echo "SKIPPED: $NAME: $1"
    exit 77
}

fail() { # what is wrong
    echo "FAILED: $NAME: $1" >&2
    exit 1
}

# A tool that is not there skips a check on a developer's machine. Where CI is set it is a failure: there every check
# has to run.
need() { # tools
    local tool
    for tool in "$@"; do
        if ! command -v "$tool" >/dev/null; then
            [ -z "${CI:-}" ] || fail "$tool is not installed"
            skip "$tool is not installed"
        fi
    done
}

# Checks have a folder of their own, which goes when they end.
work=$(mktemp -d /tmp/tunedex-packaging.XXXXXX)
cleanup_commands=()
cleanup() {
    local command
    for command in "${cleanup_commands[@]}"; do
        eval "$command" || true
    done
    rm -rf "$work"
}
trap cleanup EXIT

# Lays the sample collection into a new folder, for everyone to read, and counts its files in $tracks.
lay_sample() { # folder MAKE-SAMPLE TAGGER SAMPLE_FOLDER
    need lame python3
    python3 -B "$2" "$4" --tagger "$3"
    cp -r "$4" "$1" # the build folder may be closed to others
    chmod -R a+rX "$1"
    tracks=$(find "$1" -type f -iname '*.mp3' ! -name '.*' | wc -l)
    [ "$tracks" -gt 50 ] || fail "the sample collection has only $tracks tracks"
}
