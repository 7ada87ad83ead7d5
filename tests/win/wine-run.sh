#!/usr/bin/env bash
# Runs a Windows program under Wine the way the tests need it: Japanese locale, quiet log, the
# project's prepared prefix. CTest's emulator for the Windows builds.
#
# By default every run gets a fresh copy of the cached template prefix and a private headless X
# server (windows cannot be created without one), and both are removed afterwards, so runs never
# see each other's registry or files and can run in parallel. With LOOKOUT_WINE_PREFIX set, that
# prefix is used and kept (made from the template when missing) on the current DISPLAY.
set -euo pipefail
source "$(dirname "$(readlink -f "${BASH_SOURCE[0]}")")/wine-common.sh"

[[ $# -ge 1 ]] || lookout_die "usage: wine-run.sh PROGRAM.exe [ARGUMENTS...]"
lookout_wine_environment

if [[ -n ${LOOKOUT_WINE_PREFIX:-} ]]; then
    export WINEPREFIX=$LOOKOUT_WINE_PREFIX
    lookout_wine_prefix_ensure "$WINEPREFIX"
    exec wine "$@"
fi

scratch=$(mktemp -d "${TMPDIR:-/tmp}/lookout-wine.XXXXXX")
export WINEPREFIX=$scratch/prefix
cleanup() {
    lookout_wine_stop
    lookout_stop_x
    rm -rf "$scratch"
}
trap cleanup EXIT
trap 'exit 130' INT TERM
lookout_wine_prefix_copy "$WINEPREFIX"
lookout_start_x
status=0
wine "$@" || status=$?
exit "$status"
