#!/usr/bin/env bash
# Alerts raised through the hidden alert form stack in slots 1 to 3 at the bottom-right corner of
# the work area without taking the focus; one that waits for a click leaves when it is clicked, and
# a four-second alert takes the freed slot and leaves by itself.
source "$(dirname "$0")/../lib.sh"
e2e_begin
e2e_manifest_text >"$E2E_PROGRAM_DIR/$E2E_MANIFEST"
e2e_start

drive wait --class frmDemo --timeout 20000 >/dev/null
form=$(drive window --class frmDemo)
assert_line "$form" $'visible\t0' "the alert form is hidden in normal use"
drive show --class frmDemo

# The alert form's controls, by id: Text1 101, chkSquare 103, optColor 110-113, Command1 121, Command2 122.
raise() { # TEXT COMMAND_ID
    drive set-text "$1" --class frmDemo --id 101
    drive click --class frmDemo --id "$2"
}

# Screen rectangle of an alert, by its text: "left top right bottom".
alert_rect() { # TEXT
    local info
    info=$(drive window --class frmAlertWindow --title "$1" --visible --timeout 10000)
    assert_line "$info" $'topmost\t1' "alert [$1] is topmost once it has arrived"
    assert_line "$info" $'foreground\t0' "alert [$1] does not take the focus"
    grep $'^rect\t' <<<"$info" | cut -f2- | tr '\t' ' '
}

# The taskbar of the virtual desktop ends the work area; 15 twips per pixel at 96 DPI, so an alert
# is 2400 x 1000 twips = 160 x 67 pixels and stands 1000 twips (66.7 pixels) above the one below.
read -r _ work_bottom _ _ <<<"$(drive window --class Shell_TrayWnd | grep $'^rect\t' | cut -f2- | tr '\t' ' ')"
[[ $work_bottom -gt 500 ]] || fail "unexpected taskbar position (top $work_bottom)"
expected_rect() { # SLOT
    local top=$(((work_bottom * 15 - 1000 * $1 + 7) / 15))
    echo "1120 $top 1280 $((top + 67))"
}

drive check 0 --class frmDemo --id 103
drive click --class frmDemo --id 111
raise "一番目: 丸い角" 122
drive check 1 --class frmDemo --id 103
drive click --class frmDemo --id 112
raise "二番目: 四角" 122
drive click --class frmDemo --id 113
raise "三番目: 四角" 122

assert_eq "$(expected_rect 1)" "$(alert_rect "一番目: 丸い角")" "the first alert stands in slot 1"
assert_eq "$(expected_rect 2)" "$(alert_rect "二番目: 四角")" "the second alert stands in slot 2"
assert_eq "$(expected_rect 3)" "$(alert_rect "三番目: 四角")" "the third alert stands in slot 3"
[[ $(drive windows --class frmAlertWindow --visible | wc -l) -eq 3 ]] || fail "three alerts should be shown"
e2e_screenshot alerts_stacked

# A click on the second alert (a real mouse click on the screen) sends it away.
read -r left top right bottom <<<"$(alert_rect "二番目: 四角")"
xdotool mousemove $(((left + right) / 2)) $(((top + bottom) / 2)) click 1
drive wait-gone --class frmAlertWindow --title "二番目: 四角" --timeout 15000
[[ $(drive windows --class frmAlertWindow --visible | wc -l) -eq 2 ]] || fail "the other two alerts stay"

# A four-second alert takes the free slot 2 and leaves without a click, after about four seconds
# (400 ticks of at least 10 ms once it has arrived).
raise "四秒" 121
started=${EPOCHREALTIME/./}
assert_eq "$(expected_rect 2)" "$(alert_rect "四秒")" "the four-second alert takes the freed slot 2"
drive wait-gone --class frmAlertWindow --title "四秒" --timeout 20000
lasted=$(((${EPOCHREALTIME/./} - started) / 1000))
((lasted >= 3500)) || fail "the four-second alert left after only $lasted ms"
[[ $(drive windows --class frmAlertWindow --visible | wc -l) -eq 2 ]] || fail "the waiting alerts stay"
e2e_log "the four-second alert stayed $lasted ms"
