# SPDX-FileCopyrightText: 2026 the Kelvaro developers
# SPDX-License-Identifier: MIT
#
# Sourced by the scripts that build the game.

# What building, testing and playing need, by Debian's names.
build_packages=(g++ cmake ninja-build qt6-base-dev fonts-liberation)

# need PACKAGE...: installs those that are missing; ends the script when it cannot.
need() {
    if ! command -v apt-get >/dev/null || ! command -v dpkg-query >/dev/null; then
        echo "This system has no apt. Install what these Debian packages hold, then try again: $*" >&2
        exit 1
    fi
    local package missing=()
    for package in "$@"; do
        [ "$(dpkg-query -W -f '${db:Status-Status}' "$package" 2>/dev/null)" = installed ] || missing+=("$package")
    done
    [ ${#missing[@]} -eq 0 ] && return
    local as_root=()
    if [ "$(id -u)" -ne 0 ]; then
        if ! command -v sudo >/dev/null; then
            echo "As root, run: apt-get install ${missing[*]}" >&2
            exit 1
        fi
        as_root=(sudo)
    fi
    echo "Installing ${missing[*]}"
    quietly "${as_root[@]}" apt-get update
    quietly "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive \
        apt-get install --yes --no-install-recommends "${missing[@]}"
}

# quietly COMMAND...: shows what the command prints only when it fails, and then ends the script.
quietly() {
    local log status=0
    log=$(mktemp)
    "$@" >"$log" 2>&1 </dev/null || status=$?
    [ $status -eq 0 ] || cat "$log" >&2
    rm -f "$log"
    [ $status -eq 0 ] || exit $status
}

# build PRESET: configures and builds build/PRESET.
build() {
    echo "Building ($1)"
    quietly cmake --preset "$1"
    quietly cmake --build --preset "$1"
}
