# bash completion for korvane

_korvane_upload_ids() {
    korvane uploads list 2>/dev/null | while read -r id _; do [[ $id == [0-9]* ]] && echo "$id"; done
}

_korvane_account_ids() {
    korvane accounts list 2>/dev/null | while read -r id _; do [[ $id != ID && $id != No ]] && echo "$id"; done
}

_korvane() {
    local cur=${COMP_WORDS[COMP_CWORD]} prev=${COMP_WORDS[COMP_CWORD - 1]}
    local command=${COMP_WORDS[1]} action=${COMP_WORDS[2]} words='' files=''
    COMPREPLY=()
    case $prev in
    --audience) words='public friends family only-me' ;;
    --title | --album | --port) return ;;
    --credential-file) files=file ;;
    --state) files=directory ;;
    *)
        if ((COMP_CWORD == 1)); then
            words='share uploads accounts standin --help --version'
        elif ((COMP_CWORD == 2)); then
            case $command in
            share) words='flickr --help' ;;
            uploads) words='list watch retry remove clear pause resume --json --help' ;;
            accounts) words='list add remove --json --help' ;;
            standin) words='--port --state --help' ;;
            esac
        else
            case $command:$action in
            share:flickr)
                if [[ $cur == -* ]]; then
                    words='--title --audience --album --without-metadata --wait --json --help'
                else
                    files=file
                fi
                ;;
            uploads:retry) words="all --json --help $(_korvane_upload_ids)" ;;
            uploads:remove) words="--json --help $(_korvane_upload_ids)" ;;
            uploads:*) words='--json --help' ;;
            accounts:add) ((COMP_CWORD == 3)) && words='flickr vimeo' || words='--credential-file --json --help' ;;
            accounts:remove) words="--json --help $(_korvane_account_ids)" ;;
            accounts:*) words='--json --help' ;;
            standin:*) words='--port --state --help' ;;
            esac
        fi
        ;;
    esac
    if [[ -n $files ]]; then
        compopt -o filenames 2>/dev/null
        mapfile -t COMPREPLY < <(compgen -A "$files" -- "$cur")
    else
        mapfile -t COMPREPLY < <(compgen -W "$words" -- "$cur")
    fi
}

complete -F _korvane korvane
