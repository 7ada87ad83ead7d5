#pragma once
// Message boxes, the common dialogs and the clipboard, behind one seam so tests can answer them.
#include <optional>
#include <string>

#include "base/colour.h"

namespace platform {

// The runtime's message-box styles and answers.
namespace msgbox {
constexpr unsigned kOkOnly = 0;
constexpr unsigned kYesNo = 4;
constexpr unsigned kCritical = 16;
constexpr unsigned kQuestion = 32;
constexpr unsigned kExclamation = 48;
constexpr unsigned kInformation = 64;
constexpr unsigned kDefaultButton2 = 256;

constexpr int kOk = 1;
constexpr int kCancel = 2;
constexpr int kYes = 6;
constexpr int kNo = 7;
}  // namespace msgbox

struct SaveFileRequest {
    std::string filter;         // "description|pattern|" pairs
    std::string initialFolder;  // where the dialog opens
    std::string fileName;       // proposed full path
};

class IDialogs {
public:
    virtual ~IDialogs() = default;
    // Returns one of the msgbox answers.
    virtual int ShowMessage(const std::string& text, const std::string& title, unsigned style) = 0;
    // The chosen path, or nothing when the user cancelled.
    virtual std::optional<std::string> SaveFile(const SaveFileRequest& request) = 0;
    // The colour dialog with its custom-colour part open, starting from black.
    virtual std::optional<base::Colour> ChooseColour() = 0;
    // Replaces the clipboard's text; its other contents stay.
    virtual void SetClipboardText(const std::string& text) = 0;
};

}  // namespace platform
