#include "foundation/records/labels.h"

#include "foundation/records/messages.h"

#include <gtest/gtest.h>

namespace {

class Labels : public ::testing::Test {
protected:
    void SetUp() override { QOR::msgLangSet(L"DEU"); }
    void TearDown() override { QOR::msgLangSet(L"DEU"); }
};

CQorString get(const wchar_t* label, const wchar_t* lang) {
    CQorString out(L"untouched");
    if (!QOR::label_get(out, label, lang, false))
        return L"<none>";
    return out;
}

} // namespace

TEST_F(Labels, TextsInSeveralLanguagesComeBackEachInItsOwn) {
    CQorString label;
    QOR::label_set(label, L"Stahl", L"DEU");
    QOR::label_set(label, L"Steel", L"ENG");
    QOR::label_set(label, L"Acier", L"FRA");
    QOR::label_set(label, L"Acciaio", L"ITA");
    EXPECT_EQ(label, L"\\DEU:Stahl\\ENG:Steel\\FRA:Acier\\ITA:Acciaio");
    EXPECT_EQ(get(label, L"DEU"), L"Stahl");
    EXPECT_EQ(get(label, L"ENG"), L"Steel");
    EXPECT_EQ(get(label, L"FRA"), L"Acier");
    EXPECT_EQ(get(label, L"ITA"), L"Acciaio");
}

TEST_F(Labels, MissingLanguageIsFalseAndEmptiesOut) {
    const CQorString label = QOR::label_set(L"", L"Stahl", L"DEU");
    CQorString out(L"x");
    EXPECT_FALSE(QOR::label_get(out, label, L"ENG", false));
    EXPECT_TRUE(out.isNull());
}

TEST_F(Labels, LabelBeginsWithABackslash) {
    const CQorString label = QOR::label_set(nullptr, L"Steel", L"ENG");
    EXPECT_EQ(label[0], L'\\');
    EXPECT_EQ(label, L"\\ENG:Steel");
}

TEST_F(Labels, SetReplacesTheTextOfALanguageInPlace) {
    CQorString label(L"\\DEU:Stahl\\ENG:Steel");
    const wchar_t* chars = QOR::label_set(label, L"Stainless steel", L"eng");
    EXPECT_EQ(label, L"\\DEU:Stahl\\ENG:Stainless steel");
    EXPECT_STREQ(chars, label.c_str());
}

TEST_F(Labels, EmptyTextRemovesTheLanguage) {
    CQorString label(L"\\DEU:Stahl\\ENG:Steel");
    QOR::label_set(label, L"", L"DEU");
    EXPECT_EQ(label, L"\\ENG:Steel");
    QOR::label_set(label, nullptr, L"ENG");
    EXPECT_EQ(label, L"");
}

TEST_F(Labels, CopyFormLeavesTheOriginalAlone) {
    const wchar_t* original = L"\\DEU:Stahl";
    const CQorString changed = QOR::label_set(original, L"Steel", L"ENG");
    EXPECT_STREQ(original, L"\\DEU:Stahl");
    EXPECT_EQ(changed, L"\\DEU:Stahl\\ENG:Steel");
}

TEST_F(Labels, LanguageCodesAreComparedWithoutCase) {
    const CQorString label(L"\\deu:Stahl");
    EXPECT_EQ(get(label, L"DEU"), L"Stahl");
    EXPECT_EQ(get(label, L"Deu"), L"Stahl");
}

TEST_F(Labels, NullAndMinusOneAreTheCurrentLanguage) {
    CQorString label;
    QOR::label_set(label, L"Stahl", nullptr);
    QOR::msgLangSet(L"ENG");
    QOR::label_set(label, L"Steel", L"-1");
    EXPECT_EQ(label, L"\\DEU:Stahl\\ENG:Steel");
    EXPECT_EQ(get(label, nullptr), L"Steel");
    QOR::msgLangSet(L"DEU");
    EXPECT_EQ(get(label, L"-1"), L"Stahl");
}

TEST_F(Labels, BackslashesAndLineFeedsInTextsSurvive) {
    CQorString label;
    QOR::label_set(label, L"C:\\data\\", L"DEU");
    QOR::label_set(label, L"two\nlines", L"ENG");
    EXPECT_EQ(label, L"\\DEU:C:\\\\data\\\\\\ENG:two\nlines");
    EXPECT_EQ(get(label, L"DEU"), L"C:\\data\\");
    EXPECT_EQ(get(label, L"ENG"), L"two\nlines");
}

TEST_F(Labels, ColonsInTextsSurvive) {
    const CQorString label = QOR::label_set(L"", L"a: b", L"FRA");
    EXPECT_EQ(get(label, L"FRA"), L"a: b");
}

TEST_F(Labels, PlainTextIsTheTextOfEveryLanguage) {
    EXPECT_EQ(get(L"Stahl", L"DEU"), L"Stahl");
    EXPECT_EQ(get(L"Stahl", L"ITA"), L"Stahl");
}

TEST_F(Labels, PlainTextBecomesTheCurrentLanguageWhenSet) {
    CQorString label(L"Stahl");
    QOR::label_set(label, L"Steel", L"ENG");
    EXPECT_EQ(label, L"\\DEU:Stahl\\ENG:Steel");
}

TEST_F(Labels, NullLabelHasNoText) {
    CQorString out(L"x");
    EXPECT_FALSE(QOR::label_get(out, nullptr, L"DEU", false));
    EXPECT_TRUE(out.isNull());
}

TEST_F(Labels, ReadingStopsAtAnEntryWithoutColon) {
    EXPECT_EQ(get(L"\\DEU:Stahl\\ENG", L"DEU"), L"Stahl");
    EXPECT_EQ(get(L"\\DEU:Stahl\\ENG", L"ENG"), L"<none>");
    EXPECT_EQ(get(L"\\", L"DEU"), L"<none>");
}
