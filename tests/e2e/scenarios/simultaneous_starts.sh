#!/usr/bin/env bash
# Ten copies started at the same moment leave exactly one running, with one main window. A running
# copy whose main window has another caption is not found: the next start runs beside it.
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
[[ $(running) -eq 1 ]] || fail "no copy survived ten simultaneous starts"
windows=$(drive windows --title "$E2E_BANNER")
[[ $(grep -c . <<<"$windows") -eq 1 ]] || fail "one main window should remain, not: $windows"

drive retitle "renamed" --title "$E2E_BANNER" >/dev/null
e2e_start
drive wait --title "$E2E_BANNER" --timeout 20000 >/dev/null
e2e_program_running || fail "a start beside a copy with another caption ended"
[[ $(running) -eq 1 ]] || fail "the renamed copy ended"
