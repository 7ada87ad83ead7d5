#!/usr/bin/env bash
# The ends of the program with logflag 1. The toolbar's exit asks first and No keeps the program.
# The menu bar's exit when the logs folder cannot be made (a file named "logs" is in the way): the
# save ends silently and the program still ends. Yes to the toolbar's exit stops monitoring and
# writes the whole main monitor to logs\YYYYMMDD-1.txt, the stop row last. The end of the Windows
# session adds the row "Windowsが終了されました。" and saves the monitor to the next file, that row last.
source "$(dirname "$0")/../lib.sh"
e2e_begin
e2e_write_settings open=1 start=1 logflag=1
printf 'in the way' >"$E2E_PROGRAM_DIR/logs"
e2e_start_shown
exit_id=$(drive toolbar --title "$E2E_BANNER" | awk -F'\t' -v tip="${E2E_PRODUCT}を終了" '$5 == tip { print $2 }')
drive toolbar-click "$exit_id" --title "$E2E_BANNER"
drive messagebox-click いいえ --process "$E2E_PROCESS" --timeout 10000
e2e_program_running || fail "No must keep the program running"
drive menu-invoke --title "$E2E_BANNER" "ファイル(&F)" "Veskar_Lookoutの終了(&X)"
drive messagebox-click はい --process "$E2E_PROCESS" --timeout 10000
e2e_wait_program_end 20 "the program after Yes with the logs folder blocked"
rm "$E2E_PROGRAM_DIR/logs"

# The rows of the saved main monitor with this NUMBER.
saved_rows() { # NUMBER
    local saved
    saved=$(ls "$E2E_PROGRAM_DIR/logs" | grep -E "^[0-9]{8}-$1\.txt$") || fail "no main-monitor file $1 in logs: $(ls "$E2E_PROGRAM_DIR/logs")"
    e2e_file_text "logs/$saved" | tr -d '\r'
}
stamp='^\[[0-9/]{10} [0-9:]{8}\]'

e2e_start_shown
drive toolbar-click "$exit_id" --title "$E2E_BANNER"
drive messagebox-click はい --process "$E2E_PROCESS" --timeout 10000
e2e_wait_program_end 20 "the program after Yes"
lines=$(saved_rows 1)
assert_eq "$E2E_BANNER" "$(sed -n 1p <<<"$lines")" "the banner is the first line"
grep -Eq "$stamp  監視を開始しました。" <<<"$(sed -n 2p <<<"$lines")" || fail "the start row is second:
$lines"
grep -Eq "$stamp 監視を停止しました。$" <<<"$(tail -n 1 <<<"$lines")" || fail "the stop row is last:
$lines"

e2e_start_shown
timeout 30 wine wineboot -e >/dev/null 2>&1 || fail "wineboot -e did not finish" # WM_QUERYENDSESSION, WM_ENDSESSION, the end
e2e_wait_program_end 20 "the program at the end of the session"
lines=$(saved_rows 2)
assert_eq "$E2E_BANNER" "$(sed -n 1p <<<"$lines")" "the banner is the first line"
grep -Eq "${stamp}Windowsが終了されました。$" <<<"$(tail -n 1 <<<"$lines")" || fail "the session's end is the last row:
$lines"
