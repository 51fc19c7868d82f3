# shellcheck shell=bash
# SPDX-FileCopyrightText: 2026 the Kelvaro developers
# SPDX-License-Identifier: MIT
#
# Sourced by the scripts that build the game.

# What building, testing and playing need, by the names of the system's package manager. Only apt-get on Debian 12 has
# been tried.
if command -v apt-get >/dev/null && command -v dpkg-query >/dev/null; then
    manager=apt-get
    build_packages=(g++ cmake ninja-build qt6-base-dev fonts-liberation)
    wayland_package=qt6-wayland
elif command -v dnf >/dev/null; then
    manager=dnf
    build_packages=(gcc-c++ cmake ninja-build qt6-qtbase-devel liberation-sans-fonts)
    wayland_package=qt6-qtwayland
elif command -v pacman >/dev/null; then
    manager=pacman
    build_packages=(gcc cmake ninja qt6-base ttf-liberation)
    wayland_package=qt6-wayland
elif command -v zypper >/dev/null; then
    manager=zypper
    build_packages=(gcc-c++ cmake ninja qt6-base-devel liberation-fonts)
    wayland_package=qt6-wayland
elif command -v brew >/dev/null; then
    manager=brew
    build_packages=(cmake ninja qt)
    wayland_package=
else
    manager=
    build_packages=(g++ cmake ninja-build qt6-base-dev fonts-liberation)
    wayland_package=qt6-wayland
fi

is_installed() {
    case $manager in
    apt-get) [ "$(dpkg-query -W -f '${db:Status-Status}' "$1" 2>/dev/null)" = installed ] ;;
    dnf | zypper) rpm --quiet -q "$1" ;;
    pacman) pacman -Qq "$1" >/dev/null 2>&1 ;;
    brew) brew list "$1" >/dev/null 2>&1 ;;
    esac
}

install_packages() {
    case $manager in
    apt-get)
        quietly "${as_root[@]}" apt-get update
        quietly "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get install --yes --no-install-recommends "$@"
        ;;
    dnf) quietly "${as_root[@]}" dnf install --assumeyes "$@" ;;
    pacman) quietly "${as_root[@]}" pacman -S --noconfirm --needed "$@" ;;
    zypper) quietly "${as_root[@]}" zypper --non-interactive install "$@" ;;
    brew) quietly brew install "$@" ;;
    esac
}

# need PACKAGE...: installs those that are missing; ends the script when it cannot.
need() {
    if [ -z "$manager" ]; then
        echo "No package manager was found here. Install what these Debian packages hold, then build with CMake: $*" >&2
        exit 1
    fi
    local package missing=() as_root=()
    for package in "$@"; do
        is_installed "$package" || missing+=("$package")
    done
    [ ${#missing[@]} -gt 0 ] || return 0
    if [ "$(id -u)" -ne 0 ] && [ "$manager" != brew ]; then
        if ! command -v sudo >/dev/null; then
            echo "As root, install ${missing[*]} with $manager, then try again." >&2
            exit 1
        fi
        as_root=(sudo)
    fi
    echo "Installing ${missing[*]}"
    install_packages "${missing[@]}"
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
