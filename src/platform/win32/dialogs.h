#pragma once
#include <windows.h>

#include "platform/dialogs.h"

namespace platform::win32 {

class Dialogs : public IDialogs {
public:
    int ShowMessage(const std::string& text, const std::string& title, unsigned style) override;
    std::optional<std::string> SaveFile(const SaveFileRequest& request) override;
    std::optional<base::Colour> ChooseColour() override;
    void SetClipboardText(const std::string& text) override;

private:
    // The boxes belong to the active window of the program, like the runtime's own boxes.
    static HWND Owner();
    COLORREF m_customColours[16]{};
};

}  // namespace platform::win32
