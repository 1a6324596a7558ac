# Completes the arguments of ostrel-check in bash. The program lists the candidates: names of checks (in upper or lower
# case), keywords, commands and options.
_ostrel_check()
{
    local words=() word
    # bash splits --option=value into three words.
    for word in "${COMP_WORDS[@]:1:COMP_CWORD}"; do
        if [ ${#words[@]} -gt 0 ] && { [ "$word" = "=" ] || [[ ${words[-1]} == --*= ]]; }; then
            words[-1]+=$word
        else
            words+=("$word")
        fi
    done
    mapfile -t COMPREPLY < <("${COMP_WORDS[0]}" complete -- "${words[@]}" 2>/dev/null)
    if [ "${COMPREPLY[*]}" = @files ]; then
        # If there are no candidates, bash completes paths as usual.
        COMPREPLY=()
        compopt -o default -o filenames 2>/dev/null
    fi
}
complete -F _ostrel_check ostrel-check
