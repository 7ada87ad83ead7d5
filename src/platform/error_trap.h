#pragma once
// A routine's own error trap: when its body raises an error, the routine shows its own text in
// an OK-only box with the program's title and returns as if it had finished. A routine without
// a text of its own (null) returns quietly.
#include <exception>

#include "base/product.h"
#include "platform/dialogs.h"

namespace platform {

// Runs body; true when it finished without an error.
template <typename Body>
bool TrapErrors(IDialogs& dialogs, const char* text, Body&& body) {
    try {
        body();
        return true;
    } catch (const std::exception&) {
        if (text) dialogs.ShowMessage(text, base::kProductName, msgbox::kOkOnly);
        return false;
    }
}

}  // namespace platform
