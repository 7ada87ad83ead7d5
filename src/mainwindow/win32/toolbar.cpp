#include "mainwindow/win32/toolbar.h"

#include "base/win32/controls.h"
#include "base/win32/wide.h"
#include "mainwindow/toolbar_buttons.h"

namespace mainwindow {
namespace {

// A 32-bit picture and its mask (set where the button shows through) from the pixel art, each
// pixel drawn as a square of scale x scale.
void AddPicture(HIMAGELIST images, const ToolbarImage& pixels, int scale) {
    const int size = kToolbarImageSize * scale;
    BITMAPINFO info{};
    info.bmiHeader.biSize = sizeof info.bmiHeader;
    info.bmiHeader.biWidth = size;
    info.bmiHeader.biHeight = -size;  // rows from the top
    info.bmiHeader.biPlanes = 1;
    info.bmiHeader.biBitCount = 32;
    info.bmiHeader.biCompression = BI_RGB;
    void* bits = nullptr;
    base::UniqueBitmap colour(CreateDIBSection(nullptr, &info, DIB_RGB_COLORS, &bits, nullptr, 0));
    if (!colour || !bits) return;
    auto* target = static_cast<std::uint32_t*>(bits);
    // One bit per pixel, the most significant bit of a byte leftmost, rows padded to 16 bits.
    const int maskStride = (size + 15) / 16 * 2;
    std::vector<std::uint8_t> maskBits(static_cast<std::size_t>(maskStride * size), 0);
    for (int y = 0; y < size; ++y) {
        for (int x = 0; x < size; ++x) {
            const std::uint32_t pixel = pixels[static_cast<std::size_t>(y / scale * kToolbarImageSize + x / scale)];
            const bool transparent = (pixel >> 24) == 0;
            target[y * size + x] = transparent ? 0 : pixel;
            if (transparent) {
                const auto at = static_cast<std::size_t>(y * maskStride + x / 8);
                maskBits[at] |= static_cast<std::uint8_t>(0x80 >> (x % 8));
            }
        }
    }
    base::UniqueBitmap mask(CreateBitmap(size, size, 1, 1, maskBits.data()));
    if (mask) ImageList_Add(images, colour.Get(), mask.Get());
}

}  // namespace

Toolbar::Toolbar(HWND parent, int id, int pictureScale)
    : m_images(ImageList_Create(kToolbarImageSize * pictureScale, kToolbarImageSize * pictureScale,
                                ILC_COLOR32 | ILC_MASK, static_cast<int>(ToolbarButtons().size()), 0)),
      m_window(base::CreateControl(TOOLBARCLASSNAMEW, "",
                                   WS_VISIBLE | WS_CLIPSIBLINGS | TBSTYLE_FLAT | TBSTYLE_TOOLTIPS | CCS_NODIVIDER |
                                       CCS_NORESIZE | CCS_NOPARENTALIGN,
                                   0, 0, 0, 0, parent, id)) {
    SendMessageW(Handle(), TB_BUTTONSTRUCTSIZE, sizeof(TBBUTTON), 0);
    if (m_images) {
        for (std::size_t i = 0; i < ToolbarButtons().size(); ++i) {
            AddPicture(m_images.Get(), ToolbarButtonImage(i), pictureScale);
        }
        SendMessageW(Handle(), TB_SETIMAGELIST, 0, reinterpret_cast<LPARAM>(m_images.Get()));
    }
    // The tool tips are the buttons' texts, which are not drawn (no text rows): the system
    // shows them as tips, and they can be read back from the buttons.
    for (const ToolbarButton& button : ToolbarButtons()) m_toolTips.push_back(base::Widen(button.toolTip));
    std::vector<TBBUTTON> buttons;
    for (std::size_t i = 0; i < ToolbarButtons().size(); ++i) {
        TBBUTTON b{};
        b.iBitmap = static_cast<int>(i);
        b.idCommand = kFirstToolbarCommand + static_cast<int>(i);
        b.fsState = TBSTATE_ENABLED;
        b.fsStyle = BTNS_BUTTON;
        b.iString = reinterpret_cast<INT_PTR>(m_toolTips[i].c_str());
        buttons.push_back(b);
        if (ToolbarButtons()[i].groupEnd) {
            TBBUTTON separator{};
            separator.iBitmap = 6;
            separator.fsStyle = BTNS_SEP;
            buttons.push_back(separator);
        }
    }
    SendMessageW(Handle(), TB_ADDBUTTONSW, buttons.size(), reinterpret_cast<LPARAM>(buttons.data()));
    SendMessageW(Handle(), TB_SETMAXTEXTROWS, 0, 0);
    SendMessageW(Handle(), TB_AUTOSIZE, 0, 0);
}

int Toolbar::Height() const {
    const auto size = static_cast<DWORD>(SendMessageW(Handle(), TB_GETBUTTONSIZE, 0, 0));
    return HIWORD(size) + 4;
}

void Toolbar::SetButtonEnabled(std::size_t position, bool enabled) {
    SendMessageW(Handle(), TB_ENABLEBUTTON, kFirstToolbarCommand + position, MAKELPARAM(enabled ? TRUE : FALSE, 0));
}

std::optional<std::size_t> Toolbar::ButtonOfCommand(int command) {
    const int position = command - kFirstToolbarCommand;
    if (position < 0 || position >= static_cast<int>(ToolbarButtons().size())) return std::nullopt;
    return static_cast<std::size_t>(position);
}

bool Toolbar::OnNotify(NMHDR& header) {
    if (header.hwndFrom != Handle() || header.code != TBN_GETINFOTIPW) return false;
    auto& tip = reinterpret_cast<NMTBGETINFOTIPW&>(header);
    if (const auto position = ButtonOfCommand(tip.iItem); position && tip.pszText && tip.cchTextMax > 0) {
        lstrcpynW(tip.pszText, m_toolTips[*position].c_str(), tip.cchTextMax);
    }
    return true;
}

}  // namespace mainwindow
