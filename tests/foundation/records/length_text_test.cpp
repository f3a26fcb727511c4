#include "foundation/records/length_text.h"

#include <gtest/gtest.h>

#include <cmath>
#include <random>
#include <string>

namespace {

// The text qorRtoS writes, or "<false>" when it fails.
std::wstring rtos(double v, int fmt, int prec, bool option = false) {
    wchar_t buf[kQorLengthTextSize];
    for (wchar_t& c : buf)
        c = L'#';
    if (!qorRtoS(buf, v, static_cast<Qor::lFormat>(fmt), prec, option))
        return L"<false>";
    return buf;
}

} // namespace

TEST(LengthText, ScientificWritesMantissaAndSignedExponent) {
    EXPECT_EQ(rtos(15.5, 1, 4), L"1.5500E+01");
    EXPECT_EQ(rtos(-15.5, 1, 4), L"-1.5500E+01");
    EXPECT_EQ(rtos(-0.00125, 1, 2), L"-1.25E-03");
    EXPECT_EQ(rtos(0.0, 1, 3), L"0.000E+00");
    EXPECT_EQ(rtos(1e100, 1, 1), L"1.0E+100");
    EXPECT_EQ(rtos(15.5, 1, 0), L"2E+01");
}

TEST(LengthText, DecimalWritesPrecDecimals) {
    EXPECT_EQ(rtos(15.5, 2, 2), L"15.50");
    EXPECT_EQ(rtos(-15.5, 2, 2), L"-15.50");
    EXPECT_EQ(rtos(1234.5678, 2, 0), L"1235");
    EXPECT_EQ(rtos(1234.5678, 2, 3), L"1234.568");
    EXPECT_EQ(rtos(0.1, 2, 16), L"0.1000000000000000");
}

TEST(LengthText, DecimalExactTieRoundsToEven) {
    EXPECT_EQ(rtos(0.125, 2, 2), L"0.12");
    EXPECT_EQ(rtos(0.375, 2, 2), L"0.38");
}

TEST(LengthText, NegativeValueRoundingToZeroHasNoSign) {
    EXPECT_EQ(rtos(-0.001, 2, 2), L"0.00");
    EXPECT_EQ(rtos(-0.001, 3, 1), L"0'-0.0\"");
    EXPECT_EQ(rtos(-0.01, 4, 3), L"0'-0\"");
    EXPECT_EQ(rtos(-0.01, 5, 3), L"0");
    EXPECT_EQ(rtos(-0.0, 1, 2), L"0.00E+00");
}

TEST(LengthText, EngineeringWritesFeetAndDecimalInches) {
    EXPECT_EQ(rtos(15.5, 3, 2), L"1'-3.50\"");
    EXPECT_EQ(rtos(-15.5, 3, 2), L"-1'-3.50\"");
    EXPECT_EQ(rtos(120.0, 3, 0), L"10'-0\"");
    EXPECT_EQ(rtos(0.25, 3, 1), L"0'-0.3\"");
    EXPECT_EQ(rtos(1000.0625, 3, 4), L"83'-4.0625\"");
}

TEST(LengthText, EngineeringCarriesRoundingIntoFeet) {
    EXPECT_EQ(rtos(11.999, 3, 2), L"1'-0.00\"");
    EXPECT_EQ(rtos(23.9999, 3, 3), L"2'-0.000\"");
}

TEST(LengthText, ArchitecturalWritesFeetInchesAndReducedFraction) {
    EXPECT_EQ(rtos(15.5, 4, 4), L"1'-3 1/2\"");
    EXPECT_EQ(rtos(-15.5, 4, 4), L"-1'-3 1/2\"");
    EXPECT_EQ(rtos(15.0625, 4, 4), L"1'-3 1/16\"");
    EXPECT_EQ(rtos(0.5, 4, 3), L"0'-0 1/2\"");
    EXPECT_EQ(rtos(12.0, 4, 3), L"1'-0\"");
    EXPECT_EQ(rtos(37.75, 4, 0), L"3'-2\"");
}

TEST(LengthText, ArchitecturalRoundsToTheNearestFraction) {
    // 15.0625 * 8 = 120.5: a tie, away from zero.
    EXPECT_EQ(rtos(15.0625, 4, 3), L"1'-3 1/8\"");
    EXPECT_EQ(rtos(0.05, 4, 3), L"0'-0\"");
    EXPECT_EQ(rtos(11.99, 4, 3), L"1'-0\"");
}

TEST(LengthText, FractionalWritesWholeAndFraction) {
    EXPECT_EQ(rtos(15.5, 5, 4), L"15 1/2");
    EXPECT_EQ(rtos(0.75, 5, 2), L"3/4");
    EXPECT_EQ(rtos(-0.75, 5, 2), L"-3/4");
    EXPECT_EQ(rtos(-15.5, 5, 4), L"-15 1/2");
    EXPECT_EQ(rtos(3.0, 5, 4), L"3");
    EXPECT_EQ(rtos(2.3, 5, 3), L"2 1/4");
    EXPECT_EQ(rtos(1.0 / 1024.0, 5, 10), L"1/1024");
}

TEST(LengthText, OptionLeavesOutTrailingZerosOfDecimals) {
    EXPECT_EQ(rtos(15.5, 2, 4, true), L"15.5");
    EXPECT_EQ(rtos(15.0, 2, 3, true), L"15");
    EXPECT_EQ(rtos(15.5, 1, 4, true), L"1.55E+01");
    EXPECT_EQ(rtos(15.0, 3, 2, true), L"1'-3\"");
    EXPECT_EQ(rtos(15.25, 3, 3, true), L"1'-3.25\"");
    EXPECT_EQ(rtos(15.5, 4, 4, true), L"1'-3 1/2\"");
    EXPECT_EQ(rtos(15.5, 5, 4, true), L"15 1/2");
}

TEST(LengthText, PrecisionIsClampedToZeroToSixteen) {
    EXPECT_EQ(rtos(2.5, 2, -3), rtos(2.5, 2, 0));
    EXPECT_EQ(rtos(2.5, 2, 40), rtos(2.5, 2, 16));
    EXPECT_EQ(rtos(2.5, 5, 99), L"2 1/2");
}

TEST(LengthText, FailsWhenTheTextDoesNotFit) {
    wchar_t buf[kQorLengthTextSize];
    buf[0] = L'x';
    EXPECT_FALSE(qorRtoS(buf, 1e300, Qor::formatDecimal, 2, false));
    EXPECT_EQ(buf[0], 0);
    // 55 characters fit, 56 do not.
    EXPECT_EQ(rtos(1e54, 2, 0).size(), 55u);
    EXPECT_EQ(rtos(1e55, 2, 0), L"<false>");
    EXPECT_EQ(rtos(1e16, 3, 0), L"<false>");
    EXPECT_EQ(rtos(1e16, 4, 0), L"<false>");
    EXPECT_EQ(rtos(1e12, 5, 16), L"<false>");
    // At most 10^15 steps of the precision.
    EXPECT_EQ(rtos(1e15, 5, 0), L"1000000000000000");
    EXPECT_EQ(rtos(1e15 + 1, 5, 0), L"<false>");
    EXPECT_EQ(rtos(1e11, 3, 4), L"8333333333'-4.0000\"");
    EXPECT_EQ(rtos(1e11 + 1, 3, 4), L"<false>");
}

TEST(LengthText, FailsOnNonFiniteValuesUnknownFormatsAndNullBuffer) {
    EXPECT_EQ(rtos(std::nan(""), 2, 2), L"<false>");
    EXPECT_EQ(rtos(INFINITY, 1, 2), L"<false>");
    EXPECT_EQ(rtos(1.0, 0, 2), L"<false>");
    EXPECT_EQ(rtos(1.0, 6, 2), L"<false>");
    EXPECT_EQ(rtos(1.0, -1, 2), L"<false>");
    EXPECT_FALSE(qorRtoS(nullptr, 1.0, Qor::formatDecimal, 2, false));
}

TEST(LengthText, ReadsPlainNumbers) {
    EXPECT_EQ(qorAtoF(L"15.5"), 15.5);
    EXPECT_EQ(qorAtoF(L"-15.5"), -15.5);
    EXPECT_EQ(qorAtoF(L"+2"), 2.0);
    EXPECT_EQ(qorAtoF(L"  \t42"), 42.0);
    EXPECT_EQ(qorAtoF(L".5"), 0.5);
    EXPECT_EQ(qorAtoF(L"5."), 5.0);
    EXPECT_EQ(qorAtoF(L"1,25"), 1.25);
    EXPECT_EQ(qorAtoF(L"1.5e3"), 1500.0);
    EXPECT_EQ(qorAtoF(L"1.5000E-01"), 0.15);
    EXPECT_EQ(qorAtoF(L"- 3"), -3.0);
}

TEST(LengthText, ReadsFractions) {
    EXPECT_EQ(qorAtoF(L"3/4"), 0.75);
    EXPECT_EQ(qorAtoF(L"1 3/4"), 1.75);
    EXPECT_EQ(qorAtoF(L"1-3/4"), 1.75);
    EXPECT_EQ(qorAtoF(L"-15 1/2"), -15.5);
    EXPECT_EQ(qorAtoF(L"2  1/8"), 2.125);
}

TEST(LengthText, ReadsFeetAndInchesAsInches) {
    EXPECT_EQ(qorAtoF(L"1'"), 12.0);
    EXPECT_EQ(qorAtoF(L"1'-3.50\""), 15.5);
    EXPECT_EQ(qorAtoF(L"-1'-3 1/2\""), -15.5);
    EXPECT_EQ(qorAtoF(L"1'3.5"), 15.5);
    EXPECT_EQ(qorAtoF(L"1' - 3 1/2\""), 15.5);
    EXPECT_EQ(qorAtoF(L"3 1/2\""), 3.5);
    EXPECT_EQ(qorAtoF(L"0'-0 1/16\""), 0.0625);
    EXPECT_EQ(qorAtoF(L"2.5'"), 30.0);
}

TEST(LengthText, StopsAtTheFirstCharacterThatDoesNotContinue) {
    EXPECT_EQ(qorAtoF(L"12 mm"), 12.0);
    EXPECT_EQ(qorAtoF(L"12°"), 12.0);
    EXPECT_EQ(qorAtoF(L"5-3"), 5.0);
    EXPECT_EQ(qorAtoF(L"1/0"), 1.0);
    EXPECT_EQ(qorAtoF(L"1e"), 1.0);
    EXPECT_EQ(qorAtoF(L"1'-x"), 12.0);
    EXPECT_EQ(qorAtoF(L"1.5 1/2"), 1.5);
}

TEST(LengthText, GarbageEmptyAndNullReadAsZero) {
    EXPECT_EQ(qorAtoF(nullptr), 0.0);
    EXPECT_EQ(qorAtoF(L""), 0.0);
    EXPECT_EQ(qorAtoF(L"   "), 0.0);
    EXPECT_EQ(qorAtoF(L"abc"), 0.0);
    EXPECT_EQ(qorAtoF(L"-"), 0.0);
    EXPECT_EQ(qorAtoF(L"'\"/"), 0.0);
    EXPECT_EQ(qorAtoF(L"nan"), 0.0);
    EXPECT_EQ(qorAtoF(L"inf"), 0.0);
    EXPECT_EQ(qorAtoF(L"."), 0.0);
}

TEST(LengthText, OverflowReadsAsZeroNeverInfinity) {
    EXPECT_EQ(qorAtoF(L"1e999"), 0.0);
    EXPECT_EQ(qorAtoF(L"1e308'"), 0.0);
    EXPECT_EQ(qorAtoF(L"-1e400"), 0.0);
}

TEST(LengthText, OverlongTextReadsAsZero) {
    const std::wstring longest = std::wstring(1023, L'0') + L"7";
    EXPECT_EQ(qorAtoF(longest.c_str()), 7.0);
    std::wstring tooLong(1025, L'1');
    EXPECT_EQ(qorAtoF(tooLong.c_str()), 0.0);
    std::wstring blanks(5000, L' ');
    EXPECT_EQ(qorAtoF((blanks + L"7").c_str()), 0.0);
}

TEST(LengthText, RandomWideCharactersNeverGiveNonFiniteValues) {
    std::mt19937 rng(1234);
    const wchar_t alphabet[] = L"0123456789.,eE+-'\"/ \tx\u00b0";
    std::uniform_int_distribution<int> pick(0, static_cast<int>(std::size(alphabet)) - 2);
    std::uniform_int_distribution<int> length(0, 40);
    for (int i = 0; i < 20000; ++i) {
        std::wstring s;
        const int n = length(rng);
        for (int k = 0; k < n; ++k)
            s += alphabet[pick(rng)];
        const double v = qorAtoF(s.c_str());
        ASSERT_TRUE(std::isfinite(v)) << "text of length " << n;
    }
}

// Every text that qorRtoS writes reads back to the value it denotes: within half a
// step of the precision from the original, and written again it gives the same
// text.
TEST(LengthText, RoundTripOverSeededValuesFormatsAndPrecisions) {
    std::mt19937_64 rng(20240611);
    std::uniform_real_distribution<double> mantissa(-1.0, 1.0);
    // Up to 1e5, so that formats 3 to 5 stay below their limit at precision 10.
    std::uniform_int_distribution<int> exponent(-6, 5);
    int checked = 0;
    for (int i = 0; i < 3000; ++i) {
        const double v = mantissa(rng) * std::pow(10.0, exponent(rng));
        for (int fmt = 1; fmt <= 5; ++fmt) {
            for (int prec = 0; prec <= 10; ++prec) {
                for (int option = 0; option < 2; ++option) {
                    const std::wstring text = rtos(v, fmt, prec, option != 0);
                    ASSERT_NE(text, L"<false>") << v << " fmt " << fmt << " prec " << prec;
                    const double back = qorAtoF(text.c_str());
                    double step = 0.0;
                    if (fmt == 1)
                        step = std::fabs(v) * 10.0 * std::pow(10.0, -prec);
                    else if (fmt == 4 || fmt == 5)
                        step = std::ldexp(1.0, -prec);
                    else
                        step = std::pow(10.0, -prec);
                    ASSERT_LE(std::fabs(back - v), 0.5 * step * (1 + 1e-9) + 1e-12 * std::fabs(v))
                        << "text " << std::string(text.begin(), text.end()) << " value " << v;
                    ASSERT_EQ(rtos(back, fmt, prec, option != 0), text)
                        << "value " << v << " fmt " << fmt << " prec " << prec;
                    ++checked;
                }
            }
        }
    }
    EXPECT_EQ(checked, 3000 * 5 * 11 * 2);
}

// Found by fuzzing: at 3.3e11 inches and 4 decimals the feet and inches read
// back summed to a value that, scaled again, rounded to the next step.
TEST(LengthText, LargeEngineeringValueNeedsNoMoreStepsThanDoublesHold) {
    const double v = qorAtoF(L"1-99999999990999/299");
    EXPECT_EQ(rtos(v, 3, 4), L"<false>");
    const std::wstring text = rtos(v / 10.0, 3, 4);
    ASSERT_NE(text, L"<false>");
    EXPECT_EQ(rtos(qorAtoF(text.c_str()), 3, 4), text);
}

TEST(LengthText, RoundTripOfLargeValuesAtHighPrecision) {
    std::mt19937_64 rng(77);
    std::uniform_real_distribution<double> value(-1.0e6, 1.0e6);
    for (int i = 0; i < 2000; ++i) {
        const double v = value(rng);
        for (int fmt = 1; fmt <= 5; ++fmt) {
            const int prec = 8;
            const std::wstring text = rtos(v, fmt, prec);
            ASSERT_NE(text, L"<false>");
            ASSERT_EQ(rtos(qorAtoF(text.c_str()), fmt, prec), text) << v << " fmt " << fmt;
        }
    }
}
