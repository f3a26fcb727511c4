// The smallest real host: an application object of its own, with a data library of
// its own, installed with qorAppSet. Everything the contract classes ask then comes
// from it and nothing from the embedded default host; qorAppSet(nullptr) gives the
// default host back. host/README.md points here.
#include "displaylist/gdx.h"
#include "foundation/application.h"
#include "foundation/application/app_files.h"
#include "foundation/application/fsheet.h"
#include "foundation/application/host_services.h"
#include "foundation/application/outline_init.h"
#include "foundation/data_tree.h"
#include "foundation/records.h"
#include "host/default_app.h"
#include "host/layer_store.h"

#include <gtest/gtest.h>

namespace {

// The host's data library: one layer, one material, one message text, one file.
class CMinimalData : public QOR::CHostServices {
public:
    bool layerGet(const wchar_t* name, QOR::CLayerProp& out) override {
        if (CQorString(name) != L"STEEL")
            return false;
        out.color.setColorIndex(5);
        return true;
    }
    bool matGet(const wchar_t* key, QOR::CMatProp& out) override {
        if (CQorString(key) != L"S235")
            return false;
        out.label = L"\\DEU:Baustahl\\ENG:Mild steel";
        return true;
    }
    void matRoots(CQorArrayTempl<CQorString>& out) override { out.append(CQorString(L"S235")); }
    bool msgTextGet(const wchar_t*, const wchar_t* key, const wchar_t* lang,
                    CQorString& out) override {
        if (CQorString(key) != L"QOR_MFC_0002" || CQorString(lang) != L"ENG")
            return false;
        out = L"from the host";
        return true;
    }
    bool fileFind(CQorString& out, const wchar_t* name) override {
        out = CQorString(L"C:\\host\\") + name;
        return true;
    }
};

// The host's application object: its length format, its background, its data.
class CMinimalApp : public CQorApp {
public:
    Qor::lFormat lFormatGet() override { return Qor::formatArchitectural; }
    unsigned long viewBkColorGet() override { return 0x00202020ul; }
    QOR::CHostServices* hostServices() override { return &m_data; }

private:
    CMinimalData m_data;
};

class MinimalHost : public ::testing::Test {
protected:
    void SetUp() override { m_before = qorAppSet(&m_app); }
    void TearDown() override { qorAppSet(m_before); }
    CMinimalApp m_app;
    CQorApp* m_before = nullptr;
};

} // namespace

TEST_F(MinimalHost, SettingsComeFromTheInstalledApplication) {
    EXPECT_EQ(qorAppPtr(), &m_app);
    EXPECT_EQ(qorAppPtr()->lFormatGet(), Qor::formatArchitectural);
    EXPECT_EQ(qorAppPtr()->viewBkColorGet(), 0x00202020ul);
}

TEST_F(MinimalHost, LayersAndMaterialsComeFromTheHostsDataAlone) {
    // The default host knows this layer; the installed host does not.
    QOR::CLayerProp defaultLayer;
    defaultLayer.name = L"ONLY_DEFAULT";
    QOR::host::layerSet(defaultLayer);
    QOR::CLayerProp prop;
    EXPECT_FALSE(CQorLayerMgr().physLayerPropGet(L"ONLY_DEFAULT", prop));
    ASSERT_TRUE(CQorLayerMgr().physLayerPropGet(L"STEEL", prop));
    EXPECT_EQ(prop.color.colorIndex(), 5);
    EXPECT_EQ(CQorMatMgr().matLabel(L"S235", L"ENG"), L"Mild steel");
    CQorArrayTempl<CQorString> roots;
    EXPECT_TRUE(CQorMatMgr().matDrawAll(roots, false));
    ASSERT_EQ(roots.len(), 1);
    EXPECT_EQ(roots[0], L"S235");
    QOR::host::layerRemove(L"ONLY_DEFAULT");
}

TEST_F(MinimalHost, MessagesAndFilesComeFromTheHostsDataAlone) {
    EXPECT_EQ(qor_msg_get(L"QOR_", L"QOR_MFC_0002", L"Vorgabe", L"ENG"), L"from the host");
    EXPECT_EQ(qor_msg_get(L"QOR_", L"QOR_MFC_0002", L"Vorgabe", L"DEU"), L"Vorgabe");
    CQorString found;
    ASSERT_TRUE(QOR::fileFind(found, L"x.pat"));
    EXPECT_EQ(found, L"C:\\host\\x.pat");
    // What the host's data library does not override finds nothing.
    EXPECT_FALSE(QOR::help_find(L"Qor", found));
    CQorArrayTempl<CQorString> stack;
    stack.append(CQorString(L"ANY"));
    EXPECT_EQ(QOR::fsheet_get(stack), nullptr);
    CQorDataItem dir(1);
    EXPECT_FALSE(qorOutlineInit(&dir));
}

TEST_F(MinimalHost, OperationsTheHostDoesNotOverrideFailSoftly) {
    CQorGDX gdx;
    CQorDataItem drill(1);
    const CQorDataKey type(L"TYPE"), dia(L"DIA");
    dataItemSet(&drill, &type, CQorString(L"DRILL"));
    dataItemSet(&drill, &dia, 10.0);
    EXPECT_FALSE(qorAppPtr()->objImage(&gdx, &drill, nullptr));
    EXPECT_EQ(gdx.lenGet(), 0);
    QOR::CSmartResbuf result;
    EXPECT_NE(qorAppPtr()->lispCall(L"qor_text_to_regl", nullptr, result), QOR::kRtNorm);
    CQorArrayTempl<CQorArrayTempl<double>> lines;
    EXPECT_FALSE(qorAppPtr()->hatchPatternGet(L"ANSI31", lines));
}

TEST_F(MinimalHost, RemovingTheHostGivesTheDefaultHostBack) {
    qorAppSet(nullptr);
    EXPECT_EQ(qorAppPtr(), QOR::defaultAppPtr());
    CQorArrayTempl<CQorArrayTempl<double>> lines;
    EXPECT_TRUE(qorAppPtr()->hatchPatternGet(L"ANSI31", lines));
    qorAppSet(&m_app);
}
