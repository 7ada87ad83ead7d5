#!/usr/bin/env bash
# First start in an empty program folder: the first process writes the visual-styles manifest and
# starts the program again (which process writes which file is pinned by the start-up unit tests);
# the settings file and both PC lists get their defaults and the main window stays hidden (open=0).
source "$(dirname "$0")/../lib.sh"
e2e_begin

e2e_start
e2e_wait_program_end 30 "the first process (it should start the program again and end)"
# The first process ends before it creates any window: the window belongs to the restarted copy.
drive wait --process "$E2E_PROCESS" --title "$E2E_BANNER" --timeout 20000 >/dev/null
processes=$(drive processes --process "$E2E_PROCESS")
[[ $(wc -l <<<"$processes") -eq 1 ]] || fail "exactly one running copy expected after the restart, found:
$processes"

assert_file_bytes "$E2E_MANIFEST" "$(e2e_manifest_text)"
e2e_wait_file setting.ini 10
assert_file_bytes setting.ini $'[main]\r\ntime=10\r\nopen=0\r\nstart=1\r\npacket=1\r\nbeep=0\r\nlogflag=1\r\nbackcolor=16777215\r\nfontcolor=0\r\nwindow=1\r\nnc=\r\nfront=0\r\napp=0\r\n'
# Both PC lists are created (their bytes are the start-up unit tests'), and nothing else.
e2e_wait_file pcset.ini 10
e2e_wait_file pcset2.ini 10
files=("$E2E_PROCESS" veskarneton.ico veskarnetoff.ico "$E2E_MANIFEST" setting.ini pcset.ini pcset2.ini)
assert_eq "$(printf '%s\n' "${files[@]}" | sort)" "$(cd "$E2E_PROGRAM_DIR" && find . -maxdepth 1 -type f -printf '%f\n' | sort)" \
    "the files of the program folder"

assert_line "$(drive window --title "$E2E_BANNER")" $'visible\t0' "the main window starts hidden when open=0"

# The status bar names the user.
status=$(drive status --title "$E2E_BANNER")
grep -q $'^2\tユーザ : .' <<<"$status" || fail "panel 3 of the status bar should name the user, panels are:
$status"

drive show --title "$E2E_BANNER"
e2e_screenshot first_start
