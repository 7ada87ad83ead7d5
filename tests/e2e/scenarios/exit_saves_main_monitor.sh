#!/usr/bin/env bash
# The toolbar's exit asks first; No keeps the program, Yes stops monitoring, writes the whole main
# monitor to logs\YYYYMMDD-1.txt (logflag 1) and ends the program.
source "$(dirname "$0")/../lib.sh"
e2e_begin
e2e_write_settings open=1 start=1 logflag=1
e2e_start_shown
exit_id=$(drive toolbar --title "$E2E_BANNER" | awk -F'\t' -v tip="${E2E_PRODUCT}を終了" '$5 == tip { print $2 }')
[[ -n $exit_id ]] || fail "the toolbar has no exit button"

drive toolbar-click "$exit_id" --title "$E2E_BANNER"
box=$(drive messagebox --process "$E2E_PROCESS" --timeout 10000)
assert_line "$box" $'title\t'"$E2E_PRODUCT" "the question's title"
assert_line "$box" $'text\t終了してもよろしいですか？' "the question"
drive messagebox-click いいえ --process "$E2E_PROCESS"
e2e_program_running || fail "No must keep the program running"

drive toolbar-click "$exit_id" --title "$E2E_BANNER"
drive messagebox-click はい --process "$E2E_PROCESS" --timeout 10000
e2e_wait_program_end 20 "the program after Yes"
saved=$(ls "$E2E_PROGRAM_DIR/logs")
[[ $saved =~ ^[0-9]{8}-1\.txt$ ]] || fail "one main-monitor file expected in logs, found: $saved"
lines=$(e2e_file_text "logs/$saved" | tr -d '\r')
assert_eq "$E2E_BANNER" "$(sed -n 1p <<<"$lines")" "the banner is the first line"
grep -Eq '^\[[0-9/]{10} [0-9:]{8}\]  監視を開始しました。' <<<"$(sed -n 2p <<<"$lines")" || fail "the start row is second:
$lines"
grep -Eq '^\[[0-9/]{10} [0-9:]{8}\] 監視を停止しました。$' <<<"$(tail -n 1 <<<"$lines")" || fail "the stop row is last:
$lines"
