// The viewer's target: the kind of a name by its ending, and library members.
#include "tools/view_target.h"

#include <gtest/gtest.h>

using demo::ViewKind;
using demo::viewTargetParse;

TEST(ViewTarget, EndingsNameTheKindWhateverTheirCase) {
    EXPECT_EQ(viewTargetParse(L"model/demo_model.qdt").kind, ViewKind::Model);
    EXPECT_EQ(viewTargetParse(L"SLIDE_DN.SLD").kind, ViewKind::Slide);
    EXPECT_EQ(viewTargetParse(L"a.Bmp").kind, ViewKind::Picture);
    EXPECT_EQ(viewTargetParse(L"a.ico").kind, ViewKind::Picture);
    EXPECT_EQ(viewTargetParse(L"a.JPEG").kind, ViewKind::Picture);
    EXPECT_EQ(viewTargetParse(L"a.emf").kind, ViewKind::Picture);
    EXPECT_EQ(viewTargetParse(L"a.qdt").file, L"a.qdt");
}

TEST(ViewTarget, LibraryMemberAfterTheLastColon) {
    const demo::ViewTarget t = viewTargetParse(L"Z:\\data\\slides\\mylib.slb:SLIDE2");
    EXPECT_EQ(t.kind, ViewKind::LibrarySlide);
    EXPECT_EQ(t.file, L"Z:\\data\\slides\\mylib.slb");
    EXPECT_EQ(t.member, L"SLIDE2");
}

TEST(ViewTarget, DriveColonIsNoMemberSeparator) {
    const demo::ViewTarget t = viewTargetParse(L"Z:\\slides\\one.sld");
    EXPECT_EQ(t.kind, ViewKind::Slide);
    EXPECT_EQ(t.file, L"Z:\\slides\\one.sld");
    EXPECT_TRUE(t.member.empty());
}

TEST(ViewTarget, LibraryWithoutMemberOrUnknownEndingIsNothing) {
    EXPECT_EQ(viewTargetParse(L"mylib.slb").kind, ViewKind::None);
    EXPECT_EQ(viewTargetParse(L"mylib.slb:").kind, ViewKind::None);
    EXPECT_TRUE(viewTargetParse(L"mylib.slb:").file.empty());
    EXPECT_EQ(viewTargetParse(L"notes.txt").kind, ViewKind::None);
    EXPECT_EQ(viewTargetParse(L"").kind, ViewKind::None);
    EXPECT_EQ(viewTargetParse(L"qdt").kind, ViewKind::None);
    EXPECT_TRUE(viewTargetParse(L"notes.txt").file.empty());
}

TEST(ViewTarget, ColonInAnOrdinaryNameIsNoLibrary) {
    EXPECT_EQ(viewTargetParse(L"Z:\\a:b.sld").kind, ViewKind::Slide);
}
