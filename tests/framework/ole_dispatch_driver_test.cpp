// COleDispatchDriver against a small automation object of the test's own: argument
// order, property put, result conversion, reference counting and soft failure.
#include "foundation/base/qor_string.h"
#include "framework/ole_dispatch_driver.h"

#include <gtest/gtest.h>

#include <string>

namespace {

// Members: 7 a BOOL property; 4 a method joining two strings with "|"; 2 a method
// taking a long and a short and giving their difference.
class CTestDispatch : public IDispatch {
public:
    ULONG refs = 1;
    BOOL visible = FALSE;
    std::wstring lastJoin;

    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID iid, void** out) override {
        if (iid == IID_IUnknown || iid == IID_IDispatch) {
            *out = this;
            AddRef();
            return S_OK;
        }
        *out = nullptr;
        return E_NOINTERFACE;
    }
    ULONG STDMETHODCALLTYPE AddRef() override { return ++refs; }
    ULONG STDMETHODCALLTYPE Release() override { return --refs; }
    HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT* n) override {
        *n = 0;
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT, LCID, ITypeInfo**) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID, LPOLESTR*, UINT, LCID, DISPID*) override {
        return E_NOTIMPL;
    }
    HRESULT STDMETHODCALLTYPE Invoke(DISPID id, REFIID, LCID, WORD flags, DISPPARAMS* p,
                                     VARIANT* result, EXCEPINFO*, UINT*) override {
        if (id == 7 && (flags & DISPATCH_PROPERTYGET) && p->cArgs == 0) {
            result->vt = VT_BOOL;
            result->boolVal = visible ? VARIANT_TRUE : VARIANT_FALSE;
            return S_OK;
        }
        if (id == 7 && (flags & DISPATCH_PROPERTYPUT)) {
            if (p->cArgs != 1 || p->cNamedArgs != 1 ||
                p->rgdispidNamedArgs[0] != DISPID_PROPERTYPUT || p->rgvarg[0].vt != VT_BOOL)
                return DISP_E_BADPARAMCOUNT;
            visible = p->rgvarg[0].boolVal != VARIANT_FALSE;
            return S_OK;
        }
        if (id == 4 && p->cArgs == 2 && p->rgvarg[0].vt == VT_BSTR && p->rgvarg[1].vt == VT_BSTR) {
            // Arguments arrive last first.
            lastJoin = std::wstring(p->rgvarg[1].bstrVal) + L"|" + p->rgvarg[0].bstrVal;
            if (result) {
                result->vt = VT_BSTR;
                result->bstrVal = SysAllocString(lastJoin.c_str());
            }
            return S_OK;
        }
        if (id == 2 && p->cArgs == 2 && p->rgvarg[1].vt == VT_I4 && p->rgvarg[0].vt == VT_I2) {
            result->vt = VT_I4;
            result->lVal = p->rgvarg[1].lVal - p->rgvarg[0].iVal;
            return S_OK;
        }
        return DISP_E_MEMBERNOTFOUND;
    }
};

} // namespace

TEST(OleDispatchDriver, PropertyPutAndGetGoThroughInvoke) {
    CTestDispatch object;
    COleDispatchDriver driver(&object, FALSE);
    driver.SetProperty(7, VT_BOOL, TRUE);
    EXPECT_EQ(driver.LastResult(), S_OK);
    EXPECT_TRUE(object.visible);
    BOOL seen = FALSE;
    driver.GetProperty(7, VT_BOOL, &seen);
    EXPECT_TRUE(seen);
    driver.DetachDispatch();
}

TEST(OleDispatchDriver, StringArgumentsKeepTheirOrderAndTheResultIsAString) {
    CTestDispatch object;
    COleDispatchDriver driver(&object, FALSE);
    CQorString joined(L"unchanged");
    driver.InvokeHelper(4, DISPATCH_METHOD, VT_BSTR, &joined,
                        reinterpret_cast<const BYTE*>(VTS_BSTR VTS_BSTR), L"QOR_MFC_0002", L"0");
    EXPECT_EQ(driver.LastResult(), S_OK);
    EXPECT_STREQ(joined.c_str(), L"QOR_MFC_0002|0");
    driver.InvokeHelper(4, DISPATCH_METHOD, VT_BSTR, &joined,
                        reinterpret_cast<const BYTE*>(VTS_BSTR VTS_BSTR), nullptr, L"x");
    EXPECT_STREQ(joined.c_str(), L"|x"); // a null string passes as empty
    driver.DetachDispatch();
}

TEST(OleDispatchDriver, NumericArgumentsAndResult) {
    CTestDispatch object;
    COleDispatchDriver driver(&object, FALSE);
    long diff = 0;
    driver.InvokeHelper(2, DISPATCH_METHOD, VT_I4, &diff,
                        reinterpret_cast<const BYTE*>(VTS_I4 VTS_I2), 100L, 30);
    EXPECT_EQ(diff, 70);
    driver.DetachDispatch();
}

TEST(OleDispatchDriver, FailedCallLeavesTheResultAndTellsWhy) {
    CTestDispatch object;
    COleDispatchDriver driver(&object, FALSE);
    long untouched = 5;
    driver.InvokeHelper(99, DISPATCH_METHOD, VT_I4, &untouched, nullptr);
    EXPECT_EQ(driver.LastResult(), DISP_E_MEMBERNOTFOUND);
    EXPECT_EQ(untouched, 5);
    driver.InvokeHelper(2, DISPATCH_METHOD, VT_I4, &untouched,
                        reinterpret_cast<const BYTE*>("\x40"), 1);
    EXPECT_EQ(driver.LastResult(), DISP_E_BADVARTYPE);
    driver.DetachDispatch();

    COleDispatchDriver empty;
    empty.InvokeHelper(1, DISPATCH_METHOD, VT_I4, &untouched, nullptr);
    EXPECT_EQ(empty.LastResult(), E_POINTER);
    EXPECT_EQ(untouched, 5);
}

TEST(OleDispatchDriver, OwningDriverAndItsCopyEachReleaseTheirReference) {
    CTestDispatch object;
    object.AddRef(); // the driver's reference
    {
        COleDispatchDriver driver(&object);
        EXPECT_EQ(object.refs, 2u);
        {
            COleDispatchDriver copy(driver);
            EXPECT_EQ(object.refs, 3u);
            COleDispatchDriver assigned;
            assigned = copy;
            EXPECT_EQ(object.refs, 4u);
        }
        EXPECT_EQ(object.refs, 2u);
    }
    EXPECT_EQ(object.refs, 1u);
}

TEST(OleDispatchDriver, UnknownProgIdIsRefused) {
    ASSERT_TRUE(SUCCEEDED(CoInitialize(nullptr)));
    COleDispatchDriver driver;
    EXPECT_FALSE(driver.CreateDispatch(L"Qor.NoSuchServer.App"));
    EXPECT_EQ(driver.m_lpDispatch, nullptr);
    EXPECT_FALSE(driver.CreateDispatch(nullptr));
    CoUninitialize();
}
