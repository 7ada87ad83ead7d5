#include "mainwindow/list_columns.h"

namespace mainwindow {
namespace {

constexpr Column kMain[] = {{"アクセスログ", 11200}};
constexpr Column kTask[] = {{"イメージ名", 2000}, {"プロセスID", 1000}, {"メモリ使用量", 1000, true}, {"パス", 6250}};
constexpr Column kProcess[] = {
    {"アプリケーション", 2000}, {"プロセスID", 1000}, {"ローカルポート", 1200}, {"プロトコル", 1000}, {"パス", 4750}};
constexpr Column kStartup[] = {{"スタートアップ項目", 2000}, {"コマンド", 7550}, {"ユーザ", 1000}};
constexpr Column kAddPort[] = {{"プロトコル", 1400},     {"ローカルIP", 1400},     {"ローカルポート", 1400},
                               {"リモートIP", 1400}, {"リモートポート", 1400}, {"状態", 1400}};
constexpr Column kPc[] = {{"マシン名", 2000}, {"IPアドレス", 2000}, {"MACアドレス", 2000}, {"ドメイン名", 2000}};
constexpr Column kSessions[] = {{"コンピュータ", 2000}, {"ユーザ", 1000}};

constexpr int kMainReset[] = {11200};
constexpr int kTaskReset[] = {2000, 1000, 1000, 6350};
constexpr int kProcessReset[] = {2000, 1000, 1200, 1000, 4800};
constexpr int kStartupReset[] = {2000, 7600, 1000};
constexpr int kAddPortReset[] = {1400, 1400, 1400, 1400, 1400, 1400};
constexpr ColumnWidths kReset[] = {
    {ListId::lstvMain, kMainReset},       {ListId::lstvTask, kTaskReset},       {ListId::lstvProcess, kProcessReset},
    {ListId::lstvStartup, kStartupReset}, {ListId::lstvAddPort, kAddPortReset},
};

}  // namespace

std::span<const ColumnWidths> ResetColumnWidths() { return kReset; }

std::span<const Column> Columns(ListId list) {
    switch (list) {
        case ListId::lstvMain: return kMain;
        case ListId::lstvTask: return kTask;
        case ListId::lstvProcess: return kProcess;
        case ListId::lstvStartup: return kStartup;
        case ListId::lstvAddPort: return kAddPort;
        case ListId::lstvPc: return kPc;
        case ListId::ListView1:
        case ListId::ListView2: return kSessions;
    }
    return {};
}

}  // namespace mainwindow
