#!/usr/bin/env bash
# The process tab lists the program itself; the lists' pop-up menu copies a path, ends a helper on
# Yes and shows the file's imports (No and the rebuild on a new process are unit tests').
# Under Wine no socket is a transport handle and the owner-PID tables name no owner, so the
# applications tab lists nothing; it still counts in panel 5 and writes the application log on
# every refresh. The allowed-applications editor opens from the Tools menu, adds names through
# its input box, deletes the selected one and rewrites the file. The startup tab
# lists a value of the user's Run key with "User_Run"; the NETSTAT tab shows a loopback listener
# on 8080 as it is and one on 50000 as 50001.
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

e2e_write_settings open=1 start=0 logflag=0 app=1
(exec wine notepad.exe >>"$E2E_WORK/helper.log" 2>&1 &)
drive wait --class Notepad --visible --timeout 20000 >/dev/null
e2e_start_shown
window=(--title "$E2E_BANNER") list=(--title "$E2E_BANNER" --visible-control) at=(--process "$E2E_PROCESS")
row_of() { grep -nP "^$1\t" <<<"$rows" | head -1 | awk -F: '{ print $1 - 1 }'; }
refresh() { drive menu-invoke "${window[@]}" "表示(&V)..." "最新の情報に更新(&R)" >/dev/null; }
# A tmrTASK tick rebuilds the list when the number of processes changed (the driver's own come and
# go), and a rebuilt list has no selected row: the command then does nothing and is tried again.
choose() { # ROW KEY CHECK...
    for _ in 1 2 3; do
        drive listview-rclick "${list[@]}" "$1" >/dev/null && drive popup-choose "${at[@]}" "$2" >/dev/null
        "${@:3}" && return
    done
    fail "the pop-up command $2 on row $1 did nothing"
}
asking() { drive_status messagebox "${at[@]}" --timeout 2000 >/dev/null; }
copied() { [[ $(drive clipboard) == "$path" ]]; }
box() { drive messagebox "${at[@]}" | grep -v ^button; }

drive select-tab "${window[@]}" 1 >/dev/null && rows=$(drive listview-rows "${list[@]}")
IFS=$'\t' read -r _ id memory path < <(grep -P "^$E2E_PROCESS\t" <<<"$rows")
assert_eq "$(drive processes "${at[@]}" | cut -f1)" "$id" "the program's own process ID"
[[ $memory =~ ^[1-9][0-9]{0,2}(,[0-9]{3})*\ K$ && $path =~ ^[A-Z]:\\.*\\$E2E_PROCESS$ ]] ||
    fail "memory '$memory' or path '$path' of the program"
assert_line "$(drive status "${window[@]}")" $'4\tプロセス : '"$(wc -l <<<"$rows")" "panel 5 counts the rows"

own=$(row_of "$E2E_PROCESS") && drive listview-rclick "${list[@]}" "$own" >/dev/null
drive wait "${at[@]}" --class '#32768' --visible >/dev/null && e2e_screenshot popup_menu >/dev/null
drive popup-choose "${at[@]}" C >/dev/null
copied || choose "$own" C copied

choose "$(row_of 'notepad\.exe')" E asking
drive messagebox-click "${at[@]}" "はい(&Y)" >/dev/null
drive wait-exit --process notepad.exe --timeout 10000 >/dev/null

refresh && rows=$(drive listview-rows "${list[@]}")
choose "$(row_of "$E2E_PROCESS")" D asking
imports=$(x86_64-w64-mingw32-objdump -p "$E2E_PROGRAM_DIR/$E2E_PROCESS" | sed -n 's/^\tDLL Name: \(.*\)/\1\\r\\n/p' | tr -d '\n')
assert_eq $'title\tFile Dependencies\ntext\t\\r\\nFile : '"$path"$'\\r\\n\\r\\n'"$imports" "$(box)" "the imports"
e2e_screenshot dependencies >/dev/null
drive messagebox-click "${at[@]}" OK >/dev/null

drive check 1 "${window[@]}" --id 130 >/dev/null  # cheAutoLogApp: the automatic logs
drive select-tab "${window[@]}" 2 >/dev/null
assert_eq 0 "$(drive listview-count "${window[@]}" --visible-control)" "rows of lstvProcess under Wine"
assert_line "$(drive status "${window[@]}")" $'4\tプロセス : 0' "panel 5 counts the applications"
drive menu-invoke "${window[@]}" "表示(&V)..." "最新の情報に更新(&R)" >/dev/null
log=$(ls "$E2E_PROGRAM_DIR/logs" | grep '^application' || true)
[[ -n $log ]] || fail "no application log in logs/: $(ls "$E2E_PROGRAM_DIR/logs")"

drive menu-invoke "${window[@]}" "ツール(&T)" "アプリケーションの登録(&A)" >/dev/null
editor=(--title "アプリケーション管理")
drive wait "${editor[@]}" >/dev/null
assert_file_bytes app.ini ""  # a missing list is created empty
for name in notepad.exe calc.exe winmine.exe; do
    drive click "${editor[@]}" --caption "プログラムの追加(&R)" >/dev/null
    drive set-text "$name" --title "アプリケーションの追加" >/dev/null
    drive click --title "アプリケーションの追加" --caption OK >/dev/null
    drive wait-gone --title "アプリケーションの追加" >/dev/null
done
drive listview-click "${editor[@]}" 1 >/dev/null
drive click "${editor[@]}" --caption "削除(&D)" >/dev/null
e2e_screenshot editor >/dev/null
drive click "${editor[@]}" --caption "Ok" >/dev/null
drive wait-gone "${editor[@]}" >/dev/null
assert_file_bytes app.ini $'notepad.exe,Ok\r\nwinmine.exe,Ok\r\n'

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
