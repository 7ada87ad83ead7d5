// The menu bar of a top-level window: the whole tree, and choosing an item as a user would.
#include "base/win32/wide.h"
#include "driver.h"
#include "remote_menu.h"
#include "window_finder.h"

namespace driver {
namespace {

struct MenuItem {
    std::vector<std::string> path;  // captions from the menu bar down
    UINT id = 0;
    bool separator = false;
    bool popup = false;
    bool enabled = true;
    bool checked = false;
};

std::vector<MenuItem> MenuTree(HWND window) {
    std::vector<MenuItem> items;
    std::vector<std::string> path;
    for (const probe::MenuItem& read : ReadRemoteMenu(window)) {
        path.resize(read.depth);
        MenuItem item;
        item.path = path;
        item.path.push_back(base::Narrow(read.caption));
        item.id = read.id;
        item.separator = (read.type & MFT_SEPARATOR) != 0;
        item.popup = read.hasSubmenu != 0;
        item.enabled = !(read.state & MFS_DISABLED);
        item.checked = (read.state & MFS_CHECKED) != 0;
        if (item.popup) path.push_back(item.path.back());
        items.push_back(std::move(item));
    }
    return items;
}

std::string Joined(const std::vector<std::string>& path) {
    std::string text;
    for (const auto& caption : path) text += (text.empty() ? "" : " > ") + caption;
    return text;
}

void PrintMenu(const Options& options) {
    for (const MenuItem& item : MenuTree(WaitForTopLevelWindow(options))) {
        std::string state = "separator";
        if (!item.separator) {
            state = item.popup ? "popup" : "item";
            state += item.enabled ? ",enabled" : ",disabled";
            if (item.checked) state += ",checked";
        }
        PrintLine({item.popup || item.separator ? "-" : std::to_string(item.id), state, Joined(item.path)});
    }
}

bool PathMatches(const MenuItem& item, const std::vector<std::string>& wanted) {
    if (item.path.size() != wanted.size()) return false;
    for (std::size_t i = 0; i < wanted.size(); ++i)
        if (!CaptionMatches(item.path[i], wanted[i])) return false;
    return true;
}

void InvokeMenuItem(const Options& options) {
    if (options.arguments.empty() == !options.itemId)
        throw std::invalid_argument("menu-invoke needs either the captions from the menu bar down or --item-id");
    HWND window = WaitForTopLevelWindow(options);
    for (const MenuItem& item : MenuTree(window)) {
        if (item.separator || item.popup) continue;
        if (options.itemId ? item.id != static_cast<UINT>(*options.itemId) : !PathMatches(item, options.arguments))
            continue;
        if (!item.enabled) throw Failure("the menu item \"" + Joined(item.path) + "\" is disabled");
        // What the system sends when the user chooses the item.
        if (!PostMessageW(window, WM_COMMAND, MAKEWPARAM(item.id, 0), 0)) throw Failure("cannot post WM_COMMAND");
        return;
    }
    throw Failure("no menu item " + (options.itemId ? "with id " + std::to_string(*options.itemId)
                                                    : "\"" + Joined(options.arguments) + "\""));
}

// A pop-up menu is a top-level window of the class #32768 while it is open; its menu loop reads
// the characters posted to its thread, so an item's access key chooses it as typed.
void ChoosePopupItem(const Options& options) {
    if (options.arguments.size() != 1 || options.arguments[0].size() != 1)
        throw std::invalid_argument("popup-choose needs the item's access key (one letter)");
    Options target = options;
    target.windowClass = "#32768";
    target.mustBeVisible = true;
    HWND popup = WaitForTopLevelWindow(target);
    if (!PostMessageW(popup, WM_CHAR, static_cast<WPARAM>(options.arguments[0][0]), 0)) throw Failure("cannot post the key");
    if (!WaitUntil(options.timeout, [&] { return !IsWindowVisible(popup); }))
        throw Failure("the pop-up menu stayed open after \"" + options.arguments[0] + "\"");
}

}  // namespace

const std::vector<Command>& MenuCommands() {
    static const std::vector<Command> commands = {
        {"menu", "menu                    menu bar tree: id (- for popups), state, captions joined by \" > \"",
         PrintMenu},
        {"menu-invoke", "menu-invoke CAPTION...  choose the item at that path (or --item-id N)", InvokeMenuItem},
        {"popup-choose", "popup-choose KEY        choose the item of the open pop-up menu (of --process) by its access key",
         ChoosePopupItem},
    };
    return commands;
}

}  // namespace driver
