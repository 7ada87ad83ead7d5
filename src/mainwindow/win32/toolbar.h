#pragma once
// Toolbar1: flat buttons with the pictures and tool tips of ToolbarButtons(); a click arrives at
// the parent as WM_COMMAND with kFirstToolbarCommand + the button's position.
#include <windows.h>
#include <commctrl.h>

#include <optional>
#include <string>
#include <vector>

#include "base/win32/unique_resource.h"

namespace mainwindow {

class Toolbar {
public:
    // pictureScale: each pixel of the 16 x 16 pictures is drawn this many pixels wide and high,
    // so that they stay sharp on a screen of twice the pixels.
    Toolbar(HWND parent, int id, int pictureScale);
    Toolbar(const Toolbar&) = delete;
    Toolbar& operator=(const Toolbar&) = delete;

    HWND Handle() const { return m_window.Get(); }
    int Height() const;
    void SetButtonEnabled(std::size_t position, bool enabled);
    // The button a command identifier belongs to.
    static std::optional<std::size_t> ButtonOfCommand(int command);
    // Gives the tool tip of a button; false for other notifications.
    bool OnNotify(NMHDR& header);

private:
    base::UniqueImageList m_images;
    base::UniqueHwnd m_window;
    std::vector<std::wstring> m_toolTips;
};

}  // namespace mainwindow
