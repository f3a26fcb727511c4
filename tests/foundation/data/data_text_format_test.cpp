#include "foundation/data_tree.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdint>
#include <cstring>
#include <string>

using namespace QOR;

namespace {
std::string dataPath(const char* name) {
    return std::string(QOR_TEST_DATA_DIR) + "/" + name;
}

std::wstring wide(const std::string& s) {
    return std::wstring(s.begin(), s.end());
}

bool readText(const std::string& text, CQorDataItem& root, CQorString& error) {
    return dataTextRead(text.data(), text.size(), root, error);
}

// Both trees hold the same keys, types and bits, recursively.
::testing::AssertionResult sameTree(const CQorDataItem& a, const CQorDataItem& b,
                                    const std::string& path = "") {
    if (a.isDir() != b.isDir())
        return ::testing::AssertionFailure() << path << ": directory against value";
    if (!a.isDir()) {
        if (!rbEqual(a.data(), b.data()))
            return ::testing::AssertionFailure() << path << ": values differ";
        return ::testing::AssertionSuccess();
    }
    if (a.getDir()->len() != b.getDir()->len())
        return ::testing::AssertionFailure() << path << ": child counts differ";
    for (int i = 0; i < a.getDir()->len(); ++i) {
        const CQorDataItem* ca = a.getDir()->itemAt(i);
        const CQorDataItem* cb = b.getDir()->itemAt(i);
        if (!(*ca->getKey() == *cb->getKey()) || ca->getKey()->type() != cb->getKey()->type())
            return ::testing::AssertionFailure() << path << ": keys differ at " << i;
        auto r = sameTree(*ca, *cb, path + "/" + std::to_string(i));
        if (!r)
            return r;
    }
    return ::testing::AssertionSuccess();
}
} // namespace

TEST(DataText, FileOfEveryTypeReadsWithTheRightValues) {
    CQorDataItem root(1);
    CQorString error;
    ASSERT_TRUE(dataTextReadFile(wide(dataPath("data_text/every_type.qdt")).c_str(), root, error))
        << error.c_str();
    const CQorDataItem* atoms = root.getItem(L"ATOMS");
    ASSERT_NE(atoms, nullptr);
    EXPECT_EQ(atoms->getItem(L"ANGLE")->valueType(), 5004);
    EXPECT_EQ(atoms->getItem(L"ENAME")->data()->resval.rlname[0], 12345678901LL);
    EXPECT_EQ(atoms->getItem(L"INT32")->valueType(), 5031);
    EXPECT_EQ(atoms->getItem(L"KEYSTR")->valueType(), 5020);
    EXPECT_EQ(atoms->getItem(L"LONG")->data()->resval.rlong, INT32_MIN);
    EXPECT_EQ(atoms->getItem(L"NIL")->data(), nullptr);
    EXPECT_EQ(atoms->getItem(L"POINT")->data()->resval.rpoint[2], 3e-300);
    EXPECT_EQ(atoms->getItem(L"POINT2D")->valueType(), 5002);
    EXPECT_EQ(atoms->getItem(L"REAL")->data()->resval.rreal, 0.1);
    EXPECT_EQ(atoms->getItem(L"SHORT")->data()->resval.rint, -32768);
    EXPECT_EQ(atoms->getItem(L"T")->valueType(), 5021);
    EXPECT_EQ(atoms->getItem(L"TINY")->data()->resval.rreal, 5e-324);
    EXPECT_TRUE(std::isinf(atoms->getItem(L"HUGE")->data()->resval.rreal));
    const double nan = atoms->getItem(L"NAN")->data()->resval.rreal;
    std::uint64_t bits = 0;
    std::memcpy(&bits, &nan, sizeof bits);
    EXPECT_EQ(bits, 0x7ff8000000000abcull);
    double m[4][4] = {};
    const CQorDataKey mtx(L"LISTS\\MTX");
    ASSERT_TRUE(dataItemGet(&root, &mtx, m));
    EXPECT_EQ(m[0][3], 10.0);
    EXPECT_EQ(m[2][3], 30.0);
    CQorArrayTempl<CQorString> strs;
    const CQorDataKey strsKey(L"LISTS\\STRS");
    ASSERT_TRUE(root.get(strs, &strsKey));
    ASSERT_EQ(strs.len(), 4);
    EXPECT_EQ(strs[1], L"b c");
    EXPECT_EQ(strs[2], CQorString(L"\u00fc\u20ac\U0001D11E"));
    EXPECT_EQ(strs[3], L"tab\tquote\"back\\slash\x01");
    EXPECT_EQ(root.getItem(L"LISTS\\DOTTED")->data()->rbnext->rbnext->rbnext->restype, 5018);
    EXPECT_EQ(rbLength(root.getItem(L"LISTS\\TWO")->data()), 2);
    EXPECT_TRUE(root.getItem(L"EMPTYDIR")->isDir());
    const CQorDataKey neg(5003, -5, 0), deep(5003, 21, 5005, L"deep", 5005, L"deeper", 0);
    EXPECT_NE(root.getItem(&neg), nullptr);
    double d = 0;
    EXPECT_TRUE(root.get(d, &deep));
    EXPECT_EQ(d, 2.2250738585072014e-308);
    const CQorDataKey name(L"NAME");
    EXPECT_EQ(root.getItem(&name)->getKey()->type(), 5020);
}

TEST(DataText, EveryTypeRoundTripsBitIdentical) {
    CQorDataItem root(1);
    CQorString error;
    ASSERT_TRUE(dataTextReadFile(wide(dataPath("data_text/every_type.qdt")).c_str(), root, error))
        << error.c_str();
    const std::string text = dataTextWrite(root);
    CQorDataItem again(1);
    ASSERT_TRUE(readText(text, again, error)) << error.c_str() << "\n" << text;
    EXPECT_TRUE(sameTree(root, again)) << text;
    EXPECT_EQ(dataTextWrite(again), text);
}

TEST(DataText, RandomDoublesRoundTripBitIdentical) {
    std::uint64_t state = 0x9E3779B97F4A7C15ull;
    CQorDataItem root(1);
    for (int i = 0; i < 2000; ++i) {
        state ^= state << 13;
        state ^= state >> 7;
        state ^= state << 17;
        double v = 0;
        std::memcpy(&v, &state, sizeof v);
        const CQorDataKey k(5003, i, 0);
        dataItemSet(&root, &k, v);
    }
    CQorDataItem again(1);
    CQorString error;
    ASSERT_TRUE(readText(dataTextWrite(root), again, error)) << error.c_str();
    EXPECT_TRUE(sameTree(root, again));
}

TEST(DataText, UnusualStringsRoundTrip) {
    CQorDataItem root(1);
    std::wstring odd = L"a\u00e9\u4e2d";
    odd += static_cast<wchar_t>(0xD800); // a lone surrogate unit
    odd += L"\x7f\x1b z";
    const CQorDataKey k(L"S");
    dataItemSet(&root, &k, CQorString(odd.c_str()));
    const CQorDataKey keyWithQuote(L"we\"ird key");
    dataItemSet(&root, &keyWithQuote, 1);
    CQorDataItem again(1);
    CQorString error;
    const std::string text = dataTextWrite(root);
    ASSERT_TRUE(readText(text, again, error)) << error.c_str() << "\n" << text;
    EXPECT_TRUE(sameTree(root, again)) << text;
}

TEST(DataText, ValueRootIsWrittenAndReadAsEqualsLine) {
    CQorDataItem v;
    v.setData(rbReal(2.5), false);
    const std::string text = dataTextWrite(v);
    EXPECT_EQ(text, "= 2.5\n");
    CQorDataItem again(1);
    CQorString error;
    ASSERT_TRUE(readText(text, again, error)) << error.c_str();
    EXPECT_FALSE(again.isDir());
    EXPECT_TRUE(rbEqual(again.data(), v.data()));
}

TEST(DataText, WriterIndentsDirectoriesAndSortsKeys) {
    CQorDataItem root(1);
    const CQorDataKey b(L"B"), a(L"A\\X");
    dataItemSet(&root, &b, 1);
    dataItemSet(&root, &a, 0.5);
    EXPECT_EQ(dataTextWrite(root), "\"A\" {\n    \"X\" = 0.5\n}\n\"B\" = 1\n");
}

TEST(DataText, CommentsBlankLinesAndCrLfAreAccepted) {
    const std::string text =
        "# head\r\n\r\n\"A\" = 1 # one\r\n  \"B\" {   \r\n\"C\" = (1\r\n 2)\r\n}\r\n";
    CQorDataItem root(1);
    CQorString error;
    ASSERT_TRUE(readText(text, root, error)) << error.c_str();
    CQorArrayTempl<int> c;
    const CQorDataKey ck(L"B\\C");
    EXPECT_TRUE(root.get(c, &ck));
    EXPECT_EQ(c.len(), 2);
}

namespace {
struct Malformed {
    const char* text;
    const char* message;
};
} // namespace

TEST(DataText, MalformedTextNamesLineAndColumn) {
    const Malformed cases[] = {
        {"\"A\" = 1\n\"B\" 2\n", "line 2, column 5: expected '=' or '{' after the key"},
        {"\"A\" = \"open\n", "line 1, column 7: the string is not closed on its line"},
        {"\"A\" = 1\n\"B\" = (1 2\n", "line 2, column 7: this '(' is not closed"},
        {"\"A\" {\n  \"B\" = 1\n", "line 1, column 5: this '{' is not closed"},
        {"}\n", "line 1, column 1: '}' without '{'"},
        {"\"A\" = 1)\n", "line 1, column 8: ')' without '('"},
        {"\"A\" = 1\n\"A\" = 2\n", "line 2, column 1: this key is given twice in its directory"},
        {"\"A\" = 99999999999\n", "line 1, column 7: integer out of range"},
        {"\"A\" = 40000s\n", "line 1, column 7: short out of range"},
        {"\"A\" = [1 2]\n", "line 1, column 11: expected a number"},
        {"\"A\" = 1.5x\n", "line 1, column 7: unknown word in a value"},
        {"\"A\" = \"\\q\"\n", "line 1, column 8: unknown escape"},
        {"\"A\" = \"\\u{0}\"\n", "line 1, column 8: a string cannot hold character 0"},
        {"\"A\" = \"\xC3\"\n", "line 1, column 8: invalid UTF-8"},
        {"\"A\" =\n", "line 1, column 6: expected a value"},
        {"\"\" = 1\n", "line 1, column 1: the empty string is not a key"},
        {"A = 1\n", "line 1, column 1: expected a key (a quoted string or an integer)"},
        {"\"A\" = 1 \"B\" = 2\n", "line 1, column 13: unexpected character in a value"},
        {"\"A\" { \"B\" = 1\n}\n", "line 1, column 7: expected the end of the line"},
    };
    for (const Malformed& c : cases) {
        CQorDataItem root(1);
        CQorString error;
        EXPECT_FALSE(readText(c.text, root, error)) << c.text;
        EXPECT_EQ(error, wide(c.message).c_str()) << "input: " << c.text;
    }
}

TEST(DataText, FailedReadLosesNothingInMemory) {
    CQorDataItem root(1);
    const CQorDataKey k(L"KEEP");
    dataItemSet(&root, &k, 42);
    CQorString error;
    EXPECT_FALSE(readText("\"NEW\" = 1\n\"BAD\" = (\n", root, error));
    int v = 0;
    EXPECT_TRUE(root.get(v, &k));
    EXPECT_EQ(v, 42);
    EXPECT_EQ(root.getItem(L"NEW"), nullptr);
}

TEST(DataText, GuardRefusesDirectoriesNestedDeeperThanTwoHundred) {
    std::string text;
    for (int i = 0; i < kDataTextMaxDepth + 5; ++i)
        text += "\"D\" {\n";
    CQorDataItem root(1);
    CQorString error;
    EXPECT_FALSE(readText(text, root, error));
    EXPECT_NE(error.find(L"nested too deep"), -1) << error.c_str();
}

TEST(DataText, MissingFileFailsAndKeepsTheTree) {
    CQorDataItem root(1);
    const CQorDataKey k(L"KEEP");
    dataItemSet(&root, &k, 1);
    CQorString error;
    EXPECT_FALSE(dataTextReadFile(L"/nonexistent/nothing.qdt", root, error));
    EXPECT_EQ(error, L"cannot read the file");
    EXPECT_NE(root.getItem(&k), nullptr);
}

TEST(DataText, NanAngleWithSuffixRoundTrips) {
    // Found by fuzzing: "nana" reads as a NaN angle, written as "nan(0x...)a".
    CQorDataItem root(1);
    CQorString error;
    ASSERT_TRUE(readText("= nana\n", root, error)) << error.c_str();
    EXPECT_EQ(root.valueType(), 5004);
    const std::string text = dataTextWrite(root);
    CQorDataItem again(1);
    ASSERT_TRUE(readText(text, again, error)) << error.c_str() << "\n" << text;
    EXPECT_TRUE(rbEqual(root.data(), again.data()));
    EXPECT_EQ(dataTextWrite(again), text);
}
