#include "platform/win32/startup_folder.h"

#include <windows.h>
#include <shlobj.h>

#include "base/text_encoding.h"
#include "base/win32/com_object.h"
#include "base/win32/wide.h"

namespace platform::win32 {
namespace {

void FreeIdList(PIDLIST_ABSOLUTE list) { CoTaskMemFree(list); }
using UniqueIdList = base::UniqueResource<base::SimpleTraits<PIDLIST_ABSOLUTE, FreeIdList>>;

}  // namespace

std::optional<std::string> StartupFolder::Path() {
    PIDLIST_ABSOLUTE found = nullptr;
    if (FAILED(SHGetSpecialFolderLocation(nullptr, CSIDL_STARTUP, &found))) return std::nullopt;
    const UniqueIdList list(found);
    char path[MAX_PATH] = {};
    if (!SHGetPathFromIDListA(list.Get(), path)) return std::nullopt;
    return base::AnsiToUtf8(path);
}

bool StartupFolder::SaveShortcut(const std::string& file, const std::string& target) {
    const base::ComApartment apartment;
    if (!apartment.Usable()) return false;
    IShellLinkW* created = nullptr;
    if (FAILED(CoCreateInstance(CLSID_ShellLink, nullptr, CLSCTX_INPROC_SERVER, IID_IShellLinkW,
                                reinterpret_cast<void**>(&created)))) {
        return false;
    }
    const base::ComPtr<IShellLinkW> link(created);
    if (FAILED(link.Get()->SetPath(base::Widen(target).c_str()))) return false;
    IPersistFile* persist = nullptr;
    if (FAILED(link.Get()->QueryInterface(IID_IPersistFile, reinterpret_cast<void**>(&persist)))) return false;
    const base::ComPtr<IPersistFile> saver(persist);
    return SUCCEEDED(saver.Get()->Save(base::Widen(file).c_str(), TRUE));
}

}  // namespace platform::win32
