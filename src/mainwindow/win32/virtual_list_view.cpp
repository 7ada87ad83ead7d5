#include "mainwindow/win32/virtual_list_view.h"

#include "base/win32/controls.h"
#include "base/win32/wide.h"

namespace mainwindow {

COLORREF SystemColour(base::Colour colour) {
    return base::IsSystemColour(colour) ? GetSysColor(base::SystemColourIndex(colour)) : static_cast<COLORREF>(colour);
}

VirtualListView::VirtualListView(HWND parent, int id, base::TableModel& rows, std::span<const Column> columns,
                                 base::TwipsPerPixel twipsPerPixel, const PixelRect& bounds)
    : m_window(base::CreateControl(WC_LISTVIEWW, "",
                                   WS_CLIPSIBLINGS | WS_TABSTOP | LVS_REPORT | LVS_OWNERDATA | LVS_SINGLESEL |
                                       LVS_SHAREIMAGELISTS,
                                   bounds.x, bounds.y, bounds.width, bounds.height, parent, id, WS_EX_CLIENTEDGE)),
      m_rows(rows) {
    int index = 0;
    for (const Column& column : columns) {
        std::wstring caption = base::Widen(column.caption);
        LVCOLUMNW lvc{};
        lvc.mask = LVCF_FMT | LVCF_WIDTH | LVCF_TEXT | LVCF_SUBITEM;
        lvc.fmt = column.rightAligned ? LVCFMT_RIGHT : LVCFMT_LEFT;
        lvc.cx = base::TwipsToPixels(column.widthTwips, twipsPerPixel.x);
        lvc.pszText = caption.data();
        lvc.iSubItem = index;
        SendMessageW(Handle(), LVM_INSERTCOLUMNW, static_cast<WPARAM>(index), reinterpret_cast<LPARAM>(&lvc));
        ++index;
    }
    m_rows.SetChangeListener([this](bool appended) { FollowModel(appended); });
    FollowModel(false);
}

VirtualListView::~VirtualListView() { m_rows.SetChangeListener(nullptr); }

void VirtualListView::FollowModel(bool appended) {
    const std::size_t count = m_rows.RowCount();
    if (count == m_count) {
        InvalidateRect(Handle(), nullptr, FALSE);  // a cell or an icon changed
    } else {
        // Rows added at the end leave what is drawn valid; a rebuild redraws everything.
        const LPARAM flags = appended ? LVSICF_NOINVALIDATEALL | LVSICF_NOSCROLL : 0;
        m_count = count;
        SendMessageW(Handle(), LVM_SETITEMCOUNT, static_cast<WPARAM>(count), flags);
    }
    // A rebuilt list has no selected row.
    if (!appended && !m_rows.SelectedRow() && SendMessageW(Handle(), LVM_GETSELECTEDCOUNT, 0, 0) > 0) {
        LVITEMW none{};
        none.stateMask = LVIS_SELECTED;
        SendMessageW(Handle(), LVM_SETITEMSTATE, static_cast<WPARAM>(-1), reinterpret_cast<LPARAM>(&none));
    }
}

void VirtualListView::FollowSelection() {
    const auto selected = static_cast<int>(SendMessageW(Handle(), LVM_GETNEXTITEM, static_cast<WPARAM>(-1), LVNI_SELECTED));
    m_rows.SetSelectedRow(selected >= 0 ? std::optional<std::size_t>(static_cast<std::size_t>(selected)) : std::nullopt);
}

bool VirtualListView::OnNotify(NMHDR& header) {
    if (header.hwndFrom != Handle()) return false;
    if (header.code == LVN_ITEMCHANGED || header.code == LVN_ODSTATECHANGED) {
        FollowSelection();
        return true;
    }
    if (header.code != LVN_GETDISPINFOW) return false;
    LVITEMW& item = reinterpret_cast<NMLVDISPINFOW&>(header).item;
    const auto row = static_cast<std::size_t>(item.iItem);
    if (item.mask & LVIF_TEXT) {
        m_cellText = base::Widen(m_rows.Cell(row, static_cast<std::size_t>(item.iSubItem)));
        item.pszText = m_cellText.data();
    }
    if (item.mask & LVIF_IMAGE) item.iImage = m_rows.Icon(row);
    return true;
}

void VirtualListView::SetColours(base::Colour back, base::Colour text) {
    const COLORREF backColour = SystemColour(back);
    SendMessageW(Handle(), LVM_SETBKCOLOR, 0, static_cast<LPARAM>(backColour));
    SendMessageW(Handle(), LVM_SETTEXTBKCOLOR, 0, static_cast<LPARAM>(backColour));
    SendMessageW(Handle(), LVM_SETTEXTCOLOR, 0, static_cast<LPARAM>(SystemColour(text)));
    InvalidateRect(Handle(), nullptr, TRUE);
}

}  // namespace mainwindow
