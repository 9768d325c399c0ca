# Shared by the fakes for macOS's tools; sourced, not run.
#
# A fake takes the options that macOS's manual pages document and no others, does with GNU's tool what the
# script needs of it, and prints what macOS's would. It writes down each call; what it can't take it refuses,
# with status 64 and a line that begins with REFUSED. Paths in here are those of the pretend Mac:
#
#   /mnt/gnu    the tools that the fakes themselves use
#   /mnt/proc   the processes, of which a Mac has no file system
#   /mnt/state  what a test wants to be so; support.sh and the fakes say what they look for in it
#   /mnt/calls  every call so far
# shellcheck shell=bash

# shellcheck disable=SC2034 # some of these are for the fakes
{
    tool=${0##*/}
    gnu=/mnt/gnu
    state=/mnt/state
    arguments=("$@")
}

note() { # LINE
    # A test may let every write to a file fail.
    { printf '%s\n' "$1" >>/mnt/calls; } 2>/dev/null
}

refuse() { # WHAT
    note "REFUSED $tool: $1"
    printf '%s: macOS documents no such thing, or it is not imitated: %s\n' "$tool" "$1" >&2
    exit 64
}

# The options as getopt(3) takes them, which stops at the first operand, into `options`; the operands go into
# `operands`. KNOWN is what the manual page has, MEANT what is imitated of it; ":" after a letter: it has a
# value, which goes into `value_LETTER`.
take_options() { # KNOWN MEANT
    local letter operand
    options=''
    while getopts ":$1" letter "${arguments[@]}"; do
        case $letter in
        [?:]) refuse "-$OPTARG" ;;
        esac
        case $2 in
        *"$letter"*) ;;
        *) refuse "-$letter" ;;
        esac
        options+=$letter
        printf -v "value_${letter/[!A-Za-z]/_}" %s "${OPTARG-}"
    done
    operands=("${arguments[@]:OPTIND-1}")
    if [ "$OPTIND" -gt 1 ] && [ "${arguments[OPTIND-2]}" = -- ]; then
        return
    fi
    for operand in "${operands[@]}"; do
        case $operand in
        -?*) refuse "an option after an operand: $operand" ;;
        esac
    done
}

want_operands() { # LEAST MOST
    if [ ${#operands[@]} -lt "$1" ] || [ ${#operands[@]} -gt "$2" ]; then
        refuse "${#operands[@]} operands"
    fi
}

# Runs a GNU tool; its messages come out in the form that BSD's tools have: "rm: x: Operation not permitted".
run_gnu() { # COMMAND ...
    local command=$1 message status
    shift
    message=$(LC_ALL=C "$gnu/$command" "$@" 2>&1 >&4)
    status=$?
    if [ -n "$message" ]; then
        "$gnu/sed" -E "s|^[^:]*: (cannot [a-z ]*\|failed to [a-z ]*)'([^']*)'( => '[^']*')?: |$tool: \2: |" \
            <<<"$message" >&2
    fi
    return "$status"
}

exec 4>&1
note "$tool$(printf ' <%s>' "$@")"
