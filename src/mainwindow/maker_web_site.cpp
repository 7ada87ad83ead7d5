#include "mainwindow/maker_web_site.h"

#include "base/product.h"

namespace mainwindow {

void OpenMakerWebSite(platform::IBrowser& browser, platform::IDialogs& dialogs) {
    if (browser.Navigate(kMakerWebSite)) return;
    dialogs.ShowMessage("WEB サイト表示 でエラーが発生しました。", base::kProductName, platform::msgbox::kOkOnly);
}

}  // namespace mainwindow
