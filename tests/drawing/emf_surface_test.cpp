// The enhanced metafile surface: records read back in order, with their payloads.
#include "drawing/emf_surface_p.h"
#include "drawing/item_painter_p.h"
#include "drawing/refresh.h"
#include "foundation/base/file_io.h"
#include "tests/displaylist/gdx_test_util.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <cstdio>
#include <string>
#include <vector>

using QOR::CQorEmfSurface;
using QOR::DevicePoint;

namespace {

struct Record {
    std::uint32_t type = 0;
    std::uint32_t size = 0;
    std::vector<std::uint32_t> words; // the payload after type and size
};

std::uint32_t word(const std::string& s, size_t at) {
    std::uint32_t v = 0;
    for (int k = 3; k >= 0; --k)
        v = (v << 8) | static_cast<unsigned char>(s[at + static_cast<size_t>(k)]);
    return v;
}

// Splits the bytes into records; an empty result when a size does not fit.
std::vector<Record> records(const std::string& s) {
    std::vector<Record> out;
    size_t at = 0;
    while (at + 8 <= s.size()) {
        Record r;
        r.type = word(s, at);
        r.size = word(s, at + 4);
        if (r.size < 8 || r.size % 4 != 0 || at + r.size > s.size())
            return {};
        for (size_t k = at + 8; k < at + r.size; k += 4)
            r.words.push_back(word(s, k));
        out.push_back(r);
        at += r.size;
    }
    return out;
}

std::vector<std::uint32_t> types(const std::vector<Record>& recs) {
    std::vector<std::uint32_t> out;
    for (const Record& r : recs)
        out.push_back(r.type);
    return out;
}

int i(std::uint32_t w) {
    return static_cast<int>(w);
}

} // namespace

TEST(EmfSurface, EmptyMetafileIsHeaderAndEnd) {
    CQorEmfSurface emf;
    const std::string bytes = emf.bytes();
    const std::vector<Record> recs = records(bytes);
    ASSERT_EQ(types(recs), (std::vector<std::uint32_t>{QOR::kEmrHeader, QOR::kEmrEof}));
    const Record& h = recs[0];
    EXPECT_EQ(h.size, 108u);
    EXPECT_EQ(h.words[8], 0x464D4520u); // " EMF"
    EXPECT_EQ(h.words[9], 0x00010000u);
    EXPECT_EQ(h.words[10], bytes.size());
    EXPECT_EQ(h.words[11], 2u);
    // Empty bounds: right and bottom below left and top.
    EXPECT_EQ(i(h.words[0]), 0);
    EXPECT_EQ(i(h.words[2]), -1);
    EXPECT_EQ(i(h.words[3]), -1);
    EXPECT_EQ(recs[1].size, 20u);
    EXPECT_EQ(recs[1].words[2], 20u); // nSizeLast
}

TEST(EmfSurface, LineRecordsCarryTheirPointsAndGrowTheBounds) {
    CQorEmfSurface emf;
    emf.moveTo(3, -4);
    emf.lineTo(40, 25);
    const std::vector<Record> recs = records(emf.bytes());
    ASSERT_EQ(types(recs), (std::vector<std::uint32_t>{QOR::kEmrHeader, QOR::kEmrMovetoex,
                                                       QOR::kEmrLineto, QOR::kEmrEof}));
    EXPECT_EQ(i(recs[1].words[0]), 3);
    EXPECT_EQ(i(recs[1].words[1]), -4);
    EXPECT_EQ(i(recs[2].words[0]), 40);
    EXPECT_EQ(i(recs[2].words[1]), 25);
    EXPECT_EQ(i(recs[0].words[0]), 40);
    EXPECT_EQ(i(recs[0].words[1]), 25);
    EXPECT_EQ(recs[0].words[11], 4u);
}

TEST(EmfSurface, PenIsCreatedSelectedAndDeletedOnFree) {
    CQorEmfSurface emf;
    emf.penSelect(3, 0x0000FF);
    emf.penFree();
    const std::vector<Record> recs = records(emf.bytes());
    ASSERT_EQ(types(recs), (std::vector<std::uint32_t>{QOR::kEmrHeader, QOR::kEmrCreatepen,
                                                       QOR::kEmrSelectobject, QOR::kEmrSelectobject,
                                                       QOR::kEmrDeleteobject, QOR::kEmrEof}));
    EXPECT_EQ(recs[1].words, (std::vector<std::uint32_t>{1, 0, 3, 0, 0x0000FF}));
    EXPECT_EQ(recs[2].words[0], 1u);
    EXPECT_EQ(recs[3].words[0], 0x80000007u); // stock black pen
    EXPECT_EQ(recs[4].words[0], 1u);
}

TEST(EmfSurface, BrushStillSelectedIsFreedBeforeTheEnd) {
    CQorEmfSurface emf;
    emf.brushSolid(0x123456);
    const std::vector<Record> recs = records(emf.bytes());
    ASSERT_EQ(recs.size(), 6u);
    EXPECT_EQ(recs[1].words, (std::vector<std::uint32_t>{2, 0, 0x123456, 0})); // BS_SOLID
    EXPECT_EQ(recs[4].type, QOR::kEmrDeleteobject);
}

TEST(EmfSurface, HollowBrushIsTheStockObjectAndIsNeverDeleted) {
    CQorEmfSurface emf;
    emf.brushHollow();
    emf.brushFree();
    const std::vector<Record> recs = records(emf.bytes());
    ASSERT_EQ(types(recs), (std::vector<std::uint32_t>{QOR::kEmrHeader, QOR::kEmrSelectobject,
                                                       QOR::kEmrSelectobject, QOR::kEmrEof}));
    EXPECT_EQ(recs[1].words, (std::vector<std::uint32_t>{0x80000005u})); // NULL_BRUSH
    EXPECT_EQ(recs[2].words, (std::vector<std::uint32_t>{0x80000000u})); // WHITE_BRUSH
}

TEST(EmfSurface, BoxesAreStoredInOrderWithInclusiveRightAndBottom) {
    CQorEmfSurface emf;
    emf.ellipse(26, 31, 24, 29);
    emf.rectangle(5, 5, 9, 8);
    const std::vector<Record> recs = records(emf.bytes());
    ASSERT_EQ(recs.size(), 4u);
    EXPECT_EQ(recs[1].type, QOR::kEmrEllipse);
    EXPECT_EQ(recs[1].words, (std::vector<std::uint32_t>{24, 29, 25, 30}));
    EXPECT_EQ(recs[2].type, QOR::kEmrRectangle);
    EXPECT_EQ(recs[2].words, (std::vector<std::uint32_t>{5, 5, 8, 7}));
}

TEST(EmfSurface, EmptyBoxesAreNotRecorded) {
    CQorEmfSurface emf;
    emf.ellipse(3, 3, 3, 9);
    emf.rectangle(1, 4, 8, 4);
    EXPECT_EQ(emf.recordCount(), 0);
}

TEST(EmfSurface, SmallPolygonIsPolygon16) {
    CQorEmfSurface emf;
    emf.polygon({{0, 0}, {10, 0}, {10, 5}});
    const std::vector<Record> recs = records(emf.bytes());
    ASSERT_EQ(recs.size(), 3u);
    EXPECT_EQ(recs[1].type, QOR::kEmrPolygon16);
    EXPECT_EQ(recs[1].size, 40u);
    EXPECT_EQ(recs[1].words, (std::vector<std::uint32_t>{0, 0, 10, 5, 3, 0, 10, 5u << 16 | 10u}));
}

TEST(EmfSurface, LargePolygonIsPolygonOf32BitPoints) {
    CQorEmfSurface emf;
    emf.polygon({{0, 0}, {40000, 0}, {0, 7}});
    const std::vector<Record> recs = records(emf.bytes());
    ASSERT_EQ(recs.size(), 3u);
    EXPECT_EQ(recs[1].type, QOR::kEmrPolygon);
    EXPECT_EQ(recs[1].words, (std::vector<std::uint32_t>{0, 0, 40000, 7, 3, 0, 0, 40000, 0, 0, 7}));
}

TEST(EmfSurface, ClipRectangleIsOneRectangleRegionCopied) {
    CQorEmfSurface emf;
    emf.clipRect(0, 0, 320, 240);
    const std::vector<Record> recs = records(emf.bytes());
    ASSERT_EQ(recs.size(), 3u);
    EXPECT_EQ(recs[1].type, QOR::kEmrExtselectcliprgn);
    EXPECT_EQ(recs[1].words,
              (std::vector<std::uint32_t>{48, 5, 32, 1, 1, 16, 0, 0, 320, 240, 0, 0, 320, 240}));
}

TEST(EmfSurface, PolygonRowsOfASquareAreOneSpanPerRow) {
    EXPECT_EQ(QOR::polygonRowRects({{2, 1}, {6, 1}, {6, 4}, {2, 4}}),
              (std::vector<int>{2, 1, 6, 2, 2, 2, 6, 3, 2, 3, 6, 4}));
}

TEST(EmfSurface, PolygonRowsLeaveTheInnerRingOfAFrameOut) {
    // Outer square 0..4 and inner 1..3 as one alternate-filled polygon path.
    const std::vector<int> rows = QOR::polygonRowRects(
        {{0, 0}, {4, 0}, {4, 4}, {0, 4}, {0, 0}, {1, 1}, {1, 3}, {3, 3}, {3, 1}, {1, 1}});
    EXPECT_EQ(rows, (std::vector<int>{0, 0, 4, 1, 0, 1, 1, 2, 3, 1, 4, 2,
                                      0, 2, 1, 3, 3, 2, 4, 3, 0, 3, 4, 4}));
}

TEST(EmfSurface, RegionBandsJoinRowsWithTheSameSpans) {
    // The frame of the test above: a full row, two rows of two spans, a full row.
    const std::vector<int> rows = QOR::polygonRowRects(
        {{0, 0}, {4, 0}, {4, 4}, {0, 4}, {0, 0}, {1, 1}, {1, 3}, {3, 3}, {3, 1}, {1, 1}});
    EXPECT_EQ(QOR::regionBands(rows),
              (std::vector<int>{0, 0, 4, 1, 0, 1, 1, 3, 3, 1, 4, 3, 0, 3, 4, 4}));
}

TEST(EmfSurface, SubtractingFewerThanThreePointsRecordsNothing) {
    CQorEmfSurface emf;
    emf.clipSubtractPolygon({});
    emf.clipSubtractPolygon({{2, 2}, {9, 2}});
    EXPECT_EQ(emf.recordCount(), 0);
}

TEST(EmfSurface, SubtractingAPolygonWithoutAreaRecordsAnEmptyRegion) {
    CQorEmfSurface emf;
    emf.clipSubtractPolygon({{2, 2}, {9, 2}, {2, 2}});
    const std::vector<Record> recs = records(emf.bytes());
    ASSERT_EQ(recs.size(), 3u);
    EXPECT_EQ(recs[1].type, QOR::kEmrExtselectcliprgn);
    // cbRgnData 32 (the header alone), mode 4 (difference), no rectangles.
    EXPECT_EQ(recs[1].words[0], 32u);
    EXPECT_EQ(recs[1].words[1], 4u);
    EXPECT_EQ(recs[1].words[4], 0u);
}

TEST(EmfSurface, RegionBandsKeepAGapBetweenRows) {
    EXPECT_EQ(QOR::regionBands({0, 0, 5, 1, 0, 2, 5, 3}),
              (std::vector<int>{0, 0, 5, 1, 0, 2, 5, 3}));
    EXPECT_TRUE(QOR::regionBands({}).empty());
}

TEST(EmfSurface, RefreshWritesTheDocumentToAFile) {
    CQorGDX gdx = plainDoc();
    gdx.extMaxViewSet(CQorPoint3d(0, 0, 0), CQorPoint3d(100, 100, 0));
    gdx.imageVl(path({1}), 0, segment(10, 10, 50, 10), indexed(7), CQorMatrix3d(),
                CQorArrayTempl<double>(), 1.0, 2, CQorPoint3d());
    const std::string name = testing::TempDir() + "qor_refresh_line.emf";
    const std::wstring wname(name.begin(), name.end());
    refresh(&gdx, wname.c_str(), 110, 110);
    std::string bytes;
    ASSERT_TRUE(QOR::readFileBytes(wname.c_str(), bytes));
    const std::vector<Record> recs = records(bytes);
    ASSERT_EQ(types(recs), (std::vector<std::uint32_t>{
                               QOR::kEmrHeader, QOR::kEmrExtselectcliprgn, QOR::kEmrCreatepen,
                               QOR::kEmrSelectobject, QOR::kEmrMovetoex, QOR::kEmrLineto,
                               QOR::kEmrSelectobject, QOR::kEmrDeleteobject, QOR::kEmrEof}));
    // The white line comes out black, with the item's width.
    EXPECT_EQ(recs[2].words, (std::vector<std::uint32_t>{1, 0, 2, 0, 0}));
    EXPECT_EQ(recs[4].words, (std::vector<std::uint32_t>{15, 95}));
    EXPECT_EQ(recs[5].words, (std::vector<std::uint32_t>{55, 95}));
    std::remove(name.c_str());
}

TEST(EmfSurface, RefreshOfNullDocumentWritesNothing) {
    const std::string name = testing::TempDir() + "qor_refresh_null.emf";
    const std::wstring wname(name.begin(), name.end());
    std::remove(name.c_str());
    refresh(nullptr, wname.c_str(), 110, 110);
    std::string bytes;
    EXPECT_FALSE(QOR::readFileBytes(wname.c_str(), bytes));
}

TEST(EmfSurface, LinesAreTheSameOnTheRecorderAndInTheMetafile) {
    // A mixed document drawn twice: the move and line calls of the recording
    // surface must be the move and line records of the metafile, in order.
    const auto doc = [] {
        CQorGDX gdx = plainDoc();
        gdx.extMaxViewSet(CQorPoint3d(0, 0, 0), CQorPoint3d(100, 100, 0));
        CQorVertexArray arc;
        arc.append(CQorVertex(CQorPoint3d(10, 10, 0), CQorPoint3d(60, 10, 0), 0.7));
        CQorArrayTempl<double> dashes;
        dashes.append(5.0);
        dashes.append(-2.0);
        gdx.imageVl(path({1}), 0, arc, indexed(1), CQorMatrix3d(), dashes, 1.0, 1, CQorPoint3d());
        gdx.imagePt(path({2}), 0, CQorPoint3d(70, 70, 0), indexed(2), CQorMatrix3d(), 5.0, 34,
                    CQorPoint3d());
        gdx.imageReg(path({3}), GDX_FLAG_FILL | GDX_FLAG_OUTLINE, region(rect(20, 20, 40, 30)),
                     indexed(3), CQorMatrix3d(), CQorArrayTempl<double>(), 1.0, 1, indexed(4),
                     QOR::CHatchProp(), CQorPoint3d());
        return gdx;
    };
    CQorGDX a = doc(), b = doc();
    QOR::CQorRecordingSurface rec;
    QOR::CQorItemPainter(rec, QOR::CQorPaintPolicy::metafile()).paint(a, 110, 110);
    CQorEmfSurface emf;
    QOR::CQorItemPainter(emf, QOR::CQorPaintPolicy::metafile()).paint(b, 110, 110);
    std::vector<std::string> fromRec, fromEmf;
    for (const QOR::DrawCall& c : rec.calls())
        if (c.op == QOR::DrawOp::MoveTo || c.op == QOR::DrawOp::LineTo)
            fromRec.push_back(QOR::CQorRecordingSurface::describe(c));
    for (const Record& r : records(emf.bytes())) {
        if (r.type == QOR::kEmrMovetoex || r.type == QOR::kEmrLineto)
            fromEmf.push_back(std::string(r.type == QOR::kEmrMovetoex ? "move " : "line ") +
                              std::to_string(i(r.words[0])) + " " + std::to_string(i(r.words[1])));
    }
    EXPECT_GT(fromRec.size(), 40u);
    EXPECT_EQ(fromEmf, fromRec);
}
