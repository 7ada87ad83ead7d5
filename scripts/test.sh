#!/usr/bin/env bash
# The project's test command (CI runs it through .ci/run):
#   1. native: portable code and unit tests, with address and undefined-behaviour sanitizers
#   2. windows-x64: platform tests and end-to-end scenarios under Wine on a headless screen
#   3. windows-x86: must compile and link (Wine here cannot run 32-bit programs)
#   4. bench: optimised benchmarks; each program prints its ratios and fails when one is over its limit
# Stops at the first failure with a non-zero exit.
#
# LOOKOUT_BUILD_ROOT (default build) holds the four build folders; give each developer sharing a
# working tree their own. LOOKOUT_JOBS sets the build parallelism (default: all cores).
set -Eeuo pipefail
cd "$(dirname "$(readlink -f "${BASH_SOURCE[0]}")")/.."

root=${LOOKOUT_BUILD_ROOT:-build}
jobs=${LOOKOUT_JOBS:-$(nproc)}
started=$SECONDS
current="setup"
trap 'echo "test.sh: FAILED during: $current ($((SECONDS - started)) s)" >&2' ERR

step() {
    current=$*
    echo
    echo "=== $* ($((SECONDS - started)) s)"
}

# Four builds of mostly the same sources: a compiler cache makes every run after the first much faster.
launcher=()
if command -v ccache >/dev/null; then
    launcher=(-DCMAKE_C_COMPILER_LAUNCHER=ccache -DCMAKE_CXX_COMPILER_LAUNCHER=ccache)
    # Paths relative to the source tree, so a fresh clone elsewhere (CI) still hits the cache.
    export CCACHE_BASEDIR=$PWD CCACHE_NOHASHDIR=1
fi

configure_and_build() { # PRESET [TARGET...]
    local preset=$1
    shift
    cmake --preset "$preset" -B "$root/$preset" "${launcher[@]}" >/dev/null
    cmake --build "$root/$preset" -j "$jobs" ${1:+--target "$@"}
}

step "setup"
bash scripts/setup.sh

step "native: build"
configure_and_build native
step "native: unit tests"
ctest --test-dir "$root/native" --output-on-failure -j "$jobs"

step "windows-x64: build"
configure_and_build windows-x64
step "windows-x64: platform and end-to-end tests under Wine"
ctest --test-dir "$root/windows-x64" --output-on-failure -j "$jobs"

step "windows-x86: build (compile and link only)"
configure_and_build windows-x86

step "bench: build"
configure_and_build bench lookout_bench
step "bench: run"
mapfile -t benchmarks < <(find "$root/bench" -path "$root/bench/googletest" -prune -o \
    -type f -executable -name '*bench*' -print | sort)
for program in "${benchmarks[@]}"; do
    echo "--- $program"
    "$program"
done
[[ ${#benchmarks[@]} -gt 0 ]] || echo "(no benchmark programs built)"
# The program's monitoring against its floor under Wine. Over three rounds the ratio has moved
# between 1.05 and 1.16, single rounds between 0.97 and 1.23, so CI fails only on a clear
# regression; the ratio against its target of 1.1 is printed for the report.
BENCH_LIMIT=1.3 bash tests/bench/monitoring_cpu.sh "$root/windows-x64"
# The process tab's tick and rebuild against the system calls they make, under Wine on one
# processor like the monitoring benchmark (the calls are round trips to wineserver).
pin=()
command -v taskset >/dev/null && pin=(taskset -c "$(($(nproc) - 1))")
"${pin[@]}" bash tests/win/wine-run.sh "$root/windows-x64/tests/bench/process_tab_bench.exe"
# One refresh of the applications tab against a floor that makes the same walk calls directly,
# under Wine on the same processor; the program prints the handle count and both times and fails over a ratio of 1.2.
"${pin[@]}" bash tests/win/wine-run.sh "$root/windows-x64/tests/bench/lookout_applications_bench.exe"
# The NETSTAT refresh with 1000 loopback connections against its table calls (a few seconds).
bash tests/bench/netstat_refresh.sh "$root/windows-x64"

trap - ERR
# Test code against product code: non-blank, non-comment lines of C++ and shell under tests/ (the
# end-to-end driver and the benchmarks are tools and count apart) and under src/.
code_lines() {
    git ls-files -- "$@" | grep -E '\.(c|cc|cpp|cxx|h|hpp|sh)$' | grep -v -E '^tests/(e2e/driver|bench)/' |
        xargs -r cat | grep -c -v -E '^\s*(//.*|# .*|#)?$'
}
echo
echo "test.sh: PASSED: native unit tests, Windows x64 platform and end-to-end tests, Windows x86 build, ${#benchmarks[@]} benchmark program(s) in $((SECONDS - started)) s"
src_lines=$(code_lines src || true)
test_lines=$(code_lines tests || true)
if [[ ${src_lines:-0} -gt 0 ]]; then
    echo "test.sh: test code is $test_lines lines against $src_lines under src/ ($((100 * test_lines / src_lines)) %)"
fi
