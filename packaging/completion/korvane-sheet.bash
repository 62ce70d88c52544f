# bash completion for korvane-sheet

_korvane_sheet() {
    local cur=${COMP_WORDS[COMP_CWORD]} words=''
    case $COMP_CWORD:${COMP_WORDS[1]} in
    1:*) words='flickr vimeo --settings --uploads --version --help' ;;
    2:--settings) words='flickr vimeo' ;;
    *:flickr | *:vimeo)
        compopt -o filenames 2>/dev/null
        mapfile -t COMPREPLY < <(compgen -A file -- "$cur")
        return
        ;;
    esac
    mapfile -t COMPREPLY < <(compgen -W "$words" -- "$cur")
}

complete -F _korvane_sheet korvane-sheet
