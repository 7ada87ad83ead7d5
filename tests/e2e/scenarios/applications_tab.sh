#!/usr/bin/env bash
# The applications tab and the allowed-applications editor. Under Wine no socket is a transport
# handle and the owner-PID tables name no owner, so the tab lists nothing; it still counts in
# panel 5 and writes the application log on every refresh. The editor opens from the Tools menu,
# creates app.ini, adds names through its input box, deletes the selected one and rewrites the file.
source "$(dirname "$0")/../lib.sh"
e2e_begin

e2e_write_settings open=1 start=0 logflag=0 app=1
e2e_start_shown
window=(--title "$E2E_BANNER")

drive check 1 "${window[@]}" --id 130 >/dev/null  # cheAutoLogApp: the automatic logs
drive select-tab "${window[@]}" 2 >/dev/null
assert_eq 0 "$(drive listview-count "${window[@]}" --visible-control)" "rows of lstvProcess under Wine"
assert_line "$(drive status "${window[@]}")" $'4\tプロセス : 0' "panel 5 counts the applications"
drive menu-invoke "${window[@]}" "表示(&V)..." "最新の情報に更新(&R)" >/dev/null
log=$(ls "$E2E_PROGRAM_DIR/logs" | grep '^application' || true)
[[ -n $log ]] || fail "no application log in logs/: $(ls "$E2E_PROGRAM_DIR/logs")"
e2e_screenshot applications_tab >/dev/null

drive menu-invoke "${window[@]}" "ツール(&T)" "アプリケーションの登録(&A)" >/dev/null
editor=(--title "アプリケーション管理")
drive wait "${editor[@]}" >/dev/null
assert_file_bytes app.ini ""
for name in notepad.exe calc.exe winmine.exe; do
    drive click "${editor[@]}" --caption "プログラムの追加(&R)" >/dev/null
    drive set-text "$name" --title "アプリケーションの追加" >/dev/null
    e2e_screenshot input_box >/dev/null
    drive click --title "アプリケーションの追加" --caption OK >/dev/null
    drive wait-gone --title "アプリケーションの追加" >/dev/null
done
assert_eq $'notepad.exe\ncalc.exe\nwinmine.exe' "$(drive listview-rows "${editor[@]}")" "the names added"
drive listview-click "${editor[@]}" 1 >/dev/null
drive click "${editor[@]}" --caption "削除(&D)" >/dev/null
assert_eq $'notepad.exe\nwinmine.exe' "$(drive listview-rows "${editor[@]}")" "the selected name deleted"
e2e_screenshot editor >/dev/null
drive click "${editor[@]}" --caption "Ok" >/dev/null
drive wait-gone "${editor[@]}" >/dev/null
assert_file_bytes app.ini $'notepad.exe,Ok\r\nwinmine.exe,Ok\r\n'
