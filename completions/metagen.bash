# shellcheck shell=bash
# Completion of metagen's command line for bash: commands, the options that each takes and that are
# not given yet, and the files that fit them; and of metagen-schema's and metagen-show's. Needs no
# package beyond bash.

# Fills COMPREPLY with the files named like the word that fit the pattern, and with folders.
_metagen_files() {
    local pattern=$1 word=$2
    # Readline hands the word over as it was typed, quotes and backslashes included.
    word=${word#[\"\']}
    word=${word//\\/}
    mapfile -t COMPREPLY < <(compgen -f -X "!$pattern" -- "$word"; compgen -d -- "$word")
    # Quotes what needs it, and puts a slash behind folders. Fails where no completion runs.
    compopt -o filenames 2>/dev/null || true
}

# Fills COMPREPLY with what fits the option's value.
_metagen_value() {
    local command=$1 option=$2 word=$3
    case $command$option in
        diff-o) _metagen_files '*.txt' "$word" ;;
        gen[hm]-o)
            # A base name: that of the files of an earlier run, or a new one in a folder.
            _metagen_files '*.inl' "$word"
            COMPREPLY=("${COMPREPLY[@]%.inl}")
            ;;
        *-[iolr]) _metagen_files '*.json' "$word" ;;
    esac
}

_metagen() {
    local word=${COMP_WORDS[COMP_CWORD]} command=${COMP_WORDS[1],,} options given
    COMPREPLY=()
    if ((COMP_CWORD == 1)); then
        mapfile -t COMPREPLY < <(compgen -W 'combine diff dump genh genm' -- "${word,,}")
        return
    fi
    case $command in
        dump) options='-o' ;;
        diff) options='-l -r -o' ;;
        combine | genh | genm) options='-i -o' ;;
        *) return ;;
    esac
    # Options come in pairs right after the command: each even place is an option.
    if ((COMP_CWORD % 2 == 1)); then
        _metagen_value "$command" "${COMP_WORDS[COMP_CWORD - 1]}" "$word"
        return
    fi
    for ((given = 2; given < COMP_CWORD; given += 2)); do
        options=${options//"${COMP_WORDS[given]}"/}
    done
    mapfile -t COMPREPLY < <(compgen -W "$options" -- "$word")
}

_metagen_schema() {
    local word=${COMP_WORDS[COMP_CWORD]} options='--base -o' given
    COMPREPLY=()
    case ${COMP_WORDS[COMP_CWORD - 1]} in
        --base | -o)
            _metagen_files '*.json' "$word"
            return
            ;;
    esac
    for ((given = 1; given < COMP_CWORD; given += 2)); do
        options=${options//"${COMP_WORDS[given]}"/}
    done
    mapfile -t COMPREPLY < <(compgen -W "$options" -- "$word")
}

complete -F _metagen metagen
complete -F _metagen_schema metagen-schema
complete -o filenames -o plusdirs -f -X '!*.bin' metagen-show
