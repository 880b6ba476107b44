# Completion of tunedex for bash.

_tunedex() {
    local current=$2 previous=$3
    COMPREPLY=()
    # Names can contain blanks.
    local IFS=$'\n'
    case $previous in
    --settings | --open | --check | --write-defaults | --output)
        compopt -o filenames
        COMPREPLY=($(compgen -f -- "$current"))
        return
        ;;
    --folder)
        compopt -o filenames
        COMPREPLY=($(compgen -d -- "$current"))
        return
        ;;
    --theme)
        local data=${XDG_DATA_HOME:-$HOME/.local/share}/tunedex/Themes
        COMPREPLY=($(compgen -W "$(cd -- "$data" 2>/dev/null && printf '%s\n' *.thm | sed 's/\.thm$//')" -- "$current"))
        COMPREPLY=("${COMPREPLY[@]// /\\ }")
        return
        ;;
    --columns)
        return
        ;;
    esac
    if ((COMP_CWORD == 1)); then
        COMPREPLY=($(compgen -W $'/AUTO\n--create\n--open\n--check\n--write-defaults\n--help\n--version' -- "$current"))
    elif [[ ${COMP_WORDS[1]} == --create ]]; then
        COMPREPLY=($(compgen -W $'--settings\n--folder\n--output\n--modern\n--classic\n--columns\n--theme\n--quiet' -- "$current"))
    fi
}

complete -F _tunedex tunedex
