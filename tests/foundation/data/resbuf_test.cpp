#include "foundation/data/resbuf.h"
#include "foundation/data/resbuf_value.h"
#include "foundation/data/smart_resbuf.h"

#include <gtest/gtest.h>

#include <cmath>

using namespace QOR;

TEST(Resbuf, CopyIsDeepAndEqual) {
    resbuf* a = rbAppend(rbString(L"text"), rbAppend(rbReal(1.5), rbShort(3)));
    resbuf* b = rbCopy(a);
    ASSERT_NE(b, nullptr);
    EXPECT_NE(b->resval.rstring, a->resval.rstring);
    EXPECT_TRUE(rbEqual(a, b));
    b->rbnext->resval.rreal = 2.5;
    EXPECT_FALSE(rbEqual(a, b));
    qorRelRb(a);
    qorRelRb(b);
}

TEST(Resbuf, RelRbAcceptsNullAndReleasesAWholeChain) {
    qorRelRb(nullptr);
    // The sanitizer build reports a leak if any node of the chain stays behind.
    resbuf* chain = rbAppend(rbAppend(rbLong(1), rbString(L"two")), rbReal(3.0));
    ASSERT_EQ(rbLength(chain), 3);
    qorRelRb(chain);
}

TEST(Resbuf, ToListEnclosesAChainThatIsNotOneList) {
    resbuf* list = rbToList(rbAppend(rbLong(1), rbLong(2)));
    ASSERT_EQ(rbLength(list), 4);
    EXPECT_EQ(list->restype, kRtLb);
    EXPECT_EQ(rbLast(list)->restype, kRtLe);
    qorRelRb(list);
}

TEST(Resbuf, ToListKeepsAChainThatIsOneList) {
    resbuf* chain = mkResbuf(CQorArrayTempl<int>());
    qorRelRb(chain);
    CQorArrayTempl<int> a;
    a.append(1);
    chain = mkResbuf(a);
    resbuf* list = rbToList(chain);
    EXPECT_EQ(list, chain);
    EXPECT_EQ(rbLength(list), 3);
    qorRelRb(list);
}

TEST(Resbuf, ToListOfTwoListsEnclosesThem) {
    resbuf* two =
        rbAppend(rbAppend(rbNew(kRtLb), rbNew(kRtLe)), rbAppend(rbNew(kRtLb), rbNew(kRtLe)));
    resbuf* list = rbToList(two);
    EXPECT_NE(list, two);
    EXPECT_EQ(rbLength(list), 6);
    qorRelRb(list);
}

TEST(Resbuf, ToListOfNullIsTheEmptyList) {
    resbuf* list = rbToList(nullptr);
    ASSERT_EQ(rbLength(list), 2);
    EXPECT_EQ(list->restype, kRtLb);
    EXPECT_EQ(list->rbnext->restype, kRtLe);
    qorRelRb(list);
}

TEST(SmartResbuf, AppendsAndReleasesItsChain) {
    CSmartResbuf rb(rbLong(1));
    rb.append(rbReal(2.0));
    rb.append(nullptr);
    EXPECT_EQ(rbLength(rb), 2);
    EXPECT_EQ(rb->restype, kRtLong);
    resbuf* raw = rb;
    EXPECT_EQ(raw->rbnext->restype, kRtReal);
    CSmartResbuf empty;
    EXPECT_EQ(static_cast<resbuf*>(empty), nullptr);
    empty.append(rbShort(4));
    EXPECT_EQ(empty->resval.rint, 4);
}

TEST(MkResbuf, IntIsOneLongNode) {
    CSmartResbuf rb(mkResbuf(42));
    ASSERT_EQ(rbLength(rb), 1);
    EXPECT_EQ(rb->restype, 5010);
    EXPECT_EQ(rb->resval.rlong, 42);
}

TEST(MkResbuf, RealTakesItsType) {
    CSmartResbuf a(mkResbuf(1.25, 5001));
    EXPECT_EQ(a->restype, 5001);
    EXPECT_EQ(a->resval.rreal, 1.25);
    CSmartResbuf b(mkResbuf(0.5, 5004));
    EXPECT_EQ(b->restype, 5004);
}

TEST(MkResbuf, EmptyArraysAreNil) {
    CSmartResbuf a(mkResbuf(CQorArrayTempl<int>()));
    EXPECT_EQ(a->restype, 5019);
    CSmartResbuf b(mkResbuf(CQorArrayTempl<CQorString>()));
    EXPECT_EQ(b->restype, 5019);
}

TEST(MkResbuf, StringArrayIsAListOfStrings) {
    CQorArrayTempl<CQorString> s;
    s.append(L"a");
    s.append(L"bc");
    CSmartResbuf rb(mkResbuf(s));
    ASSERT_EQ(rbLength(rb), 4);
    EXPECT_EQ(rb->restype, 5016);
    EXPECT_STREQ(rb->rbnext->rbnext->resval.rstring, L"bc");
    CQorArrayTempl<CQorString> back;
    ASSERT_TRUE(rbRead(rb, back));
    ASSERT_EQ(back.len(), 2);
    EXPECT_EQ(back[1], L"bc");
}

TEST(MkResbuf, MatrixReadsBackExactly) {
    double m[4][4];
    for (int r = 0; r < 4; ++r)
        for (int c = 0; c < 4; ++c)
            m[r][c] = r * 4 + c + 0.1;
    CSmartResbuf rb(mkResbuf(m));
    EXPECT_EQ(rbLength(rb), 2 + 4 * 6);
    double back[4][4] = {};
    ASSERT_TRUE(rbReadMatrix(rb, back));
    for (int r = 0; r < 4; ++r)
        for (int c = 0; c < 4; ++c)
            EXPECT_EQ(back[r][c], m[r][c]);
}

TEST(RbRead, ShortOfAResultChainReadsAsInt) {
    CSmartResbuf rb(rbShort(-7));
    int v = 0;
    ASSERT_TRUE(rbRead(rb, v));
    EXPECT_EQ(v, -7);
}

TEST(RbRead, RealReadsAsIntTruncatedTowardZero) {
    CSmartResbuf rb(rbReal(-2.75));
    int v = 0;
    ASSERT_TRUE(rbRead(rb, v));
    EXPECT_EQ(v, -2);
    CSmartResbuf nan(rbReal(std::nan("")));
    v = 5;
    EXPECT_FALSE(rbRead(nan, v));
    EXPECT_EQ(v, 5);
    CSmartResbuf big(rbReal(1e12));
    EXPECT_FALSE(rbRead(big, v));
    EXPECT_EQ(v, 5);
}

TEST(RbRead, NegativeIntReadsAsItsThirtyTwoBitsUnsigned) {
    CSmartResbuf rb(rbLong(-1));
    unsigned long v = 0;
    ASSERT_TRUE(rbRead(rb, v));
    EXPECT_EQ(v, 0xFFFFFFFFul);
}
