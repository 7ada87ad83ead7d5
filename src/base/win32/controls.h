#pragma once
// Small helpers for child controls: the program's UI font, pixel scaling for the screen's
// DPI, and UTF-8 texts.
#include <windows.h>

#include <string>

namespace base {

// The Japanese UI font at 9 points for the screen's DPI, shared by every window.
HFONT UiFont();

// Logical pixels (designed at 96 DPI) to screen pixels.
int ScaleForDpi(int pixels);

// Creates a child control with the UI font; the control id doubles as its menu handle.
HWND CreateControl(const wchar_t* className, const std::string& text, DWORD style, int x, int y, int width,
                   int height, HWND parent, int id, DWORD exStyle = 0);

std::string WindowText(HWND window);
void SetWindowTextUtf8(HWND window, const std::string& text);

}  // namespace base
