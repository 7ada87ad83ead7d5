#pragma once
// The texts of frmAbout, the about box.
#include <string>

#include "platform/program_version.h"

namespace mainwindow {

struct AboutTexts {
    std::string caption;       // the application title, then " （ﾊﾞｰｼﾞｮﾝ情報）"
    std::string versionLabel;  // "Veskar_Lookout Version.1.0.1"
    std::string linkLabel;     // the maker's web site
};

AboutTexts MakeAboutTexts(const platform::ProgramVersion& version);

}  // namespace mainwindow
