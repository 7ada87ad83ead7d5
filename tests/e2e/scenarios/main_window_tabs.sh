#!/usr/bin/env bash
# frmMain after start-up, driven by clicking every tab: the six tab captions, the menu bar, each
# list's column captions, widths and alignment and the five status panels. Screenshots of every tab
# are kept.
source "$(dirname "$0")/../lib.sh"
e2e_begin

# Shown at start, monitoring off: only start-up writes into the window.
e2e_write_settings open=1 start=0 logflag=0
e2e_start_shown
window=(--title "$E2E_BANNER")

tabs=$(drive tabs "${window[@]}")
assert_eq $'0\tselected\tメインモニタ\n1\t-\tプロセス\n2\t-\tアプリケーション\n3\t-\tスタートアップ\n4\t-\tNETSTAT\n5\t-\tマイ ネットワーク' \
    "$tabs" "the tabs of TabStrip1"

status=$(drive status "${window[@]}")
assert_eq 5 "$(wc -l <<<"$status")" "five status panels"
assert_line "$status" $'3\tログ間隔 : 10秒' "panel 4: the interval"
assert_line "$status" $'4\tログ行数 : 0' "panel 5: counted when the form loaded, before the banner row"
assert_contains "$status" $'2\tユーザ : ' "panel 3: the user"

# The menu bar is built from the model's menu tree: its first and last items, and a save item
# that only another tab enables.
menu=$(drive menu "${window[@]}" | cut -f2,3)
assert_line "$menu" $'item,enabled\tファイル(&F) > メインモニタの名前を付けて保存...(&M)' "the first item"
assert_line "$menu" $'item,disabled\tファイル(&F) > 追加保存(&K) > プロセスのログを追加保存(&P)' "a save item of another tab"
assert_line "$menu" $'item,enabled\tヘルプ(&H) > バージョン情報(&A)' "the last item"

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
