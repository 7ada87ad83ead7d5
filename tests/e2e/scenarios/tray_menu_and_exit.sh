#!/usr/bin/env bash
# The tray icon's callback (a mouse move of the main window carrying the mouse message): a right
# click pops up the tray menu only while the window is hidden, a double-click shows it; the about
# box; the tray menu's exit ends the program (what an exit saves is exit_saves_main_monitor's).
source "$(dirname "$0")/../lib.sh"
e2e_begin
e2e_write_settings open=0 start=1 logflag=1
e2e_manifest_text >"$E2E_PROGRAM_DIR/$E2E_MANIFEST"
e2e_start
main=(--title "$E2E_BANNER" --timeout 20000)
popup=(--class '#32768' --process "$E2E_PROCESS")
tray_mouse() { drive post 0x200 1 "$1" "${main[@]}"; } # WM_MOUSEMOVE, icon 1, the mouse message
popup_key() { drive post 0x102 "$(printf '0x%x' "'$1")" 0 "${popup[@]}"; } # WM_CHAR: the access key

drive wait "${main[@]}" >/dev/null

tray_mouse 517
drive wait "${popup[@]}" >/dev/null
menu=$(drive menu "${popup[@]}" | cut -f3 | paste -sd'|')
assert_eq "Veskar_Lookoutを開く(&O)||ユーティリティ(&U)|最近使ったファイルの削除(&R)||Veskar_Lookoutを終了する(&X)||\
バージョン情報(&A)|Veskar Development WEBサイト(&W)" "$menu" "the tray menu"
e2e_screenshot tray_menu

popup_key a
about=(--class Veskar_Lookout.frmAbout --process "$E2E_PROCESS")
e2e_screenshot about_box
drive click --caption OK "${about[@]}"
drive wait-gone "${about[@]}"

tray_mouse 515
drive wait --visible "${main[@]}" >/dev/null
tray_mouse 517
drive_status wait "${popup[@]}" --timeout 1500 2>/dev/null && fail "a right click while the window is shown shows no menu"
drive hide "${main[@]}"

tray_mouse 517
drive wait "${popup[@]}" >/dev/null
popup_key x
drive messagebox --process "$E2E_PROCESS" --timeout 10000 >/dev/null
drive messagebox-click はい --process "$E2E_PROCESS"
e2e_wait_program_end 20 "the program after Yes"
