#!/usr/bin/env bash
# Two ends of the program with logflag 1. The menu bar's exit when the logs folder cannot be made
# (a file named "logs" is in the way): the save ends silently and the program still ends. The end
# of the Windows session: the main monitor gets the row "Windowsが終了されました。" and is saved,
# that row last.
source "$(dirname "$0")/../lib.sh"
e2e_begin
e2e_write_settings open=1 start=1 logflag=1
printf 'in the way' >"$E2E_PROGRAM_DIR/logs"
e2e_start_shown
drive menu-invoke --title "$E2E_BANNER" "ファイル(&F)" "Veskar_Lookoutの終了(&X)"
drive messagebox-click はい --process "$E2E_PROCESS" --timeout 10000
e2e_wait_program_end 20 "the program after Yes"

rm "$E2E_PROGRAM_DIR/logs"
e2e_start_shown
e2e_end_windows_session
e2e_wait_program_end 20 "the program at the end of the session"
saved=$(ls "$E2E_PROGRAM_DIR/logs")
[[ $saved =~ ^[0-9]{8}-1\.txt$ ]] || fail "one main-monitor file expected in logs, found: $saved"
lines=$(e2e_file_text "logs/$saved" | tr -d '\r')
assert_eq "$E2E_BANNER" "$(sed -n 1p <<<"$lines")" "the banner is the first line"
grep -Eq '^\[[0-9/]{10} [0-9:]{8}\]Windowsが終了されました。$' <<<"$(tail -n 1 <<<"$lines")" ||
    fail "the session's end is the last row:
$lines"
