#include "foundation/records/messages.h"

#include "host/app_paths.h"
#include "host/message_store.h"

#include <gtest/gtest.h>

namespace {

const wchar_t* const kMessageDir = L"" QOR_TEST_DATA_DIR L"/messages";
const wchar_t* const kMessageFile = L"" QOR_TEST_DATA_DIR L"/messages/QOR_msg.txt";

// Each test starts from an empty store, no paths and German as the language.
class Messages : public ::testing::Test {
protected:
    void SetUp() override { reset(); }
    void TearDown() override { reset(); }
    static void reset() {
        QOR::host::msgStoreClear();
        QOR::host::appPathsClear();
        QOR::msgLangSet(L"DEU");
    }
};

} // namespace

TEST_F(Messages, LanguageStartsGermanAndNullOnlyReads) {
    EXPECT_STREQ(QOR::msgLangSet(nullptr), L"DEU");
    EXPECT_STREQ(QOR::msgLangSet(L"ENG"), L"ENG");
    EXPECT_STREQ(QOR::msgLangSet(nullptr), L"ENG");
    EXPECT_STREQ(QOR::msgLangSet(L"-1"), L"ENG");
    EXPECT_STREQ(QOR::msgLangSet(L""), L"ENG");
}

TEST_F(Messages, ReturnedCodeStaysValidAfterTheLanguageChanges) {
    const wchar_t* german = QOR::msgLangSet(nullptr);
    const wchar_t* italian = QOR::msgLangSet(L"ITA");
    QOR::msgLangSet(L"a longer code that needs storage of its own");
    QOR::msgLangSet(L"FRA");
    EXPECT_STREQ(german, L"DEU");
    EXPECT_STREQ(italian, L"ITA");
    EXPECT_EQ(QOR::msgLangSet(L"ITA"), italian);
}

TEST_F(Messages, FileEntryGivesTheTextOfTheLanguage) {
    EXPECT_EQ(QOR::host::msgFileLoad(L"QOR_", kMessageFile), 6);
    EXPECT_EQ(qor_msg_get(L"QOR_", L"QOR_MFC_0002", L"Wert darf nicht größer sein als", L"ENG"),
              L"Value must not be greater than");
    EXPECT_EQ(qor_msg_get(L"QOR_", L"QOR_MFC_0002", L"Wert darf nicht größer sein als", L"FRA"),
              L"La valeur ne doit pas dépasser");
}

TEST_F(Messages, MissingKeyGivesTheDefault) {
    QOR::host::msgFileLoad(L"QOR_", kMessageFile);
    EXPECT_EQ(qor_msg_get(L"QOR_", L"QOR084", L"Einheit wählen", L"ENG"), L"Einheit wählen");
}

TEST_F(Messages, MissingLanguageGivesTheDefaultNotAnotherLanguage) {
    QOR::host::msgFileLoad(L"QOR_", kMessageFile);
    EXPECT_EQ(qor_msg_get(L"QOR_", L"QOR_MFC_0002", L"Wert darf nicht größer sein als", L"ITA"),
              L"Wert darf nicht größer sein als");
}

TEST_F(Messages, NullDefaultGivesAnEmptyText) {
    QOR::host::msgFileLoad(L"QOR_", kMessageFile);
    EXPECT_EQ(qor_msg_get(L"QOR_", L"QOR_NOWHERE", nullptr, L"ENG"), L"");
    EXPECT_EQ(qor_msg_get(L"QOR_", nullptr, nullptr, nullptr), L"");
}

TEST_F(Messages, MinusOneAndNullAreTheCurrentLanguage) {
    QOR::host::msgFileLoad(L"QOR_", kMessageFile);
    EXPECT_EQ(qor_msg_get(L"QOR_", L"QOR_MFC_0009", L"Bezeichnung", L"-1"), L"Bezeichnung");
    QOR::msgLangSet(L"ENG");
    EXPECT_EQ(qor_msg_get(L"QOR_", L"QOR_MFC_0009", L"Bezeichnung", L"-1"), L"Label");
    EXPECT_EQ(qor_msg_get(L"QOR_", L"QOR_MFC_0009", L"Bezeichnung", nullptr), L"Label");
}

TEST_F(Messages, LanguageIsComparedWithoutCase) {
    QOR::host::msgFileLoad(L"QOR_", kMessageFile);
    EXPECT_EQ(qor_msg_get(L"QOR_", L"QOR_MFC_0009", L"Bezeichnung", L"Eng"), L"Label");
}

TEST_F(Messages, KeysAreExact) {
    QOR::host::msgFileLoad(L"QOR_", kMessageFile);
    EXPECT_EQ(qor_msg_get(L"QOR_", L"qor_mfc_0009", L"Bezeichnung", L"ENG"), L"Bezeichnung");
}

TEST_F(Messages, EscapesGiveLineFeedAndBackslashAndSemicolonsStay) {
    QOR::host::msgFileLoad(L"QOR_", kMessageFile);
    EXPECT_EQ(qor_msg_get(L"QOR_", L"QOR_TEST_LINES", nullptr, L"ENG"),
              L"first\nsecond\\third;with semicolon");
}

TEST_F(Messages, MalformedLinesAreSkippedAndLaterEntriesWin) {
    QOR::host::msgFileLoad(L"QOR_", kMessageFile);
    EXPECT_EQ(qor_msg_get(L"QOR_", L"QOR_TEST_BROKEN", L"-", L"ENG"), L"-");
    EXPECT_EQ(qor_msg_get(L"QOR_", L"QOR_TEST_NOLANG", L"-", L""), L"-");
    EXPECT_EQ(qor_msg_get(L"QOR_", L"QOR_TEST_LATER", nullptr, L"ENG"), L"second text");
}

TEST_F(Messages, CrLfLineEndsAreRemoved) {
    EXPECT_EQ(QOR::host::msgFileLoad(L"X", L"" QOR_TEST_DATA_DIR L"/messages/crlf_msg.txt"), 2);
    EXPECT_EQ(qor_msg_get(L"X", L"QOR_CRLF", nullptr, L"ENG"), L"with carriage return");
    EXPECT_EQ(qor_msg_get(L"X", L"QOR_CRLF", nullptr, L"DEU"), L"mit Wagenrücklauf");
}

TEST_F(Messages, PrefixesKeepTheirOwnTexts) {
    QOR::host::msgFileLoad(L"QOR_", kMessageFile);
    EXPECT_EQ(qor_msg_get(L"OTHER_", L"QOR_MFC_0009", L"Bezeichnung", L"ENG"), L"Bezeichnung");
}

TEST_F(Messages, MissingFileLoadsNothing) {
    EXPECT_EQ(QOR::host::msgFileLoad(L"QOR_", L"" QOR_TEST_DATA_DIR L"/messages/none.txt"), -1);
    EXPECT_EQ(QOR::host::msgFileLoad(L"QOR_", nullptr), -1);
}

TEST_F(Messages, FileOfThePrefixIsFoundAlongTheApplicationPaths) {
    EXPECT_EQ(qor_msg_get(L"QOR_", L"QOR_MFC_0009", L"Bezeichnung", L"ENG"), L"Bezeichnung");
    QOR::host::msgStoreClear();
    QOR::host::appPathAdd(kMessageDir);
    EXPECT_EQ(qor_msg_get(L"QOR_", L"QOR_MFC_0009", L"Bezeichnung", L"ENG"), L"Label");
}

TEST_F(Messages, TextsSetInTheStoreAreFoundAndRemoved) {
    QOR::host::msgTextSet(L"QOR_", L"QOR001", L"ita", L"Errore");
    EXPECT_EQ(qor_msg_get(L"QOR_", L"QOR001", L"Fehler", L"ITA"), L"Errore");
    QOR::host::msgTextSet(L"QOR_", L"QOR001", L"ITA", nullptr);
    EXPECT_EQ(qor_msg_get(L"QOR_", L"QOR001", L"Fehler", L"ITA"), L"Fehler");
}
