#!/usr/bin/env bash
# The process tab lists the program itself and, once the count changes, a process started later;
# the lists' pop-up menu ends a helper on Yes only, copies a path and shows the file's imports.
source "$(dirname "$0")/../lib.sh"
e2e_begin
e2e_write_settings open=1 start=0 logflag=0
(exec wine notepad.exe >>"$E2E_WORK/helper.log" 2>&1 &)
drive wait --class Notepad --visible --timeout 20000 >/dev/null
e2e_start_shown
window=(--title "$E2E_BANNER") list=(--title "$E2E_BANNER" --visible-control) at=(--process "$E2E_PROCESS")
row_of() { grep -nP "^$1\t" <<<"$rows" | head -1 | awk -F: '{ print $1 - 1 }'; }
refresh() { drive menu-invoke "${window[@]}" "表示(&V)..." "最新の情報に更新(&R)" >/dev/null; }
# A tmrTASK tick rebuilds the list when the number of processes changed (the driver's own come and
# go), and a rebuilt list has no selected row: the command then does nothing and is tried again.
choose() { # ROW KEY CHECK...
    for _ in 1 2 3; do
        drive listview-rclick "${list[@]}" "$1" >/dev/null && drive popup-choose "${at[@]}" "$2" >/dev/null
        "${@:3}" && return
    done
    fail "the pop-up command $2 on row $1 did nothing"
}
asking() { drive_status messagebox "${at[@]}" --timeout 2000 >/dev/null; }
copied() { [[ $(drive clipboard) == "$path" ]]; }
box() { drive messagebox "${at[@]}" | grep -v ^button; }

drive select-tab "${window[@]}" 1 >/dev/null && rows=$(drive listview-rows "${list[@]}")
IFS=$'\t' read -r _ id memory path < <(grep -P "^$E2E_PROCESS\t" <<<"$rows")
assert_eq "$(drive processes "${at[@]}" | cut -f1)" "$id" "the program's own process ID"
[[ $memory =~ ^[1-9][0-9]{0,2}(,[0-9]{3})*\ K$ && $path =~ ^[A-Z]:\\.*\\$E2E_PROCESS$ ]] ||
    fail "memory '$memory' or path '$path' of the program"
assert_line "$(drive status "${window[@]}")" $'4\tプロセス : '"$(wc -l <<<"$rows")" "panel 5 counts the rows"
e2e_screenshot process_tab >/dev/null

(exec wine winver.exe >>"$E2E_WORK/helper.log" 2>&1 &)
drive wait --process winver.exe --visible --timeout 20000 >/dev/null
refresh && rows=$(drive listview-rows "${list[@]}")
grep -qP '^winver\.exe\t' <<<"$rows" || fail "the later process is not listed: $rows"

own=$(row_of "$E2E_PROCESS") && drive listview-rclick "${list[@]}" "$own" >/dev/null
drive wait "${at[@]}" --class '#32768' --visible >/dev/null && e2e_screenshot popup_menu >/dev/null
drive popup-choose "${at[@]}" C >/dev/null
copied || choose "$own" C copied

notepad=$(row_of 'notepad\.exe')
choose "$notepad" E asking
drive messagebox-click "${at[@]}" "いいえ(&N)" >/dev/null
drive processes --process notepad.exe | grep -q . || fail "No ended the helper"
choose "$notepad" E asking
drive messagebox-click "${at[@]}" "はい(&Y)" >/dev/null
drive wait-exit --process notepad.exe --timeout 10000 >/dev/null

refresh && rows=$(drive listview-rows "${list[@]}")
choose "$(row_of "$E2E_PROCESS")" D asking
imports=$(x86_64-w64-mingw32-objdump -p "$E2E_PROGRAM_DIR/$E2E_PROCESS" | sed -n 's/^\tDLL Name: \(.*\)/\1\\r\\n/p' | tr -d '\n')
assert_eq $'title\tFile Dependencies\ntext\t\\r\\nFile : '"$path"$'\\r\\n\\r\\n'"$imports" "$(box)" "the imports"
e2e_screenshot dependencies >/dev/null
drive messagebox-click "${at[@]}" OK >/dev/null
