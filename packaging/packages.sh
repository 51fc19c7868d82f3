# shellcheck shell=bash
# SPDX-FileCopyrightText: 2026 the Kelvaro developers
# SPDX-License-Identifier: MIT
#
# Functions for the scripts that install packages and build the game. They are called in the project's folder.

oldest_cmake=3.25
log=build/log
mkdir -p build

is_installed() {
    [ "$(dpkg-query -W -f '${db:Status-Status}' "$1" 2>/dev/null)" = installed ]
}

# attempt TITLE COMMAND...: runs the command. Prints the title, a dot for every five lines of its output, and the seconds it
# took. The output is in $log. Returns the command's status.
attempt() {
    local status=0 began=$SECONDS
    printf '%s ' "$1"
    "${@:2}" </dev/null 2>&1 | tee "$log" | while read -r _ && read -r _ && read -r _ && read -r _ && read -r _; do
        printf .
    done || status=$?
    echo " $((SECONDS - began)) s"
    return "$status"
}

# step TITLE COMMAND...: the same. If the command fails, prints its output and ends the script.
step() {
    attempt "$@" || { local status=$?; cat "$log" >&2; exit "$status"; }
}

# need PACKAGE...: installs the missing ones. If that is not possible it says so and goes on, because CMake may find what it
# needs elsewhere.
need() {
    local package missing=() as_root=()
    command -v apt-get >/dev/null || { echo "There is no apt-get to install $*; going on" >&2; return 0; }
    for package in "$@"; do
        is_installed "$package" || missing+=("$package")
    done
    [ ${#missing[@]} -gt 0 ] || return 0
    if [ "$(id -u)" -ne 0 ]; then
        command -v sudo >/dev/null || { echo "There is no sudo to install ${missing[*]}; going on" >&2; return 0; }
        as_root=(sudo)
    fi
    attempt "Installing ${missing[*]}" "${as_root[@]}" sh -c 'apt-get update &&
        DEBIAN_FRONTEND=noninteractive apt-get install --yes --no-install-recommends "$@"' sh "${missing[@]}" ||
        { cat "$log" >&2; echo "Going on without ${missing[*]}" >&2; }
}

# configure PRESET [OPTION]
configure() {
    attempt "Configuring ($1)" cmake --preset "$@"
}

# build PRESET: configures and builds build/PRESET. If the first try fails, the project may have been moved or a package may be
# missing, so it installs packages and starts afresh.
build() {
    if ! command -v cmake >/dev/null || ! configure "$1"; then
        need g++ cmake ninja-build qt6-base-dev
        local version
        version=$(cmake --version 2>/dev/null | sed -n '1s/.* //p') || true
        [ "$(printf '%s\n' "$oldest_cmake" "$version" | sort --version-sort | head -n 1)" = "$oldest_cmake" ] ||
            { echo "Kelvaro needs CMake $oldest_cmake or newer; found: ${version:-none}." >&2; exit 1; }
        configure "$1" --fresh || { grep -E '^ *Kelvaro needs' "$log" || cat "$log"; exit 1; } >&2
    fi
    step "Building ($1)" cmake --build --preset "$1"
}
