// CRuntimeClass: dynamic window classes know their name, size and bases.
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
