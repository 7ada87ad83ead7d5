#include "system/startup_registration.h"

#include "base/product.h"

namespace system_items {

namespace msgbox = platform::msgbox;

std::string ShortcutName(const std::string& executableName) { return executableName + ".exe.lnk"; }

bool RegisterAtStartup(platform::IStartupFolder& startup, const Executable& executable) {
    const auto folder = startup.Path();
    if (!folder) return false;
    return startup.SaveShortcut(*folder + "\\" + ShortcutName(executable.name),
                                executable.folder + "\\" + executable.name + ".exe");
}

void mnuSUpTouroku_Click(platform::IDialogs& dialogs, platform::IStartupFolder& startup, const Executable& executable) {
    if (dialogs.ShowMessage("本プログラムをスタートアップに登録しますか？\r\n", base::kProductName,
                            msgbox::kYesNo | msgbox::kQuestion) != msgbox::kYes) {
        return;
    }
    // Success, too, has always come with the exclamation icon.
    const char* result = RegisterAtStartup(startup, executable) ? "スタートアップの登録に成功しました。"
                                                              : "スタートアップの登録に失敗しました。";
    dialogs.ShowMessage(result, base::kProductName, msgbox::kExclamation);
}

}  // namespace system_items
