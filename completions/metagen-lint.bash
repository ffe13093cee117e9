# shellcheck shell=bash
# Completion of metagen-lint's command line for bash: options, what they take, and documents. Needs
# no package beyond bash.

_metagen_lint() {
    local word=${COMP_WORDS[COMP_CWORD]} before=${COMP_WORDS[COMP_CWORD - 1]}
    COMPREPLY=()
    case $before in
        --format) mapfile -t COMPREPLY < <(compgen -W 'text json sarif github' -- "$word") ;;
        --disable)
            mapfile -t COMPREPLY < <(
                compgen -W "$(metagen-lint --rules 2>/dev/null | cut -d ' ' -f 1)" -- "$word"
            )
            ;;
        *)
            if [[ $word == -* ]]; then
                mapfile -t COMPREPLY < <(compgen -W '--base --disable --fix --format --help
                    --previous --rules --strict --version' -- "$word")
                return
            fi
            # Readline hands the word over as it was typed, quotes and backslashes included.
            word=${word#[\"\']}
            word=${word//\\/}
            mapfile -t COMPREPLY < <(
                compgen -f -X '!*.json' -- "$word"
                compgen -d -- "$word"
            )
            compopt -o filenames 2>/dev/null || true
            ;;
    esac
}

complete -F _metagen_lint metagen-lint
