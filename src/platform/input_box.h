#pragma once
// A small modal question: a prompt, one line of text to type, OK and cancel.
#include <string>

namespace platform {

class IInputBox {
public:
    virtual ~IInputBox() = default;
    // The text typed; empty when cancelled.
    virtual std::string Ask(const std::string& prompt, const std::string& title) = 0;
};

}  // namespace platform
