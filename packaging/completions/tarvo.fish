# Completions of tarvo(1) for fish.
complete -c tarvo -f
complete -c tarvo -n __fish_use_subcommand -a status -d 'Print how things stand'
complete -c tarvo -n __fish_use_subcommand -a show -d 'Show the status window'
complete -c tarvo -n __fish_use_subcommand -a open -d 'Open a page'
complete -c tarvo -n __fish_use_subcommand -a quit -d 'End the companion'
complete -c tarvo -n __fish_use_subcommand -l help -d 'Show the options'
complete -c tarvo -n __fish_use_subcommand -l version -d 'Show the version'
complete -c tarvo -n '__fish_seen_subcommand_from status' -l json -d 'Print JSON'
complete -c tarvo -n '__fish_seen_subcommand_from status' -l format -x -a waybar -d 'Print for a bar'
complete -c tarvo -n '__fish_seen_subcommand_from status' -l follow -d 'Print each change'
complete -c tarvo -n '__fish_seen_subcommand_from status' -l wait -d 'Wait for the companion'
complete -c tarvo -n '__fish_seen_subcommand_from open' -a 'home firmware limit modem'
