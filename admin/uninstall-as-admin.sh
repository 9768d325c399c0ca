#!/bin/bash
#
# Removes what only an administrator may remove of Kelmar. Kelmar Uninstaller runs it once, as root behind the
# system's password prompt, or as the current user on a test folder. The arguments are its only input:
#
#   --status FILE        append progress to FILE, which exists
#   --all-users          remove Kelmar's installation for all users of this Mac
#   --shared-data PATH   delete this one of Kelmar's shared data folders (may be given several times)
#   --home PATH          remove those of Kelmar's files below this home folder that are not its owner's
#   --test-root PATH     look for the system's folders below PATH; touch no service, process or receipt
#
# Progress is one line each: "DOING path", "OK path", "FAIL path<tab>reason", "LOG text", and "DONE" at the end.
# Single items that can't be removed are FAIL lines; the exit status is 0 all the same. Status 1: nothing could
# be begun. Status 2: the arguments are wrong. Both say why in one line on standard error, and remove nothing.
#
# How nothing else is deleted: folders above an item may belong to an ordinary user who swaps them for links
# while this runs. So every deletion goes into the item's folder first, asks the kernel where that is, and
# then names the item without a path. What is deleted is named by this file alone, never by a file that a
# user can write, and nothing that belongs to Kelmar is ever executed.

# Nothing of the caller's environment may decide what runs here: no BASH_ENV, no exported functions, no shell
# options. A shell started with -p takes none of them; in POSIX mode exec itself can't be such a function.
case $- in
*p*) ;;
*)
    POSIXLY_CORRECT=1
    exec /usr/bin/env -i /bin/bash -p -- "$0" "$@"
    ;;
esac

set -u
set -f # no name is ever a pattern
PATH=/usr/bin:/bin:/usr/sbin:/sbin
LC_ALL=C
IFS=' '
export PATH LC_ALL
umask 077
trap '' XFSZ # a status file that may not grow must not end this half-way
cd / || exit 1

readonly agents=(com.kelmar.api com.kelmar.worker)
readonly receipts=(com.kelmar.pkg.app com.kelmar.pkg.backend)
readonly data_folders=(Database Store Export CDN CDN_remote Models Staging Logs)

status=''
all_users=no
home=''
test_root=''
shared_data=()

die() { # STATUS MESSAGE
    printf 'uninstall-as-admin.sh: %s\n' "$2" >&2
    exit "$1"
}

# --- Arguments ---------------------------------------------------------------------------------------------

# A control character in a path could end a status line and begin one of its own.
check_path() { # OPTION VALUE
    case $2 in
    *[[:cntrl:]]*) die 2 "$1: a control character in its path" ;;
    /*) ;;
    *) die 2 "$1: not an absolute path" ;;
    esac
}

without_slashes() { # PATH: without those at its end
    local path=$1
    while [ "${path%/}" != "$path" ]; do
        path=${path%/}
    done
    printf '%s' "$path"
}

read_arguments() {
    while [ $# -gt 0 ]; do
        case $1 in
        --all-users)
            [ "$all_users" = no ] || die 2 "$1: given twice"
            all_users=yes
            shift
            continue
            ;;
        --status | --shared-data | --home | --test-root) ;;
        *) die 2 'an argument that it does not know' ;;
        esac
        [ $# -ge 2 ] || die 2 "$1: its path is missing"
        check_path "$1" "$2"
        case $1 in
        --shared-data) shared_data+=("$2") ;;
        --status)
            [ -z "$status" ] || die 2 "$1: given twice"
            status=$2
            ;;
        --home)
            [ -z "$home" ] || die 2 "$1: given twice"
            home=$(without_slashes "$2")
            [ -n "$home" ] || die 2 "$1: not a person's home folder"
            ;;
        --test-root)
            [ -z "$test_root" ] || die 2 "$1: given twice"
            test_root=$(without_slashes "$2")
            [ -n "$test_root" ] || die 2 "$1: not a folder to test in"
            ;;
        esac
        shift 2
    done
    [ -n "$status" ] || die 2 '--status: missing'
    [ "$all_users" = yes ] || [ ${#shared_data[@]} -gt 0 ] || [ -n "$home" ] || die 2 'nothing to do'
}

# --- Looking without following -----------------------------------------------------------------------------

# Kind and permissions, number of names and owner of a path itself, as in "-rw------- 1 501".
describe() { # PATH
    local kind links owner rest
    read -r kind links owner rest < <(ls -ldn -- "$1" 2>/dev/null)
    : "${rest:-}" # read apart from the owner, and of no use
    printf '%s %s %s' "${kind:-none}" "${links:-0}" "${owner:-none}"
}

owner_of() { # PATH
    local description
    description=$(describe "$1")
    printf '%s' "${description##* }"
}

is_there() { # PATH: also when it is a link to nothing
    [ -e "$1" ] || [ -L "$1" ]
}

# Where the kernel says this process is. The shell's own pwd only remembers how it was led there, and would
# believe a link that was swapped away again.
here() {
    /bin/pwd -P
}

# Goes to a folder and succeeds if that is physically where its path says: BASE may be reached through links
# (/tmp is one on every Mac), what lies below it may not.
enter() { # BASE FOLDER, which is BASE or begins with BASE/
    local physical
    cd -P -- "${1:-/}" 2>/dev/null || return 1
    physical=$(here) || return 1
    [ "$physical" != / ] || physical=''
    physical=$physical${2#"$1"}
    cd -P -- "$2" 2>/dev/null && [ "$(here)" = "${physical:-/}" ]
}

# --- The status file ---------------------------------------------------------------------------------------

# Opens the status file for appending, as descriptor 3, and sets `user` to its owner. It lies in a folder of an
# ordinary user, who may swap it for a link to a file of the system at any moment. So it gets a second name in
# a new folder of this process's own: ln(1) names what is there without following a link, nobody else can
# change that name, and what it names is looked at before it is opened. The new folder may be swapped as well
# before it is entered: it must be where it was made, and as it was made, and only the name given here goes.
# On a Mac it also inherits its parent's access control list, which may let that user write in it: chmod(1)
# takes the list away, and nothing may have been put there before. Older Macs' ln(1) knows no -P and follows a
# link: to a file that must pass the same look.
open_status() {
    local folder=${status%/*}/ private=.kelmar-$$-$RANDOM$RANDOM physical description owner
    case $(describe "${status%/*}") in
    d*) owner=$(owner_of "${status%/*}") ;;
    *) die 1 'the status file is not a plain file of the user' ;;
    esac
    if ! { cd -P -- "$folder" && physical=$(here) && mkdir -m 700 "./$private" && cd -P -- "./$private"; } \
        2>/dev/null || [ "$(here)" != "$physical/$private" ]; then
        die 1 'the status file cannot be looked at'
    fi
    if ! chmod -N . 2>/dev/null && [ "$(uname)" = Darwin ]; then
        die 1 'the status file cannot be looked at'
    fi
    case $(describe .)$(ls -A .) in
    drwx------*' '"$(id -u)") ;;
    *) die 1 'the status file cannot be looked at' ;;
    esac
    user=''
    if [ ! -L "$status" ] && { ln -P -- "$status" ./status || ln -- "$status" ./status; } 2>/dev/null; then
        description=$(describe ./status)
        case $description in
        -*' 2 '"$owner") user=${description##* } ;;
        -*' 2 '"$(owner_of "${home:-/dev/null}/.")") user=${description##* } ;;
        esac
        # Nothing is done for root, who needs no help, but on a test folder.
        if [ "$user" = 0 ] && [ -z "$test_root" ]; then
            user=''
        fi
        if [ -n "$user" ]; then
            { exec 3>>./status; } 2>/dev/null || user=''
        fi
        rm -f ./status
    fi
    cd -P -- "$folder" 2>/dev/null && rmdir "./$private"
    cd /
    [ -n "$user" ] || die 1 'the status file is not a plain file of the user'
}

report() { # LINE
    # A disk that is full loses the line; what was begun is done all the same.
    printf '%s\n' "$1" 2>/dev/null >&3
}

# The first line that says something, without control characters, whatever a file's name or a tool's message
# holds: no line of the status file is made by anything but this script.
one_line() { # TEXT
    local text=$1
    while [ "${text#$'\n'}" != "$text" ]; do
        text=${text#$'\n'}
    done
    harmless "${text%%$'\n'*}"
}

# Whole, since a path without its end is that of something else.
harmless() { # PATH
    printf '%s' "${1//[[:cntrl:]]/?}"
}

# --- Removing ----------------------------------------------------------------------------------------------

report_end() { # PLACE PATH MESSAGE: how the removal of PATH, which is PLACE seen from here, ended
    if is_there "$1"; then
        report "FAIL $2"$'\t'"${3:-it is still there}"
    else
        report "OK $2"
    fi
}

# Goes to the item's folder, or says why the item can't be removed from there. What is on a disk that somebody
# mounted inside the item is not Kelmar's, and rm(1) would empty it. A Mac's list of mounts may name a folder by
# way of the volume that it lies on.
approach() { # BASE PATH
    local place data=/System/Volumes/Data
    if ! enter "$1" "${2%/*}"; then
        report "FAIL $2"$'\t''it is reached through a link'
        return 1
    fi
    place=$(here)/${2##*/}
    case $(mount 2>/dev/null) in
    *" on $place "* | *" on $place/"* | *" on $data$place "* | *" on $data$place/"*)
        report "FAIL $2"$'\t''a disk is mounted inside it'
        return 1
        ;;
    esac
}

# rm(1) removes a link itself, never what it leads to, and follows none below.
remove_item() { # BASE PATH
    local message
    is_there "$2" || return 0
    approach "$1" "$2" || return 0
    report "DOING $2"
    message=$(rm -rf -- "./${2##*/}" 2>&1)
    report_end "./${2##*/}" "$2" "$(one_line "$message")"
}

# Only a known folder directly in the shared data root; anything else is not Kelmar's.
remove_shared_data() { # PATH
    local name
    for name in "${data_folders[@]}"; do
        if [ "$1" = "$test_root/Users/Shared/@Kelmar/$name" ]; then
            remove_item "$test_root" "$1"
            return
        fi
    done
    report "FAIL $1"$'\t''it is not one of the shared Kelmar data folders'
}

# Removes the topmost things in an item that belong to somebody else than the user; they are named first, so
# that each can be reported. find(1) with -execdir runs rm in the folder where find itself stands: no path is
# looked up a second time, and find follows no link.
remove_foreign() { # PATH
    local folder=${1%/*} item=./${1##*/} found=() message='' place
    is_there "$1" || return 0
    approach "$home" "$1" || return 0
    while IFS= read -r -d '' place; do
        found+=("$place")
        report "DOING $folder/$(harmless "${place#./}")"
    done < <(find "$item" ! -user "$user" -prune -print0 2>/dev/null)
    [ ${#found[@]} -gt 0 ] || return 0
    message=$(find "$item" ! -user "$user" -prune -execdir rm -rf -- '{}' ';' 2>&1)
    [ ${#found[@]} -eq 1 ] || message='' # whose it is can't be told
    for place in ${found[@]+"${found[@]}"}; do
        report_end "$place" "$folder/$(harmless "${place#./}")" "$(one_line "$message")"
    done
}

# --- Services, processes, receipts -------------------------------------------------------------------------

# Whoever is logged in may have the agents loaded.
stop_agents() {
    local label message user_id
    while read -r user_id; do
        for label in "${agents[@]}"; do
            /bin/launchctl print "gui/$user_id/$label" </dev/null >/dev/null 2>&1 || continue
            if message=$(/bin/launchctl bootout "gui/$user_id/$label" </dev/null 2>&1); then
                report "LOG Stopped $label (user $user_id)."
            else
                report "LOG Could not stop $label (user $user_id): $(one_line "$message")"
            fi
        done
    done < <(ps -axo uid= | tr -d ' ' | sort -u -n)
}

# The path of what a process runs. Where there is /proc, the kernel's own link tells; else ps(1) does.
program_of() { # PID
    readlink "/proc/$1/exe" 2>/dev/null || ps -ww -o comm= -p "$1" 2>/dev/null
}

# The processes that run from a folder, whoever owns them. A line of the list could be forged, by a program whose
# path holds a line end: what matches is asked for again by its number.
processes_under() { # FOLDER ...
    local folder pid program
    while read -r pid program; do
        [ ! -e /proc/self/exe ] || program=$(readlink "/proc/$pid/exe" 2>/dev/null)
        for folder in "$@"; do
            case $program in
            "$folder"/*) ;;
            *) continue ;;
            esac
            case $(program_of "$pid") in
            "$folder"/*) printf '%s\n' "$pid" ;;
            esac
        done
    done < <(ps -axww -o pid= -o comm=)
}

# Sends a signal to the processes that run from the folders now: a number that was Kelmar's a moment ago may
# belong to another program by now.
signal_processes() { # SIGNAL FOLDER ...: sets `signalled` to how many there were
    local name=$1 pid
    shift
    signalled=0
    while read -r pid; do
        kill "-$name" "$pid" 2>/dev/null
        signalled=$((signalled + 1))
    done < <(processes_under "$@")
}

stop_processes() { # FOLDER ...
    local count deadline signalled
    signal_processes TERM "$@"
    count=$signalled
    [ "$count" -gt 0 ] || return 0
    deadline=$((SECONDS + 10))
    while [ "$SECONDS" -lt "$deadline" ] && [ -n "$(processes_under "$@")" ]; do
        sleep 0.1
    done
    signal_processes KILL "$@"
    report "LOG Stopped $count process(es) of Kelmar for all users."
}

forget_receipts() {
    local message receipt
    for receipt in "${receipts[@]}"; do
        /usr/sbin/pkgutil --pkg-info "$receipt" </dev/null >/dev/null 2>&1 || continue
        if message=$(/usr/sbin/pkgutil --forget "$receipt" </dev/null 2>&1); then
            report "LOG Removed the install record $receipt."
        else
            report "LOG Could not remove the install record $receipt: $(one_line "$message")"
        fi
    done
}

# --- The work ----------------------------------------------------------------------------------------------

items_below() { # FOLDER: sets `items` to Kelmar's items there
    local label
    items=("$1/Applications/Kelmar.app" "$1/Library/Kelmar")
    for label in "${agents[@]}"; do
        items+=("$1/Library/LaunchAgents/$label.plist")
    done
}

main() {
    local item items
    read_arguments "$@"
    open_status
    if [ "$all_users" = yes ]; then
        items_below "$test_root"
        if [ -z "$test_root" ]; then
            stop_agents
            stop_processes "${items[0]}" "${items[1]}"
        fi
        for item in ${items[@]+"${items[@]}"}; do
            remove_item "$test_root" "$item"
        done
        [ -n "$test_root" ] || forget_receipts
    fi
    for item in ${shared_data[@]+"${shared_data[@]}"}; do
        remove_shared_data "$item"
    done
    if [ -n "$home" ]; then
        items_below "$home"
        for item in ${items[@]+"${items[@]}"}; do
            remove_foreign "$item"
        done
    fi
    report DONE
}

# The last line is read before any work begins: a file that is overwritten meanwhile changes nothing.
{ main "$@"; exit 0; }
