#include "mainwindow/tabs.h"

#include <array>
#include <stdexcept>

namespace mainwindow {
namespace {

// The applications tab and the NETSTAT tab count under "プロセス : " too; the labels are kept.
const std::array<TabInfo, kTabCount> kTabs{{
    {"メインモニタ", ListId::lstvMain, "ログ行数 : ", nullptr, nullptr, std::nullopt, 0, std::nullopt},
    {"プロセス", ListId::lstvTask, "プロセス : ", "プロセス でエラーが発生しました。",
     "プロセス タブでエラーが発生しました。", FormTimer::tmrTASK, 10000, logs::LogKind::Process},
    {"アプリケーション", ListId::lstvProcess, "プロセス : ", "アプリケーション でエラーが発生しました。",
     "アプリケーション タブでエラーが発生しました。", FormTimer::tmrPID, 20000, logs::LogKind::Application},
    {"スタートアップ", ListId::lstvStartup, "登録数 : ", nullptr, nullptr, std::nullopt, 0,
     logs::LogKind::Startup},
    {"NETSTAT", ListId::lstvAddPort, "プロセス : ", nullptr, nullptr, FormTimer::tmrADDPORT, 5000,
     logs::LogKind::Netstat},
    {"マイ ネットワーク", ListId::lstvPc, "台数 : ", nullptr, nullptr, std::nullopt, 0, logs::LogKind::MyNetwork},
}};

}  // namespace

const TabInfo& Tab(int index) {
    if (index < 1 || index > kTabCount) throw std::out_of_range("tab index");
    return kTabs[static_cast<std::size_t>(index - 1)];
}

int TabOfLogKind(logs::LogKind kind) {
    for (int i = 1; i <= kTabCount; ++i) {
        if (Tab(i).logKind == kind) return i;
    }
    throw std::out_of_range("log kind");
}

}  // namespace mainwindow
