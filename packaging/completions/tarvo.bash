# Completions of tarvo(1) for bash.
_tarvo() {
  local words
  case ${COMP_WORDS[1]} in
    "${COMP_WORDS[COMP_CWORD]}") words="status show open quit --help --version" ;;
    status) words="--json --format --follow --wait" ;;
    open) words="home firmware limit modem" ;;
  esac
  [[ ${COMP_WORDS[COMP_CWORD - 1]} == --format ]] && words=waybar
  mapfile -t COMPREPLY < <(compgen -W "$words" -- "${COMP_WORDS[COMP_CWORD]}")
}
complete -F _tarvo tarvo
