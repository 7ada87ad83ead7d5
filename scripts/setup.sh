#!/usr/bin/env bash
# Installs what building and testing need, and only what is missing (Debian 12, apt).
# Safe to run again and again: with everything present it changes nothing and takes a moment.
set -euo pipefail

packages=(
    cmake ninja-build g++ googletest libgtest-dev libbenchmark-dev  # native build, unit tests, benchmarks
    ccache                                                          # rebuilds of unchanged sources are free
    g++-mingw-w64-x86-64 g++-mingw-w64-i686                         # the Windows builds
    wine wine64 fonts-wine                                          # running them (fonts-wine: captions)
    locales                                                         # ja_JP definitions for localedef
    xvfb openbox imagemagick fonts-ipafont                          # headless screen, window manager, screenshots, Japanese fonts
    xdotool                                                         # real mouse clicks on the headless screen
    procps util-linux                                               # pkill, flock in the test scripts
)

missing=()
for package in "${packages[@]}"; do
    if ! dpkg-query -W -f='${Status}' "$package" 2>/dev/null | grep -q 'install ok installed'; then
        missing+=("$package")
    fi
done
if [[ ${#missing[@]} -eq 0 ]]; then
    echo "setup.sh: all build and test tools are installed"
    exit 0
fi

echo "setup.sh: installing ${missing[*]}"
sudo=()
if [[ $(id -u) -ne 0 ]]; then
    command -v sudo >/dev/null || { echo "setup.sh: run as root to install: ${missing[*]}" >&2; exit 1; }
    sudo=(sudo)
fi
export DEBIAN_FRONTEND=noninteractive
"${sudo[@]}" apt-get update -q
"${sudo[@]}" apt-get install -y -q "${missing[@]}" </dev/null
echo "setup.sh: done"
