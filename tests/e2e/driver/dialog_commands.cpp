// Message boxes and the simple controls of dialogs: buttons, check boxes, edits.
#include "base/win32/wide.h"
#include "driver.h"
#include "window_finder.h"

namespace driver {
namespace {

// A message box is a dialog of the system class #32770 owned by the program's process.
Options DialogTarget(const Options& options) {
    Options target = options;
    if (!target.windowClass) target.windowClass = "#32770";
    target.mustBeVisible = true;
    return target;
}

bool IsIconStatic(HWND control) {
    const auto style = GetWindowLongPtrW(control, GWL_STYLE) & SS_TYPEMASK;
    return style == SS_ICON || style == SS_BITMAP;
}

void PrintMessageBox(const Options& options) {
    HWND dialog = WaitForTopLevelWindow(DialogTarget(options));
    PrintLine({"title", WindowText(dialog)});
    for (HWND child : Descendants(dialog)) {
        if (!IsWindowVisible(child)) continue;
        const std::string kind = ClassName(child);
        if (CaptionMatches(kind, "Static") && !IsIconStatic(child) && !WindowText(child).empty())
            PrintLine({"text", WindowText(child)});
        else if (CaptionMatches(kind, "Button"))
            PrintLine({"button", WindowText(child), std::to_string(GetDlgCtrlID(child))});
    }
}

void Click(HWND button) {
    // Posted: the click may open a modal window, which must not block the driver.
    if (!PostMessageW(button, BM_CLICK, 0, 0)) throw Failure("cannot post BM_CLICK");
}

void ClickMessageBoxButton(const Options& options) {
    if (options.arguments.size() != 1) throw std::invalid_argument("messagebox-click needs the button's caption");
    HWND dialog = WaitForTopLevelWindow(DialogTarget(options));
    Options button;
    button.caption = options.arguments[0];
    Click(FindControl(dialog, L"Button", button));
    if (!WaitUntil(options.timeout, [&] { return !IsWindow(dialog); }))
        throw Failure("the message box did not close after \"" + options.arguments[0] + "\" was clicked");
}

void ClickButton(const Options& options) {
    Click(FindControl(WaitForTopLevelWindow(options), L"Button", options));
}

void PrintEnabled(const Options& options) {
    PrintLine({IsWindowEnabled(FindControl(WaitForTopLevelWindow(options), L"Button", options)) ? "1" : "0"});
}

void SetCheck(const Options& options) {
    if (options.arguments.size() != 1 || (options.arguments[0] != "0" && options.arguments[0] != "1"))
        throw std::invalid_argument("check needs 1 (ticked) or 0 (clear)");
    const WPARAM wanted = options.arguments[0] == "1" ? BST_CHECKED : BST_UNCHECKED;
    HWND box = FindControl(WaitForTopLevelWindow(options), L"Button", options);
    if (static_cast<WPARAM>(SendMessageW(box, BM_GETCHECK, 0, 0)) == wanted) return;
    // A click, not BM_SETCHECK: the program hears about it as it does from a user.
    Click(box);
    if (!WaitUntil(options.timeout,
                   [&] { return static_cast<WPARAM>(SendMessageW(box, BM_GETCHECK, 0, 0)) == wanted; }))
        throw Failure("the check box did not change its state when clicked");
}

void SetText(const Options& options) {
    if (options.arguments.size() != 1) throw std::invalid_argument("set-text needs the text");
    HWND edit = FindControl(WaitForTopLevelWindow(options), L"Edit", options);
    const std::wstring text = base::Widen(options.arguments[0]);
    // WM_SETTEXT is copied across processes by the system; the edit tells its parent (EN_CHANGE).
    DWORD_PTR result = 0;
    if (!SendMessageTimeoutW(edit, WM_SETTEXT, 0, reinterpret_cast<LPARAM>(text.c_str()), SMTO_ABORTIFHUNG,
                             static_cast<UINT>(options.timeout.count()), &result) ||
        !result)
        throw Failure("the edit did not take the text");
}

void PrintClipboard(const Options&) {
    if (!OpenClipboard(nullptr)) throw Failure("cannot open the clipboard");
    std::string text;
    if (HANDLE data = GetClipboardData(CF_UNICODETEXT)) {
        if (const auto* chars = static_cast<const wchar_t*>(GlobalLock(data))) {
            text = base::Narrow(chars);
            GlobalUnlock(data);
        }
    }
    CloseClipboard();
    PrintLine({text});
}

}  // namespace

const std::vector<Command>& DialogCommands() {
    static const std::vector<Command> commands = {
        {"messagebox", "messagebox              the visible dialog (#32770) of --process: title, text lines, buttons",
         PrintMessageBox},
        {"messagebox-click", "messagebox-click CAPTION  click a button of that dialog and wait until it closes",
         ClickMessageBoxButton},
        {"click", "click                   click a button (--caption, --id or --nth)", ClickButton},
        {"enabled", "enabled                 1 if a button (--caption or --id) can be clicked, else 0", PrintEnabled},
        {"check", "check 1|0               tick or clear a check box by clicking it (--caption or --id)", SetCheck},
        {"set-text", "set-text TEXT           set the text of an edit (--id or --nth)", SetText},
        {"clipboard", "clipboard               the clipboard's text", PrintClipboard},
    };
    return commands;
}

}  // namespace driver
