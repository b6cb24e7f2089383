# SPDX-License-Identifier: Apache-2.0
# Completions of kvprint(1) for bash. The queues come from kvprint itself, so that they are those of the server
# that the command line names.

# The names that "kvprint --list" begins its lines with, for the server of the words given.
_kvprint_queues() {
    local -a server=()
    local i
    for ((i = 1; i < COMP_CWORD; i++)); do
        case ${COMP_WORDS[i]} in
        -h | -U) server+=("${COMP_WORDS[i]}" "${COMP_WORDS[i + 1]}") ;;
        -E) server+=(-E) ;;
        esac
    done
    # A server that does not answer must not block the shell.
    timeout 3 "$1" --list "${server[@]}" 2>/dev/null </dev/null | sed -n 's/^\([^[:space:]]\{1,\}\).*/\1/p'
}

# The PPD's options or the papers ("PageSize") of the queue on the command line, as lpoptions knows them.
_kvprint_ppd_words() {
    local -a queue=()
    local i
    for ((i = 1; i < COMP_CWORD; i++)); do
        case ${COMP_WORDS[i]} in
        -d) queue+=(-p "${COMP_WORDS[i + 1]}") ;;
        -h) queue+=(-h "${COMP_WORDS[i + 1]}") ;;
        -E) queue+=(-E) ;;
        esac
    done
    local line keyword word
    local -a choices
    timeout 3 lpoptions "${queue[@]}" -l 2>/dev/null </dev/null | while IFS= read -r line; do
        keyword=${line%%/*}
        if [[ $1 == options ]]; then
            printf '%s=\n' "$keyword"
        elif [[ $1 == "$keyword" ]]; then
            IFS=' ' read -ra choices <<<"${line#*: }"
            for word in "${choices[@]}"; do
                # The default is marked with a star.
                printf '%s\n' "${word#\*}"
            done
        fi
    done
}

# Offers those of the lines that begin as the current word does. Not by compgen -W, which would run commands
# that stand in a paper's name.
_kvprint_offer() {
    local word
    while IFS= read -r word; do
        [[ $word == "$current"* ]] && COMPREPLY+=("$(printf '%q' "$word")")
    done
}

_kvprint() {
    local command=$1 current=$2 previous=$3
    local letters='-d -h -U -E -n -P -o -t -q -H -m -s -c -i --'
    local names='--paper --no-dialog --list --summary --dry-run --json --force --screenshot --bundle --retry-panels --ppd
        --output --cancel-left --release-left --help --version'
    local IFS=$' \t\n'
    COMPREPLY=()
    case $previous in
    -d) _kvprint_offer < <(_kvprint_queues "$command") ;;
    --paper) _kvprint_offer < <(_kvprint_ppd_words PageSize) ;;
    -o)
        _kvprint_offer < <(_kvprint_ppd_words options)
        compopt -o nospace 2>/dev/null
        ;;
    -H)
        COMPREPLY=($(compgen -W 'hold immediate indefinite resume release restart day-time evening night second-shift
            third-shift weekend' -- "$current"))
        ;;
    -U) COMPREPLY=($(compgen -u -- "$current")) ;;
    -h) COMPREPLY=($(compgen -A hostname -- "$current")) ;;
    -n | -P | -q | -t | -i | --cancel-left | --release-left) ;;
    --bundle | --output)
        compopt -o filenames 2>/dev/null
        mapfile -t COMPREPLY < <(compgen -d -- "$current")
        ;;
    *)
        if [[ $current == -* ]]; then
            COMPREPLY=($(compgen -W "$letters $names" -- "$current"))
        else
            compopt -o filenames 2>/dev/null
            mapfile -t COMPREPLY < <(compgen -f -- "$current")
        fi
        ;;
    esac
}

complete -F _kvprint kvprint
