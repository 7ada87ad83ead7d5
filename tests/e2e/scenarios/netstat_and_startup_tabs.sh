#!/usr/bin/env bash
# The startup tab lists a value of the user's Run key with "User_Run" and its program's icon; the
# NETSTAT tab shows a loopback listener on 8080 as it is and one on 50000 as 50001.
source "$(dirname "$0")/../lib.sh"
e2e_begin

# Two loopback listeners on the Linux side (Wine lists host sockets); they end by themselves.
ready=$E2E_WORK/listeners.ready
python3 - "$ready" "$E2E_TIMEOUT" >"$E2E_WORK/listeners.log" 2>&1 <<'PY' &
import socket, sys, time
held = [socket.create_server(("127.0.0.1", port)) for port in (8080, 50000)]
open(sys.argv[1], "w").close()
time.sleep(float(sys.argv[2]))
PY
listeners=$!
for _ in $(seq 50); do [[ -e $ready ]] && break; sleep 0.1; done
[[ -e $ready ]] || fail "the loopback listeners did not start (ports 8080 and 50000 busy?)"

wine reg add 'HKCU\Software\Microsoft\Windows\CurrentVersion\Run' /v lookout_e2e /t REG_SZ \
    /d '"C:\windows\notepad.exe" /x' /f >/dev/null 2>&1 || fail "cannot write the Run key"

e2e_write_settings open=1 start=0 logflag=0
e2e_start_shown
window=(--title "$E2E_BANNER")

drive select-tab "${window[@]}" スタートアップ >/dev/null
rows=$(drive listview-rows "${window[@]}" --visible-control)
assert_line "$rows" $'lookout_e2e\t"C:\\windows\\notepad.exe" /x\tUser_Run' "the Run value with its location"
e2e_screenshot startup_tab

drive select-tab "${window[@]}" NETSTAT >/dev/null
rows=$(drive listview-rows "${window[@]}" --visible-control)
assert_line "$rows" $'TCP\t127.0.0.1\t8080\t0.0.0.0\t0\tLISTEN' "port 8080 exactly"
assert_line "$rows" $'TCP\t127.0.0.1\t50001\t0.0.0.0\t0\tLISTEN' "port 50000 one more, as always shown"
e2e_screenshot netstat_tab
kill "$listeners"
