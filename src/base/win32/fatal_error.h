#pragma once
// The top-level handler: an error that nothing trapped shows the runtime's error box and
// ends the program.
namespace base {

// Call from inside a catch block.
[[noreturn]] void ReportUntrappedError() noexcept;

// A failure of the OS that leaves the program unable to go on (no window class, no window).
[[noreturn]] void FatalSystemError(const wchar_t* call) noexcept;

}  // namespace base
