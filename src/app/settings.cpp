#include "app/settings.h"

namespace app {

Settings DefaultSettings() {
    Settings s;
    s.time = "10";
    s.open = "0";
    s.start = 1;
    s.packet = 1;
    s.beep = 0;
    s.logflag = 1;
    s.colours = {16777215, 0};
    s.window = 1;
    s.nc = "";
    s.front = 0;
    s.app = 0;
    return s;
}

std::string IntervalPanelText(const Settings& settings) { return "ログ間隔 : " + settings.time + "秒"; }

}  // namespace app
