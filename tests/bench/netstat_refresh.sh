#!/usr/bin/env bash
# The NETSTAT tab's refresh with BENCH_CONNECTIONS (1000) loopback TCP connections held open by a
# helper on the Linux side (Wine lists host sockets), against its floor: netstat_bench.exe prints
# the row count, both times and the ratio, and fails above BENCH_LIMIT (1.3).
#
#   netstat_refresh.sh [BUILD_DIR]      BUILD_DIR: a windows-x64 build (build/windows-x64)
set -euo pipefail
here=$(dirname "$(readlink -f "${BASH_SOURCE[0]}")")
build=$(readlink -f "${1:-$here/../../build/windows-x64}")
work=$(mktemp -d "${TMPDIR:-/tmp}/netstat_bench.XXXXXX")
python3 "$here/loopback_connections.py" "${BENCH_CONNECTIONS:-1000}" "$work/ready" 300 >"$work/helper.log" 2>&1 &
helper=$!
trap 'kill "$helper" 2>/dev/null; rm -rf "$work"' EXIT
for _ in $(seq 100); do [[ -e $work/ready ]] && break; sleep 0.1; done
[[ -e $work/ready ]] || { echo "the connection helper did not start" >&2; cat "$work/helper.log" >&2; exit 1; }
bash "$here/../win/wine-run.sh" "$build/tests/bench/netstat_bench.exe" "${BENCH_ROUNDS:-30}" "${BENCH_LIMIT:-1.3}"
