# Completion of ostrel-check for bash: names of checks in any case, keywords, commands, options and paths. The program
# lists them.
_ostrel_check()
{
    local words=() word
    # bash splits --option=value.
    for word in "${COMP_WORDS[@]:1:COMP_CWORD}"; do
        if [ ${#words[@]} -gt 0 ] && { [ "$word" = "=" ] || [[ ${words[-1]} == --*= ]]; }; then
            words[-1]+=$word
        else
            words+=("$word")
        fi
    done
    mapfile -t COMPREPLY < <("${COMP_WORDS[0]}" complete -- "${words[@]}" 2>/dev/null)
    if [ "${COMPREPLY[*]}" = @files ]; then
        # Without candidates, the shell completes paths as usual.
        COMPREPLY=()
        compopt -o default -o filenames 2>/dev/null
    fi
}
complete -F _ostrel_check ostrel-check
