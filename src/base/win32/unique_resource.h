#pragma once
// One owner type for every kind of OS handle: it closes what it holds exactly once.
#include <windows.h>
#include <commctrl.h>

#include <utility>

namespace base {

template <typename Traits>
class UniqueResource {
public:
    using Type = typename Traits::Type;

    UniqueResource() noexcept = default;
    explicit UniqueResource(Type value) noexcept : m_value(value) {}
    ~UniqueResource() { Reset(); }
    UniqueResource(UniqueResource&& other) noexcept : m_value(other.Release()) {}
    UniqueResource& operator=(UniqueResource&& other) noexcept {
        if (this != &other) Reset(other.Release());
        return *this;
    }
    UniqueResource(const UniqueResource&) = delete;
    UniqueResource& operator=(const UniqueResource&) = delete;

    Type Get() const noexcept { return m_value; }
    explicit operator bool() const noexcept { return m_value != Traits::Invalid(); }
    Type Release() noexcept { return std::exchange(m_value, Traits::Invalid()); }
    void Reset(Type value = Traits::Invalid()) noexcept {
        const Type old = std::exchange(m_value, value);
        if (old != Traits::Invalid()) Traits::Close(old);
    }

private:
    Type m_value = Traits::Invalid();
};

// Handles whose invalid value is null.
template <typename T, auto CloseFunction>
struct SimpleTraits {
    using Type = T;
    static Type Invalid() noexcept { return Type{}; }
    static void Close(Type value) noexcept { CloseFunction(value); }
};

struct FileHandleTraits {
    using Type = HANDLE;
    static Type Invalid() noexcept { return INVALID_HANDLE_VALUE; }
    static void Close(Type value) noexcept { CloseHandle(value); }
};

using UniqueHandle = UniqueResource<SimpleTraits<HANDLE, CloseHandle>>;
using UniqueFileHandle = UniqueResource<FileHandleTraits>;
using UniqueRegKey = UniqueResource<SimpleTraits<HKEY, RegCloseKey>>;
using UniqueHwnd = UniqueResource<SimpleTraits<HWND, DestroyWindow>>;
using UniqueIcon = UniqueResource<SimpleTraits<HICON, DestroyIcon>>;
using UniqueMenu = UniqueResource<SimpleTraits<HMENU, DestroyMenu>>;
using UniqueDc = UniqueResource<SimpleTraits<HDC, DeleteDC>>;
using UniqueImageList = UniqueResource<SimpleTraits<HIMAGELIST, ImageList_Destroy>>;
using UniqueModule = UniqueResource<SimpleTraits<HMODULE, FreeLibrary>>;
using UniqueRgn = UniqueResource<SimpleTraits<HRGN, DeleteObject>>;
using UniqueFont = UniqueResource<SimpleTraits<HFONT, DeleteObject>>;
using UniqueBrush = UniqueResource<SimpleTraits<HBRUSH, DeleteObject>>;
using UniquePen = UniqueResource<SimpleTraits<HPEN, DeleteObject>>;
using UniqueBitmap = UniqueResource<SimpleTraits<HBITMAP, DeleteObject>>;

// A device context obtained with GetDC, released with ReleaseDC.
class WindowDc {
public:
    explicit WindowDc(HWND window) noexcept : m_window(window), m_dc(GetDC(window)) {}
    ~WindowDc() {
        if (m_dc) ReleaseDC(m_window, m_dc);
    }
    WindowDc(const WindowDc&) = delete;
    WindowDc& operator=(const WindowDc&) = delete;
    HDC Get() const noexcept { return m_dc; }

private:
    HWND m_window;
    HDC m_dc;
};

// Selects a GDI object into a device context and puts the old one back.
class SelectedObject {
public:
    SelectedObject(HDC dc, HGDIOBJ object) noexcept : m_dc(dc), m_old(SelectObject(dc, object)) {}
    ~SelectedObject() {
        if (m_old && m_old != HGDI_ERROR) SelectObject(m_dc, m_old);
    }
    SelectedObject(const SelectedObject&) = delete;
    SelectedObject& operator=(const SelectedObject&) = delete;

private:
    HDC m_dc;
    HGDIOBJ m_old;
};

}  // namespace base
