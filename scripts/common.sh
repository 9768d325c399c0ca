# Shared by the scripts of this folder and by .ci/run; sourced, not run.
# shellcheck shell=bash

set -euo pipefail

# The project's folder, whatever the caller's working folder is.
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

# Prints which of the named Debian packages are missing, and installs them.
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

# The packages for each kind of work; scripts that source this file choose among them.
# shellcheck disable=SC2034 # used there
{
    build_packages=(g++ cmake ninja-build libplist-dev)
    window_packages=(qt6-base-dev qt6-svg-dev)
    script_packages=(zsh lsof) # what the administrator's script removes and looks with
    test_packages=(libgtest-dev libseccomp-dev sudo procps e2fsprogs "${script_packages[@]}")
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

# npm may also come with another Node.js than Debian's; the two packages conflict.
install_npm() {
    if ! command -v npm >/dev/null; then
        install_packages npm
    fi
}

# Fetches the packages that folder $1 pins by version and hash into folder $2, once, then runs the other arguments as a
# command. The file "complete" in $2, a copy of the description, marks a finished download.
fetch_pinned() {
    local description=$1 folder=$2
    shift 2
    if cmp -s "$description/package-lock.json" "$folder/complete"; then
        return
    fi
    mkdir -p "$folder"
    rm -f "$folder/complete"
    cp "$description/package.json" "$description/package-lock.json" "$folder/"
    # npm's cache stays out of the caller's home, which may not be writable.
    (cd "$folder" &&
        quietly npm ci --ignore-scripts --no-audit --no-fund --no-update-notifier --cache "$folder/npm")
    rm -rf "$folder/npm"
    "$@"
    cp "$description/package-lock.json" "$folder/complete"
}

# Runs a command quietly: prints its output if it fails, or if it contains warnings.
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

# Configures a preset and builds the given targets, or all targets.
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
