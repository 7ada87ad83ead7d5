#pragma once
// The numeric and array rules of the program are real behaviour: a routine that breaks one
// raises the runtime's error, its own trap shows a message, and an untrapped one ends the
// program through the top-level handler with the runtime's error box.
#include <stdexcept>
#include <string>

namespace base {

enum class RuntimeErrorNumber : int {
    Overflow = 6,
    SubscriptOutOfRange = 9,
    DivisionByZero = 11,
    TypeMismatch = 13,
    PathFileAccess = 75,
};

class RuntimeError : public std::runtime_error {
public:
    explicit RuntimeError(RuntimeErrorNumber number);
    RuntimeErrorNumber Number() const noexcept { return m_number; }

private:
    RuntimeErrorNumber m_number;
};

// The runtime's own description of an error, as its error box shows it.
std::string RuntimeErrorDescription(RuntimeErrorNumber number);

// The whole text of the runtime's error box: "実行時エラー 'N':" CR LF CR LF description.
std::string RuntimeErrorBoxText(RuntimeErrorNumber number);

}  // namespace base
