#include "system/startup_registration.h"

#include "base/product.h"
#include "base/runtime_error.h"

namespace system_items {

namespace msgbox = platform::msgbox;

namespace {

// The shortcut's file name: the executable's current name (without ".exe") + ".exe.lnk". The
// double extension has always been there; kept so an existing shortcut is found and replaced.
std::string ShortcutName(const std::string& executableName) { return executableName + ".exe.lnk"; }

}  // namespace

void RegisterAtStartup(platform::IStartupFolder& startup, const Executable& executable) {
    const auto folder = startup.Path();
    if (!folder || !startup.SaveShortcut(*folder + "\\" + ShortcutName(executable.name),
                                         executable.folder + "\\" + executable.name + ".exe")) {
        throw base::RuntimeError(base::RuntimeErrorNumber::PathFileAccess);
    }
}

void mnuSUpTouroku_Click(platform::IDialogs& dialogs, platform::IStartupFolder& startup, const Executable& executable) {
    if (dialogs.ShowMessage("本プログラムをスタートアップに登録しますか？\r\n", base::kProductName,
                            msgbox::kYesNo | msgbox::kQuestion) != msgbox::kYes) {
        return;
    }
    // Success, too, has always come with the exclamation icon. The registration raises rather than
    // answers false, so its failure message "スタートアップの登録に失敗しました。" is never reached.
    RegisterAtStartup(startup, executable);
    dialogs.ShowMessage("スタートアップの登録に成功しました。", base::kProductName, msgbox::kExclamation);
}

}  // namespace system_items
