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
e2e_wait_file pcset.ini 10
e2e_wait_file pcset2.ini 10
assert_file_bytes pcset.ini $'"NG"\r\n'
assert_file_bytes pcset2.ini $'"NG"\r\n'
files=("$E2E_PROCESS" veskarneton.ico veskarnetoff.ico "$E2E_MANIFEST" setting.ini pcset.ini pcset2.ini)
if [[ -e $E2E_PROGRAM_DIR/app.ini ]]; then
    # The allowed-applications list may load itself at start; it creates its file empty.
    assert_file_bytes app.ini ""
    files+=(app.ini)
fi
assert_eq "$(printf '%s\n' "${files[@]}" | sort)" "$(cd "$E2E_PROGRAM_DIR" && find . -maxdepth 1 -type f -printf '%f\n' | sort)" \
    "the files of the program folder"

window=$(drive window --title "$E2E_BANNER")
assert_line "$window" $'visible\t0' "the main window starts hidden when open=0"

# The banner is also the first row of the main monitor, and the status bar names the user.
rows=$(drive listview-rows --title "$E2E_BANNER" --id 101)
assert_eq "$E2E_BANNER" "$(head -n 1 <<<"$rows")" "first row of the main monitor list"
status=$(drive status --title "$E2E_BANNER")
grep -q $'^2\tユーザ : .' <<<"$status" || fail "panel 3 of the status bar should name the user, panels are:
$status"

drive show --title "$E2E_BANNER"
e2e_screenshot first_start
