# fish completion of kwopde: it asks the command itself.
function __kwopde_complete
    set -l words (commandline -opc) (commandline -ct)
    set -l found ($words[1] complete -- $words[2..-1] 2>/dev/null)
    if set -q found[1]
        printf '%s\n' $found
    else
        __fish_complete_path (commandline -ct)
    end
end
complete -c kwopde -f -a '(__kwopde_complete)'
