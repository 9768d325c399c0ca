# Shared by the scripts of this folder and by .ci/run; sourced, not run.
# shellcheck shell=bash

set -euo pipefail

# Where the project is, whatever folder the caller stands in.
project=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd -P)

say() {
    printf '\n== %s\n' "$*"
}

fail() {
    printf '%s: %s\n' "${0##*/}" "$*" >&2
    exit 1
}

as_root() {
    if [ "$(id -u)" -eq 0 ]; then
        "$@"
    elif command -v sudo >/dev/null; then
        sudo "$@"
    else
        fail "this needs root or sudo: $*"
    fi
}

# Installs those of the Debian packages named that are missing, and says which.
install_packages() {
    local package missing=()
    command -v dpkg-query >/dev/null ||
        fail "only Debian and Ubuntu are known here; install the like of: $*"
    for package in "$@"; do
        if [ "$(dpkg-query -W -f '${Status}' "$package" 2>/dev/null)" != "install ok installed" ]; then
            missing+=("$package")
        fi
    done
    if [ ${#missing[@]} -eq 0 ]; then
        return
    fi
    say "Installing: ${missing[*]}"
    as_root env DEBIAN_FRONTEND=noninteractive apt-get update -q
    as_root env DEBIAN_FRONTEND=noninteractive apt-get install -q -y --no-install-recommends \
        "${missing[@]}"
}

# What each kind of work needs; the scripts that source this file take their pick.
# shellcheck disable=SC2034 # used there
{
    build_packages=(g++ cmake ninja-build libplist-dev)
    window_packages=(qt6-base-dev qt6-svg-dev)
    script_packages=(zsh lsof) # what the administrator's script removes and looks with
    test_packages=(libgtest-dev libseccomp-dev sudo procps passwd e2fsprogs "${script_packages[@]}")
    window_test_packages=(xvfb at-spi2-core dbus-daemon libatspi2.0-dev libx11-dev libxtst-dev libsm-dev)
    clang_packages=(clang clang-tidy clang-format libclang-rt-dev)
    picture_packages=(fonts-inter fonts-noto-color-emoji)
    window_bench_packages=(xvfb libx11-dev libxcb1-dev libxdamage-dev)
    macos_packages=(nodejs cmake ninja-build llvm librsvg2-bin python3)
    macos_check_packages=(llvm python3 libplist-utils icnsutils unzip)
    gnustep_packages=(gobjc++ libgnustep-gui-dev gnustep-back0.29-cairo xvfb libx11-dev libxtst-dev python3-clang
        nodejs)
    bench_packages=(libbenchmark-dev findutils coreutils time)
}

# npm comes with other Node.js packages than Debian's as well; two of them don't go together.
install_npm() {
    if ! command -v npm >/dev/null; then
        install_packages npm
    fi
}

# Fetches what the folder $1 pins by version and by hash into the folder $2, once, and then runs the rest as a command.
# All is there when the file "complete" in $2, the copy of the description, has been made.
fetch_pinned() {
    local description=$1 folder=$2
    shift 2
    if cmp -s "$description/package-lock.json" "$folder/complete"; then
        return
    fi
    mkdir -p "$folder"
    rm -f "$folder/complete"
    cp "$description/package.json" "$description/package-lock.json" "$folder/"
    # What npm keeps for itself stays out of the caller's home, which may not be there to write to.
    (cd "$folder" &&
        quietly npm ci --ignore-scripts --no-audit --no-fund --no-update-notifier --cache "$folder/npm")
    rm -rf "$folder/npm"
    "$@"
    cp "$description/package-lock.json" "$folder/complete"
}

# Runs a command quietly: what it printed is shown when it fails, and else only where it warned.
quietly() {
    local log
    log=$(mktemp "$project/build/log.XXXXXX")
    if ! "$@" >"$log" 2>&1; then
        cat "$log" >&2
        rm -f "$log"
        fail "failed: $*"
    fi
    grep -F 'warning:' "$log" >&2 || true
    rm -f "$log"
}

# Configures a preset and builds the given targets, or all.
build() {
    local preset=$1
    shift
    local targets=()
    if [ $# -gt 0 ]; then
        targets=(--target "$@")
    fi
    cd "$project"
    quietly cmake --preset "$preset"
    quietly cmake --build --preset "$preset" ${targets[@]+"${targets[@]}"}
}

mkdir -p "$project/build"
