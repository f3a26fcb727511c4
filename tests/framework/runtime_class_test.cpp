// CRuntimeClass: dynamic window classes know their name, size and bases.
#include "framework/button.h"
#include "framework/combo_box.h"
#include "framework/dialog.h"
#include "framework/edit.h"
#include "framework/list_box.h"
#include "framework/list_ctrl.h"
#include "framework/static.h"
#include "framework/tab_ctrl.h"
#include "framework/tree_ctrl.h"
#include "framework/wnd.h"

#include <gtest/gtest.h>

namespace {

class CDynBase : public CWnd {
    DECLARE_DYNAMIC(CDynBase)
};
IMPLEMENT_DYNAMIC(CDynBase, CWnd)

class CDynDerived : public CDynBase {
    DECLARE_DYNAMIC(CDynDerived)
    int extra = 0;
};
IMPLEMENT_DYNAMIC(CDynDerived, CDynBase)

TEST(RuntimeClass, ControlClassesAreNamedAndDeriveFromCWnd) {
    CButton button;
    CStatic label;
    CEdit edit;
    CComboBox combo;
    CListBox list;
    CListCtrl listCtrl;
    CTreeCtrl tree;
    CTabCtrl tab;
    const CWnd* all[] = {&button, &label, &edit, &combo, &list, &listCtrl, &tree, &tab};
    const char* names[] = {"CButton",  "CStatic",   "CEdit",     "CComboBox",
                           "CListBox", "CListCtrl", "CTreeCtrl", "CTabCtrl"};
    for (int i = 0; i < 8; ++i) {
        EXPECT_STREQ(names[i], all[i]->GetRuntimeClass()->m_lpszClassName);
        EXPECT_TRUE(all[i]->IsKindOf(RUNTIME_CLASS(CWnd)));
        EXPECT_FALSE(all[i]->IsKindOf(RUNTIME_CLASS(CDialog)));
    }
    EXPECT_TRUE(edit.IsKindOf(RUNTIME_CLASS(CEdit)));
    EXPECT_FALSE(edit.IsKindOf(RUNTIME_CLASS(CComboBox)));
    EXPECT_FALSE(combo.IsKindOf(RUNTIME_CLASS(CListBox)));
}

} // namespace

TEST(RuntimeClass, ObjectKnowsItsMostDerivedClass) {
    CDynDerived d;
    const CWnd& asWnd = d;
    EXPECT_EQ(asWnd.GetRuntimeClass(), RUNTIME_CLASS(CDynDerived));
    EXPECT_STREQ(asWnd.GetRuntimeClass()->m_lpszClassName, "CDynDerived");
    EXPECT_EQ(asWnd.GetRuntimeClass()->m_nObjectSize, static_cast<int>(sizeof(CDynDerived)));
}

TEST(RuntimeClass, IsKindOfFollowsTheBasesOnly) {
    CDynDerived d;
    CDynBase b;
    CWnd w;
    EXPECT_TRUE(d.IsKindOf(RUNTIME_CLASS(CDynDerived)));
    EXPECT_TRUE(d.IsKindOf(RUNTIME_CLASS(CDynBase)));
    EXPECT_TRUE(d.IsKindOf(RUNTIME_CLASS(CWnd)));
    EXPECT_FALSE(b.IsKindOf(RUNTIME_CLASS(CDynDerived)));
    EXPECT_FALSE(w.IsKindOf(RUNTIME_CLASS(CDynBase)));
    EXPECT_TRUE(w.IsKindOf(RUNTIME_CLASS(CWnd)));
    EXPECT_FALSE(w.IsKindOf(nullptr));
}
