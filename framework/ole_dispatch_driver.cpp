#include "framework/ole_dispatch_driver.h"

#include "foundation/base/qor_string.h"

#include <oleauto.h>

#include <cstdarg>
#include <cstring>
#include <vector>

COleDispatchDriver::COleDispatchDriver(LPDISPATCH dispatch, BOOL autoRelease)
    : m_lpDispatch(dispatch), m_bAutoRelease(autoRelease) {}

COleDispatchDriver::COleDispatchDriver(const COleDispatchDriver& other)
    : m_lpDispatch(other.m_lpDispatch), m_bAutoRelease(TRUE) {
    if (m_lpDispatch)
        m_lpDispatch->AddRef();
}

const COleDispatchDriver& COleDispatchDriver::operator=(const COleDispatchDriver& other) {
    if (this != &other) {
        if (other.m_lpDispatch)
            other.m_lpDispatch->AddRef();
        ReleaseDispatch();
        m_lpDispatch = other.m_lpDispatch;
        m_bAutoRelease = TRUE;
    }
    return *this;
}

COleDispatchDriver::~COleDispatchDriver() {
    ReleaseDispatch();
}

BOOL COleDispatchDriver::CreateDispatch(LPCWSTR progID) {
    if (!progID)
        return FALSE;
    CLSID clsid;
    m_lastResult = CLSIDFromProgID(progID, &clsid);
    if (FAILED(m_lastResult))
        return FALSE;
    IDispatch* made = nullptr;
    m_lastResult = CoCreateInstance(clsid, nullptr, CLSCTX_ALL, IID_IDispatch,
                                    reinterpret_cast<void**>(&made));
    if (FAILED(m_lastResult) || !made)
        return FALSE;
    AttachDispatch(made, TRUE);
    return TRUE;
}

void COleDispatchDriver::AttachDispatch(LPDISPATCH dispatch, BOOL autoRelease) {
    ReleaseDispatch();
    m_lpDispatch = dispatch;
    m_bAutoRelease = autoRelease;
}

LPDISPATCH COleDispatchDriver::DetachDispatch() {
    LPDISPATCH d = m_lpDispatch;
    m_lpDispatch = nullptr;
    return d;
}

void COleDispatchDriver::ReleaseDispatch() {
    if (m_lpDispatch && m_bAutoRelease)
        m_lpDispatch->Release();
    m_lpDispatch = nullptr;
}

namespace {

// One argument from the variadic list into a VARIANT; false for an unknown type.
bool argFrom(VARIANT& v, VARTYPE type, va_list& args) {
    VariantInit(&v);
    v.vt = type;
    switch (type) {
    case VT_I2:
        v.iVal = static_cast<SHORT>(va_arg(args, int));
        return true;
    case VT_I4:
        v.lVal = va_arg(args, long);
        return true;
    case VT_R8:
        v.dblVal = va_arg(args, double);
        return true;
    case VT_BOOL:
        v.boolVal = va_arg(args, BOOL) ? VARIANT_TRUE : VARIANT_FALSE;
        return true;
    case VT_BSTR: {
        const wchar_t* s = va_arg(args, const wchar_t*);
        v.bstrVal = SysAllocString(s ? s : L"");
        return true;
    }
    case VT_DISPATCH:
        v.pdispVal = va_arg(args, IDispatch*);
        if (v.pdispVal)
            v.pdispVal->AddRef();
        return true;
    default:
        v.vt = VT_EMPTY;
        return false;
    }
}

// The result into the caller's variable; false when it cannot take that type.
bool resultTo(VARIANT& v, VARTYPE type, void* out) {
    if (type == VT_EMPTY || !out)
        return true;
    if (FAILED(VariantChangeType(&v, &v, 0, type)))
        return false;
    switch (type) {
    case VT_I2:
        *static_cast<short*>(out) = v.iVal;
        return true;
    case VT_I4:
        *static_cast<long*>(out) = v.lVal;
        return true;
    case VT_R8:
        *static_cast<double*>(out) = v.dblVal;
        return true;
    case VT_BOOL:
        *static_cast<BOOL*>(out) = v.boolVal != VARIANT_FALSE;
        return true;
    case VT_BSTR:
        *static_cast<CQorString*>(out) = CQorString(v.bstrVal ? v.bstrVal : L"");
        return true;
    case VT_DISPATCH:
        *static_cast<IDispatch**>(out) = v.pdispVal;
        if (v.pdispVal)
            v.pdispVal->AddRef();
        return true;
    default:
        return false;
    }
}

} // namespace

void COleDispatchDriver::invokeV(DISPID dispid, WORD flags, VARTYPE vtRet, void* pvRet,
                                 const BYTE* paramInfo, va_list args) {
    if (!m_lpDispatch) {
        m_lastResult = E_POINTER;
        return;
    }
    size_t count = paramInfo ? std::strlen(reinterpret_cast<const char*>(paramInfo)) : 0;
    // IDispatch takes its arguments last first.
    std::vector<VARIANT> argv(count);
    for (VARIANT& v : argv)
        VariantInit(&v);
    // After an unknown type the rest of the list cannot be read safely.
    bool known = true;
    for (size_t i = 0; i < count && known; ++i)
        known = argFrom(argv[count - 1 - i], paramInfo[i], args);
    if (known) {
        DISPPARAMS params = {count ? argv.data() : nullptr, nullptr, static_cast<UINT>(count), 0};
        DISPID putId = DISPID_PROPERTYPUT;
        if (flags & (DISPATCH_PROPERTYPUT | DISPATCH_PROPERTYPUTREF)) {
            params.rgdispidNamedArgs = &putId;
            params.cNamedArgs = 1;
        }
        VARIANT result;
        VariantInit(&result);
        m_lastResult =
            m_lpDispatch->Invoke(dispid, IID_NULL, LOCALE_USER_DEFAULT, flags, &params,
                                 vtRet == VT_EMPTY ? nullptr : &result, nullptr, nullptr);
        if (SUCCEEDED(m_lastResult) && !resultTo(result, vtRet, pvRet))
            m_lastResult = DISP_E_TYPEMISMATCH;
        VariantClear(&result);
    } else {
        m_lastResult = DISP_E_BADVARTYPE;
    }
    for (VARIANT& v : argv)
        VariantClear(&v);
}

void COleDispatchDriver::InvokeHelper(DISPID dispid, WORD flags, VARTYPE vtRet, void* pvRet,
                                      const BYTE* paramInfo, ...) {
    va_list args;
    va_start(args, paramInfo);
    invokeV(dispid, flags, vtRet, pvRet, paramInfo, args);
    va_end(args);
}

void COleDispatchDriver::GetProperty(DISPID dispid, VARTYPE vtProp, void* pvProp) {
    InvokeHelper(dispid, DISPATCH_PROPERTYGET, vtProp, pvProp, nullptr);
}

void COleDispatchDriver::SetProperty(DISPID dispid, VARTYPE vtProp, ...) {
    const BYTE info[2] = {static_cast<BYTE>(vtProp), 0};
    va_list args;
    va_start(args, vtProp);
    invokeV(dispid, DISPATCH_PROPERTYPUT, VT_EMPTY, nullptr, info, args);
    va_end(args);
}
