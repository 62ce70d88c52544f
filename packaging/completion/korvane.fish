# fish completion for korvane

# The ids that a list begins its lines with, each with the rest of its line.
function __korvane_ids
    korvane $argv[1] list 2>/dev/null | string replace -rf '^([0-9a-f-]*[0-9][0-9a-f-]*) +(.*)$' '$1\t$2'
end

# Whether the command line so far begins with these words, options and what is being typed aside.
function __korvane_after
    set -l expected korvane $argv
    set -l words (commandline -opc | string match -v -- '-*')
    string match -q -- "$expected *" "$words "
end

# The same, and no word follows.
function __korvane_just_after
    set -l expected korvane $argv
    set -l words (commandline -opc | string match -v -- '-*')
    test "$words" = "$expected"
end

complete -c korvane -f
complete -c korvane -s h -l help -d 'Show help'
complete -c korvane -n __korvane_just_after -l version -d 'Show the version'
complete -c korvane -n __korvane_just_after -a share -d 'Share photos or a video'
complete -c korvane -n __korvane_just_after -a compose -d 'Open the share sheet'
complete -c korvane -n __korvane_just_after -a albums -d 'List the albums on Flickr'
complete -c korvane -n __korvane_just_after -a uploads -d 'Show and steer the uploads'
complete -c korvane -n __korvane_just_after -a accounts -d 'Show, add and remove accounts'
complete -c korvane -n __korvane_just_after -a standin -d 'Run local stand-ins of the web services'

complete -c korvane -n '__korvane_just_after share' -a flickr -d 'Share photos'
complete -c korvane -n '__korvane_just_after share' -a vimeo -d 'Share a video'
complete -c korvane -n '__korvane_after share flickr; or __korvane_after share vimeo' -l wait -d 'Wait until all is uploaded'
complete -c korvane -n '__korvane_after share flickr; or __korvane_after share vimeo' -l json -d 'Print JSON'
set -l flickr '__korvane_after share flickr'
complete -c korvane -n $flickr -F
complete -c korvane -n $flickr -l title -x -d 'Title of each photo'
complete -c korvane -n $flickr -l audience -x -a 'public friends family only-me' -d 'Who sees the photos'
complete -c korvane -n $flickr -l album -x -a '(korvane albums 2>/dev/null | string replace -rf "^([0-9]+) +(.*)" \'$2\t$1\')' -d 'Name or number of an album'
complete -c korvane -n $flickr -l no-album -d 'Add to no album'
complete -c korvane -n $flickr -l without-metadata -d 'Without place and camera data'
set -l vimeo '__korvane_after share vimeo'
complete -c korvane -n $vimeo -F
complete -c korvane -n $vimeo -l title -x -d 'Title of the video'
complete -c korvane -n $vimeo -l description -x -d 'What the video is about'
complete -c korvane -n $vimeo -l tag -x -d 'A tag'
complete -c korvane -n $vimeo -l size -x -a 'small medium large' -d 'What a library video is made into'
complete -c korvane -n $vimeo -l privacy -x -a 'public private' -d 'Who sees the video'

complete -c korvane -n '__korvane_just_after compose' -a 'flickr vimeo'
complete -c korvane -n '__korvane_after compose flickr; or __korvane_after compose vimeo' -F

complete -c korvane -n '__korvane_after uploads' -l json -d 'Print JSON'
complete -c korvane -n '__korvane_after albums' -l json -d 'Print JSON'
complete -c korvane -n '__korvane_just_after uploads' -a list -d 'All uploads'
complete -c korvane -n '__korvane_just_after uploads' -a watch -d 'Follow the uploads'
complete -c korvane -n '__korvane_just_after uploads' -a retry -d 'Try uploads again'
complete -c korvane -n '__korvane_just_after uploads' -a remove -d 'Remove uploads'
complete -c korvane -n '__korvane_just_after uploads' -a clear -d 'Forget those that are done'
complete -c korvane -n '__korvane_just_after uploads' -a pause -d 'Stop uploading'
complete -c korvane -n '__korvane_just_after uploads' -a resume -d 'Go on uploading'
complete -c korvane -n '__korvane_after uploads retry' -a all -d 'Each that failed or waits'
complete -c korvane -n '__korvane_after uploads retry; or __korvane_after uploads remove' -a '(__korvane_ids uploads)'

complete -c korvane -n '__korvane_after accounts' -l json -d 'Print JSON'
complete -c korvane -n '__korvane_just_after accounts' -a list -d 'All accounts'
complete -c korvane -n '__korvane_just_after accounts' -a add -d 'Add an account'
complete -c korvane -n '__korvane_just_after accounts' -a remove -d 'Remove an account with its credentials'
complete -c korvane -n '__korvane_just_after accounts add' -a 'flickr vimeo'
set -l added '__korvane_after accounts add flickr; or __korvane_after accounts add vimeo'
complete -c korvane -n $added -l no-browser -d 'Take the code that the page shows'
complete -c korvane -n $added -l consumer-key -x -d 'Key of your application'
complete -c korvane -n $added -l credential-file -r -F -d 'File with ready credentials'
complete -c korvane -n '__korvane_just_after accounts remove' -a '(__korvane_ids accounts)'

complete -c korvane -n '__korvane_after standin' -l port -x -d 'Port to listen on'
complete -c korvane -n '__korvane_after standin' -l state -x -a '(__fish_complete_directories)' -d 'Folder for what is received'
