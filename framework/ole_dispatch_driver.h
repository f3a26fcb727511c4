// COleDispatchDriver: the client side of an automation object's IDispatch.
#pragma once

#include "foundation/base/qor_export.h"

#include <oaidl.h>
#include <windows.h>

// Parameter type strings of InvokeHelper and SetProperty: one byte per argument, the
// VARTYPE of that argument, concatenated (VTS_BSTR VTS_BSTR for two strings).
#define VTS_NONE ""
#define VTS_I2 "\x02"
#define VTS_I4 "\x03"
#define VTS_R8 "\x05"
#define VTS_BSTR "\x08"
#define VTS_DISPATCH "\x09"
#define VTS_BOOL "\x0B"

class CQorString;

// Ownership. With m_bAutoRelease the driver holds one reference of m_lpDispatch and
// releases it in ReleaseDispatch and the destructor. A copy adds its own reference.
//
// Failure. Nothing is thrown: a failed call leaves the result where pvRet points as
// it was, and LastResult() tells the HRESULT of the last call (S_OK after success,
// E_POINTER without a dispatch, DISP_E_BADVARTYPE for a type the helper does not
// know).
//
// Argument and result types. Arguments come as the C types of the variadic call:
// VT_BSTR a const wchar_t* (null passes an empty string), VT_BOOL a BOOL, VT_I2 and
// VT_I4 an int and a long, VT_R8 a double, VT_DISPATCH an IDispatch*. Results are
// written through pvRet: VT_BSTR into a CQorString, VT_BOOL into a BOOL, VT_I2 a short,
// VT_I4 a long, VT_R8 a double, VT_DISPATCH an IDispatch* with a reference for the
// caller; VT_EMPTY asks for no result.
class QOR_API COleDispatchDriver {
public:
    COleDispatchDriver() = default;
    explicit COleDispatchDriver(LPDISPATCH dispatch, BOOL autoRelease = TRUE);
    COleDispatchDriver(const COleDispatchDriver& other);
    const COleDispatchDriver& operator=(const COleDispatchDriver& other);
    ~COleDispatchDriver();

    // Makes an object of the registered ProgID (COM must be initialised by the
    // caller) and attaches it; false when there is none or it cannot be made.
    BOOL CreateDispatch(LPCWSTR progID);
    // Releases what is held, then holds dispatch.
    void AttachDispatch(LPDISPATCH dispatch, BOOL autoRelease = TRUE);
    // Gives up the pointer without releasing it.
    LPDISPATCH DetachDispatch();
    void ReleaseDispatch();

    // Calls member dispid. flags: DISPATCH_METHOD, DISPATCH_PROPERTYGET or
    // DISPATCH_PROPERTYPUT. paramInfo lists the types of the arguments that follow.
    void InvokeHelper(DISPID dispid, WORD flags, VARTYPE vtRet, void* pvRet, const BYTE* paramInfo,
                      ...);
    void GetProperty(DISPID dispid, VARTYPE vtProp, void* pvProp);
    // One value of type vtProp follows.
    void SetProperty(DISPID dispid, VARTYPE vtProp, ...);

    HRESULT LastResult() const { return m_lastResult; }

    LPDISPATCH m_lpDispatch = nullptr;
    BOOL m_bAutoRelease = TRUE;

private:
    void invokeV(DISPID dispid, WORD flags, VARTYPE vtRet, void* pvRet, const BYTE* paramInfo,
                 va_list args);
    HRESULT m_lastResult = S_OK;
};
