#!/usr/bin/env bash
# The resize rule of frmMain never breaks the window: shrunk below its controls, minimised and
# restored, or made large, the program goes on without an error box and the lists follow the
# window. Screenshots of the tiny and the large window are kept.
source "$(dirname "$0")/../lib.sh"
e2e_begin

e2e_write_settings open=1 start=0 logflag=0
e2e_start_shown
window=(--title "$E2E_BANNER")

# The window loads at 12775 x 5100 twips: 852 x 340 pixels at 96 DPI.
assert_line "$(drive window "${window[@]}")" $'rect\t0\t0\t852\t340' "the size the window loads with"

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
