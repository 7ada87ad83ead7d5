#include "mainwindow/about_box.h"

#include "base/product.h"
#include "mainwindow/maker_web_site.h"

namespace mainwindow {

AboutTexts MakeAboutTexts(const platform::ProgramVersion& version) {
    AboutTexts texts;
    texts.caption = std::string(base::kProductName) + " （ﾊﾞｰｼﾞｮﾝ情報）";
    texts.versionLabel = std::string(base::kProductName) + " Version." + std::to_string(version.major) + "." +
                         std::to_string(version.minor) + "." + std::to_string(version.revision);
    texts.linkLabel = kMakerWebSite;
    return texts;
}

}  // namespace mainwindow
