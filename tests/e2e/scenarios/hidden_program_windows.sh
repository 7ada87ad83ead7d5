#!/usr/bin/env bash
# The hidden program's own windows. Alerts raised through the hidden alert form stack in slots 1 to
# 3 at the bottom-right corner of the work area without taking the focus; one that waits for a
# click leaves when it is clicked, and a four-second alert takes the freed slot and leaves by
# itself. The tray icon's callback (a mouse move of the main window carrying the mouse message): a
# right click pops up the tray menu only while the window is hidden, a double-click shows it; the
# tray menu's exit ends the program (what an exit saves is program_ends').
source "$(dirname "$0")/../lib.sh"
e2e_begin
e2e_write_settings open=0 start=1 logflag=1
e2e_manifest_text >"$E2E_PROGRAM_DIR/$E2E_MANIFEST"
e2e_start

drive wait --class frmDemo --timeout 20000 >/dev/null
form=$(drive window --class frmDemo)
assert_line "$form" $'visible\t0' "the alert form is hidden in normal use"
drive show --class frmDemo

# The alert form's controls, by id: Text1 101, Command1 121 (four seconds), Command2 122 (until clicked).
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

raise "一番目" 122
raise "二番目" 122
raise "三番目" 122

assert_eq "$(expected_rect 1)" "$(alert_rect "一番目")" "the first alert stands in slot 1"
assert_eq "$(expected_rect 2)" "$(alert_rect "二番目")" "the second alert stands in slot 2"
assert_eq "$(expected_rect 3)" "$(alert_rect "三番目")" "the third alert stands in slot 3"
[[ $(drive windows --class frmAlertWindow --visible | wc -l) -eq 3 ]] || fail "three alerts should be shown"
e2e_screenshot alerts_stacked

# A click on the second alert (a real mouse click on the screen) sends it away.
read -r left top right bottom <<<"$(alert_rect "二番目")"
xdotool mousemove $(((left + right) / 2)) $(((top + bottom) / 2)) click 1
drive wait-gone --class frmAlertWindow --title "二番目" --timeout 15000
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

main=(--title "$E2E_BANNER" --timeout 20000)
popup=(--class '#32768' --process "$E2E_PROCESS")
tray_mouse() { drive post 0x200 1 "$1" "${main[@]}"; } # WM_MOUSEMOVE, icon 1, the mouse message
popup_key() { drive post 0x102 "$(printf '0x%x' "'$1")" 0 "${popup[@]}"; } # WM_CHAR: the access key

drive wait "${main[@]}" >/dev/null

tray_mouse 515
drive wait --visible "${main[@]}" >/dev/null
tray_mouse 517
drive_status wait "${popup[@]}" --timeout 1500 2>/dev/null && fail "a right click while the window is shown shows no menu"
drive hide "${main[@]}"

tray_mouse 517
drive wait "${popup[@]}" >/dev/null
menu=$(drive menu "${popup[@]}" | cut -f3 | paste -sd'|')
assert_eq "Veskar_Lookoutを開く(&O)||ユーティリティ(&U)|最近使ったファイルの削除(&R)||Veskar_Lookoutを終了する(&X)||\
バージョン情報(&A)|Veskar Development WEBサイト(&W)" "$menu" "the tray menu"
e2e_screenshot tray_menu
popup_key x
drive messagebox --process "$E2E_PROCESS" --timeout 10000 >/dev/null
drive messagebox-click はい --process "$E2E_PROCESS"
e2e_wait_program_end 20 "the program after Yes"
