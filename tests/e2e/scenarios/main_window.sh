#!/usr/bin/env bash
# frmMain after start-up, in one session: the size it loads with; clicking every tab shows the six
# tab captions, the menu bar, each list's columns and the five status panels (screenshots of every
# tab are kept); the main monitor's save-as from the File menu and the toolbar ("mylog" writes
# mylog.txt, "mylog.TXT" writes mylog.TXT.txt, Cancel writes nothing); and the resize rule never
# breaks the window, shrunk below its controls, minimised and restored, or made large.
source "$(dirname "$0")/../lib.sh"
e2e_begin

# Shown at start, monitoring off: only start-up writes into the window.
e2e_write_settings open=1 start=0 logflag=0
e2e_start_shown
window=(--title "$E2E_BANNER")

# The window loads at 12775 x 5100 twips: 852 x 340 pixels at 96 DPI.
assert_line "$(drive window "${window[@]}")" $'rect\t0\t0\t852\t340' "the size the window loads with"

tabs=$(drive tabs "${window[@]}")
assert_eq $'0\tselected\tメインモニタ\n1\t-\tプロセス\n2\t-\tアプリケーション\n3\t-\tスタートアップ\n4\t-\tNETSTAT\n5\t-\tマイ ネットワーク' \
    "$tabs" "the tabs of TabStrip1"

status=$(drive status "${window[@]}")
assert_eq 5 "$(wc -l <<<"$status")" "five status panels"
assert_line "$status" $'4\tログ行数 : 0' "panel 5: counted when the form loaded, before the banner row"

# The menu bar follows the model's item states: a save item that only another tab enables. (The
# scenarios choose items through the bar by their captions.)
menu=$(drive menu "${window[@]}" | cut -f2,3)
assert_line "$menu" $'item,disabled\tファイル(&F) > 追加保存(&K) > プロセスのログを追加保存(&P)' "a save item of another tab"

# Each tab shows its own list, told by its first column; widths are set in twips, 15 per pixel at 96 DPI.
first_columns=($'アクセスログ\t747\tleft' イメージ名 アプリケーション スタートアップ項目 プロトコル マシン名)
count_labels=("ログ行数 : " "プロセス : " "プロセス : " "登録数 : " "プロセス : " "台数 : ")
for tab in 0 1 2 3 4 5; do
    drive select-tab "${window[@]}" "$tab" >/dev/null
    if ((tab == 5)); then
        # The network neighbourhood asks before its long enumeration; no leaves the list empty.
        drive messagebox-click --process "$E2E_PROCESS" "いいえ(&N)" >/dev/null
    fi
    got=$(drive listview-columns "${window[@]}" --visible-control)
    [[ $(head -n 1 <<<"$got") == "${first_columns[$tab]}"* ]] || fail "tab $tab shows another list: $got"
    rows=$(drive listview-count "${window[@]}" --visible-control)
    status=$(drive status "${window[@]}")
    assert_line "$status" $'4\t'"${count_labels[$tab]}$rows" "panel 5 on tab $tab"
    e2e_screenshot "tab$((tab + 1))" >/dev/null
done

# Back to the main monitor: the banner row is there, and the count follows it now.
drive select-tab "${window[@]}" 0 >/dev/null
assert_eq "$E2E_BANNER" "$(drive listview-rows "${window[@]}" --visible-control)" "the main monitor's rows"
assert_line "$(drive status "${window[@]}")" $'4\tログ行数 : 1' "panel 5 after returning to the main monitor"

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

still_working() { # WHAT
    drive_status messagebox --process "$E2E_PROCESS" --timeout 300 >/dev/null 2>&1 && fail "an error box after $1"
    assert_line "$(drive status "${window[@]}")" $'3\tログ間隔 : 10秒' "the status bar after $1"
    assert_eq "$E2E_BANNER" "$(drive listview-rows "${window[@]}" --id 101)" "the main monitor after $1"
}

drive size "${window[@]}" 60 20 >/dev/null
still_working "shrinking below every control"
e2e_screenshot tiny >/dev/null
drive size "${window[@]}" minimize >/dev/null
still_working "minimising"
drive size "${window[@]}" restore >/dev/null
drive size "${window[@]}" 1100 700 >/dev/null
still_working "growing"
drive select-tab "${window[@]}" NETSTAT >/dev/null
still_working "a tab switch in the large window"
e2e_screenshot large >/dev/null
