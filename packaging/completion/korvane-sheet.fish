# fish completion for korvane-sheet

# Whether the first word is one of these; without any, whether there is none yet.
function __korvane_sheet_after
    set -l words (commandline -opc)
    set -l first $words[2]
    if set -q argv[1]
        contains -- "$first" $argv
    else
        test -z "$first"
    end
end

complete -c korvane-sheet -f
complete -c korvane-sheet -n __korvane_sheet_after -a flickr -d 'Share photos to Flickr'
complete -c korvane-sheet -n __korvane_sheet_after -a vimeo -d 'Share a video to Vimeo'
complete -c korvane-sheet -n __korvane_sheet_after -l settings -d 'Accounts and preferences'
complete -c korvane-sheet -n __korvane_sheet_after -l uploads -d 'What is being uploaded'
complete -c korvane-sheet -n __korvane_sheet_after -l version -d 'Show the version'
complete -c korvane-sheet -n __korvane_sheet_after -s h -l help -d 'Show help'
complete -c korvane-sheet -n '__korvane_sheet_after flickr vimeo' -F
complete -c korvane-sheet -n '__korvane_sheet_after --settings' -a 'flickr vimeo'
