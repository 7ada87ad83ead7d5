#!/usr/bin/env bash
# The PC lists have 21 slots: a pcset.ini with 22 records makes the start fail with the runtime's
# subscript error box, and the program ends once the box is confirmed (no hang, no main window).
source "$(dirname "$0")/../lib.sh"
e2e_begin

e2e_manifest_text >"$E2E_PROGRAM_DIR/$E2E_MANIFEST"
records=$'"OK"\r\n'
for i in $(seq 2 22); do records+="\"PC$i\""$'\r\n'; done
printf '%s' "$records" >"$E2E_PROGRAM_DIR/pcset.ini"

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
