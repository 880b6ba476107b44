# Shared by the checks in this folder. Set NAME to the name of the check, then source this file.
set -eu -o pipefail

skip() { # reason
    echo "SKIPPED: $NAME: $1"
    exit 77
}

fail() { # what is wrong
    echo "FAILED: $NAME: $1" >&2
    exit 1
}

# Skips the check when a tool is missing; with CI set, fails instead, because every check must run there.
need() { # tools
    local tool
    for tool in "$@"; do
        if ! command -v "$tool" >/dev/null; then
            [ -z "${CI:-}" ] || fail "$tool is not installed"
            skip "$tool is not installed"
        fi
    done
}

# A temporary folder, removed on exit.
work=$(mktemp -d /tmp/tunedex-packaging.XXXXXX)
cleanup_commands=()
cleanup() {
    local command
    for command in "${cleanup_commands[@]}"; do
        eval "$command" || true
    done
    rm -rf --one-file-system "$work" # a mount that a failed check has left stays whole
}
trap cleanup EXIT

# Copies the sample collection to a new world-readable folder and sets $tracks to its number of tracks.
copy_sample() { # folder MAKE-SAMPLE TAGGER SAMPLE_FOLDER
    need lame python3
    python3 -B "$2" "$4" --tagger "$3"
    cp -r "$4" "$1" # other users may lack access to the build folder
    chmod -R a+rX "$1"
    tracks=$(find "$1" -type f -iname '*.mp3' ! -name '.*' | wc -l)
    [ "$tracks" -gt 50 ] || fail "the sample collection has only $tracks tracks"
}
