#include "base/win32/fatal_error.h"

#include <windows.h>

#include <exception>
#include <string>

#include "base/product.h"
#include "base/runtime_error.h"
#include "base/win32/wide.h"

namespace base {
namespace {

[[noreturn]] void ShowAndExit(const std::wstring& text) noexcept {
    MessageBoxW(nullptr, text.c_str(), Widen(kProductName).c_str(), MB_OK | MB_ICONERROR);
    ExitProcess(1);
}

}  // namespace

void ReportUntrappedError() noexcept {
    try {
        throw;
    } catch (const RuntimeError& error) {
        ShowAndExit(Widen(RuntimeErrorBoxText(error.Number())));
    } catch (const std::exception& error) {
        ShowAndExit(Widen(std::string("予期しないエラーが発生しました。\r\n\r\n") + error.what()));
    } catch (...) {
        ShowAndExit(L"予期しないエラーが発生しました。");
    }
}

void FatalSystemError(const wchar_t* call) noexcept {
    ShowAndExit(std::wstring(call) + L" : " + std::to_wstring(GetLastError()));
}

}  // namespace base
