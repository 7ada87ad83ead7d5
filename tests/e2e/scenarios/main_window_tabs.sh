#!/usr/bin/env bash
# frmMain after start-up, driven by clicking every tab: the six tab captions, the menu bar, each
# list's column captions, widths and alignment, the five status panels, the toolbar's tool tips,
# and the save items of the File menu that each tab enables. Screenshots of every tab are kept.
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

toolbar=$(drive toolbar "${window[@]}" | cut -f2,4,5)
assert_eq $'900\tメインモニタを名前を付けて保存\tメインモニタを名前を付けて保存\n901\tメインモニタをクリア\tメインモニタをクリア\n0\t\t\n902\t監視を開始\t監視を開始\n903\t監視を停止\t監視を停止\n0\t\t\n904\tVeskar_Lookoutを終了\tVeskar_Lookoutを終了' \
    "$toolbar" "toolbar buttons and their tool tips"

# The whole menu bar as the form loads it: the main-monitor tab's save items.
menu=$(drive menu "${window[@]}" | cut -f2,3)
assert_eq "popup,enabled	ファイル(&F)
item,enabled	ファイル(&F) > メインモニタの名前を付けて保存...(&M)
separator	ファイル(&F) > 
popup,enabled	ファイル(&F) > 追加保存(&K)
item,disabled	ファイル(&F) > 追加保存(&K) > プロセスのログを追加保存(&P)
item,disabled	ファイル(&F) > 追加保存(&K) > アプリケーションのログを追加保存(&A)
item,disabled	ファイル(&F) > 追加保存(&K) > スタートアップのログを追加保存(&S)
item,disabled	ファイル(&F) > 追加保存(&K) > NETSTATのログを追加保存(&N)
item,disabled	ファイル(&F) > 追加保存(&K) > マイネットワークのログを追加保存(&M)
separator	ファイル(&F) > 
popup,enabled	ファイル(&F) > 一時保存(&I)
item,disabled	ファイル(&F) > 一時保存(&I) > プロセスのログを一時保存(&P)
item,disabled	ファイル(&F) > 一時保存(&I) > アプリケーションのログを一時保存(&A)
item,disabled	ファイル(&F) > 一時保存(&I) > スタートアップのログを一時保存(&S)
item,disabled	ファイル(&F) > 一時保存(&I) > NETSTATのログを一時保存(&N)
item,disabled	ファイル(&F) > 一時保存(&I) > マイネットワークのログを一時保存(&M)
separator	ファイル(&F) > 
item,enabled	ファイル(&F) > Veskar_Lookoutの終了(&X)
popup,enabled	表示(&V)...
item,enabled	表示(&V)... > 最新の情報に更新(&R)
separator	表示(&V)... > 
item,enabled	表示(&V)... > 常に手前に表示(&A)
item,enabled	表示(&V)... > グリッド線を表示する(&G)
item,enabled	表示(&V)... > アイテムの幅を初期値に戻す(&W)
popup,enabled	ツール(&T)
item,enabled	ツール(&T) > 全般的な設定...(&G)
separator	ツール(&T) > 
item,enabled	ツール(&T) > ユーティリティ(&U)
item,enabled	ツール(&T) > スタートアップに登録(&S)
item,enabled	ツール(&T) > アプリケーションの登録(&A)
popup,enabled	ヘルプ(&H)
item,enabled	ヘルプ(&H) > Veskar Development WEBサイト(&W)
item,enabled	ヘルプ(&H) > バージョン情報(&A)" "$menu" "the menu bar"

# Columns at 96 DPI (15 twips per pixel): caption, width in pixels, alignment.
columns=(
    $'アクセスログ\t747\tleft'
    $'イメージ名\t133\tleft\nプロセスID\t67\tleft\nメモリ使用量\t67\tright\nパス\t417\tleft'
    $'アプリケーション\t133\tleft\nプロセスID\t67\tleft\nローカルポート\t80\tleft\nプロトコル\t67\tleft\nパス\t317\tleft'
    $'スタートアップ項目\t133\tleft\nコマンド\t503\tleft\nユーザ\t67\tleft'
    $'プロトコル\t93\tleft\nローカルIP\t93\tleft\nローカルポート\t93\tleft\nリモートIP\t93\tleft\nリモートポート\t93\tleft\n状態\t93\tleft'
    $'マシン名\t133\tleft\nIPアドレス\t133\tleft\nMACアドレス\t133\tleft\nドメイン名\t133\tleft'
)
count_labels=("ログ行数 : " "プロセス : " "プロセス : " "登録数 : " "プロセス : " "台数 : ")
# The File menu's save items: save-as, then the append-save and the temporary save of each kind.
save_items=(1001 1004 1005 1006 1007 1008 1011 1012 1013 1014 1015)
save_states() {
    drive menu "${window[@]}" | awk -F'\t' -v ids="${save_items[*]}" '
        BEGIN { n = split(ids, list, " "); for (i = 1; i <= n; i++) wanted[list[i]] = 1 }
        ($1 in wanted) { split($2, state, ","); printf "%s=%s ", $1, state[2] }'
}
expected_states() { # TAB (0..5)
    local tab=$1 id out="" on
    for id in "${save_items[@]}"; do
        on=disabled
        if ((tab == 0)); then
            [[ $id == 1001 ]] && on=enabled
        elif ((id == 1003 + tab || id == 1010 + tab)); then
            on=enabled
        fi
        out+="$id=$on "
    done
    printf '%s' "$out"
}

for tab in 0 1 2 3 4 5; do
    drive select-tab "${window[@]}" "$tab" >/dev/null
    if ((tab == 5)); then
        # The network neighbourhood asks before its long enumeration; no leaves the list empty.
        drive messagebox-click --process "$E2E_PROCESS" "いいえ(&N)" >/dev/null
    fi
    got=$(drive listview-columns "${window[@]}" --visible-control)
    assert_eq "${columns[$tab]}" "$got" "columns of tab $tab"
    rows=$(drive listview-count "${window[@]}" --visible-control)
    status=$(drive status "${window[@]}")
    assert_line "$status" $'4\t'"${count_labels[$tab]}$rows" "panel 5 on tab $tab"
    assert_eq "$(expected_states "$tab")" "$(save_states)" "save items enabled on tab $tab"
    e2e_screenshot "tab$((tab + 1))" >/dev/null
done

# Back to the main monitor: the banner row is there, and the count follows it now.
drive select-tab "${window[@]}" 0 >/dev/null
assert_eq "$E2E_BANNER" "$(drive listview-rows "${window[@]}" --visible-control)" "the main monitor's rows"
assert_line "$(drive status "${window[@]}")" $'4\tログ行数 : 1' "panel 5 after returning to the main monitor"
