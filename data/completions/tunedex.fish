# Completion of tunedex for fish.

function __tunedex_themes
    set -l data $HOME/.local/share
    set -q XDG_DATA_HOME; and set data $XDG_DATA_HOME
    for theme in $data/tunedex/Themes/*.thm
        path basename -E $theme 2>/dev/null; or basename $theme .thm
    end
end

# At the command, or at its file.
function __tunedex_begins
    set -l words (commandline -opc)
    test (count $words) -eq 1; and return
    test (count $words) -eq 2; and contains -- $words[2] --open --check --write-defaults
end

function __tunedex_creates
    set -l words (commandline -opc)
    test (count $words) -gt 1; and test $words[2] = --create
end

complete -c tunedex -f
complete -c tunedex -n __tunedex_begins -a /AUTO -d 'Create the list of the default settings file'
complete -c tunedex -n __tunedex_begins -l create -d 'Create one list in the terminal'
complete -c tunedex -n __tunedex_begins -l open -rF -d 'Open the main window with a settings or theme file'
complete -c tunedex -n __tunedex_begins -l check -rF -d 'Print the faulty lines of a settings or theme file'
complete -c tunedex -n __tunedex_begins -l write-defaults -rF -d 'Write the default settings to a file'
complete -c tunedex -n __tunedex_begins -l help -d 'Print a summary'
complete -c tunedex -n __tunedex_begins -l version -d 'Print the version'

complete -c tunedex -n __tunedex_creates -l settings -rF -d 'Read the settings from a file'
complete -c tunedex -n __tunedex_creates -l folder -xa '(__fish_complete_directories)' -d 'List this folder'
complete -c tunedex -n __tunedex_creates -l output -rF -d 'Write the list to a file'
complete -c tunedex -n __tunedex_creates -l modern -d 'By the conventions of today'
complete -c tunedex -n __tunedex_creates -l classic -d 'As version 1.0 did'
complete -c tunedex -n __tunedex_creates -l columns -x -d 'Show these columns, joined by |'
complete -c tunedex -n __tunedex_creates -l theme -xa '(__tunedex_themes)' -d 'Use the look of a theme'
complete -c tunedex -n __tunedex_creates -l quiet -d 'Show no progress and no summary'
