#!/usr/bin/env bash
# The main window hosts the two traffic trend graphs (received and sent), each a graphMove control
# drawing on its picTrend; with monitoring on and a one-second interval they are fed for a minute
# and the screenshot shows the trend after sixty values.
source "$(dirname "$0")/../lib.sh"
e2e_begin
e2e_manifest_text >"$E2E_PROGRAM_DIR/$E2E_MANIFEST"
printf '[main]\r\ntime=1\r\nopen=1\r\nstart=1\r\npacket=0\r\nbeep=0\r\nlogflag=0\r\nbackcolor=16777215\r\nfontcolor=0\r\nwindow=0\r\nnc=\r\nfront=0\r\napp=0\r\n' \
    >"$E2E_PROGRAM_DIR/setting.ini"
e2e_start
drive wait --title "$E2E_BANNER" --visible --timeout 20000 >/dev/null

children=$(drive children --title "$E2E_BANNER")
graphs=$(grep -c $'\tgraphMove\t1\t' <<<"$children" || true)
pictures=$(grep -c $'\tpicTrend\t1\t' <<<"$children" || true)
assert_eq 2 "$graphs" "visible graphMove controls in the main window"
assert_eq 2 "$pictures" "visible picTrend pictures inside them"

# The point is the passing of a minute of one-second samples: nothing on screen announces it. An
# idle interface draws a flat line on the bottom edge over the grid.
sleep 62
e2e_program_running || fail "the program ended while it was monitoring"
e2e_screenshot graph_after_a_minute
