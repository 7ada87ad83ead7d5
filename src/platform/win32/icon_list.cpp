#include "platform/win32/icon_list.h"

#include <shellapi.h>

#include <stdexcept>

#include "base/resource_ids.h"
#include "base/text_encoding.h"
#include "base/win32/window.h"

namespace platform::win32 {
namespace {

constexpr int kIconSize = 16;
// SHGFI_SYSICONINDEX | SHGFI_EXETYPE | SHGFI_TYPENAME | SHGFI_DISPLAYNAME | SHGFI_SHELLICONSIZE | SHGFI_SMALLICON
constexpr UINT kFileInfoFlags = 0x6605;
// The picture's empty colour, left out of the image: icons never use it.
constexpr COLORREF kEmptyColour = RGB(255, 0, 255);

void Check(bool ok, const char* what) {
    if (!ok) throw std::runtime_error(what);
}

}  // namespace

IconList::IconList(HWND listView)
    : m_listView(listView),
      m_images(ImageList_Create(kIconSize, kIconSize, ILC_COLOR32 | ILC_MASK, 0, 16)),
      m_pictureDc(CreateCompatibleDC(nullptr)),
      m_empty(CreateSolidBrush(kEmptyColour)) {
    const base::UniqueIcon question(static_cast<HICON>(LoadImageW(
        base::ModuleInstance(), MAKEINTRESOURCEW(IDI_PIC_QUESTION), IMAGE_ICON, kIconSize, kIconSize, LR_DEFAULTCOLOR)));
    ICONINFO parts{};
    Check(question && GetIconInfo(question.Get(), &parts), "PicQuestion");
    m_questionColour.Reset(parts.hbmColor);
    m_questionMask.Reset(parts.hbmMask);
    Check(m_images && m_questionColour && m_pictureDc && m_empty, "icon list");
    {
        base::WindowDc screen(nullptr);
        m_picture.Reset(CreateCompatibleBitmap(screen.Get(), kIconSize, kIconSize));
    }
    Check(static_cast<bool>(m_picture), "icon picture");
    // The list view shares the list (LVS_SHAREIMAGELISTS) and leaves its destruction to us.
    SendMessageW(m_listView, LVM_SETIMAGELIST, LVSIL_SMALL, reinterpret_cast<LPARAM>(m_images.Get()));
}

IconList::~IconList() {
    if (IsWindow(m_listView)) SendMessageW(m_listView, LVM_SETIMAGELIST, LVSIL_SMALL, 0);
}

void IconList::Clear() { Check(ImageList_RemoveAll(m_images.Get()) != FALSE, "ImageList_RemoveAll"); }

bool IconList::AddFileIcon(const std::string& path) {
    SHFILEINFOA info{};
    const std::string ansi = base::Utf8ToAnsi(path);
    const auto systemList = reinterpret_cast<HIMAGELIST>(
        SHGetFileInfoA(ansi.c_str(), 0, &info, sizeof info, kFileInfoFlags));
    if (!systemList) return false;
    {
        base::SelectedObject picture(m_pictureDc.Get(), m_picture.Get());
        const RECT all{0, 0, kIconSize, kIconSize};
        FillRect(m_pictureDc.Get(), &all, m_empty.Get());
        ImageList_Draw(systemList, info.iIcon, m_pictureDc.Get(), 0, 0, ILD_TRANSPARENT);
    }
    Check(ImageList_AddMasked(m_images.Get(), m_picture.Get(), kEmptyColour) >= 0, "ImageList_AddMasked");
    return true;
}

void IconList::AddStandByIcon() {
    Check(ImageList_Add(m_images.Get(), m_questionColour.Get(), m_questionMask.Get()) >= 0, "ImageList_Add");
}

}  // namespace platform::win32
