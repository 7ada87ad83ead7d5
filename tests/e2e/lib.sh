# The end-to-end harness, sourced by every scenario in scenarios/ (see README.md).
#
# A scenario is started by CTest as
#   bash scenarios/NAME.sh PROGRAM_EXE DRIVER_EXE SOURCE_DIR WORK_DIR
# and sources this file first, which reads those four arguments. e2e_begin then gives it a private
# headless X server with a window manager, a fresh copy of the prepared Wine prefix and a fresh
# program folder; whatever happens afterwards (pass, failure, timeout, Ctrl-C), every Wine process,
# the window manager and the X server are stopped when the scenario ends.

set -euo pipefail

[[ $# -ge 4 ]] || { echo "usage: $0 PROGRAM_EXE DRIVER_EXE SOURCE_DIR WORK_DIR" >&2; exit 2; }
E2E_EXE=$(readlink -f "$1")
E2E_DRIVER=$(readlink -f "$2")
E2E_SOURCE=$(readlink -f "$3")
E2E_WORK=$(readlink -m "$4")
E2E_NAME=$(basename "$0" .sh)
E2E_PROGRAM_DIR=$E2E_WORK/program
E2E_PROCESS=$(basename "$E2E_EXE")
E2E_TIMEOUT=${E2E_TIMEOUT:-120} # seconds for the whole scenario

source "$E2E_SOURCE/tests/win/wine-common.sh"

# The product name and the main window's caption, from the constants the program uses for them.
E2E_PRODUCT=$(sed -n 's/.*kProductName = "\(.*\)";.*/\1/p' "$E2E_SOURCE/src/base/product.h")
E2E_BANNER=$(sed -n 's/.*kBanner = "\(.*\)";.*/\1/p' "$E2E_SOURCE/src/base/product.h")
[[ -n $E2E_PRODUCT && -n $E2E_BANNER ]] || lookout_die "cannot read the names from src/base/product.h"

e2e_log() { printf '[%s %s] %s\n' "$E2E_NAME" "$(date +%T.%3N)" "$*" >&2; }

# Ends the scenario as failed; the EXIT trap cleans up and shows the program's output.
fail() {
    printf '\nFAIL [%s]: %s\n' "$E2E_NAME" "$*" >&2
    exit 1
}

# ---------------------------------------------------------------------------------------------
# Session

e2e_cleanup() {
    local status=$?
    trap - EXIT INT TERM USR1
    set +e # every step below must run
    if [[ -n ${e2e_watchdog_pid:-} ]]; then
        pkill -P "$e2e_watchdog_pid" # its sleep; the watchdog then ends without firing
        kill "$e2e_watchdog_pid"
    fi 2>/dev/null
    if [[ $status -ne 0 && -n ${DISPLAY:-} && -n ${lookout_xvfb_pid:-} ]]; then
        import -window root "$E2E_WORK/failure.png" 2>/dev/null &&
            echo "screenshot at failure: $E2E_WORK/failure.png" >&2
    fi
    lookout_wine_stop
    lookout_stop_x
    if [[ $status -ne 0 && -s $E2E_WORK/program.log ]]; then
        echo "--- program output (last 40 lines of $E2E_WORK/program.log, Wine traces left out) ---" >&2
        grep -av ':trace:' "$E2E_WORK/program.log" | tail -n 40 >&2
    fi
    [[ -n ${E2E_KEEP_PREFIX:-} ]] || rm -rf "$E2E_WORK/prefix"
    if [[ $status -eq 0 ]]; then
        e2e_log "passed in ${SECONDS}s"
    else
        e2e_log "FAILED (exit $status) after ${SECONDS}s; work folder $E2E_WORK"
    fi
    exit "$status"
}

# Starts the session: work folder, X server + openbox, Wine prefix copy, program folder with the
# program and its two icons.
e2e_begin() {
    SECONDS=0
    trap e2e_cleanup EXIT
    trap 'fail "interrupted"' INT TERM
    trap 'fail "timed out after $E2E_TIMEOUT s"' USR1
    # A guard against a hung scenario; it ends the scenario through the same cleanup.
    (sleep "$E2E_TIMEOUT" && kill -USR1 $$ 2>/dev/null) >/dev/null 2>&1 &
    e2e_watchdog_pid=$!

    [[ -f $E2E_DRIVER ]] || fail "the driver is not built: $E2E_DRIVER"
    rm -rf "$E2E_WORK"
    mkdir -p "$E2E_PROGRAM_DIR"
    cp "$E2E_EXE" "$(dirname "$E2E_EXE")"/veskarnet{on,off}.ico "$E2E_PROGRAM_DIR/" ||
        fail "the program or its two icons are not built beside $E2E_EXE"

    lookout_wine_environment
    export WINEPREFIX=$E2E_WORK/prefix
    lookout_wine_prefix_copy "$WINEPREFIX"
    lookout_start_x
    e2e_log "session ready (DISPLAY=$DISPLAY)"
}

# Starts the program in the background from its folder; its output goes to program.log.
# Sets e2e_program_job to the pid of the Wine process that runs it (it ends when the program ends).
e2e_start() {
    (cd "$E2E_PROGRAM_DIR" && exec wine "./$E2E_PROCESS" "$@") >>"$E2E_WORK/program.log" 2>&1 &
    e2e_program_job=$!
    e2e_log "started $E2E_PROCESS (job $e2e_program_job)"
}

# Waits up to SECONDS for the process started by the last e2e_start to end; fails if it does not.
e2e_wait_program_end() {
    local seconds=$1 what=${2:-"the program"} waited=0
    while kill -0 "$e2e_program_job" 2>/dev/null; do
        ((waited++ < seconds * 20)) || fail "$what did not end within $seconds s"
        sleep 0.05
    done
}

# True while the process started by the last e2e_start runs.
e2e_program_running() { kill -0 "$e2e_program_job" 2>/dev/null; }

# Starts the program past its first-start restart (the manifest is there first) and waits until
# its main window is shown; the settings must say open=1.
e2e_start_shown() {
    e2e_manifest_text >"$E2E_PROGRAM_DIR/$E2E_MANIFEST"
    e2e_start
    drive wait --title "$E2E_BANNER" --visible --timeout 20000 >/dev/null
}

# The visual-styles manifest the program writes beside itself on its first start, in this x64 build:
# its lines joined by CR LF, none after the last; the description is the Comments entry of the version
# information, which the program does not have. first_start checks the program writes exactly this;
# the other scenarios write it first, so that the program starts without its restart.
e2e_manifest_text() {
    local text
    text=$(cat <<XML
<?xml version="1.0" encoding="UTF-8" standalone="yes"?>
<assembly xmlns="urn:schemas-microsoft-com:asm.v1" manifestVersion="1.0">
<assemblyIdentity
  name="$E2E_PROCESS"
  processorArchitecture="amd64"
  version="1.0.0.0"
  type="win32"/>
<description></description>
<dependency>
  <dependentAssembly>
    <assemblyIdentity
      type="win32"
      name="Microsoft.Windows.Common-Controls"
      version="6.0.0.0"
      processorArchitecture="amd64"
      publicKeyToken="6595b64144ccf1df"
      language="*"
    />
  </dependentAssembly>
</dependency>
</assembly>
XML
)
    printf '%s' "${text//$'\n'/$'\r\n'}"
}

# Writes setting.ini (section main, CR LF) with the values a missing file gets except where a
# KEY=VALUE argument says otherwise, e.g. e2e_write_settings open=1 start=0.
e2e_write_settings() {
    local -A value=([time]=10 [open]=0 [start]=1 [packet]=1 [beep]=0 [logflag]=1 [backcolor]=16777215
        [fontcolor]=0 [window]=1 [nc]= [front]=0 [app]=0)
    local pair
    for pair in "$@"; do
        [[ -v value[${pair%%=*}] ]] || fail "e2e_write_settings: unknown key in $pair"
        value[${pair%%=*}]=${pair#*=}
    done
    {
        printf '[main]\r\n'
        for pair in "${!value[@]}"; do printf '%s=%s\r\n' "$pair" "${value[$pair]}"; done
    } >"$E2E_PROGRAM_DIR/setting.ini"
}

# The manifest's file name: the executable's name without extension, then ".exe.MANIFEST".
E2E_MANIFEST=${E2E_PROCESS%.*}.exe.MANIFEST

# ---------------------------------------------------------------------------------------------
# Driver

# Runs lookout_driver with the arguments, prints its output and returns its exit status. The driver
# always gives its reason when it fails, so a failure without one means Wine did not run it (seen
# once in CI under load): that run is logged and made once more.
drive_status() {
    local status attempt
    for attempt in 1 2; do
        status=0
        wine "$E2E_DRIVER" "$@" >"$E2E_WORK/driver.out" 2>"$E2E_WORK/driver.err" || status=$?
        [[ $status -ne 0 && ! -s $E2E_WORK/driver.err && $attempt -eq 1 ]] || break
        e2e_log "lookout_driver $1 ended with exit $status and no reason; running it again"
    done
    cat "$E2E_WORK/driver.out"
    return "$status"
}

# Like drive_status, but the scenario fails with the driver's reason when the driver fails.
# Capture with out=$(drive ...) (not `local out=$(...)`, which would hide the failure).
drive() { drive_status "$@" || fail "lookout_driver $* -> exit $?: $(cat "$E2E_WORK/driver.err")"; }

# Writes a screenshot of the whole virtual screen to WORK_DIR/NAME.png and prints its path.
e2e_screenshot() {
    local file=$E2E_WORK/$1.png
    import -window root "$file" || fail "screenshot $file failed"
    echo "screenshot: $file"
}

# ---------------------------------------------------------------------------------------------
# Files of the program folder

# Waits up to SECONDS for a file in the program folder to exist with a stable size.
e2e_wait_file() {
    local file=$E2E_PROGRAM_DIR/$1 seconds=$2 waited=0
    until [[ -f $file ]]; do
        ((waited++ < seconds * 20)) || fail "$1 was not created within $seconds s"
        sleep 0.05
    done
    local size=-1
    while [[ $(stat -c %s "$file") != "$size" ]]; do
        size=$(stat -c %s "$file")
        sleep 0.1
    done
}

# A file's text converted from code page 932 (the program's files) to UTF-8.
e2e_file_text() { iconv -f CP932 -t UTF-8 "$E2E_PROGRAM_DIR/$1"; }

# ---------------------------------------------------------------------------------------------
# Assertions

assert_eq() { # EXPECTED ACTUAL WHAT
    [[ $1 == "$2" ]] || fail "$3: expected [$1], got [$2]"
}

assert_line() { # TEXT EXPECTED_LINE WHAT: one whole line of TEXT equals EXPECTED_LINE
    grep -qxF -- "$2" <<<"$1" || fail "$3: no line [$2] in:
$1"
}

# The file in the program folder holds exactly these bytes (pass them as $'...' with \r\n).
# On a difference it shows both as a dump of characters.
assert_file_bytes() { # NAME EXPECTED
    cmp -s "$E2E_PROGRAM_DIR/$1" <(printf '%s' "$2") || fail "$1 does not hold the expected bytes.
--- expected ---
$(printf '%s' "$2" | od -An -c | head -n 40)
--- actual ---
$(od -An -c "$E2E_PROGRAM_DIR/$1" | head -n 40)"
}
