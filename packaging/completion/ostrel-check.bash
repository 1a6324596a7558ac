# Completion of ostrel-check for bash: names of checks, keywords, commands and options. The program itself
# knows them.
_ostrel_check()
{
    local words=("${COMP_WORDS[@]:1:COMP_CWORD}")
    local candidates
    candidates=$("${COMP_WORDS[0]}" complete -- "${words[@]}" 2>/dev/null) || candidates=
    mapfile -t COMPREPLY < <(printf '%s' "${candidates:+$candidates$'\n'}")
    if [[ ${COMP_WORDS[1]} == @(batch|summarise) ]] && [ ${#COMPREPLY[@]} -eq 0 ]; then
        mapfile -t COMPREPLY < <(compgen -f -- "${COMP_WORDS[COMP_CWORD]}")
    fi
}
complete -F _ostrel_check ostrel-check
