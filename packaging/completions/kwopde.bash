# bash completion of kwopde: it asks the command itself.
_kwopde() {
  local line=${COMP_LINE:0:COMP_POINT} words
  read -ra words <<<"$line"
  [[ $line != *" " ]] || words+=("")
  mapfile -t COMPREPLY < <("${words[0]}" complete -- "${words[@]:1}" 2>/dev/null)
  # What stands before an equals sign is a word of its own to bash.
  local typed=${words[-1]}
  if [[ $typed == *=* && $COMP_WORDBREAKS == *=* ]]; then
    COMPREPLY=("${COMPREPLY[@]#"${typed%=*}="}")
  fi
  [[ ${COMPREPLY[0]-} != *= ]] || compopt -o nospace
}
complete -o default -F _kwopde kwopde
