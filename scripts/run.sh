#!/usr/bin/env bash
# Builds the Windows x64 program and runs it under Wine, in the Japanese setting it is made for.
#
# The program folder build/program (the exe and its two icons) and the Wine prefix build/wine-prefix
# are kept between runs, so settings, PC lists and logs persist. Without a DISPLAY a private headless
# screen is started and a screenshot of the main window is written (its path is printed).
# The program starts hidden unless its setting open is 1; then a second start of the exe shows the
# running copy's window, the program's own single-instance behaviour.
# Runs until the program ends or Ctrl-C; Ctrl-C ends the Windows session (the program hears it as
# a shutdown) and then stops every Wine process of the prefix.
set -euo pipefail
cd "$(dirname "$(readlink -f "${BASH_SOURCE[0]}")")/.."
source tests/win/wine-common.sh

bash scripts/setup.sh
build=${LOOKOUT_BUILD_ROOT:-build}/windows-x64
cmake --preset windows-x64 -B "$build" >/dev/null
cmake --build "$build" -j "${LOOKOUT_JOBS:-$(nproc)}" --target veskar_lookout lookout_driver

program_dir=${LOOKOUT_PROGRAM_DIR:-build/program}
mkdir -p "$program_dir"
cp "$build/veskar_lookout.exe" "$build/veskarneton.ico" "$build/veskarnetoff.ico" "$program_dir/"
program_dir=$(readlink -f "$program_dir")
driver=$(readlink -f "$build/tests/e2e/lookout_driver.exe")
banner=$(sed -n 's/.*kBanner = "\(.*\)";.*/\1/p' src/base/product.h)

lookout_wine_environment
export WINEPREFIX=$(readlink -f "${LOOKOUT_WINE_PREFIX:-build/wine-prefix}")
lookout_wine_prefix_ensure "$WINEPREFIX"

stop() {
    trap - EXIT INT TERM
    set +e
    if [[ -z ${program_ended:-} ]]; then
        echo "run.sh: stopping"
        timeout 15 wine wineboot -e >/dev/null 2>&1
    fi
    lookout_wine_stop
    lookout_stop_x
}
trap stop EXIT
trap 'exit 130' INT TERM

own_screen=
if [[ -z ${DISPLAY:-} ]]; then
    lookout_start_x
    own_screen=1
    echo "run.sh: headless screen $DISPLAY"
fi

program_log=$(readlink -f "${build%/*}")/program.log
start_program() { (cd "$program_dir" && exec wine ./veskar_lookout.exe) >>"$program_log" 2>&1 & }

echo "run.sh: starting $program_dir/veskar_lookout.exe (Wine prefix $WINEPREFIX, output in $program_log)"
start_program
wine "$driver" wait --title "$banner" --timeout 60000 >/dev/null
if ! wine "$driver" wait --title "$banner" --visible --timeout 0 >/dev/null 2>&1; then
    echo "run.sh: the main window is hidden; starting the program again to show it"
    start_program
    wine "$driver" wait --title "$banner" --visible --timeout 30000 >/dev/null
fi
if [[ -n $own_screen ]]; then
    sleep 1 # let it paint
    shot=$(readlink -f "${build%/*}")/screenshots/run-$(date +%Y%m%d-%H%M%S).png
    mkdir -p "${shot%/*}"
    import -window root "$shot"
    echo "run.sh: screenshot of the main window: $shot"
fi

echo "run.sh: running; Ctrl-C stops it"
# Waits until the last Wine process of the prefix has ended; a signal interrupts the wait at once.
wineserver -w &
wait $!
program_ended=1
echo "run.sh: the program has ended"
