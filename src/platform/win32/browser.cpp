#include "platform/win32/browser.h"

#include <windows.h>

#include "base/win32/com_object.h"
#include "base/win32/wide.h"

namespace platform::win32 {
namespace {

// Calls a method or sets a property of an automation object by name.
bool Invoke(IDispatch& object, const wchar_t* name, WORD kind, VARIANT& argument) {
    DISPID member = 0;
    auto* names = const_cast<LPOLESTR>(name);
    if (FAILED(object.GetIDsOfNames(IID_NULL, &names, 1, LOCALE_USER_DEFAULT, &member))) return false;
    DISPID propertyPut = DISPID_PROPERTYPUT;
    DISPPARAMS parameters{};
    parameters.rgvarg = &argument;
    parameters.cArgs = 1;
    if (kind == DISPATCH_PROPERTYPUT) {
        parameters.rgdispidNamedArgs = &propertyPut;
        parameters.cNamedArgs = 1;
    }
    return SUCCEEDED(object.Invoke(member, IID_NULL, LOCALE_USER_DEFAULT, kind, &parameters, nullptr, nullptr,
                                   nullptr));
}

}  // namespace

bool AutomationBrowser::Navigate(const std::string& address) {
    const base::ComApartment apartment;
    if (!apartment.Usable()) return false;
    CLSID type{};
    if (FAILED(CLSIDFromProgID(L"InternetExplorer.application", &type))) return false;
    IDispatch* created = nullptr;
    if (FAILED(CoCreateInstance(type, nullptr, CLSCTX_SERVER, IID_IDispatch, reinterpret_cast<void**>(&created)))) {
        return false;
    }
    const base::ComPtr<IDispatch> browser(created);
    // The browser window stays open after the object is released.
    const base::UniqueBstr url(SysAllocString(base::Widen(address).c_str()));
    if (!url) return false;
    VARIANT argument{};
    argument.vt = VT_BSTR;
    argument.bstrVal = url.Get();
    if (!Invoke(*browser.Get(), L"Navigate", DISPATCH_METHOD, argument)) return false;
    argument.vt = VT_BOOL;
    argument.boolVal = VARIANT_TRUE;
    return Invoke(*browser.Get(), L"Visible", DISPATCH_PROPERTYPUT, argument);
}

}  // namespace platform::win32
