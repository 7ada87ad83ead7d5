#pragma once
// Owners for COM: the apartment of the calling thread, interface pointers and BSTRs.
#include <objbase.h>
#include <oleauto.h>

#include "base/win32/unique_resource.h"

namespace base {

// Joins the thread to a single-threaded apartment for one scope. A thread already in an
// apartment of the other kind can still make the calls; only a successful join is undone.
class ComApartment {
public:
    ComApartment() : m_result(CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED)) {}
    ~ComApartment() {
        if (SUCCEEDED(m_result)) CoUninitialize();
    }
    ComApartment(const ComApartment&) = delete;
    ComApartment& operator=(const ComApartment&) = delete;

    bool Usable() const { return SUCCEEDED(m_result) || m_result == RPC_E_CHANGED_MODE; }

private:
    HRESULT m_result;
};

template <typename Interface>
struct ComTraits {
    using Type = Interface*;
    static Type Invalid() noexcept { return nullptr; }
    static void Close(Type value) noexcept { value->Release(); }
};
template <typename Interface>
using ComPtr = UniqueResource<ComTraits<Interface>>;

using UniqueBstr = UniqueResource<SimpleTraits<BSTR, SysFreeString>>;

}  // namespace base
