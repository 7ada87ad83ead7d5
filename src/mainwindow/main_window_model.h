#pragma once
// What frmMain shows, without a screen: the caption, the computer-name box, the status-bar
// panels and the rows of every list view.
#include <array>
#include <string>

#include "base/table_model.h"

namespace mainwindow {

class MainWindowModel {
public:
    std::string caption;
    std::string computerName;          // the computer-name text box
    std::array<std::string, 5> panels; // stbStatus panels 1 to 5 at [0] to [4]
    bool visible = false;

    base::TableModel lstvMain;         // main monitor: one text per row
};

}  // namespace mainwindow
