#pragma once
// One list view of frmMain in report view over a table model: the list keeps no rows of its
// own (LVS_OWNERDATA) and asks for each cell as it draws it, so 10,000 rows cost nothing more
// to show than 10, and a change of the model is one new item count. A small-icon list given
// to it (LVM_SETIMAGELIST) stays its owner's: the list view shares it and never destroys it.
#include <windows.h>
#include <commctrl.h>

#include <span>
#include <string>

#include "base/colour.h"
#include "base/table_model.h"
#include "base/twips.h"
#include "base/win32/unique_resource.h"
#include "mainwindow/list_columns.h"
#include "mainwindow/window_layout.h"

namespace mainwindow {

class VirtualListView {
public:
    // Creates the list as a hidden child with its columns (widths converted from twips) and
    // follows the model from then on.
    VirtualListView(HWND parent, int id, base::TableModel& rows, std::span<const Column> columns,
                    base::TwipsPerPixel twipsPerPixel, const PixelRect& bounds);
    ~VirtualListView();
    VirtualListView(const VirtualListView&) = delete;
    VirtualListView& operator=(const VirtualListView&) = delete;

    HWND Handle() const { return m_window.Get(); }
    // Answers the list's request for a cell's text or icon and tells the model which row the
    // user selected; false for other notifications.
    bool OnNotify(NMHDR& header);
    void SetColours(base::Colour back, base::Colour text);

private:
    void FollowModel(bool appended);
    void FollowSelection();

    base::UniqueHwnd m_window;
    base::TableModel& m_rows;
    std::size_t m_count = 0;
    std::wstring m_cellText;  // the text last handed out; the list reads it before asking again
};

// A colour of the program (0x00BBGGRR or a system colour) as the system draws it.
COLORREF SystemColour(base::Colour colour);

}  // namespace mainwindow
