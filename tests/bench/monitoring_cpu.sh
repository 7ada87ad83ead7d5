#!/usr/bin/env bash
# What monitoring costs: the CPU time of veskar_lookout.exe monitoring the loopback interface at a
# one-second interval, against lookout_floor.exe, which makes the same operating-system calls at the
# same rate and nothing else (interface entry, share sessions and the pass over waiting window
# messages that follows their enumeration, open files). Prints the CPU times and "ratio: X.XX"
# (program / floor) and fails when the ratio is above BENCH_LIMIT (1.1).
#
#   monitoring_cpu.sh [--floors-only] [BUILD_DIR]     BUILD_DIR: a windows-x64 build (build/windows-x64)
#
# BENCH_COPIES (3) copies of the program and as many of the floor run at the same time, each in its
# own Wine prefix on its own headless X server, and are measured over the same BENCH_SECONDS (60) of
# wall time, so the load of the machine falls on all of them alike. All of them, their wineservers
# and X servers share the machine's last processor: a tick is mostly round trips to wineserver, and
# what one costs depends on whether the two ends sit on one processor or two, which the scheduler
# would otherwise choose anew for every run. A run of a few hundredths of a second of CPU still
# varies by up to 15 % from copy to copy, and the ratio of one set of processes by several percent
# from set to set (where their memory lands counts: a tick pays for each page it touches), so
# BENCH_ROUNDS (3) rounds each start fresh processes, and the ratio is that of the means over all
# runs. Each round's ratio, and how far the runs of one exe differ, are printed beside it.
# --floors-only runs the floors alone (the program need not be built): a check of the noise. The
# work folder BUILD_DIR/tests/bench/work/monitoring_cpu keeps the program folders and their output.
#
# The CPU time of a run is that of the Wine process running the exe (found by its name among the
# processes of that run's prefix) and of any process it started: the on-CPU nanoseconds of their
# threads (/proc/PID/task/TID/schedstat) between the first and the last second of the window, or,
# when one of their threads ended inside the window and took its time with it, utime+stime of
# /proc/PID/stat (10 ms steps, but it keeps the time of ended threads). wineserver and the desktop
# process (explorer.exe: the virtual desktop, its taskbar and the tray) are shown for information.
set -euo pipefail

here=$(dirname "$(readlink -f "${BASH_SOURCE[0]}")")
if [[ -z ${BENCH_PINNED:-} ]] && command -v taskset >/dev/null; then
    BENCH_PINNED=1 exec taskset -c "$(($(nproc) - 1))" bash "${BASH_SOURCE[0]}" "$@"
fi
source_dir=$(readlink -f "$here/../..")
with_program=1
if [[ ${1:-} == --floors-only ]]; then
    with_program=0
    shift
fi
build=$(readlink -f "${1:-$source_dir/build/windows-x64}")
seconds=${BENCH_SECONDS:-60}
target=1.1                      # what monitoring may cost against the floor
limit=${BENCH_LIMIT:-$target}   # where this run fails
copies=${BENCH_COPIES:-3} # runs of each exe, measured side by side
rounds=${BENCH_ROUNDS:-3} # rounds of them, each with fresh processes
settle=${BENCH_SETTLE:-5} # seconds from the last run being up to the window: start-up work, first ticks

floor_exe=$build/tests/bench/lookout_floor.exe
floor_title=lookout_floor
work=$build/tests/bench/work/monitoring_cpu

# The end-to-end harness gives the driver, the manifest text, the banner, logging and fail(); the
# sessions are made here, three at a time.
set -- "$build/veskar_lookout.exe" "$build/tests/e2e/lookout_driver.exe" "$source_dir" "$work"
source "$source_dir/tests/e2e/lib.sh"

# ---------------------------------------------------------------------------------------------
# Sessions: one Wine prefix and one X server (with its window manager) per run

declare -A session_prefix session_display session_x session_wm
sessions=()

open_session() { # NAME
    local name=$1
    mkdir -p "$work/$name"
    export WINEPREFIX=$work/$name/prefix
    lookout_wine_prefix_copy "$WINEPREFIX"
    lookout_start_x
    sessions+=("$name")
    session_prefix[$name]=$WINEPREFIX session_display[$name]=$DISPLAY
    session_x[$name]=$lookout_xvfb_pid session_wm[$name]=$lookout_openbox_pid
}

use_session() { # NAME
    export WINEPREFIX=${session_prefix[$1]} DISPLAY=${session_display[$1]}
}

close_sessions() {
    local name
    for name in "${sessions[@]}"; do
        use_session "$name"
        lookout_wine_stop
        lookout_xvfb_pid=${session_x[$name]} lookout_openbox_pid=${session_wm[$name]}
        lookout_stop_x
        rm -rf "$WINEPREFIX"
    done
    sessions=()
}

bench_cleanup() {
    local status=$?
    trap - EXIT INT TERM USR1
    set +e
    if [[ -n ${bench_watchdog_pid:-} ]]; then
        pkill -P "$bench_watchdog_pid"
        kill "$bench_watchdog_pid"
    fi 2>/dev/null
    close_sessions
    if [[ $status -ne 0 && -s $work/program/program.log ]]; then
        echo "--- program output (last 20 lines of $work/program/program.log) ---" >&2
        tail -n 20 "$work/program/program.log" >&2
    fi
    exit "$status"
}

bench_begin() {
    [[ -f $floor_exe ]] || fail "the floor program is not built: $floor_exe"
    [[ -f $E2E_DRIVER ]] || fail "the driver is not built: $E2E_DRIVER"
    ((!with_program)) || [[ -f $E2E_EXE ]] || fail "the program is not built: $E2E_EXE"
    trap bench_cleanup EXIT
    trap 'fail "interrupted"' INT TERM
    trap 'fail "timed out"' USR1
    (sleep $((rounds * (seconds + 240))) && kill -USR1 $$ 2>/dev/null) >/dev/null 2>&1 &
    bench_watchdog_pid=$!
    rm -rf "$work"
    mkdir -p "$work"
    lookout_wine_environment
}

# ---------------------------------------------------------------------------------------------
# Processes of one prefix

# True when the process belongs to the current Wine prefix (several runs use the same exe names).
in_prefix() { tr '\0' '\n' 2>/dev/null <"/proc/$1/environ" | grep -qxF "WINEPREFIX=$WINEPREFIX"; }

# Pids of the current prefix's processes whose name (as the kernel keeps it: 15 characters) is NAME.
prefix_pids() { # NAME
    local pid pattern
    pattern=$(sed 's/[.[\*^$()+?{|]/\\&/g' <<<"${1:0:15}")
    for pid in $(pgrep -x "$pattern"); do
        if in_prefix "$pid"; then echo "$pid"; fi
    done
}

# PID and every process below it.
process_tree() { # PID
    local child
    echo "$1"
    for child in $(pgrep -P "$1"); do process_tree "$child"; done
}

# One sample of processes: "TICKS NANOSECONDS THREADS": utime+stime of the processes, the on-CPU
# time of their threads, and the threads as pid/tid joined by commas.
cpu_sample() { # PID...
    local pid task ticks=0 ns=0 threads="" stat run fields
    for pid; do
        stat=$(cat "/proc/$pid/stat" 2>/dev/null) || continue
        read -r -a fields <<<"${stat##*) }" # from field 3 on: utime is field 14, stime 15
        ticks=$((ticks + fields[11] + fields[12]))
        for task in /proc/"$pid"/task/*; do
            read -r run _ 2>/dev/null <"$task/schedstat" || continue
            ns=$((ns + run))
            threads+=",$pid/${task##*/}"
        done
    done
    echo "$ticks $ns ${threads#,}"
}

# Seconds of CPU between two samples, then the figure they come from: "threads" or "stat".
cpu_seconds() { # FIRST SECOND
    local first second thread
    read -r -a first <<<"$1"
    read -r -a second <<<"$2"
    for thread in ${first[2]//,/ }; do
        if [[ ,${second[2]}, != *",$thread,"* ]]; then
            awk -v a="${first[0]}" -v b="${second[0]}" -v hz="$(getconf CLK_TCK)" \
                'BEGIN { printf "%.3f stat\n", (b - a) / hz }'
            return
        fi
    done
    awk -v a="${first[1]}" -v b="${second[1]}" 'BEGIN { printf "%.4f threads\n", (b - a) / 1e9 }'
}

# ---------------------------------------------------------------------------------------------
# Runs

# The loopback interface's text as the program names interfaces: "N: description".
loopback_text() {
    local text
    text=$(wine "$floor_exe" --loopback 2>>"$work/loopback.log" | tr -d '\r') ||
        fail "lookout_floor --loopback failed: $(cat "$work/loopback.log")"
    # The program takes the row from the first character of the text alone.
    [[ $text =~ ^[0-9]:\  ]] || fail "the loopback interface's text \"$text\" cannot select it (rows 0 to 9 only)"
    echo "$text"
}

# The program's folder: the exe, its icons, its manifest (so it does not restart) and settings that
# start monitoring at once, every second, on the loopback interface, with the window hidden.
prepare_program_folder() { # FOLDER NC
    local folder=$1 icon
    mkdir -p "$folder"
    cp "$E2E_EXE" "$folder/"
    for icon in veskarneton.ico veskarnetoff.ico; do
        cp "$(dirname "$E2E_EXE")/$icon" "$folder/" || fail "$icon is missing beside $E2E_EXE"
    done
    e2e_manifest_text >"$folder/$E2E_MANIFEST"
    printf '[main]\r\ntime=1\r\nopen=0\r\nstart=1\r\npacket=1\r\nbeep=0\r\nlogflag=1\r\nbackcolor=16777215\r\nfontcolor=0\r\nwindow=1\r\nnc=%s\r\nfront=0\r\napp=0\r\n' \
        "$2" | iconv -f UTF-8 -t CP932 >"$folder/setting.ini"
}

declare -A run_exe run_title run_pid run_before run_server_before run_desktop_before run_cpu run_figure \
    run_processes run_server run_desktop

launch() { # NAME EXE
    (cd "$work/$1" && exec wine "./$2") >>"$work/$1/program.log" 2>&1 &
}

# Starts EXE from the run's folder in its session and waits for its window.
start_run() { # NAME EXE TITLE
    local name=$1
    run_exe[$name]=$2 run_title[$name]=$3
    use_session "$name"
    launch "$name" "$2"
    if ! drive_status wait --title "$3" --timeout 60000 >/dev/null; then
        # Now and then a Wine process started on the loaded processor shows no window and writes
        # nothing (seen once in some hundred starts); it gets one more try in a fresh wineserver.
        e2e_log "warning: $2 of the $name run showed no window within 60 s; starting it again"
        lookout_wine_stop
        launch "$name" "$2"
        drive wait --title "$3" --timeout 60000 >/dev/null
    fi
    local pid
    pid=$(prefix_pids "$2")
    [[ $(wc -w <<<"$pid") -eq 1 ]] || fail "expected one $2 process in the $name run, found: ${pid:-none}"
    run_pid[$name]=$pid
}

server_pids() { prefix_pids wineserver64; prefix_pids wineserver; }

# The start of the window (first) or its end (second) for one run.
sample_run() { # NAME first|second
    local name=$1 pid processes
    use_session "$name"
    pid=${run_pid[$name]}
    kill -0 "$pid" 2>/dev/null || fail "${run_exe[$name]} of the $name run has ended"
    mapfile -t processes < <(process_tree "$pid")
    local sample server desktop
    sample=$(cpu_sample "${processes[@]}")
    server=$(cpu_sample $(server_pids))
    desktop=$(cpu_sample $(prefix_pids explorer.exe))
    if [[ $2 == first ]]; then
        run_before[$name]=$sample run_server_before[$name]=$server run_desktop_before[$name]=$desktop
        return
    fi
    read -r "run_cpu[$name]" "run_figure[$name]" <<<"$(cpu_seconds "${run_before[$name]}" "$sample")"
    read -r "run_server[$name]" _ <<<"$(cpu_seconds "${run_server_before[$name]}" "$server")"
    read -r "run_desktop[$name]" _ <<<"$(cpu_seconds "${run_desktop_before[$name]}" "$desktop")"
    run_processes[$name]=${#processes[@]}
}

report() { # NAME
    printf '%-24s CPU %6.4f s in %s s (%s of %s process(es); wineserver %6.3f s, desktop %6.3f s)\n' \
        "$1 (${run_exe[$1]})" "${run_cpu[$1]}" "$seconds" "${run_figure[$1]}" "${run_processes[$1]}" \
        "${run_server[$1]}" "${run_desktop[$1]}"
}

# The mean CPU time of the runs.
mean_cpu() { # NAME...
    local name
    for name; do echo "${run_cpu[$name]}"; done | awk '{ sum += $1 } END { printf "%.4f", sum / NR }'
}

# The highest CPU time of the runs over the lowest: how far copies of one exe differ.
spread() { # NAME...
    local name
    for name; do echo "${run_cpu[$name]}"; done |
        awk 'NR == 1 || $1 < low { low = $1 } NR == 1 || $1 > high { high = $1 }
             END { if (low <= 0) print "inf"; else printf "%.2f", high / low }'
}

# ---------------------------------------------------------------------------------------------

ratio_of() { # A B
    awk -v a="$1" -v b="$2" 'BEGIN { if (b <= 0) print "inf"; else printf "%.2f", a / b }'
}

# One round: fresh sessions and processes for the copies of each exe, measured over one window.
# Their runs join programs and floors, and the round's ratio joins round_ratios.
measure_round() { # ROUND
    local round_programs=() round_floors=() copy name children
    for ((copy = 1; copy <= copies; ++copy)); do
        ((!with_program)) || round_programs+=("program-$1.$copy")
        round_floors+=("floor-$1.$copy")
    done
    local round_runs=("${round_programs[@]}" "${round_floors[@]}")
    for name in "${round_runs[@]}"; do open_session "$name"; done

    if [[ -z ${nc:-} ]]; then
        use_session "${round_floors[0]}"
        nc=$(loopback_text)
        e2e_log "loopback interface \"$nc\"; $rounds round(s) of $copies copies of each exe; windows of $seconds s"
    fi
    e2e_log "runs: ${round_runs[*]}"
    for name in "${round_programs[@]}"; do
        prepare_program_folder "$work/$name" "$nc"
        start_run "$name" "$E2E_PROCESS" "$E2E_BANNER"
    done
    for name in "${round_floors[@]}"; do
        cp "$floor_exe" "$work/$name/"
        start_run "$name" lookout_floor.exe "$floor_title"
    done

    sleep "$settle"
    for name in "${round_runs[@]}"; do sample_run "$name" first; done
    sleep "$seconds"
    for name in "${round_runs[@]}"; do sample_run "$name" second; done

    for name in "${round_programs[@]}"; do
        # Monitoring ran on the interface asked for: the selected-interface label shows its text.
        use_session "$name"
        children=$(drive children --title "$E2E_BANNER")
        grep -qF -- "$nc" <<<"$children" || e2e_log "warning: no control of the main window shows \"$nc\""
    done
    close_sessions

    programs+=("${round_programs[@]}") floors+=("${round_floors[@]}")
    ((!with_program)) ||
        round_ratios+=("$(ratio_of "$(mean_cpu "${round_programs[@]}")" "$(mean_cpu "${round_floors[@]}")")")
}

bench_begin
programs=() floors=() round_ratios=()
for ((round = 1; round <= rounds; ++round)); do measure_round "$round"; done

for name in "${programs[@]}" "${floors[@]}"; do report "$name"; done
runs_text="mean of $copies copies x $rounds round(s)"
floor_cpu=$(mean_cpu "${floors[@]}")
echo "floor: $floor_cpu s ($runs_text); highest over lowest: $(spread "${floors[@]}")"
((with_program)) || exit 0
program_cpu=$(mean_cpu "${programs[@]}")
echo "program: $program_cpu s ($runs_text); highest over lowest: $(spread "${programs[@]}")"
echo "ratio of each round: ${round_ratios[*]}"

ratio=$(ratio_of "$program_cpu" "$floor_cpu")
echo "ratio: $ratio (target $target, fails above $limit)"
awk -v r="$ratio" -v t="$target" 'BEGIN { exit !(r != "inf" && r + 0 > t + 0) }' &&
    echo "monitoring_cpu: above its target of $target"
awk -v r="$ratio" -v l="$limit" 'BEGIN { exit !(r != "inf" && r + 0 <= l + 0) }' ||
    fail "monitoring costs $ratio times the CPU time of the floor (limit $limit)"
