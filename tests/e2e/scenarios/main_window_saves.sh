#!/usr/bin/env bash
# The log files of the File menu and the toolbar: a save-as of the main monitor to "mylog" writes
# mylog.txt (and "mylog.TXT" writes mylog.TXT.txt), cancelling the dialog writes nothing, and the
# append-save and temporary save of a tab's list write one stamped, tab-separated line per row to
# <kind>_log_YYYYMMDD.txt (added to, moving on to _1 once a file is above 512000 bytes) and to
# <kind>_tmplog_YYYYMMDD.txt (replaced).
source "$(dirname "$0")/../lib.sh"
e2e_begin

e2e_write_settings open=1 start=0 logflag=0
e2e_manifest_text >"$E2E_PROGRAM_DIR/$E2E_MANIFEST"
today=$(date +%Y%m%d)
# Today's append-save file is already past the limit; today's temporary file holds an old save.
mkdir "$E2E_PROGRAM_DIR/logs"
head -c 512001 /dev/zero | tr '\0' x >"$E2E_PROGRAM_DIR/logs/netstat_log_$today.txt"
printf 'old\r\n' >"$E2E_PROGRAM_DIR/logs/netstat_tmplog_$today.txt"
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
assert_eq "mylog.TXT.txt mylog.txt netstat_log_$today.txt netstat_tmplog_$today.txt" \
    "$(cd "$E2E_PROGRAM_DIR/logs" && echo *)" "the logs folder after a cancelled save"

# The list saves of the tab shown: the NETSTAT tab, twice each.
drive select-tab "${window[@]}" NETSTAT >/dev/null
rows=$(drive listview-rows "${window[@]}" --visible-control)
for _ in 1 2; do
    drive menu-invoke "${window[@]}" "ファイル(&F)" "追加保存(&K)" "NETSTATのログを追加保存(&N)" >/dev/null
    drive menu-invoke "${window[@]}" "ファイル(&F)" "一時保存(&I)" "NETSTATのログを一時保存(&N)" >/dev/null
done
e2e_wait_file "logs/netstat_log_${today}_1.txt" 10
assert_eq 512001 "$(stat -c %s "$E2E_PROGRAM_DIR/logs/netstat_log_$today.txt")" "the full file is left as it was"
# Every line: the stamp, then each of the six columns after a tab.
stamped='^[0-9]{4}/[0-9]{2}/[0-9]{2} [0-9]{2}:[0-9]{2}:[0-9]{2}\t'
once=$(sed '/^$/d; s/^/STAMP\t/' <<<"$rows")
twice=$(printf '%s\n%s' "$once" "$once" | sed '/^$/d')
for file in "netstat_log_${today}_1.txt" "netstat_tmplog_$today.txt"; do
    text=$(e2e_file_text "logs/$file" | tr -d '\r')
    bad=$(grep -Ev "$stamped([^\t]*\t){5}[^\t]*$" <<<"$text" | sed '/^$/d' || true)
    assert_eq "" "$bad" "lines of $file are a stamp and six columns"
    want=$once
    [[ $file == netstat_log_* ]] && want=$twice
    assert_eq "$want" "$(sed -E "s#$stamped#STAMP\t#; /^$/d" <<<"$text")" "rows in $file"
done
# Only the shown tab's items can be chosen: the process items are disabled here.
drive_status menu-invoke "${window[@]}" "ファイル(&F)" "追加保存(&K)" "プロセスのログを追加保存(&P)" 2>/dev/null &&
    fail "a disabled save item was chosen"
assert_no_file "logs/process_log_$today.txt"
e2e_screenshot after_saves >/dev/null
