# shellcheck shell=bash
# Made by make_result_pages from the program's own options.
_halvane_report() {
  local current=${COMP_WORDS[COMP_CWORD]} before=${COMP_WORDS[COMP_CWORD-1]}
  if [[ $current == = ]]; then current=; elif [[ $before == = ]]; then before=${COMP_WORDS[COMP_CWORD-2]}; fi
  COMPREPLY=()
  case $before in
    --tool)
      mapfile -t COMPREPLY < <(compgen -W "ocra ctd si reba rula hal" -- "$current")
      return
      ;;
    --sort)
      mapfile -t COMPREPLY < <(compgen -W "ocra ctd si reba rula hal" -- "$current")
      return
      ;;
    --format)
      mapfile -t COMPREPLY < <(compgen -W "text json html csv" -- "$current")
      return
      ;;
    --units)
      mapfile -t COMPREPLY < <(compgen -W "metric english" -- "$current")
      return
      ;;
    --files-from) return ;;
  esac
  if [[ $current == -* ]]; then
    mapfile -t COMPREPLY < <(compgen -W "-h --help -V --version --tool --summary --sort --check --format --units --files-from -0 --null --jobs" -- "$current")
  fi
}
complete -o default -F _halvane_report halvane-report
