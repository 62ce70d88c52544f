# bash completion for korvane

# The ids that a list begins its lines with.
_korvane_ids() {
    local id
    korvane "$1" list 2>/dev/null | while read -r id _; do [[ $id =~ ^[0-9a-f-]*[0-9][0-9a-f-]*$ ]] && echo "$id"; done
}

_korvane() {
    local cur=${COMP_WORDS[COMP_CWORD]} prev=${COMP_WORDS[COMP_CWORD - 1]}
    local word plain=() options='--help' words='' files=''
    # "--option=value" comes as three words.
    [[ $cur == = ]] && cur=''
    [[ $prev == = ]] && prev=${COMP_WORDS[COMP_CWORD - 2]}
    for word in "${COMP_WORDS[@]:1:COMP_CWORD-1}"; do
        [[ $word == -* ]] || plain+=("$word")
    done
    case "${plain[*]:0:3}" in
    '') words='share compose albums uploads accounts standin' options='--help --version' ;;
    share) words='flickr vimeo' ;;
    'share flickr'*)
        files='file'
        options='--title --audience --album --no-album --without-metadata --wait --json --help'
        ;;
    'share vimeo'*)
        files='file'
        options='--title --description --tag --size --privacy --wait --json --help'
        ;;
    compose) words='flickr vimeo' ;;
    compose*) files='file' ;;
    albums*) options='--json --help' ;;
    uploads) words='list watch retry remove clear pause resume' options='--json --help' ;;
    'uploads retry'*) words="all $(_korvane_ids uploads)" options='--json --help' ;;
    'uploads remove'*) words=$(_korvane_ids uploads) options='--json --help' ;;
    uploads*) options='--json --help' ;;
    accounts) words='list add remove' options='--json --help' ;;
    'accounts add') words='flickr vimeo' options='--json --help' ;;
    'accounts add'*) options='--no-browser --consumer-key --credential-file --json --help' ;;
    'accounts remove') words=$(_korvane_ids accounts) options='--json --help' ;;
    accounts*) options='--json --help' ;;
    standin*) options='--port --state --help' ;;
    esac
    case $prev in
    --audience) words='public friends family only-me' options='' files='' ;;
    --size) words='small medium large' options='' files='' ;;
    --privacy) words='public private' options='' files='' ;;
    --credential-file) files='file' options='' ;;
    --state) files='directory' options='' ;;
    --title | --description | --tag | --album | --port | --consumer-key) words='' options='' files='' ;;
    esac
    if [[ $cur == -* || -z $words$files ]]; then
        mapfile -t COMPREPLY < <(compgen -W "$options" -- "$cur")
    elif [[ -n $files ]]; then
        compopt -o filenames 2>/dev/null
        mapfile -t COMPREPLY < <(compgen -A "$files" -- "$cur")
    else
        mapfile -t COMPREPLY < <(compgen -W "$words" -- "$cur")
    fi
}

complete -F _korvane korvane
