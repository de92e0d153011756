# fish completion for selfsame-cli

# A command is only ever the first argument; anything else starts a search.
function __selfsame_cli_command
    set -l tokens (commandline -opc)
    test (count $tokens) -ge 2; and contains -- $tokens[2] $argv
end

function __selfsame_cli_folder_rule
    set -l tokens (commandline -opc)
    test (count $tokens) -ge 3; and test "$tokens[-1]" = folder; and test "$tokens[-2]" = --select
end

set -l commands put-back clear-cache recover journal undo
set -l searching "not __selfsame_cli_command $commands"

complete -c selfsame-cli -n __fish_is_first_arg -a put-back -d 'Put files in the trash back where they came from'
complete -c selfsame-cli -n __fish_is_first_arg -a clear-cache -d 'Forget the digests kept between searches'
complete -c selfsame-cli -n __fish_is_first_arg -a recover -d 'Finish or roll back interrupted file actions'
complete -c selfsame-cli -n __fish_is_first_arg -a journal -d 'List the file actions done, newest first'
complete -c selfsame-cli -n __fish_is_first_arg -a undo -d 'Undo the last action, or the one of that number'
complete -c selfsame-cli -n '__selfsame_cli_command clear-cache recover journal undo' -f

# Search
complete -c selfsame-cli -n $searching -l include-hidden -d 'Search hidden files and folders'
complete -c selfsame-cli -n $searching -l min-size -x -d 'Smallest file searched (10 MB, 4KiB, 500)'
complete -c selfsame-cli -n $searching -l max-size -x -d 'Largest file searched'
complete -c selfsame-cli -n $searching -l no-size-filter -d 'No size limits at all'
complete -c selfsame-cli -n $searching -l ext -x -d 'Only these extensions'
complete -c selfsame-cli -n $searching -l exclude-ext -x -d 'All files but these extensions'
complete -c selfsame-cli -n $searching -l skip -x -d 'Skip names matching a glob or /regex/'
complete -c selfsame-cli -n $searching -l depth -x -d 'Levels below each location'
complete -c selfsame-cli -n $searching -l compare-folders -d 'Also find folders of equal content'
complete -c selfsame-cli -n $searching -l contained-folders -d 'Also find folders whose files all have copies in another'
complete -c selfsame-cli -n $searching -l ignore-mp4-header -d 'Compare MP4 files without their first 16 KiB'
complete -c selfsame-cli -n $searching -l ignore-clones -d 'Leave out groups already sharing storage'
complete -c selfsame-cli -n $searching -l include-read-only -d 'Also search items you may not modify'
complete -c selfsame-cli -n $searching -l include-other-owner -d 'Also search items of other users'
complete -c selfsame-cli -n $searching -l anywhere -d 'Find the copies of the first path, a file'
complete -c selfsame-cli -n $searching -l no-cache -d 'Neither use nor update the digest cache'

# Modes
complete -c selfsame-cli -n $searching -l mode -x -a 'content duration name attribute similar-images similar-audio' -d 'What makes files equal'
complete -c selfsame-cli -n $searching -l tolerance -x -d 'Largest difference still equal'
complete -c selfsame-cli -n $searching -l similarity -x -d 'Similar modes: how alike, 0 to 100'
complete -c selfsame-cli -n $searching -l distinguish-greyscale -d 'Similar pictures: grey copies are not like colour ones'
complete -c selfsame-cli -n $searching -l attribute -x -d 'Attribute compared' \
    -a '(selfsame-cli --list-attributes 2>/dev/null | string replace -r "^([^\t]*)\t([^\t]*).*" \'$1\t$2\')'
complete -c selfsame-cli -n $searching -l ignore-extension -d 'Name mode: compare names without extension'
complete -c selfsame-cli -n $searching -l ignore-suffixes -d 'Name mode: ignore copy suffixes'
complete -c selfsame-cli -n $searching -l suffixes -x -d 'Name mode: ignore these suffixes instead'
complete -c selfsame-cli -n $searching -l list-attributes -f -d 'List the attributes and exit'

# Output
complete -c selfsame-cli -n $searching -l format -x -a 'text json csv' -d 'Output format'
complete -c selfsame-cli -n $searching -s 0 -l print0 -d 'Exact paths, each ended by a NUL'
complete -c selfsame-cli -n $searching -l summary -d 'Counts to standard error'
complete -c selfsame-cli -n $searching -s h -l help -d 'Show the help'
complete -c selfsame-cli -n $searching -l version -d 'Show the version'

# Automatic selection
complete -c selfsame-cli -n $searching -l select -x -a 'same-folder-name same-folder folder tag largest-picture highest-bitrate contained-folders' -d 'Selection rule'
complete -c selfsame-cli -n __selfsame_cli_folder_rule -x -a '(__fish_complete_directories)'
complete -c selfsame-cli -n $searching -l keep -x -a 'oldest newest' -d 'same-folder: copy kept'
complete -c selfsame-cli -n $searching -l date -x -a 'created modified last-used added' -d 'Date compared'
complete -c selfsame-cli -n $searching -l inside -d 'folder: copies directly inside DIR'
complete -c selfsame-cli -n $searching -l inside-any-depth -d 'folder: copies anywhere inside DIR'
complete -c selfsame-cli -n $searching -l outside -d 'folder: copies not directly inside DIR'
complete -c selfsame-cli -n $searching -l outside-any-depth -d 'folder: copies outside DIR'
complete -c selfsame-cli -n $searching -l if-newer -d 'folder: only copies newer than one elsewhere'
complete -c selfsame-cli -n $searching -l if-older -d 'folder: only copies older than one elsewhere'
complete -c selfsame-cli -n $searching -l if-same-date -d 'folder: only copies as old as one elsewhere'
complete -c selfsame-cli -n $searching -l having -d 'tag: copies having the tag'
complete -c selfsame-cli -n $searching -l not-having -d 'tag: copies lacking the tag'
complete -c selfsame-cli -n $searching -l any-tag -d 'tag: copies having any tag'
complete -c selfsame-cli -n $searching -l no-tag -d 'tag: copies having no tag'

# Actions on the selected copies
complete -c selfsame-cli -n $searching -l trash -d 'Move them to the trash'
complete -c selfsame-cli -n $searching -l delete -d 'Delete them for good'
complete -c selfsame-cli -n $searching -l replace-with -x -a 'symlink relative-symlink hardlink clone alias' -d 'Put this at their paths'
complete -c selfsame-cli -n $searching -l plan -r -F -d 'Write the cloning plan there'
complete -c selfsame-cli -n $searching -l yes -d 'Act (without it, a dry run)'
complete -c selfsame-cli -n $searching -l dry-run -d 'Only show what would be done'
