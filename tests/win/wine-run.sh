#!/usr/bin/env bash
# Runs a Windows program under Wine the way the tests need it: Japanese locale, quiet log, the
# project's prepared prefix. CTest's emulator for the Windows builds.
#
# Every run gets a fresh copy of the cached template prefix and a private headless X server
# (windows cannot be created without one), and both are removed afterwards, so runs never see
# each other's registry or files and can run in parallel.
set -euo pipefail
source "$(dirname "$(readlink -f "${BASH_SOURCE[0]}")")/wine-common.sh"

[[ $# -ge 1 ]] || lookout_die "usage: wine-run.sh PROGRAM.exe [ARGUMENTS...]"
lookout_wine_environment

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
wine "$@" # its exit status is the script's; the EXIT trap keeps it
