# fish completion for korvane

function __korvane_upload_ids
    korvane uploads list 2>/dev/null | string match -r '^[0-9]+'
end

function __korvane_account_ids
    korvane accounts list 2>/dev/null | string replace -rf '^(?!ID |No )(\S+)\s.*' '$1'
end

set -l commands share uploads accounts standin
set -l actions list watch retry remove clear pause resume
complete -c korvane -f
complete -c korvane -s h -l help -d 'Show help'
complete -c korvane -n "not __fish_seen_subcommand_from $commands" -l version -d 'Show the version'
complete -c korvane -n "not __fish_seen_subcommand_from $commands" -a share -d 'Share photos'
complete -c korvane -n "not __fish_seen_subcommand_from $commands" -a uploads -d 'Show and steer the uploads'
complete -c korvane -n "not __fish_seen_subcommand_from $commands" -a accounts -d 'Show, add and remove accounts'
complete -c korvane -n "not __fish_seen_subcommand_from $commands" -a standin -d 'Run local stand-ins of the web services'

set -l share "__fish_seen_subcommand_from share; and __fish_seen_subcommand_from flickr"
complete -c korvane -n "__fish_seen_subcommand_from share; and not __fish_seen_subcommand_from flickr" -a flickr
complete -c korvane -n $share -F
complete -c korvane -n $share -l title -x -d 'Title of each photo'
complete -c korvane -n $share -l audience -x -a 'public friends family only-me' -d 'Who sees the photos'
complete -c korvane -n $share -l album -x -d 'Number of an album'
complete -c korvane -n $share -l without-metadata -d 'Without place and camera data'
complete -c korvane -n $share -l wait -d 'Wait until all are uploaded'
complete -c korvane -n $share -l json -d 'Print JSON'

complete -c korvane -n "__fish_seen_subcommand_from uploads; and not __fish_seen_subcommand_from $actions" -a "$actions"
complete -c korvane -n "__fish_seen_subcommand_from uploads accounts" -l json -d 'Print JSON'
complete -c korvane -n "__fish_seen_subcommand_from uploads; and __fish_seen_subcommand_from retry" -a 'all (__korvane_upload_ids)'
complete -c korvane -n "__fish_seen_subcommand_from uploads; and __fish_seen_subcommand_from remove" -a '(__korvane_upload_ids)'

complete -c korvane -n "__fish_seen_subcommand_from accounts; and not __fish_seen_subcommand_from list add remove" -a 'list add remove'
complete -c korvane -n "__fish_seen_subcommand_from accounts; and __fish_seen_subcommand_from add" -a 'flickr vimeo'
complete -c korvane -n "__fish_seen_subcommand_from accounts; and __fish_seen_subcommand_from add" -l credential-file -r -F -d 'Ready credentials'
complete -c korvane -n "__fish_seen_subcommand_from accounts; and __fish_seen_subcommand_from remove" -a '(__korvane_account_ids)'

complete -c korvane -n "__fish_seen_subcommand_from standin" -l port -x -d 'Port to listen on'
complete -c korvane -n "__fish_seen_subcommand_from standin" -l state -x -a '(__fish_complete_directories)' -d 'Folder for the photos received'
