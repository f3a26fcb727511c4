#include "foundation/base/file_io.h"

#include "foundation/base/utf8.h"

#include <gtest/gtest.h>

#include <cstdio>
#include <string>

namespace {

// A file name in the test's temporary folder, wide.
std::wstring tempName(const wchar_t* leaf) {
    const std::string dir = testing::TempDir();
    return QOR::fromUtf8(dir.data(), dir.size()).str() + leaf;
}

void removeFile(const std::wstring& name) {
#if defined(_WIN32)
    _wremove(name.c_str());
#else
    std::remove(QOR::toUtf8(name.c_str()).c_str());
#endif
}

} // namespace

TEST(FileIo, WholeFileWrittenReadsBackByteForByte) {
    const std::wstring name = tempName(L"qor_file_io_\u00E4\u20AC.bin");
    std::string bytes("a\0b\r\n\xFF", 6);
    bytes += std::string(70000, 'x'); // longer than one read
    ASSERT_TRUE(QOR::writeFileBytes(name.c_str(), bytes));
    EXPECT_TRUE(QOR::fileReadable(name.c_str()));
    std::string back = "old";
    ASSERT_TRUE(QOR::readFileBytes(name.c_str(), back));
    EXPECT_EQ(back, bytes);
    std::FILE* f = QOR::fileOpen(name.c_str(), false);
    ASSERT_NE(f, nullptr);
    EXPECT_EQ(std::fgetc(f), 'a');
    std::fclose(f);
    ASSERT_TRUE(QOR::writeFileBytes(name.c_str(), std::string()));
    ASSERT_TRUE(QOR::readFileBytes(name.c_str(), back));
    EXPECT_EQ(back, "");
    removeFile(name);
}

TEST(FileIo, MissingFileIsNotReadableAndLeavesTheBytes) {
    const std::wstring name = tempName(L"qor_file_io_none.bin");
    removeFile(name);
    std::string out = "kept";
    EXPECT_FALSE(QOR::readFileBytes(name.c_str(), out));
    EXPECT_EQ(out, "kept");
    EXPECT_FALSE(QOR::fileReadable(name.c_str()));
    EXPECT_EQ(QOR::fileOpen(name.c_str(), false), nullptr);
}

TEST(FileIo, NullOrEmptyNameOpensNothing) {
    std::string out = "kept";
    EXPECT_EQ(QOR::fileOpen(nullptr, false), nullptr);
    EXPECT_EQ(QOR::fileOpen(L"", true), nullptr);
    EXPECT_FALSE(QOR::fileReadable(nullptr));
    EXPECT_FALSE(QOR::readFileBytes(L"", out));
    EXPECT_FALSE(QOR::writeFileBytes(nullptr, "x"));
    EXPECT_EQ(out, "kept");
}

TEST(FileIo, FileInAFolderThatIsNotThereCannotBeWritten) {
    EXPECT_FALSE(QOR::writeFileBytes(tempName(L"qor_no_such_folder/x.bin").c_str(), "x"));
}
