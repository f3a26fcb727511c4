// CQorVllImage: the document it builds from vertex arrays, its colours, the marked
// array, the base point and picking of arrays.
#include "views/vll_image.h"

#include "foundation/application/qor_app.h"
#include "tests/displaylist/gdx_test_util.h"
#include "tests/views/view_test_util.h"

#include <gtest/gtest.h>

namespace {

constexpr int kW = 160;
constexpr int kH = 120;

class CProbeVll : public CQorVllImage {
public:
    CQorGDX& doc() { return gdx; }
    unsigned long contrastColor() const { return contrast; }
    int current() const { return curVl; }
    int spareValue() const { return spare; }
};

CQorArrayTempl<CQorVertexArray> twoArrays() {
    CQorArrayTempl<CQorVertexArray> vll;
    vll.append(segment(10, 10, 90, 10));
    vll.append(rect(20, 30, 60, 70));
    return vll;
}

class VllImageTest : public ::testing::Test {
protected:
    void SetUp() override {
        ASSERT_TRUE(createPicture(parent, view, kW, kH));
        pumpSome();
        parent.picks.clear();
    }
    void TearDown() override { destroyPicture(parent, view); }
    CTestParent parent;
    CProbeVll view;
};

} // namespace

TEST_F(VllImageTest, ConstructionAttachesItsOwnDocumentWithTheHostsBackground) {
    EXPECT_EQ(view.get_dpList(), &view.doc());
    EXPECT_EQ(view.doc().backColorGet().oleColor(), qorAppPtr()->viewBkColorGet());
    EXPECT_EQ(view.current(), -1);
    EXPECT_EQ(view.spareValue(), 255);
    EXPECT_EQ(view.doc().colorTabGet(QOR::GdxCmContrast).oleColor(), view.contrastColor());
}

TEST_F(VllImageTest, SetVllWithAnEmptyListShowsTheBasePointOnlyFittedAsOnePoint) {
    EXPECT_TRUE(view.setVll(CQorArrayTempl<CQorVertexArray>()));
    ASSERT_EQ(view.doc().lenGet(), 1);
    EXPECT_EQ(view.doc().typeGet(0), GDX_PT);
    EXPECT_EQ(view.doc().flagGet(0), 1024u);
    CQorArrayTempl<int> stack;
    view.doc().itemStackGet(stack, 0);
    ASSERT_EQ(stack.len(), 1);
    EXPECT_EQ(stack[0], 0);
    // One point has no extent: the fit is the identity view and zoom.
    EXPECT_EQ(view.doc().viewMtxGet().m[0][0], 1.0);
    EXPECT_EQ(view.doc().viewMtxGet().m[0][3], 0.0);
    EXPECT_EQ(view.doc().zoomMtxGet().m[0][0], 1.0);
}

TEST_F(VllImageTest, SetVllAddsOneContrastLinePerArrayAtPathIndexPlusOne) {
    view.setVll(twoArrays());
    ASSERT_EQ(view.doc().lenGet(), 3);
    CQorGDX& gdx = view.doc();
    for (int i = 1; i <= 2; ++i) {
        EXPECT_EQ(gdx.typeGet(i), GDX_VL);
        EXPECT_EQ(gdx.flagGet(i), 1536u);
        CQorArrayTempl<int> stack;
        gdx.itemStackGet(stack, i);
        ASSERT_EQ(stack.len(), 1);
        EXPECT_EQ(stack[0], i);
        EXPECT_EQ(gdx.thicknGet(i), 0);
        EXPECT_EQ(gdx.ltscaleGet(i), 1.0);
        ASSERT_EQ(gdx.linetypeGet(i).len(), 1);
        EXPECT_EQ(gdx.linetypeGet(i)[0], 1.0);
    }
    // Fitted: the view is no longer the identity.
    EXPECT_NE(gdx.viewMtxGet().m[0][0], 1.0);
}

TEST_F(VllImageTest, WhiteBackgroundGivesBlackLines) {
    view.SetBkColor(0xFFFFFF);
    EXPECT_EQ(view.contrastColor(), 0u);
    EXPECT_EQ(view.doc().backColorGet().oleColor(), 0xFFFFFFu);
    EXPECT_EQ(view.doc().colorTabGet(QOR::GdxCmContrast).oleColor(), 0u);
    view.setVll(twoArrays());
    EXPECT_EQ(view.doc().itemColorGet(1), 0u);
}

TEST_F(VllImageTest, BlackBackgroundGivesWhiteLines) {
    view.SetBkColor(0);
    EXPECT_EQ(view.contrastColor(), 0xFFFFFFu);
    view.setVll(twoArrays());
    EXPECT_EQ(view.doc().itemColorGet(2), 0xFFFFFFu);
}

TEST_F(VllImageTest, GreyOfBrightness128GivesBlackLinesAnd127White) {
    view.SetBkColor(RGB(128, 128, 128));
    EXPECT_EQ(view.contrastColor(), 0u);
    view.SetBkColor(RGB(127, 127, 127));
    EXPECT_EQ(view.contrastColor(), 0xFFFFFFu);
    // (100 + 150 + 135) / 3 = 128 by integer division; (100 + 150 + 133) / 3 = 127.
    view.SetBkColor(RGB(100, 150, 135));
    EXPECT_EQ(view.contrastColor(), 0u);
    view.SetBkColor(RGB(100, 150, 133));
    EXPECT_EQ(view.contrastColor(), 0xFFFFFFu);
}

TEST_F(VllImageTest, SetCurVlMarksOneArrayAndGivesTheFormerItsColourBack) {
    view.SetBkColor(0xFFFFFF);
    view.setVll(twoArrays());
    EXPECT_EQ(view.SetCurVl(0), -1);
    EXPECT_EQ(view.doc().flagGet(1) & GDX_FLAG_COLOR_MODE, 0x100u); // highlight
    EXPECT_EQ(view.doc().itemColorGet(1), view.doc().colorTabGet(QOR::GdxCmHighlight).oleColor());
    EXPECT_EQ(view.SetCurVl(1), 0);
    EXPECT_EQ(view.doc().flagGet(1) & GDX_FLAG_COLOR_MODE, 0x600u); // contrast again
    EXPECT_EQ(view.doc().flagGet(2) & GDX_FLAG_COLOR_MODE, 0x100u);
}

TEST_F(VllImageTest, SetCurVlMinusOneReturnsTheFormerIndexAndMarksNothing) {
    view.setVll(twoArrays());
    view.SetCurVl(1);
    EXPECT_EQ(view.SetCurVl(-1), 1);
    EXPECT_EQ(view.current(), -1);
    for (int i = 1; i <= 2; ++i)
        EXPECT_EQ(view.doc().flagGet(i) & GDX_FLAG_COLOR_MODE, 0x600u) << i;
}

TEST_F(VllImageTest, SetCurVlPastTheEndIsKeptButMarksNothing) {
    view.setVll(twoArrays());
    EXPECT_EQ(view.SetCurVl(7), -1);
    EXPECT_EQ(view.current(), 7);
    for (int i = 1; i <= 2; ++i)
        EXPECT_EQ(view.doc().flagGet(i) & GDX_FLAG_COLOR_MODE, 0x600u) << i;
    EXPECT_EQ(view.SetCurVl(0), 7);
}

TEST_F(VllImageTest, SetVllLeavesNoArrayMarkedButKeepsTheIndex) {
    view.setVll(twoArrays());
    view.SetCurVl(1);
    view.setVll(twoArrays());
    EXPECT_EQ(view.current(), 1);
    EXPECT_EQ(view.doc().flagGet(2) & GDX_FLAG_COLOR_MODE, 0x600u);
}

TEST_F(VllImageTest, SetDrawBaseFalseBeforeSetVllHidesTheBasePointFromTheStart) {
    EXPECT_TRUE(view.setDrawBase(false));
    view.setVll(twoArrays());
    EXPECT_EQ(view.doc().typeGet(0), GDX_PT);
    EXPECT_EQ(view.doc().flagGet(0), 1036u);
    EXPECT_FALSE(view.setDrawBase(true));
    EXPECT_EQ(view.doc().flagGet(0) & (GDX_FLAG_HIDDEN | GDX_FLAG_NO_EXT), 0u);
}

TEST_F(VllImageTest, HidingTheBasePointChangesTheFit) {
    CQorArrayTempl<CQorVertexArray> distant;
    distant.append(segment(100, 100, 200, 150));
    view.setVll(distant);
    const CQorMatrix3d withBase = view.doc().viewMtxGet();
    view.setDrawBase(false);
    EXPECT_NE(view.doc().viewMtxGet().m[0][0], withBase.m[0][0]);
    EXPECT_TRUE(GetUpdateRect(view.m_hWnd, nullptr, FALSE));
}

TEST_F(VllImageTest, LeftDoubleClickFitsAgain) {
    view.setVll(twoArrays());
    const CQorMatrix3d fitted = view.doc().viewMtxGet();
    view.SendMessage(WM_MOUSEWHEEL, MAKEWPARAM(0, 240), screenPoint(view, 10, 10));
    EXPECT_EQ(view.doc().zoomMtxGet().m[0][0], 2.4);
    view.SendMessage(WM_LBUTTONDBLCLK, MK_LBUTTON, MAKELPARAM(10, 10));
    EXPECT_EQ(view.doc().zoomMtxGet().m[0][0], 1.0);
    EXPECT_EQ(view.doc().viewMtxGet().m[0][3], fitted.m[0][3]);
}

TEST_F(VllImageTest, ALeftClickOnArrayIPostsIPlusOne) {
    view.setVll(twoArrays());
    const CQorMatrix3d m = view.doc().zoomMtxGet() * view.doc().viewMtxGet();
    const CQorPoint3d onFirst = CQorPoint3d(50, 10, 0) * m;
    view.SendMessage(WM_LBUTTONDOWN, MK_LBUTTON,
                     MAKELPARAM(QOR::devTrunc(onFirst.x), QOR::devTrunc(onFirst.y)));
    pumpSome();
    ASSERT_EQ(parent.picks.size(), 1u);
    EXPECT_EQ(parent.picks[0].lParam, 1);
}

TEST_F(VllImageTest, PaintShowsBlackLinesOnWhiteAndWhiteLinesOnBlack) {
    CQorArrayTempl<CQorVertexArray> across;
    across.append(segment(0, 0, 100, 0));
    across.append(segment(0, 50, 100, 50));
    for (unsigned long back : {0xFFFFFFul, 0ul}) {
        view.SetBkColor(back);
        view.setVll(across);
        view.UpdateWindow();
        TestDib shot(kW, kH);
        grabClient(view.m_hWnd, shot);
        // The lines run across the middle of the fitted view; find the line colour
        // on the middle column.
        int line = 0, background = 0;
        for (int y = 0; y < kH; ++y) {
            const COLORREF c = shot.ref(kW / 2, y);
            line += c == (back ^ 0xFFFFFF) ? 1 : 0;
            background += c == back ? 1 : 0;
        }
        EXPECT_GE(line, 2) << std::hex << back;
        EXPECT_EQ(line + background, kH) << std::hex << back;
    }
}
