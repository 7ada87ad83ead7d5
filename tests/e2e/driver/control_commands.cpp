// Common controls of another process: list views, tab strips, status bars, toolbars. Their
// messages carry pointers, so every structure and text buffer lives in a RemoteBuffer.
#include <windows.h>
#include <commctrl.h>

#include "driver.h"
#include "remote_buffer.h"
#include "window_finder.h"

namespace driver {
namespace {

constexpr std::size_t kTextChars = 1024;  // tooltips assume INFOTIPSIZE characters
constexpr std::size_t kTextOffset = 512;  // the structure comes first, the text after it
constexpr std::size_t kBufferSize = kTextOffset + (kTextChars + 1) * sizeof(wchar_t);

HWND Control(const Options& options, const wchar_t* controlClass) {
    return FindControl(WaitForTopLevelWindow(options), controlClass, options);
}

// The rectangle of one part of a control (a tab, a toolbar button), in its client coordinates.
RECT ControlRect(HWND control, UINT message, WPARAM part) {
    RemoteBuffer buffer(control, sizeof(RECT));
    if (!SendMessageW(control, message, part, buffer.Param()))
        throw Failure("cannot get the rectangle of part " + std::to_string(part));
    return buffer.Get<RECT>(0);
}

// A left click in the middle of rect, as the control itself receives a user's click: its own code
// then runs and notifies the program. Posted, so a program that opens a modal window on the click
// never blocks the driver.
void ClickInside(HWND control, const RECT& rect, bool right = false) {
    const LPARAM point = MAKELPARAM((rect.left + rect.right) / 2, (rect.top + rect.bottom) / 2);
    const UINT down = right ? WM_RBUTTONDOWN : WM_LBUTTONDOWN;
    if (!PostMessageW(control, down, right ? MK_RBUTTON : MK_LBUTTON, point) || !PostMessageW(control, down + 1, 0, point))
        throw Failure("cannot post the click");
}

std::string Alignment(int format) {
    switch (format & LVCFMT_JUSTIFYMASK) {
        case LVCFMT_RIGHT: return "right";
        case LVCFMT_CENTER: return "center";
        default: return "left";
    }
}

int ColumnCount(HWND listView) {
    const auto header = reinterpret_cast<HWND>(SendMessageW(listView, LVM_GETHEADER, 0, 0));
    return header ? static_cast<int>(SendMessageW(header, HDM_GETITEMCOUNT, 0, 0)) : 0;
}

void ListViewColumns(const Options& options) {
    HWND listView = Control(options, WC_LISTVIEWW);
    RemoteBuffer buffer(listView, kBufferSize);
    for (int column = 0, count = ColumnCount(listView); column < count; ++column) {
        buffer.Clear();
        LVCOLUMNW request{};
        request.mask = LVCF_FMT | LVCF_WIDTH | LVCF_TEXT;
        request.pszText = static_cast<LPWSTR>(buffer.At(kTextOffset));
        request.cchTextMax = kTextChars;
        buffer.Put(0, request);
        if (!SendMessageW(listView, LVM_GETCOLUMNW, column, buffer.Param()))
            throw Failure("LVM_GETCOLUMNW failed for column " + std::to_string(column));
        const auto answer = buffer.Get<LVCOLUMNW>(0);
        PrintLine({buffer.Text(kTextOffset, kTextChars), std::to_string(answer.cx), Alignment(answer.fmt)});
    }
}

void ListViewRows(const Options& options) {
    HWND listView = Control(options, WC_LISTVIEWW);
    RemoteBuffer buffer(listView, kBufferSize);
    const int columns = std::max(ColumnCount(listView), 1);
    const auto rows = static_cast<int>(SendMessageW(listView, LVM_GETITEMCOUNT, 0, 0));
    for (int row = 0; row < rows; ++row) {
        std::vector<std::string> cells;
        for (int column = 0; column < columns; ++column) {
            LVITEMW request{};
            request.iSubItem = column;
            request.pszText = static_cast<LPWSTR>(buffer.At(kTextOffset));
            request.cchTextMax = kTextChars;
            buffer.Put(0, request);
            buffer.Put<wchar_t>(kTextOffset, L'\0');
            SendMessageW(listView, LVM_GETITEMTEXTW, row, buffer.Param());
            cells.push_back(buffer.Text(kTextOffset, kTextChars));
        }
        PrintLine(cells);
    }
}

// A click on a row's label; a left click waits until the row is selected, a right click returns
// at once (the program may be showing its pop-up menu).
void ClickRow(const Options& options, bool right) {
    if (options.arguments.size() != 1) throw std::invalid_argument("the row's index (from 0) is needed");
    const int row = ParseNumber(options.arguments[0], "the row");
    HWND listView = Control(options, WC_LISTVIEWW);
    SendMessageW(listView, LVM_ENSUREVISIBLE, row, FALSE);
    RemoteBuffer buffer(listView, sizeof(RECT));
    buffer.Put(0, RECT{LVIR_LABEL, 0, 0, 0});
    if (!SendMessageW(listView, LVM_GETITEMRECT, row, buffer.Param())) throw Failure("there is no row " + options.arguments[0]);
    ClickInside(listView, buffer.Get<RECT>(0), right);
    if (!right && !WaitUntil(options.timeout, [&] { return SendMessageW(listView, LVM_GETITEMSTATE, row, LVIS_SELECTED) != 0; }))
        throw Failure("row " + options.arguments[0] + " did not become selected");
}

void ListViewCount(const Options& options) {
    PrintLine({std::to_string(SendMessageW(Control(options, WC_LISTVIEWW), LVM_GETITEMCOUNT, 0, 0))});
}

std::vector<std::string> TabCaptions(HWND tabs) {
    RemoteBuffer buffer(tabs, kBufferSize);
    std::vector<std::string> captions;
    const auto count = static_cast<int>(SendMessageW(tabs, TCM_GETITEMCOUNT, 0, 0));
    for (int index = 0; index < count; ++index) {
        buffer.Clear();
        TCITEMW request{};
        request.mask = TCIF_TEXT;
        request.pszText = static_cast<LPWSTR>(buffer.At(kTextOffset));
        request.cchTextMax = kTextChars;
        buffer.Put(0, request);
        if (!SendMessageW(tabs, TCM_GETITEMW, index, buffer.Param()))
            throw Failure("TCM_GETITEMW failed for tab " + std::to_string(index));
        captions.push_back(buffer.Text(kTextOffset, kTextChars));
    }
    return captions;
}

void Tabs(const Options& options) {
    HWND tabs = Control(options, WC_TABCONTROLW);
    const auto selected = static_cast<int>(SendMessageW(tabs, TCM_GETCURSEL, 0, 0));
    const std::vector<std::string> captions = TabCaptions(tabs);
    for (int index = 0; index < static_cast<int>(captions.size()); ++index)
        PrintLine({std::to_string(index), index == selected ? "selected" : "-", captions[index]});
}

// The tab named by its index (from 0) or by its caption.
int TabIndex(HWND tabs, const std::string& wanted) {
    const std::vector<std::string> captions = TabCaptions(tabs);
    for (int index = 0; index < static_cast<int>(captions.size()); ++index)
        if (CaptionMatches(captions[index], wanted)) return index;
    const bool isNumber = !wanted.empty() && wanted.find_first_not_of("0123456789") == std::string::npos;
    if (!isNumber || std::stoul(wanted) >= captions.size())
        throw Failure("there is no tab \"" + wanted + "\" (neither a caption nor an index from 0)");
    return std::stoi(wanted);
}

// TCM_SETCURSEL changes the tab without telling the program; a click runs the control's own code,
// which asks the parent (TCN_SELCHANGING) and reports the change (TCN_SELCHANGE) as for a user.
void SelectTab(const Options& options) {
    if (options.arguments.size() != 1) throw std::invalid_argument("select-tab needs the tab's index or caption");
    HWND tabs = Control(options, WC_TABCONTROLW);
    const int index = TabIndex(tabs, options.arguments[0]);
    ClickInside(tabs, ControlRect(tabs, TCM_GETITEMRECT, index));
    if (!WaitUntil(options.timeout, [&] { return SendMessageW(tabs, TCM_GETCURSEL, 0, 0) == index; }))
        throw Failure("tab " + options.arguments[0] + " did not become selected (the program refused the change?)");
}

void StatusPanels(const Options& options) {
    HWND status = Control(options, STATUSCLASSNAMEW);
    RemoteBuffer buffer(status, kBufferSize);
    const auto parts = static_cast<int>(SendMessageW(status, SB_GETPARTS, 0, 0));
    for (int part = 0; part < parts; ++part) {
        const auto length = LOWORD(SendMessageW(status, SB_GETTEXTLENGTHW, part, 0));
        if (length > kTextChars) throw Failure("panel " + std::to_string(part) + " holds more text than expected");
        buffer.Clear();
        SendMessageW(status, SB_GETTEXTW, part, buffer.Param(kTextOffset));
        PrintLine({std::to_string(part), buffer.Text(kTextOffset, kTextChars)});
    }
}

// The tooltip of a toolbar button is usually supplied on demand by the program (TTN_GETDISPINFO);
// TTM_GETTEXTW makes the tooltip control ask for it exactly as when the mouse rests on the button.
std::string ToolTip(HWND toolbar, HWND tooltip, int commandId, RemoteBuffer& buffer) {
    if (!tooltip) return {};
    buffer.Clear();
    TTTOOLINFOW request{};
    request.cbSize = sizeof request;
    request.hwnd = toolbar;
    request.uId = static_cast<UINT_PTR>(commandId);
    request.lpszText = static_cast<LPWSTR>(buffer.At(kTextOffset));
    buffer.Put(0, request);
    SendMessageW(tooltip, TTM_GETTEXTW, kTextChars, buffer.Param());
    return buffer.Text(kTextOffset, kTextChars);
}

std::string ButtonState(const TBBUTTON& button) {
    if (button.fsStyle & BTNS_SEP) return "separator";
    std::string state = (button.fsState & TBSTATE_ENABLED) ? "enabled" : "disabled";
    if (button.fsState & TBSTATE_CHECKED) state += ",checked";
    if (button.fsState & TBSTATE_HIDDEN) state += ",hidden";
    return state;
}

void Toolbar(const Options& options) {
    HWND toolbar = Control(options, TOOLBARCLASSNAMEW);
    const auto tooltip = reinterpret_cast<HWND>(SendMessageW(toolbar, TB_GETTOOLTIPS, 0, 0));
    RemoteBuffer buffer(toolbar, kBufferSize);
    const auto count = static_cast<int>(SendMessageW(toolbar, TB_BUTTONCOUNT, 0, 0));
    for (int index = 0; index < count; ++index) {
        buffer.Clear();
        if (!SendMessageW(toolbar, TB_GETBUTTON, index, buffer.Param()))
            throw Failure("TB_GETBUTTON failed for button " + std::to_string(index));
        const auto button = buffer.Get<TBBUTTON>(0);
        std::string text, tip;
        if (!(button.fsStyle & BTNS_SEP)) {
            buffer.Clear();
            if (SendMessageW(toolbar, TB_GETBUTTONTEXTW, button.idCommand, buffer.Param(kTextOffset)) > 0)
                text = buffer.Text(kTextOffset, kTextChars);
            tip = ToolTip(toolbar, tooltip, button.idCommand, buffer);
        }
        PrintLine({std::to_string(index), std::to_string(button.idCommand), ButtonState(button), text, tip});
    }
}

void ClickToolbarButton(const Options& options) {
    if (options.arguments.size() != 1) throw std::invalid_argument("toolbar-click needs the button's command id");
    const int commandId = ParseNumber(options.arguments[0], "the command id");
    HWND toolbar = Control(options, TOOLBARCLASSNAMEW);
    const auto state = SendMessageW(toolbar, TB_GETSTATE, commandId, 0);
    if (state == -1) throw Failure("the toolbar has no button " + options.arguments[0]);
    if (!(state & TBSTATE_ENABLED)) throw Failure("toolbar button " + options.arguments[0] + " is disabled");
    ClickInside(toolbar, ControlRect(toolbar, TB_GETRECT, commandId));
}

}  // namespace

const std::vector<Command>& ControlCommands() {
    static const std::vector<Command> commands = {
        {"listview-columns", "listview-columns        list-view columns: caption, width (pixels), left|right|center",
         ListViewColumns},
        {"listview-rows", "listview-rows           list-view rows: the texts of all cells", ListViewRows},
        {"listview-count", "listview-count          number of list-view rows", ListViewCount},
        {"listview-click", "listview-click ROW      left-click a row (from 0) and wait until it is selected",
         [](const Options& o) { ClickRow(o, false); }},
        {"listview-rclick", "listview-rclick ROW     right-click a row (from 0), as for a context menu",
         [](const Options& o) { ClickRow(o, true); }},
        {"tabs", "tabs                    tabs: index, selected|-, caption", Tabs},
        {"select-tab", "select-tab INDEX|CAPTION  click a tab (index from 0, or caption) as a user does", SelectTab},
        {"status", "status                  status-bar panels: index, text", StatusPanels},
        {"toolbar", "toolbar                 toolbar buttons: index, id, state, text, tooltip", Toolbar},
        {"toolbar-click", "toolbar-click ID        press the toolbar button with command id ID", ClickToolbarButton},
    };
    return commands;
}

}  // namespace driver
