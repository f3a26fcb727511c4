// Every public header as a host includes it (imports from the DLL), and calls that
// go through the import library.
#include <windows.h>

#include "public_headers.h"

#include <gtest/gtest.h>

TEST(HostHeaders, EveryPublicHeaderCompilesForAHostAndCallsReachTheDll) {
    // The application object and a display list document, both from the DLL.
    ASSERT_NE(qorAppPtr(), nullptr);
    CQorGDX gdx;
    CQorArrayTempl<int> stack;
    stack.append(1);
    CQorVertexArray vl;
    vl.append(CQorVertex(CQorPoint3d(0, 0, 0), CQorPoint3d(10, 0, 0), 0.0));
    gdx.imageVl(stack, 0, vl, CQorColor(), CQorMatrix3d(), CQorArrayTempl<double>(), 1.0, 1,
                CQorPoint3d());
    EXPECT_EQ(gdx.lenGet(), 1);
    // The function came from the loaded DLL, not from a copy in this program.
    HMODULE dll = GetModuleHandleW(L"Qor_2016_18_64_Mfc.Dll");
    ASSERT_NE(dll, nullptr);
    EXPECT_NE(GetProcAddress(dll, "_Z9qorAppPtrv"), nullptr);
}

namespace {
// A host's own application object, with one layer in its data library.
class CHostData : public QOR::CHostServices {
public:
    bool layerGet(const wchar_t* name, QOR::CLayerProp& out) override {
        if (CQorString(name) != L"HOST_LAYER")
            return false;
        out.color.setColorIndex(3);
        return true;
    }
};
class CHostApp : public CQorApp {
public:
    unsigned long viewBkColorGet() override { return 0x00112233ul; }
    QOR::CHostServices* hostServices() override { return &m_data; }

private:
    CHostData m_data;
};
} // namespace

TEST(HostHeaders, AHostsApplicationObjectReplacesTheDefaultHostInTheDll) {
    CHostApp app;
    CQorApp* before = qorAppSet(&app);
    EXPECT_EQ(before, nullptr); // the DLL wired its default host, which no host installed
    EXPECT_EQ(qorAppPtr()->viewBkColorGet(), 0x00112233ul);
    QOR::CLayerProp prop;
    ASSERT_TRUE(CQorLayerMgr().physLayerPropGet(L"HOST_LAYER", prop));
    EXPECT_EQ(prop.color.colorIndex(), 3);
    CQorArrayTempl<CQorArrayTempl<double>> lines;
    EXPECT_FALSE(qorAppPtr()->hatchPatternGet(L"ANSI31", lines)); // not the default's
    qorAppSet(nullptr);
    // The DLL's default host again: it knows its built-in patterns.
    EXPECT_TRUE(qorAppPtr()->hatchPatternGet(L"ANSI31", lines));
}
