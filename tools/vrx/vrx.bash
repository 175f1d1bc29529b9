# bash completion for vrx: commands, options, files, and the names of buffers in shared memory.
# shellcheck shell=bash

_vrx_words() { mapfile -t COMPREPLY < <(compgen -W "$1" -- "$2"); }

# The buffers of this library have UUIDs for names.
_vrx_buffers() {
    local file
    for file in /dev/shm/????????-????-4???-????-????????????; do
        [[ -e $file ]] && echo "${file##*/}"
    done
}

_vrx() {
    local word=${COMP_WORDS[COMP_CWORD]} before=${COMP_WORDS[COMP_CWORD - 1]} command=${COMP_WORDS[1]} options
    local commands='check clean diff help list record replay schema show'
    if [[ $COMP_CWORD -eq 1 ]]; then
        _vrx_words "$commands --help --version" "$word"
        return
    fi
    case $before in
        --color) _vrx_words 'always never auto' "$word"; return ;;
        --older-than) _vrx_words '15m 1h 1d' "$word"; return ;;
        --at | --class | --ignore | --known | --limit | --only | --tolerance) return ;;
        -o) mapfile -t COMPREPLY < <(compgen -f -- "$word"); return ;;
    esac
    case $command in
        check) options='--all --class --ignore --json --known --limit' ;;
        clean) options='--dry-run --json --older-than' ;;
        diff) options='--all --ignore --json --limit --tolerance' ;;
        help) options='--version' ;;
        list) options='--all-users --json' ;;
        record) options='--force --verbose -o' ;;
        replay) options='--real-time' ;;
        schema) options='' ;;
        show) options='--all --at --color --limit --only --raw --summary' ;;
        *) return ;;
    esac
    if [[ $word == -* ]]; then
        _vrx_words "$options --help" "$word"
        return
    fi
    case $command in
        help) _vrx_words "$commands" "$word" ;;
        check | diff | show) mapfile -t COMPREPLY < <(compgen -f -- "$word"; compgen -W "$(_vrx_buffers)" -- "$word") ;;
        record) mapfile -t COMPREPLY < <(compgen -c -- "$word"; compgen -f -- "$word") ;;
        replay) mapfile -t COMPREPLY < <(compgen -f -- "$word") ;;
    esac
}

complete -o filenames -F _vrx vrx
