#!/usr/bin/env bash
# Monitoring at a one-second interval on the loopback interface: start-up writes the start row
# with the system's uptime, loopback traffic gives traffic rows, the toolbar's stop and start
# write their rows and switch the buttons.
source "$(dirname "$0")/../lib.sh"
e2e_begin

# Linux gives the loopback interface the lowest index, so it is the first of the table: "0: lo".
e2e_write_settings time=1 open=1 start=1 logflag=0 "nc=0: lo"
timeout 90 python3 "$E2E_SOURCE/tests/e2e/loopback_traffic.py" 40 &
e2e_start_shown

rows() { drive listview-rows --title "$E2E_BANNER" --visible-control; }
stamp='\[[0-9]{4}/[0-9]{2}/[0-9]{2} [0-9]{2}:[0-9]{2}:[0-9]{2}\]'
band=$(drive children --title "$E2E_BANNER")
grep -q $'\t0: lo$' <<<"$band" || fail "the selected interface should be the loopback, the window holds:
$band"

started=$(rows)
grep -Eq "^$stamp  監視を開始しました。Windows起動の経過時間 [0-9]{2}:[0-9]{2}:[0-9]{2}$" <<<"$started" ||
    fail "start-up should write the start row with the uptime, rows are:
$started"

# Traffic rows: the first tick only takes the sample, later ones write what loopback carried.
traffic_row="^$stamp  送信 : [0-9,]+ KB  受信 : [0-9,]+ KB$"
for _ in $(seq 1 20); do
    grep -Eq "$traffic_row" <<<"$(rows)" && break
    sleep 1
done
grep -Eq "$traffic_row" <<<"$(rows)" || fail "loopback traffic should give traffic rows, rows are:
$(rows)"
status=$(drive status --title "$E2E_BANNER")
grep -q $'^1\tサーバ : ' <<<"$status" || fail "the guard names the server on panel 2, panels are:
$status"
e2e_screenshot monitoring

# The toolbar switches its buttons with monitoring: start is off while monitoring, stop is off once
# stopped (the driver refuses a disabled button, so each click also proves its button was on); stop
# writes its row, and start its own. A click is posted, so its row is waited for.
button_id() { drive toolbar --title "$E2E_BANNER" | awk -F'\t' -v tip="$1" '$5 == tip { print $2 }'; }
button_state() { drive toolbar --title "$E2E_BANNER" | awk -F'\t' -v tip="$1" '$5 == tip { print $3 }'; }
wait_last_row() { # PATTERN WHAT
    for _ in $(seq 1 20); do
        grep -Eq "$1" <<<"$(rows | tail -n 1)" && return 0
        sleep 0.25
    done
    fail "$2 should write its row last, rows are:
$(rows)"
}
[[ $(button_state 監視を開始) == *disabled* ]] || fail "the start button is not disabled while monitoring"
drive toolbar-click "$(button_id 監視を停止)" --title "$E2E_BANNER"
wait_last_row "^$stamp 監視を停止しました。$" stop
[[ $(button_state 監視を停止) == *disabled* ]] || fail "the stop button is not disabled once stopped"

drive toolbar-click "$(button_id 監視を開始)" --title "$E2E_BANNER"
wait_last_row "^$stamp  監視を開始しました。Windows起動の経過時間 " start
