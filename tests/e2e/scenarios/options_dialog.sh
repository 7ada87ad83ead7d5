#!/usr/bin/env bash
# The options dialog opens from the Tools menu with the settings and both PC lists; OK writes the
# two list files and setting.ini and shows the new interval at once;
# Cancel changes no file; a list that cannot be written ends the program with the runtime's error.
# The PC lists have 21 slots: a pcset.ini with 22 records makes the start fail with the runtime's
# subscript error box, and the program ends once the box is confirmed (no hang, no main window).
source "$(dirname "$0")/../lib.sh"
e2e_begin
e2e_write_settings open=1 start=0 logflag=0
records=$'"OK"\r\n'
for i in $(seq 2 22); do records+="\"PC$i\""$'\r\n'; done
printf '%s' "$records" >"$E2E_PROGRAM_DIR/pcset.ini"

e2e_manifest_text >"$E2E_PROGRAM_DIR/$E2E_MANIFEST"
e2e_start
box=$(drive messagebox --process "$E2E_PROCESS" --timeout 20000)
assert_line "$box" "title"$'\t'"$E2E_PRODUCT" "title of the error box"
assert_line "$box" $'text\t実行時エラー \'9\':\\r\\n\\r\\nインデックスが有効範囲にありません。' "text of the error box"
assert_line "$box" $'button\tOK\t1' "the error box has an OK button"
e2e_screenshot too_many_pc_records
if drive_status wait --title "$E2E_BANNER" --visible --timeout 0 >/dev/null; then
    fail "the main window is visible although the start failed"
fi

drive messagebox-click OK --process "$E2E_PROCESS"
e2e_wait_program_end 10 "the program (after its error box was confirmed)"
assert_file_bytes pcset.ini "$records"
rm "$E2E_PROGRAM_DIR/pcset.ini"

printf '"OK"\r\n"最初の欄"\r\n"192.168.10.5"\r\n' | iconv -f UTF-8 -t CP932 >"$E2E_PROGRAM_DIR/pcset2.ini"
e2e_start_shown

open_options() {
    drive menu-invoke "ツール(&T)" "全般的な設定...(&G)" --title "$E2E_BANNER"
    drive wait --title "全般的な設定" --visible --timeout 10000 >/dev/null
}
# Control ids: the list boxes 1100 + 20 x list + box (allow 0, deny 1).
visible_deny_boxes() {
    drive children --title "全般的な設定" | awk -F'\t' '$2 >= 1120 && $2 < 1140 && $4 == 1 { print $5 }'
}

open_options
e2e_screenshot options_general
drive select-tab 拒否マシンリスト --title "全般的な設定"
for _ in 1 2 3 4 5; do
    deny_boxes=$(visible_deny_boxes)
    [[ -n $deny_boxes ]] && break
    drive wait-gone --title "no such window" --timeout 500 >/dev/null
done
assert_eq $'最初の欄\n192.168.10.5' "$(head -n 2 <<<"$deny_boxes")" "the deny list's first two boxes"
e2e_screenshot options_deny

# Cancel writes nothing.
before=$(md5sum "$E2E_PROGRAM_DIR"/*.ini)
drive click --title "全般的な設定" --caption キャンセル
drive wait-gone --title "全般的な設定" --timeout 10000
assert_eq "$before" "$(md5sum "$E2E_PROGRAM_DIR"/*.ini)" "Cancel leaves the files as they were"

# OK writes both lists and the settings; the interval shows on panel 4 at once.
open_options
drive select-tab 許可マシンリスト --title "全般的な設定"
drive check 1 --title "全般的な設定" --caption "このリストを有効にする" --visible-control
drive set-text "事務所PC" --title "全般的な設定" --id 1101
drive select-tab 全般 --title "全般的な設定"
drive set-text 30 --title "全般的な設定" --id 1001  # the edit inside the interval drop-down
drive click --title "全般的な設定" --caption OK
drive wait-gone --title "全般的な設定" --timeout 10000

# The whole files are the options unit tests'; these show what the dialog's controls gave.
assert_eq $'"OK"\r\n""\r\n"事務所PC"\r\n""\r' "$(e2e_file_text pcset.ini | head -n 4)" "the allow list's switch and first entries"
status=$(drive status --title "$E2E_BANNER")
assert_line "$status" $'3\tログ間隔 : 30秒' "panel 4 shows the new interval"

# A list file that cannot be written is an error nothing traps: the runtime's error box, then the
# end, with setting.ini as it was.
rm "$E2E_PROGRAM_DIR/pcset2.ini"
mkdir "$E2E_PROGRAM_DIR/pcset2.ini"  # read-only files are writable for root, a folder is not
settings=$(md5sum "$E2E_PROGRAM_DIR/setting.ini")
open_options
drive click --title "全般的な設定" --caption OK
box=$(drive messagebox --process "$E2E_PROCESS" --timeout 10000)
assert_line "$box" $'text\t実行時エラー \'75\':\\r\\n\\r\\nパス名が無効です。' "the runtime's error box"
drive messagebox-click OK --process "$E2E_PROCESS"
e2e_wait_program_end 20 "the program after the error box"
assert_eq "$settings" "$(md5sum "$E2E_PROGRAM_DIR/setting.ini")" "setting.ini is not written"
