#include "host/hatch_pattern_table.h"

#include <gtest/gtest.h>

#include <cstring>
#include <string>

using namespace QOR;

namespace {
std::wstring dataFile(const char* rel) {
    const std::string s = std::string(QOR_TEST_DATA_DIR) + "/hatch/" + rel;
    return std::wstring(s.begin(), s.end());
}

int load(CHatchPatternTable& t, const std::string& text,
         CQorArrayTempl<CQorString>* rejected = nullptr) {
    return t.loadText(text.data(), text.size(), rejected);
}

int familyCount(const CHatchPatternTable& t) {
    int n = 0;
    for (int i = 0; i < t.count(); ++i)
        n += t.at(i).lines.len();
    return n;
}
} // namespace

TEST(HatchPatternTable, ReadsHeaderAndLineFamilies) {
    CHatchPatternTable t;
    EXPECT_EQ(
        load(t, "*ANSI31, iron\n45, 0,0, 0,.125\n*TWO,x\n0,0,0,0,1, .5,-.25, 0\n90,1,2,3,4\n"), 2);
    CQorArrayTempl<CQorArrayTempl<double>> lines;
    ASSERT_TRUE(t.get(L"ANSI31", lines));
    ASSERT_EQ(lines.len(), 1);
    ASSERT_EQ(lines[0].len(), 5);
    EXPECT_EQ(lines[0][0], 45.0);
    EXPECT_EQ(lines[0][4], 0.125);
    ASSERT_TRUE(t.get(L"two", lines));
    ASSERT_EQ(lines.len(), 2);
    ASSERT_EQ(lines[0].len(), 8);
    EXPECT_EQ(lines[0][6], -0.25);
    EXPECT_EQ(lines[0][7], 0.0);
    EXPECT_EQ(t.find(L"ANSI31")->description, L"iron");
}

TEST(HatchPatternTable, UnknownNameLeavesTheTableEmpty) {
    CHatchPatternTable t;
    load(t, "*A\n0,0,0,0,1\n");
    CQorArrayTempl<CQorArrayTempl<double>> lines;
    lines.setLogicalLength(3);
    EXPECT_FALSE(t.get(L"NOPE", lines));
    EXPECT_EQ(lines.len(), 0);
    EXPECT_FALSE(t.get(nullptr, lines));
}

TEST(HatchPatternTable, ToleratesCommentsBlankLinesCrLfSpacesAndTrailingJunk) {
    CHatchPatternTable t;
    const std::string text = ";; header comment\r\n\r\n  *P1 ,  spaced  \r\n ; inner comment\r\n"
                             "\t0 , 0 , 0 , 0 , .5 ; trailing comment\r\n"
                             "90, 0,0, 0,1, .25,-.25,\r\n"
                             "45, 0,0, 0,2 junk\r\n\x1A";
    CQorArrayTempl<CQorString> rejected;
    EXPECT_EQ(load(t, text, &rejected), 1);
    EXPECT_EQ(rejected.len(), 0) << (rejected.len() ? rejected[0].c_str() : L"");
    CQorArrayTempl<CQorArrayTempl<double>> lines;
    ASSERT_TRUE(t.get(L"P1", lines));
    ASSERT_EQ(lines.len(), 3);
    EXPECT_EQ(lines[0][4], 0.5);
    EXPECT_EQ(lines[1].len(), 7);
    EXPECT_EQ(lines[2][4], 2.0);
    EXPECT_EQ(t.find(L"p1")->description, L"spaced");
}

TEST(HatchPatternTable, MalformedLineIsRejectedAndTheRestKept) {
    CHatchPatternTable t;
    const std::string text = "*A\n0,0,0,0,1\n0,0,x,0,1\n0,0,0\n*\n1,2,3,4,5\n*B\n90,0,0,0,2\n";
    CQorArrayTempl<CQorString> rejected;
    EXPECT_EQ(load(t, text, &rejected), 2);
    ASSERT_EQ(rejected.len(), 4);
    EXPECT_EQ(rejected[0], L"line 3: not a list of numbers");
    EXPECT_EQ(rejected[1], L"line 4: fewer than five numbers");
    EXPECT_EQ(rejected[2], L"line 5: a pattern header without a name");
    EXPECT_EQ(rejected[3], L"line 6: a line family outside a pattern");
    CQorArrayTempl<CQorArrayTempl<double>> lines;
    ASSERT_TRUE(t.get(L"A", lines));
    EXPECT_EQ(lines.len(), 1);
    ASSERT_TRUE(t.get(L"B", lines));
    EXPECT_EQ(lines.len(), 1);
}

TEST(HatchPatternTable, BrokenInputNeverCrashes) {
    const std::string inputs[] = {"",
                                  "*",
                                  "*,",
                                  ",,,,,",
                                  "*A\n,,,,,\n",
                                  "*A\n1e999,0,0,0,1\n",
                                  "*A\nnan,0,0,0,1\n",
                                  std::string("\xff\xfe*\x00\n", 5),
                                  "*A\n-,-,-,-,-\n"};
    for (const std::string& in : inputs) {
        CHatchPatternTable t;
        CQorArrayTempl<CQorString> rejected;
        t.loadText(in.data(), in.size(), &rejected);
        for (int i = 0; i < t.count(); ++i)
            for (int k = 0; k < t.at(i).lines.len(); ++k)
                EXPECT_GE(t.at(i).lines[k].len(), 5);
    }
    CHatchPatternTable t;
    EXPECT_EQ(t.loadText(nullptr, 10), 0);
    EXPECT_EQ(t.loadFile(L"/nonexistent/none.pat"), -1);
}

TEST(HatchPatternTable, SameNameAgainReplacesTheLines) {
    CHatchPatternTable t;
    load(t, "*A\n0,0,0,0,1\n0,0,0,0,2\n");
    load(t, "*a\n45,0,0,0,3\n");
    EXPECT_EQ(t.count(), 1);
    CQorArrayTempl<CQorArrayTempl<double>> lines;
    ASSERT_TRUE(t.get(L"A", lines));
    ASSERT_EQ(lines.len(), 1);
    EXPECT_EQ(lines[0][0], 45.0);
}

TEST(HatchPatternTable, OurPatternFileHoldsTheCommonPatternsWithoutRejects) {
    CHatchPatternTable t;
    CQorArrayTempl<CQorString> rejected;
    const char* text = builtinPatternText();
    EXPECT_EQ(t.loadText(text, std::strlen(text), &rejected), 16);
    EXPECT_EQ(rejected.len(), 0);
    const struct {
        const wchar_t* name;
        int families;
    } expected[] = {{L"ANSI31", 1}, {L"ANSI32", 2},  {L"ANSI33", 2},      {L"ANSI34", 4},
                    {L"ANSI35", 2}, {L"ANSI36", 1},  {L"ANSI37", 2},      {L"ANSI38", 2},
                    {L"DENSE", 1},  {L"DENSE45", 1}, {L"DENSE_CROSS", 2}, {L"BRICK", 2},
                    {L"DOTS", 1},   {L"CROSS", 2},   {L"GRAVEL", 5},      {L"INSULATION", 3}};
    for (const auto& e : expected) {
        CQorArrayTempl<CQorArrayTempl<double>> lines;
        ASSERT_TRUE(t.get(e.name, lines)) << e.name;
        EXPECT_EQ(lines.len(), e.families) << e.name;
        for (int i = 0; i < lines.len(); ++i) {
            EXPECT_GE(lines[i].len(), 5);
            EXPECT_GT(lines[i][4], 0.0) << e.name << " family " << i << " has no row distance";
        }
    }
    CQorArrayTempl<CQorArrayTempl<double>> ansi31;
    t.get(L"ANSI31", ansi31);
    EXPECT_EQ(ansi31[0][0], 45.0);
    EXPECT_EQ(ansi31[0][4], 0.125);
}

TEST(HatchPatternTable, PublicFilesLoadEveryPatternAndEveryLineFamily) {
    const struct {
        const char* file;
        int patterns;
        int families;
    } files[] = {
        {"FreeCAD/FCPAT.pat", 8, 12},
        {"qcad/imperial/acad_iso02w100.pat", 1, 1},
        {"qcad/imperial/ansi31.pat", 1, 1},
        {"qcad/imperial/ansi37.pat", 1, 2},
        {"qcad/imperial/ar-b816.pat", 1, 2},
        {"qcad/imperial/ar-conc-01.pat", 1, 531},
        {"qcad/imperial/ar-conc.pat", 1, 13},
        {"qcad/imperial/ar-hbone.pat", 1, 2},
        {"qcad/imperial/brick.pat", 1, 3},
        {"qcad/imperial/escher.pat", 1, 21},
        {"qcad/imperial/grass.pat", 1, 3},
        {"qcad/imperial/hex.pat", 1, 3},
        {"qcad/imperial/holly.pat", 1, 186},
        {"qcad/imperial/insul.pat", 1, 3},
        {"qcad/metric/acad_iso02w100.pat", 1, 1},
        {"qcad/metric/ansi31.pat", 1, 1},
        {"qcad/metric/ansi37.pat", 1, 2},
        {"qcad/metric/ar-b816.pat", 1, 2},
        {"qcad/metric/ar-conc-01.pat", 1, 531},
        {"qcad/metric/ar-conc.pat", 1, 13},
        {"qcad/metric/ar-hbone.pat", 1, 2},
        {"qcad/metric/brick.pat", 1, 3},
        {"qcad/metric/escher.pat", 1, 21},
        {"qcad/metric/grass.pat", 1, 3},
        {"qcad/metric/hex.pat", 1, 3},
        {"qcad/metric/holly.pat", 1, 186},
        {"qcad/metric/insul.pat", 1, 3},
        {"qcad/metric/jis_rc_10.pat", 1, 3},
        {"qcad/metric/jis_wood.pat", 1, 1},
    };
    for (const auto& f : files) {
        CHatchPatternTable t;
        CQorArrayTempl<CQorString> rejected;
        EXPECT_EQ(t.loadFile(dataFile(f.file).c_str(), &rejected), f.patterns) << f.file;
        EXPECT_EQ(t.count(), f.patterns) << f.file;
        EXPECT_EQ(familyCount(t), f.families) << f.file;
        EXPECT_EQ(rejected.len(), 0)
            << f.file << ": " << (rejected.len() ? rejected[0].c_str() : L"");
    }
}

TEST(HatchPatternTable, PublicFileValuesAreReadExactly) {
    CHatchPatternTable t;
    ASSERT_EQ(t.loadFile(dataFile("qcad/imperial/insul.pat").c_str()), 1);
    CQorArrayTempl<CQorArrayTempl<double>> lines;
    ASSERT_TRUE(t.get(L"INSUL", lines));
    ASSERT_EQ(lines.len(), 3);
    EXPECT_EQ(lines[0][4], 0.375);
    EXPECT_EQ(lines[2][2], 0.25);
    EXPECT_EQ(lines[2][5], 0.125);
    EXPECT_EQ(lines[2][6], -0.125);
    CHatchPatternTable fc;
    ASSERT_EQ(fc.loadFile(dataFile("FreeCAD/FCPAT.pat").c_str()), 8);
    ASSERT_TRUE(fc.get(L"Square", lines));
    ASSERT_EQ(lines.len(), 2);
    EXPECT_EQ(lines[0][0], 90.0);
    EXPECT_EQ(lines[0][1], 1.0);
    EXPECT_EQ(fc.find(L"square")->description, L"square grid, Solid, 5.0 mm separation");
}
