#pragma once
// The six tabs of TabStrip1 (index from 1), the list view each one shows, and what switching
// to it does: its count label, its error texts, its own refresh timer and its log kind.
#include <optional>

#include "logs/log_kind.h"

namespace mainwindow {

// The list views of frmMain: one per tab, then the two hidden working tables of sessions.
enum class ListId { lstvMain, lstvTask, lstvProcess, lstvStartup, lstvAddPort, lstvPc, ListView1, ListView2 };
inline constexpr int kListCount = 8;
inline constexpr int kTabCount = 6;

// The form's timers: the monitoring pair and the three tab refreshes.
enum class FormTimer { Timer1, Timer2, tmrTASK, tmrPID, tmrADDPORT };
inline constexpr int kTimerCount = 5;
inline constexpr FormTimer kTabTimers[] = {FormTimer::tmrTASK, FormTimer::tmrPID, FormTimer::tmrADDPORT};

struct TabInfo {
    const char* caption;
    ListId list;
    const char* countLabel;           // panel 5 is this label and the list's row count
    const char* switchErrorText;      // shown when the refresh fails on a tab switch; none if null
    const char* refreshErrorText;     // shown when it fails on the refresh command; none if null
    std::optional<FormTimer> timer;   // the refresh timer that runs only while the tab is shown
    int timerInterval;                // milliseconds
    std::optional<logs::LogKind> logKind;  // the list's log kind: its save items are enabled here
};

// The tab with this index, 1 to 6.
const TabInfo& Tab(int index);

// The tab whose list is written under this log kind.
int TabOfLogKind(logs::LogKind kind);

inline int ListIndex(ListId list) { return static_cast<int>(list); }
inline int TimerIndex(FormTimer timer) { return static_cast<int>(timer); }

}  // namespace mainwindow
