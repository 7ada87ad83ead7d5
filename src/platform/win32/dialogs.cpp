#include "platform/win32/dialogs.h"

#include <commdlg.h>

#include <cstring>
#include <vector>

#include "base/text_encoding.h"
#include "base/win32/wide.h"

namespace platform::win32 {
namespace {

// "description|pattern|" pairs become the null-separated list the dialog takes.
std::wstring FilterList(const std::string& filter) {
    std::wstring list = base::Widen(filter);
    for (auto& c : list) {
        if (c == L'|') c = L'\0';
    }
    list.push_back(L'\0');
    return list;
}

// A copy of the text in movable global memory, as the clipboard takes it over.
template <typename Char>
HGLOBAL GlobalText(const std::basic_string<Char>& text) {
    const std::size_t bytes = (text.size() + 1) * sizeof(Char);
    HGLOBAL memory = GlobalAlloc(GMEM_MOVEABLE, bytes);
    if (!memory) return nullptr;
    if (void* target = GlobalLock(memory)) {
        std::memcpy(target, text.c_str(), bytes);
        GlobalUnlock(memory);
        return memory;
    }
    GlobalFree(memory);
    return nullptr;
}

void SetClipboardFormat(UINT format, HGLOBAL memory) {
    // The clipboard owns the memory once it took it.
    if (memory && !SetClipboardData(format, memory)) GlobalFree(memory);
}

}  // namespace

HWND Dialogs::Owner() { return GetActiveWindow(); }

int Dialogs::ShowMessage(const std::string& text, const std::string& title, unsigned style) {
    return MessageBoxW(Owner(), base::Widen(text).c_str(), base::Widen(title).c_str(), style);
}

std::optional<std::string> Dialogs::SaveFile(const SaveFileRequest& request) {
    const std::wstring filter = FilterList(request.filter);
    const std::wstring folder = base::Widen(request.initialFolder);
    std::vector<wchar_t> file(32768, L'\0');
    const std::wstring proposed = base::Widen(request.fileName);
    proposed.copy(file.data(), std::min(proposed.size(), file.size() - 1));

    OPENFILENAMEW ofn{};
    ofn.lStructSize = sizeof ofn;
    ofn.hwndOwner = Owner();
    ofn.lpstrFilter = filter.c_str();
    ofn.lpstrFile = file.data();
    ofn.nMaxFile = static_cast<DWORD>(file.size());
    ofn.lpstrInitialDir = folder.empty() ? nullptr : folder.c_str();
    ofn.Flags = OFN_HIDEREADONLY | OFN_PATHMUSTEXIST | OFN_NOCHANGEDIR;
    if (!GetSaveFileNameW(&ofn)) return std::nullopt;
    return base::Narrow(file.data());
}

std::optional<base::Colour> Dialogs::ChooseColour() {
    CHOOSECOLORW cc{};
    cc.lStructSize = sizeof cc;
    cc.hwndOwner = Owner();
    cc.rgbResult = 0;  // the swatch's colour is not preset: the dialog starts from black
    cc.lpCustColors = m_customColours;
    cc.Flags = CC_FULLOPEN;
    if (!ChooseColorW(&cc)) return std::nullopt;
    return static_cast<base::Colour>(cc.rgbResult);
}

void Dialogs::SetClipboardText(const std::string& text) {
    // Not emptied first: only the text formats are replaced.
    if (!OpenClipboard(Owner())) return;
    SetClipboardFormat(CF_UNICODETEXT, GlobalText(base::Widen(text)));
    SetClipboardFormat(CF_TEXT, GlobalText(base::Utf8ToAnsi(text)));
    CloseClipboard();
}

}  // namespace platform::win32
