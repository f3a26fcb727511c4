#include "foundation/application.h"
#include "host/default_app.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <cstring>

namespace {
class HostApp : public CQorApp {
public:
    Qor::lFormat lFormatGet() override { return Qor::formatEngineering; }
    unsigned long viewBkColorGet() override { return 0x00123456ul; }
    int lispCall(const wchar_t*, resbuf*, QOR::CSmartResbuf& result) override {
        result.reset(QOR::rbShort(1));
        return QOR::kRtNorm;
    }
};
} // namespace

TEST(QorApp, InstalledApplicationReplacesTheDefaultUntilRemoved) {
    HostApp host;
    EXPECT_EQ(qorAppSet(&host), nullptr);
    EXPECT_EQ(qorAppPtr(), &host);
    EXPECT_EQ(qorAppPtr()->lFormatGet(), Qor::formatEngineering);
    EXPECT_EQ(qorAppPtr()->viewBkColorGet(), 0x00123456ul);
    QOR::CSmartResbuf result;
    EXPECT_EQ(qorAppPtr()->lispCall(L"orv_hole_dial", nullptr, result), QOR::kRtNorm);
    EXPECT_EQ(result->resval.rint, 1);
    EXPECT_EQ(qorAppSet(nullptr), &host);
    EXPECT_EQ(qorAppPtr(), QOR::defaultAppPtr());
}

TEST(QorApp, OperationsAHostDoesNotOverrideFailSoftly) {
    HostApp host;
    CQorArrayTempl<CQorArrayTempl<double>> lines;
    lines.setLogicalLength(2);
    EXPECT_FALSE(host.hatchPatternGet(L"ANSI31", lines));
    EXPECT_EQ(lines.len(), 0);
    long long name[2] = {5, 6};
    EXPECT_FALSE(host.entityOfKind(name, L"HOLE", true));
    EXPECT_EQ(name[0], 5);
    EXPECT_FALSE(host.objImage(nullptr, nullptr, nullptr));
    CQorApp plain;
    QOR::CSmartResbuf result;
    EXPECT_NE(plain.lispCall(L"x", nullptr, result), QOR::kRtNorm);
}

#if defined(__GNUC__) && !defined(_MSC_VER)
// Under the Itanium C++ ABI (g++ and MinGW) a pointer to a virtual member function
// holds 1 + the byte offset of its slot.
template <class F> static std::uintptr_t slotOffset(F f) {
    std::uintptr_t raw = 0;
    std::memcpy(&raw, &f, sizeof raw);
    return raw - 1;
}

TEST(QorApp, VirtualOperationsStandInTheirSlotOrder) {
    const std::uintptr_t slots[] = {
        slotOffset(&CQorApp::lFormatGet),   slotOffset(&CQorApp::viewBkColorGet),
        slotOffset(&CQorApp::objImage),     slotOffset(&CQorApp::hatchPatternGet),
        slotOffset(&CQorApp::entityOfKind), slotOffset(&CQorApp::lispCall)};
    for (int i = 1; i < 6; ++i)
        EXPECT_EQ(slots[i], slots[i - 1] + sizeof(void*)) << "slot " << i;
}
#endif
