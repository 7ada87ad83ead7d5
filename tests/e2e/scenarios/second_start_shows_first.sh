#!/usr/bin/env bash
# A second start while the first copy runs hidden shows the first copy's main window, brings it to
# the front and ends. A manifest that is already there is neither rewritten nor followed by a
# restart.
source "$(dirname "$0")/../lib.sh"
e2e_begin

existing_manifest=$(e2e_manifest_text "written before the first start")
printf '%s' "$existing_manifest" >"$E2E_PROGRAM_DIR/$E2E_MANIFEST"

e2e_start
first_job=$e2e_program_job
drive wait --process "$E2E_PROCESS" --title "$E2E_BANNER" --timeout 20000 >/dev/null
e2e_program_running || fail "the first copy ended although its manifest was there (it must not restart)"
window=$(drive window --title "$E2E_BANNER")
assert_line "$window" $'visible\t0' "the main window of the first copy starts hidden (open=0)"

e2e_start
e2e_wait_program_end 20 "the second copy (it should show the first one and end)"
kill -0 "$first_job" 2>/dev/null || fail "the first copy ended when the second one started"

window=$(drive window --title "$E2E_BANNER" --visible --timeout 5000)
assert_line "$window" $'visible\t1' "the first copy's main window is shown"
assert_line "$window" $'minimized\t0' "the first copy's main window is shown in its normal state"
assert_line "$window" $'foreground\t1' "the first copy's main window is brought to the front"
[[ $(drive processes --process "$E2E_PROCESS" | wc -l) -eq 1 ]] || fail "only the first copy should be running"
assert_file_bytes "$E2E_MANIFEST" "$existing_manifest"
e2e_screenshot second_start
