#include "foundation/application/g_outline.h"
#include "foundation/application/outline_init.h"
#include "foundation/data/data_dir.h"
#include "foundation/data/data_item.h"
#include "foundation/data/data_iterator.h"
#include "foundation/data/data_key.h"
#include "foundation/geometry/constants.h"
#include "host/outline_defs.h"

#include <gtest/gtest.h>

#include <cmath>

namespace {

double signedArea(const CQorVertexArray& vl) {
    double a = 0.0;
    for (const CQorVertex& v : vl) {
        a += 0.5 * (v.m_start.x * v.m_end.y - v.m_end.x * v.m_start.y);
        if (v.m_bulge != 0.0) {
            const double th = 4.0 * std::atan(v.m_bulge);
            const double r = v.m_start.distanceTo(v.m_end) / (2.0 * std::sin(std::fabs(th) / 2.0));
            a += (th > 0 ? 0.5 : -0.5) * r * r * (std::fabs(th) - std::sin(std::fabs(th)));
        }
    }
    return a;
}

// The defaults of one outline in one range, as the outline dialog reads them.
CQorArrayTempl<double> defaults(const CQorDataItem* item, int range) {
    CQorArrayTempl<double> p;
    int count = 0;
    const CQorDataKey parmsKey(L"PARMS");
    item->get(count, &parmsKey);
    for (int i = 1; i <= count; ++i) {
        CQorString name;
        name.format(L"PARM%d", i);
        const CQorDataKey key(5005, name.c_str(), 5005, L"VAL", 5003, range, 0);
        double v = -1.0;
        EXPECT_TRUE(item->get(v, &key)) << name.c_str();
        p.append(v);
    }
    return p;
}

} // namespace

TEST(OutlineInit, RefusesNullAndFilledDirectories) {
    EXPECT_FALSE(qorOutlineInit(nullptr));
    CQorDataItem dir(1);
    ASSERT_TRUE(qorOutlineInit(&dir));
    const int n = dir.getDir()->len();
    EXPECT_FALSE(qorOutlineInit(&dir));
    EXPECT_EQ(dir.getDir()->len(), n);
}

TEST(OutlineInit, FillsEveryBuiltInCodeInOrder) {
    CQorDataItem dir(1);
    ASSERT_TRUE(qorOutlineInit(&dir));
    const int codes[] = {1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 21};
    ASSERT_EQ(dir.getDir()->len(), 12);
    for (int i = 0; i < 12; ++i) {
        const CQorDataItem* item = dir.getDir()->itemAt(i);
        ASSERT_NE(item, nullptr);
        ASSERT_TRUE(item->getKey()->isInt());
        EXPECT_EQ(item->getKey()->number(), codes[i]);
        int filter = 0, txtGen = 0, count = 0;
        CQorString label;
        const CQorDataKey c(L"CODE"), t(L"TXTGEN"), p(L"PARMS"), l(L"LABEL");
        EXPECT_TRUE(item->get(filter, &c));
        EXPECT_NE(filter & 0xF, 0);
        EXPECT_TRUE(item->get(txtGen, &t));
        EXPECT_TRUE(item->get(count, &p));
        EXPECT_GE(count, 1);
        EXPECT_LE(count, 6);
        ASSERT_TRUE(item->get(label, &l));
        EXPECT_NE(QOR::qorOutlineText(label.c_str()), nullptr) << label.c_str();
        for (int k = 1; k <= count; ++k) {
            CQorString name;
            name.format(L"PARM%d\\LABEL", k);
            const CQorDataKey lk(name.c_str());
            CQorString text;
            ASSERT_TRUE(item->get(text, &lk)) << name.c_str();
            EXPECT_NE(QOR::qorOutlineText(text.c_str()), nullptr) << text.c_str();
        }
    }
}

TEST(OutlineInit, DefaultsOfEveryRangeGiveACounterClockwiseContour) {
    CQorDataItem dir(1);
    ASSERT_TRUE(qorOutlineInit(&dir));
    for (int i = 0; i < dir.getDir()->len(); ++i) {
        const CQorDataItem* item = dir.getDir()->itemAt(i);
        const int code = item->getKey()->number();
        double previous = 0.0;
        for (int range = 1; range <= 4; ++range) {
            const CQorVertexArray vl = QOR::g_outline(code, CQorVector3d(), defaults(item, range));
            ASSERT_GT(vl.len(), 0) << code << " range " << range;
            EXPECT_TRUE(vl.isClosed()) << code;
            EXPECT_TRUE(vl.isContinuous()) << code;
            const double area = signedArea(vl);
            EXPECT_GT(area, 0.0) << code;
            if (range > 1 && code != QOR::kOutlineBentPlate) { // ten times the size
                EXPECT_NEAR(area / previous, 100.0, 1e-6) << code;
            }
            previous = area;
        }
    }
}

TEST(OutlineInit, BentPlateAngleIsAnAngleWithNamedValues) {
    CQorDataItem dir(1);
    ASSERT_TRUE(qorOutlineInit(&dir));
    const CQorDataKey key(5003, 21, 5005, L"PARM3", 0);
    const CQorDataItem* parm = dir.getItem(&key);
    ASSERT_NE(parm, nullptr);
    CQorString type;
    const CQorDataKey t(L"TYPE");
    ASSERT_TRUE(parm->get(type, &t));
    EXPECT_EQ(type, CQorString(L"A"));
    const CQorDataKey kw(L"KWORD\\rechtwinklig");
    double v = 0.0;
    ASSERT_TRUE(parm->get(v, &kw));
    EXPECT_NEAR(v, QOR::kPi / 2.0, 1e-15);
    const CQorDataKey val(5005, L"VAL", 5003, 3, 0);
    ASSERT_TRUE(parm->get(v, &val));
    EXPECT_EQ(v, 90.0); // stored in degrees
}

TEST(OutlineInit, SignedParametersCarryMinuspAndFixedOnesDoNot) {
    CQorDataItem dir(1);
    ASSERT_TRUE(qorOutlineInit(&dir));
    CQorString text;
    const CQorDataKey angleLeg(5003, 6, 5005, L"PARM1", 5005, L"MINUSP", 0);
    EXPECT_TRUE(dir.get(text, &angleLeg));
    EXPECT_NE(QOR::qorOutlineText(text.c_str()), nullptr);
    const CQorDataKey flatWidth(5003, 1, 5005, L"PARM1", 5005, L"MINUSP", 0);
    EXPECT_FALSE(dir.get(text, &flatWidth));
    EXPECT_EQ(QOR::qorOutlineText(L"QOR_OUTL_9999"), nullptr);
    EXPECT_EQ(QOR::qorOutlineText(nullptr), nullptr);
    EXPECT_STREQ(QOR::qorOutlineText(L"QOR_OUTL_0018"), L"I-Tr\u00e4ger");
}
