#!/usr/bin/env bash
# The main monitor's save-as from the File menu and the toolbar: "mylog" writes mylog.txt (and
# "mylog.TXT" writes mylog.TXT.txt), cancelling the dialog writes nothing.
source "$(dirname "$0")/../lib.sh"
e2e_begin

e2e_write_settings open=1 start=0 logflag=0
e2e_manifest_text >"$E2E_PROGRAM_DIR/$E2E_MANIFEST"
e2e_start
drive wait --title "$E2E_BANNER" --visible --timeout 20000 >/dev/null
window=(--title "$E2E_BANNER")
dialog=(--class '#32770' --process "$E2E_PROCESS" --visible)

# Fills in the save dialog's file name and presses the button.
answer_save_dialog() { # NAME BUTTON
    drive set-text "${dialog[@]}" --id 1148 "$1" >/dev/null
    drive click "${dialog[@]}" --caption "$2" >/dev/null
    drive wait-gone "${dialog[@]}" >/dev/null
}

# Save-as from the menu: the dialog opens in the logs folder, proposing the next free number.
drive menu-invoke "${window[@]}" "ファイル(&F)" "メインモニタの名前を付けて保存...(&M)" >/dev/null
drive wait "${dialog[@]}" >/dev/null
assert_eq "名前を付けて保存" "$(drive window "${dialog[@]}" | sed -n 's/^title\t//p')" "the save dialog"
answer_save_dialog mylog "保存(&S)"
e2e_wait_file logs/mylog.txt 10
assert_file_bytes logs/mylog.txt "$E2E_BANNER"$'\r\n'

# The ".txt" test is exact: a name ending in ".TXT" still gets ".txt".
drive toolbar-click "${window[@]}" 900 >/dev/null
drive wait "${dialog[@]}" >/dev/null
answer_save_dialog mylog.TXT "保存(&S)"
e2e_wait_file logs/mylog.TXT.txt 10
assert_file_bytes logs/mylog.TXT.txt "$E2E_BANNER"$'\r\n'

# Cancel writes nothing.
drive toolbar-click "${window[@]}" 900 >/dev/null
drive wait "${dialog[@]}" >/dev/null
answer_save_dialog ignored "キャンセル"
assert_eq "mylog.TXT.txt mylog.txt" "$(cd "$E2E_PROGRAM_DIR/logs" && echo *)" "the logs folder after a cancelled save"

e2e_screenshot after_saves >/dev/null
