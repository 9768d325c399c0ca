#!/bin/bash
#
# Removes what only an administrator may remove of Kelmar. Kelmar Uninstaller runs it once, as root behind the
# system's password prompt, or as the current user on a test folder. Its input:
#
#   --status FILE        append progress to FILE, which exists
#   --all-users          remove Kelmar's installation for all users of this Mac
#   --shared-data PATH   delete this one of Kelmar's shared data folders (may be given several times)
#   --home PATH          remove those of Kelmar's files below this home folder that are not its owner's
#   --test-root PATH     look for the system's folders below PATH; touch no service, process or receipt
#   SUDO_UID             the number of the user who asks; without it, that is the owner of FILE
#
# Progress is one line each: "DOING path", "OK path", "FAIL path<tab>reason", "LOG text", and "DONE" at the end.
# Single items that can't be removed are FAIL lines; the exit status is 0 all the same. Status 1: nothing could
# be begun. Status 2: the arguments are wrong. Both say why in one line on standard error, and remove nothing.
#
# How nothing else is deleted: folders above and inside an item may belong to an ordinary user, who swaps them for
# links while this runs, and a Mac's rm(1) and find(1) follow those. So zsh(1) does the deleting. It unlinks names
# without a path, in a folder whose device and inode are those that were listed in the folder above it. Where the
# kernel's sandbox is at hand, it holds zsh to the item as well. What is deleted is named by this file alone, never
# by a file that a user can write, and nothing that belongs to Kelmar is ever executed.
# shellcheck disable=SC2016 # what stands in single quotes is for another shell

# Nothing of the caller's environment may decide what runs here: no exported functions, no shell options. A shell
# started with -p takes none of them. That it was is said by an argument, which no variable can plant; in POSIX mode
# exec itself can't be such a function.
case ${1-} in
--started-clean) shift ;;
*)
    POSIXLY_CORRECT=1
    exec /usr/bin/env -i ${SUDO_UID+"SUDO_UID=$SUDO_UID"} /bin/bash -p -- "$0" --started-clean "$@"
    ;;
esac

set -uf # no name is ever a pattern
export PATH=/usr/bin:/bin:/usr/sbin:/sbin LC_ALL=C
IFS=' '
umask 077
trap '' PIPE XFSZ # a status file that takes no more must not end this half-way

readonly agents=(com.kelmar.api com.kelmar.worker)
readonly receipts=(com.kelmar.pkg.app com.kelmar.pkg.backend)
readonly data_folders=(Database Store Export CDN CDN_remote Models Staging Logs)
readonly patience=7200 # seconds for one item: 700,000 entries on a disk that removes a hundred a second

asker='' status='' all_users='' home='' test_root='' sandbox='' shared_data=()

die() { # STATUS MESSAGE
    printf 'uninstall-as-admin.sh: %s\n' "$2" >&2
    exit "$1"
}

# --- Arguments ---------------------------------------------------------------------------------------------

once() { # OPTION VALUE, which it had before
    [ -z "$2" ] || die 2 "$1: given twice"
}

read_arguments() {
    local bare
    while [ $# -gt 0 ]; do
        case $1 in
        --all-users)
            once "$1" "$all_users"
            all_users=yes
            shift
            continue
            ;;
        --status | --shared-data | --home | --test-root) ;;
        *) die 2 'an argument that it does not know' ;;
        esac
        [ $# -ge 2 ] || die 2 "$1: its path is missing"
        bare=${2%"${2##*[!/]}"} # without slashes at its end
        case $2 in
        *[[:cntrl:]]*) die 2 "$1: a control character in its path" ;; # it could end a status line
        '' | [!/]*) die 2 "$1: not an absolute path" ;;
        esac
        case $1 in
        --status) once "$1" "$status" && status=$2 ;;
        --shared-data) shared_data+=("$2") ;;
        --home) once "$1" "$home" && home=$bare ;;
        --test-root) once "$1" "$test_root" && test_root=$bare ;;
        esac
        case $1$bare/ in
        --home/ | --home*//* | --home*/./* | --home*/../*) die 2 "$1: not a person's home folder" ;;
        --test-root/) die 2 "$1: not a folder to test in" ;;
        esac
        shift 2
    done
    [ -n "$status" ] || die 2 '--status: missing'
    [ -n "$all_users$home" ] || [ ${#shared_data[@]} -gt 0 ] || die 2 'nothing to do'
}

# --- Who asks, and the status file -------------------------------------------------------------------------

# Kind, number of names and owner of a path itself, as in "- 1 501".
describe() { # PATH
    local kind links owner _
    read -r kind links owner _ < <(ls -ldn -- "$1" 2>/dev/null)
    printf '%.1s %s %s' "${kind:-?}" "${links:-0}" "${owner:-none}"
}

# Whose rights the status file is written with, and whose home it may be. sudo(8) sets SUDO_UID, whatever the user
# sets; on a Mac it comes from the program that asked. A file with a second name may be somebody else's.
find_asker() {
    local file folder owner
    file=$(describe "$status")
    folder=$(describe "${status%/*}/.")
    asker=${file##* }
    [ -n "$test_root" ] || asker=${SUDO_UID:-$asker}
    case ${folder##* } in
    0 | "$asker") ;;
    *) file=none ;;
    esac
    # Nothing is done for root, who needs no help, but on a test folder.
    if [ "$file" != "- 1 $asker" ] || [ "${test_root:-$asker}" = 0 ] ||
        ! as_asker /bin/bash -p -c ': >>"$1"' bash "$status" 2>/dev/null; then
        die 1 'the status file is not a plain file of the user'
    fi
    owner=$(describe "$home/.")
    [ -z "$home" ] || [ "${owner##* }" = "$asker" ] || die 2 '--home: not the home folder of the user who asks'
}

as_asker() { # COMMAND ...
    [ "$(id -u)" = "$asker" ] || set -- sudo -n -u "#$asker" -- "$@"
    "$@"
}

# Appends lines to the status file, which lies where its user may change everything at any moment: with that user's
# rights, and each line by itself, so that a disk that is full for a while loses no other.
write_status() {
    as_asker /bin/bash -p -c 'while IFS= read -r line; do
            printf "%s\n" "$line" >>"$1"
        done' bash "$status" 2>/dev/null
}

report() { # LINE
    printf '%s\n' "$1" 2>/dev/null >&3
}

# The first line that says something, without control characters: only this script makes lines of the status file.
one_line() { # TEXT
    printf '%s\n' "$1" | sed -n '/./{s/[[:cntrl:]]/?/g;p;q;}'
}

# --- Removing ----------------------------------------------------------------------------------------------

# For zsh: removes one item, or with "foreign" those topmost things in it that are not the asker's. Prints its process
# number, status lines, and END. ITEM is what lines name; PLACE is the same without links on the way to the item. The
# way from PLACE's folder down is kept as names (trail) and as "device:inode" of each folder (ids), as it was listed
# in the one above. rm(1) gets single names only, where it unlocks what is locked (uchg) or says why something stays.
readonly remover='
emulate -R zsh
print "PID $$"
mode=$1 item=$2 root=${3:h} top=${3:t} asker=$4 reason="" trail=() ids=() s=()

say() { printf "%s %s${3:+\t}%s\n" $1 "${2//[[:cntrl:]]/?}" "${3//[[:cntrl:]]/?}" }
finish() { (( $# )) && say FAIL $item $1; print END; exit }
look() { zstat -L -A s -- $1 2>/dev/null }          # at an entry of the current folder
is_folder() { (( (s[3] & 8#170000) == 8#040000 )) } # what was looked at last
below() { print -r -- ${(j:/:)trail}${trail:+/}$1 } # an entry of the current folder, seen from root
note() { reason=${reason:-${1/.\//./$(below)}} }
go() { # DEPTH: to the folder that far down the trail, if it is the same still
    builtin cd -q -- $root/${(j:/:)trail[1,$1]} 2>/dev/null &&
        zstat -A s -- . 2>/dev/null && [[ $s[1]:$s[2] == $ids[$1+1] ]]
}
force() { # NAME ...: what could not simply be dropped; the second time without a lock on the folder itself
    local words
    repeat 2; do
        words=$(print -rN -- ./${^@} | xargs -0 rm -df -- 2>&1 | sed -n 1p)
        [[ -n $words ]] || return
        chflags nouchg,nouappnd . 2>/dev/null
    done
    note $words
}
drop() { # NAME: a file, link or empty folder
    zf_rmdir -- $1 2>/dev/null || zf_rm -f -- $1
    look $1 && force $1
}
drop_files() { # all of the current folder
    local -a files=(*(DN^/oN))
    (( $#files )) && zf_rm -f -- $files
    files=(*(DN^/oN))
    (( $#files )) && force $files
}
walk() { # NAME: a folder in the current one; removes it, or goes through it for what is foreign
    local name id task=$mode
    integer depth start=$#trail
    local -a names=($1) known=($s[1]:$s[2]) depths=($start)
    mode=whole # of what is removed in it
    while (( $#names )); do
        name=$names[-1] id=$known[-1] depth=$depths[-1]
        shift -p names known depths
        trail=($trail[1,depth]) ids=($ids[1,depth+1])
        [[ -n $id ]] || { go $depth && drop $name; continue } # what is in it has been tried
        trail+=($name) ids+=($id)
        go $#trail || continue # it was swapped: it stays
        if [[ ${id%:*} != $device ]]; then
            note "a disk is mounted inside it"
        elif [[ $task == whole ]]; then
            names+=($name) known+=("") depths+=($depth)
            drop_files
        elif [[ $s[5] == $asker ]]; then
            for name in *(DNoN^u$asker); do remove $name; done
        fi
        for name in *(DN/oN); do
            # Beyond any path that is in use, zsh goes by itself: it looks as closely, and needs no paths.
            [[ $task == whole ]] && (( $#trail % 1000 == 64 )) && (zf_rm -rfs -- $name)
            look $name && is_folder && names+=($name) known+=($s[1]:$s[2]) depths+=($#trail)
        done
    done
    trail=($trail[1,start]) ids=($ids[1,start+1])
    go $start
}
remove() { # NAME: an entry of the current folder, with everything in it
    local place=${item:h}/$(below $1)
    reason=""
    say DOING $place
    if look $1 && is_folder; then walk $1; else drop $1; fi
    if go $#trail && ! look $1; then say OK $place; else say FAIL $place ${reason:-it is still there}; fi
}

zmodload -F zsh/files b:zf_rm b:zf_rmdir && zmodload -F zsh/stat b:zstat ||
    finish "zsh lacks what it takes to remove it"
mounts=$(mount 2>/dev/null)
for place in $3 /System/Volumes/Data$3; do # a Mac may name a folder by way of its volume
    [[ $mounts != *" on $place "* && $mounts != *" on $place/"* ]] || finish "a disk is mounted inside it"
done
words=$(zstat -L -- $item 2>&1 >/dev/null) || case $words in
*(no such file or directory|not a directory)) finish ;;
*) finish ${words##*: } ;;
esac
[[ -n $mounts ]] || finish "the mounted disks cannot be listed"
builtin cd -q -- $root 2>/dev/null && [[ $(builtin pwd -P) == $root ]] || finish "it is reached through a link"
zstat -A s -- . && ids=($s[1]:$s[2]) device=$s[1] && look $top || finish
[[ $s[5] == $asker ]] || mode=whole
if [[ $mode == whole ]]; then remove $top; elif is_folder; then walk $top; fi
finish
'

# What the kernel's sandbox lets zsh unlink: the item, and nothing else (the last rule that fits counts). It is used if
# it is there and does just that.
readonly profile='(version 1)(allow default)(deny file-write-unlink)(allow file-write-unlink (subpath (param "ITEM")))'

in_sandbox() { # ITEM COMMAND ...
    sandbox-exec -D "ITEM=$1" -p "$profile" "${@:2}"
}

try_sandbox() { # on a folder of root's
    local place=/tmp/.kelmar-$$-$RANDOM$RANDOM
    [ -x /usr/bin/sandbox-exec ] && mkdir "$place" 2>/dev/null || return
    place=$(cd -P -- "$place" && pwd -P)
    in_sandbox "$place/inside" rmdir "$place" 2>/dev/null
    in_sandbox "$place" rmdir "$place" 2>/dev/null && sandbox=yes
    rmdir "$place" 2>/dev/null
}

# Has zsh remove an item, and waits no longer than is patient: what another user does inside it, or a file system that
# never answers, must not hold root for ever. So the child gets no end of the pipe to write_status.
remove_item() { # MODE BASE PATH, which begins with BASE; a test root may be reached through links
    local base deadline=$((SECONDS + patience)) line pid='' place=$3 why='its removal broke off'
    if [ -n "$2" ]; then
        base=$(cd -P -- "$2" 2>/dev/null && pwd -P) || return 0
        place=${base%/}${3#"$2"}
    fi
    while [ "$SECONDS" -lt "$deadline" ] && IFS= read -r -t $((deadline - SECONDS)) line; do
        case $line in
        END) return ;;
        PID*) pid=${line#PID } ;;
        *) report "$line" ;;
        esac
    done < <(${sandbox:+in_sandbox "$place"} zsh -f -c "$remover" zsh "$1" "$3" "$place" "$asker" 2>/dev/null 3>&-)
    [ "$SECONDS" -lt "$deadline" ] || why='its removal takes too long'
    [ -z "$pid" ] || kill -KILL "$pid" 2>/dev/null
    report "FAIL $3"$'\t'"$why"
}

# Only a known folder directly in the shared data root; anything else is not Kelmar's.
remove_shared_data() { # PATH
    local name
    for name in "${data_folders[@]}"; do
        [ "$1" != "$test_root/Users/Shared/@Kelmar/$name" ] || { remove_item whole "$test_root" "$1"; return; }
    done
    report "FAIL $1"$'\t''it is not one of the shared Kelmar data folders'
}

# --- Services, processes, receipts -------------------------------------------------------------------------

# Whoever is logged in may have the agents loaded; those from a person's own folder are that person's.
stop_agents() {
    local label message user_id
    while read -r user_id; do
        for label in "${agents[@]}"; do
            message=$(/bin/launchctl print "gui/$user_id/$label" </dev/null 2>/dev/null) || continue
            case $message in
            *"path = /Library/LaunchAgents/$label.plist"*) ;;
            *'path = /'*) continue ;;
            esac
            if message=$(/bin/launchctl bootout "gui/$user_id/$label" </dev/null 2>&1); then
                report "LOG Stopped $label (user $user_id)."
            else
                report "LOG Could not stop $label (user $user_id): $(one_line "$message")"
            fi
        done
    done < <(ps -axo uid= | tr -d ' ' | sort -u -n)
}

# The numbers of the processes that run from Kelmar's folders below ROOT: what a process runs is the first file that
# is mapped in it, whatever it calls itself. lsof(8) makes line ends in a path visible.
processes_under() { # ROOT [OPTION OF lsof ...]
    local line pid='' root=$1
    shift
    while IFS= read -r line; do
        case $line in
        p*) pid=${line#p} ;;
        n"$root"/Applications/Kelmar.app/* | n"$root"/Library/Kelmar/*)
            printf '%s' "${pid:+$pid }"
            pid=''
            ;;
        n*) pid='' ;;
        esac
    done < <(lsof -nPw "$@" -d txt -F pn 2>/dev/null)
}

is_ancestor() { # PID: whether it, or a process that it started, started this script
    local pid=$$
    while [ "${pid:-0}" -gt 1 ]; do
        [ "$pid" != "$1" ] || return 0
        pid=$(lsof -nPw -a -p "$pid" -d cwd -F R 2>/dev/null | sed -n 's/^R//p')
    done
    return 1
}

# Asks these processes to end, and after ten seconds makes them.
stop_processes() { # ROOT
    local count=0 deadline=$((SECONDS + 10)) pid signal spared
    for signal in TERM KILL; do
        spared=''
        for pid in $(processes_under "$1"); do
            if is_ancestor "$pid"; then
                spared="$spared$pid "
            elif [ -n "$(processes_under "$1" -a -p "$pid")" ]; then # the number may be another program's by now
                kill "-$signal" "$pid" 2>/dev/null && [ "$signal" = TERM ] && count=$((count + 1))
            fi
        done
        while [ "$SECONDS" -lt "$deadline" ] && [ "$(processes_under "$1")" != "$spared" ]; do
            sleep 0.1
        done
    done
    [ -z "$spared" ] || report "LOG Left process ${spared% } running: it started Kelmar Uninstaller."
    [ "$count" -eq 0 ] || report "LOG Stopped $count process(es) of Kelmar ${1:+in }${1:-for all users}."
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

remove_installation() { # MODE ROOT
    local base=$2 item
    if [ -z "$test_root" ]; then
        base='' # no link may lead there
        stop_processes "$2"
    fi
    for item in Applications/Kelmar.app Library/Kelmar "Library/LaunchAgents/${agents[0]}.plist" \
        "Library/LaunchAgents/${agents[1]}.plist"; do
        remove_item "$1" "$base" "$2/$item"
    done
}

main() {
    local item
    cd / || die 1 'the root folder cannot be entered'
    read_arguments "$@"
    find_asker
    {
        try_sandbox
        if [ -n "$all_users" ]; then
            [ -n "$test_root" ] || stop_agents
            remove_installation whole "$test_root"
            [ -n "$test_root" ] || forget_receipts
        fi
        for item in ${shared_data[@]+"${shared_data[@]}"}; do
            remove_shared_data "$item"
        done
        [ -z "$home" ] || remove_installation foreign "$home"
        report DONE
    } 3>&1 >/dev/null | write_status
}

# The last line is read before any work begins: a file that is overwritten meanwhile changes nothing.
{ main "$@"; exit 0; }
