#!/usr/bin/env bash
# Ten copies started at the same moment leave exactly one running, with one main window; with the
# manifest already there none of them restarts (that it is not rewritten is a unit test's). A
# further start shows the running copy's hidden main window, brings it to the front and ends. A
# running copy whose main window has another caption is not found: the next start runs beside it.
source "$(dirname "$0")/../lib.sh"
e2e_begin
e2e_manifest_text >"$E2E_PROGRAM_DIR/$E2E_MANIFEST"

jobs=()
for _ in {1..10}; do
    e2e_start
    jobs+=("$e2e_program_job")
done
running() { local job n=0; for job in "${jobs[@]}"; do kill -0 "$job" 2>/dev/null && ((++n)); done; echo "$n"; }
for ((waited = 0; $(running) > 1; waited++)); do
    ((waited < 1200)) || fail "$(running) of ten copies still run after 60 s"
    sleep 0.05
done
[[ $(running) -eq 1 ]] || fail "no copy survived ten simultaneous starts (none may restart: the manifest was there)"
drive hide --title "$E2E_BANNER" # the losing copies may have shown it

e2e_start
e2e_wait_program_end 20 "a further copy (it should show the running one and end)"
[[ $(running) -eq 1 ]] || fail "the running copy ended when another one started"
window=$(drive window --title "$E2E_BANNER" --visible --timeout 5000)
assert_line "$window" $'visible\t1' "the running copy's main window is shown"
assert_line "$window" $'minimized\t0' "the running copy's main window is shown in its normal state"
assert_line "$window" $'foreground\t1' "the running copy's main window is brought to the front"
e2e_screenshot second_start

drive retitle "renamed" --title "$E2E_BANNER" >/dev/null
e2e_start
drive wait --title "$E2E_BANNER" --timeout 20000 >/dev/null
e2e_program_running || fail "a start beside a copy with another caption ended"
[[ $(running) -eq 1 ]] || fail "the renamed copy ended"
