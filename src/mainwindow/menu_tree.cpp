#include "mainwindow/menu_tree.h"

namespace mainwindow {
namespace {

using enum MenuItem;

constexpr MenuEntry kMenuBar[] = {
    {mnuFAILE, "mnuFAILE", "ファイル(&F)", 0},
    {mnuFMain, "mnuFMain", "メインモニタの名前を付けて保存...(&M)", 1},
    {mnulLne3, "mnulLne3", "-", 1},
    {mnuTUIKASAVE, "mnuTUIKASAVE", "追加保存(&K)", 1},
    {mnuFP, "mnuFP", "プロセスのログを追加保存(&P)", 2},
    {mnuFA, "mnuFA", "アプリケーションのログを追加保存(&A)", 2},
    {mnuFS, "mnuFS", "スタートアップのログを追加保存(&S)", 2},
    {mnuFN, "mnuFN", "NETSTATのログを追加保存(&N)", 2},
    {mnuFM, "mnuFM", "マイネットワークのログを追加保存(&M)", 2},
    {mnuLine4, "mnuLine4", "-", 1},
    {mnuIS, "mnuIS", "一時保存(&I)", 1},
    {mnuIP, "mnuIP", "プロセスのログを一時保存(&P)", 2},
    {mnuIA, "mnuIA", "アプリケーションのログを一時保存(&A)", 2},
    {mnuIIS, "mnuIIS", "スタートアップのログを一時保存(&S)", 2},
    {mnuIN, "mnuIN", "NETSTATのログを一時保存(&N)", 2},
    {mnuIM, "mnuIM", "マイネットワークのログを一時保存(&M)", 2},
    {mnuLine1, "mnuLine1", "-", 1},
    {mnuEND, "mnuEND", "Veskar_Lookoutの終了(&X)", 1},
    {mnuHYOUJI, "mnuHYOUJI", "表示(&V)...", 0},
    {mnuUPDATE, "mnuUPDATE", "最新の情報に更新(&R)", 1},
    {mnuLine, "mnuLine", "-", 1},
    {mnuFRONT, "mnuFRONT", "常に手前に表示(&A)", 1},
    {mnuGRID, "mnuGRID", "グリッド線を表示する(&G)", 1},
    {mnuITEM_HABA, "mnuITEM_HABA", "アイテムの幅を初期値に戻す(&W)", 1},
    {mnuTool, "mnuTool", "ツール(&T)", 0},
    {mnuSetForm, "mnuSetForm", "全般的な設定...(&G)", 1},
    {mnuLine5, "mnuLine5", "-", 1},
    {mnuVESKARTOOLZ, "mnuVESKARTOOLZ", "ユーティリティ(&U)", 1},
    {mnuSUpTouroku, "mnuSUpTouroku", "スタートアップに登録(&S)", 1},
    {mnuAppEdit, "mnuAppEdit", "アプリケーションの登録(&A)", 1},
    {mnuHELP, "mnuHELP", "ヘルプ(&H)", 0},
    {mnuVESKARWEBSITE, "mnuVESKARWEBSITE", "Veskar Development WEBサイト(&W)", 1},
    {mnuVER, "mnuVER", "バージョン情報(&A)", 1},
};

constexpr MenuEntry kListPopup[] = {
    {menu, "menu", "Menu", 0},
    {mnuTouroku, "mnuTouroku", "アプリケーションを登録する(&T)", 1},
    {mnuKill, "mnuKill", "アプリケーションを終了する(&E)", 1},
    {mnuDepend, "mnuDepend", "アプリケーションが使用しているDLL表示(&D)", 1},
    {mnuCOPY, "mnuCOPY", "パスをクリップボードへコピーする(&C)", 1},
};

}  // namespace

std::span<const MenuEntry> MenuBar() { return kMenuBar; }
std::span<const MenuEntry> ListPopupMenu() { return kListPopup; }

std::optional<MenuItem> MenuItemOfCommand(int command) {
    const int index = command - kFirstMenuCommand;
    if (index < 0 || index >= kMenuItemCount) return std::nullopt;
    return static_cast<MenuItem>(index);
}

MenuItem AppendSaveItem(logs::LogKind kind) {
    switch (kind) {
        case logs::LogKind::Process: return mnuFP;
        case logs::LogKind::Application: return mnuFA;
        case logs::LogKind::Startup: return mnuFS;
        case logs::LogKind::Netstat: return mnuFN;
        case logs::LogKind::MyNetwork: return mnuFM;
    }
    return mnuFP;
}

MenuItem TemporarySaveItem(logs::LogKind kind) {
    switch (kind) {
        case logs::LogKind::Process: return mnuIP;
        case logs::LogKind::Application: return mnuIA;
        case logs::LogKind::Startup: return mnuIIS;
        case logs::LogKind::Netstat: return mnuIN;
        case logs::LogKind::MyNetwork: return mnuIM;
    }
    return mnuIP;
}

}  // namespace mainwindow
