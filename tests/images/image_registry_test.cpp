#include "images/image_registry.h"

#include <gtest/gtest.h>

namespace {

int g_calls = 0;
CQorGDX* g_lastGdx = nullptr;

bool drawsTrue(CQorGDX* gdx, QOR::CDtaFilePointer*, QOR::CDtaFilePointer*) {
    ++g_calls;
    g_lastGdx = gdx;
    return true;
}

bool drawsFalse(CQorGDX*, QOR::CDtaFilePointer*, QOR::CDtaFilePointer*) {
    g_calls += 10;
    return false;
}

struct Registry : ::testing::Test {
    void SetUp() override { g_calls = 0; }
    void TearDown() override {
        setGdxImageFcn(L"TEST_KIND", nullptr);
        setGdxImageFcn(L"", nullptr);
    }
};

} // namespace

TEST_F(Registry, CallsTheRegisteredFunctionWithItsArguments) {
    setGdxImageFcn(L"TEST_KIND", drawsTrue);
    auto* marker = reinterpret_cast<CQorGDX*>(0x1000);
    EXPECT_TRUE(qor_gdx_image(L"TEST_KIND", marker, nullptr, nullptr));
    EXPECT_EQ(g_calls, 1);
    EXPECT_EQ(g_lastGdx, marker);
}

TEST_F(Registry, RegisteringTwiceKeepsTheSecondFunction) {
    setGdxImageFcn(L"TEST_KIND", drawsTrue);
    setGdxImageFcn(L"TEST_KIND", drawsFalse);
    EXPECT_FALSE(qor_gdx_image(L"TEST_KIND", nullptr, nullptr, nullptr));
    EXPECT_EQ(g_calls, 10);
}

TEST_F(Registry, RemovingAnUnknownNameChangesNothing) {
    setGdxImageFcn(L"TEST_KIND", drawsTrue);
    setGdxImageFcn(L"NEVER_REGISTERED", nullptr);
    EXPECT_TRUE(qor_gdx_image(L"TEST_KIND", nullptr, nullptr, nullptr));
}

TEST_F(Registry, AfterRemovalTheNameCallsNothing) {
    setGdxImageFcn(L"TEST_KIND", drawsTrue);
    setGdxImageFcn(L"TEST_KIND", nullptr);
    EXPECT_FALSE(qor_gdx_image(L"TEST_KIND", nullptr, nullptr, nullptr));
    EXPECT_EQ(g_calls, 0);
}

TEST_F(Registry, EmptyNameFailsUnlessRegistered) {
    EXPECT_FALSE(qor_gdx_image(L"", nullptr, nullptr, nullptr));
    setGdxImageFcn(L"", drawsTrue);
    EXPECT_TRUE(qor_gdx_image(L"", nullptr, nullptr, nullptr));
}

TEST_F(Registry, NullNameFails) {
    EXPECT_FALSE(qor_gdx_image(nullptr, nullptr, nullptr, nullptr));
}

TEST_F(Registry, NamesAreCaseSensitive) {
    setGdxImageFcn(L"TEST_KIND", drawsTrue);
    EXPECT_FALSE(qor_gdx_image(L"test_kind", nullptr, nullptr, nullptr));
    EXPECT_EQ(g_calls, 0);
}
