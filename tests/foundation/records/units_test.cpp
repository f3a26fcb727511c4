#include "foundation/records/units.h"

#include "foundation/records/messages.h"

#include <gtest/gtest.h>

namespace {

// Restores the drawing unit a test changes.
class UnitsTest : public ::testing::Test {
protected:
    void TearDown() override { QOR::acad_unit_set(Qor::unitMillimeters); }
};

} // namespace

TEST_F(UnitsTest, DrawingUnitStartsInMillimetres) {
    EXPECT_EQ(QOR::acad_unit_get(), Qor::unitMillimeters);
}

TEST_F(UnitsTest, SetUnitReturnsTheFormerAndIgnoresNonUnits) {
    EXPECT_EQ(QOR::acad_unit_set(Qor::unitMeters), Qor::unitMillimeters);
    EXPECT_EQ(QOR::acad_unit_get(), Qor::unitMeters);
    EXPECT_EQ(QOR::acad_unit_set(Qor::unitCurrent), Qor::unitMeters);
    EXPECT_EQ(QOR::acad_unit_set(static_cast<Qor::lUnit>(25)), Qor::unitMeters);
    EXPECT_EQ(QOR::acad_unit_get(), Qor::unitMeters);
}

TEST_F(UnitsTest, InchesToMillimetresAndBack) {
    double v = 1.0;
    EXPECT_TRUE(QOR::acadUnitCv(v, Qor::unitInches, Qor::unitMillimeters));
    EXPECT_EQ(v, 25.4);
    EXPECT_TRUE(QOR::acadUnitCv(v, Qor::unitMillimeters, Qor::unitInches));
    EXPECT_EQ(v, 1.0);
}

TEST_F(UnitsTest, ConversionsBothWaysAgree) {
    struct Case {
        Qor::lUnit from, to;
        double in, out;
    };
    const Case cases[] = {
        {Qor::unitFeet, Qor::unitInches, 1.0, 12.0},
        {Qor::unitMeters, Qor::unitMillimeters, 2.5, 2500.0},
        {Qor::unitMiles, Qor::unitKilometers, 1.0, 1.609344},
        {Qor::unitYards, Qor::unitFeet, 2.0, 6.0},
        {Qor::unitCentimeters, Qor::unitDecimeters, 35.0, 3.5},
        {Qor::unitMils, Qor::unitInches, 1000.0, 1.0},
        {Qor::unitMicrons, Qor::unitNanometers, 1.0, 1000.0},
        {Qor::unitUSSurveyFeet, Qor::unitMeters, 3937.0, 1200.0},
        {Qor::unitParsecs, Qor::unitAstronomicalUnits, 1.0, 206264.80624709636},
    };
    for (const Case& c : cases) {
        double v = 0.0;
        EXPECT_TRUE(QOR::acadUnitCv(c.in, c.from, c.to, v));
        EXPECT_NEAR(v, c.out, 1e-12 * c.out) << c.from << " -> " << c.to;
        double back = 0.0;
        EXPECT_TRUE(QOR::acadUnitCv(v, c.to, c.from, back));
        EXPECT_NEAR(back, c.in, 1e-12 * c.in) << c.to << " -> " << c.from;
    }
}

TEST_F(UnitsTest, MinusOneIsTheDrawingUnit) {
    QOR::acad_unit_set(Qor::unitMeters);
    double v = 0.2;
    EXPECT_TRUE(QOR::acadUnitCv(v, Qor::unitMillimeters, Qor::unitCurrent));
    EXPECT_DOUBLE_EQ(v, 0.0002);
    EXPECT_TRUE(QOR::acadUnitCv(v, Qor::unitCurrent, Qor::unitMillimeters));
    EXPECT_DOUBLE_EQ(v, 0.2);
    double same = 7.25;
    EXPECT_TRUE(QOR::acadUnitCv(same, Qor::unitCurrent, Qor::unitMeters));
    EXPECT_EQ(same, 7.25);
}

TEST_F(UnitsTest, EqualUnitsLeaveTheValueExactly) {
    double v = 0.1;
    EXPECT_TRUE(QOR::acadUnitCv(v, Qor::unitInches, Qor::unitInches));
    EXPECT_EQ(v, 0.1);
    EXPECT_TRUE(QOR::acadUnitCv(v, Qor::unitUnspecified, Qor::unitUnspecified));
    EXPECT_EQ(v, 0.1);
}

TEST_F(UnitsTest, UnspecifiedUnitDoesNotConvert) {
    double v = 3.0;
    EXPECT_FALSE(QOR::acadUnitCv(v, Qor::unitUnspecified, Qor::unitMeters));
    EXPECT_EQ(v, 3.0);
    double out = -1.0;
    EXPECT_FALSE(QOR::acadUnitCv(3.0, Qor::unitMeters, Qor::unitUnspecified, out));
    EXPECT_EQ(out, 3.0);
}

TEST_F(UnitsTest, UnknownUnitNumbersFail) {
    double v = 3.0;
    EXPECT_FALSE(QOR::acadUnitCv(v, static_cast<Qor::lUnit>(25), Qor::unitMeters));
    EXPECT_FALSE(QOR::acadUnitCv(v, Qor::unitMeters, static_cast<Qor::lUnit>(-2)));
    EXPECT_EQ(v, 3.0);
}

TEST_F(UnitsTest, MillimetresPerUnit) {
    EXPECT_EQ(QOR::acadUnitMm(Qor::unitInches), 25.4);
    EXPECT_EQ(QOR::acadUnitMm(Qor::unitKilometers), 1.0e6);
    EXPECT_EQ(QOR::acadUnitMm(Qor::unitUnspecified), 0.0);
    QOR::acad_unit_set(Qor::unitFeet);
    EXPECT_EQ(QOR::acadUnitMm(Qor::unitCurrent), 304.8);
}

TEST_F(UnitsTest, UnitNamesInGermanAndEnglishIndexedByUnit) {
    const CQorArrayTempl<CQorString>& de = QOR::acad_units(L"DEU");
    const CQorArrayTempl<CQorString>& en = QOR::acad_units(L"eng");
    ASSERT_EQ(de.len(), Qor::unitLast + 1);
    ASSERT_EQ(en.len(), Qor::unitLast + 1);
    EXPECT_EQ(de[0], L"Ohne Einheit");
    EXPECT_EQ(de[Qor::unitMillimeters], L"Millimeter");
    EXPECT_EQ(de[Qor::unitFeet], L"Fuß");
    EXPECT_EQ(en[0], L"Unitless");
    EXPECT_EQ(en[Qor::unitInches], L"Inches");
    EXPECT_EQ(en[Qor::unitMeters], L"Meters");
    EXPECT_EQ(QOR::acad_units(L"FRA")[Qor::unitMeters], L"Mètres");
    EXPECT_EQ(QOR::acad_units(L"ITA")[Qor::unitMeters], L"Metri");
}

TEST_F(UnitsTest, UnitNamesOfNullAndMinusOneFollowTheCurrentLanguage) {
    const CQorString former = QOR::msgLangSet(nullptr);
    QOR::msgLangSet(L"ENG");
    EXPECT_EQ(QOR::acad_units(nullptr)[Qor::unitMeters], L"Meters");
    QOR::msgLangSet(L"DEU");
    EXPECT_EQ(QOR::acad_units(L"-1")[Qor::unitMeters], L"Meter");
    EXPECT_EQ(QOR::acad_units(L"XYZ")[Qor::unitMeters], L"Meters");
    QOR::msgLangSet(former);
}

TEST_F(UnitsTest, AutoPrecKeepsPrecisionForMillimetres) {
    EXPECT_EQ(QOR::autoPrec(3, Qor::unitMillimeters, Qor::formatArchitectural), 3);
    EXPECT_EQ(QOR::autoPrec(8, Qor::unitMillimeters, Qor::formatDecimal), 8);
    EXPECT_EQ(QOR::autoPrec(2, Qor::unitMillimeters, Qor::formatScientific), 2);
}

TEST_F(UnitsTest, AutoPrecMovesByTheSizeOfTheUnit) {
    // A metre is 10^3 mm: three more decimals; an inch is 25.4 mm: log10 1.40
    // rounds to 1, log2 4.67 to 5.
    EXPECT_EQ(QOR::autoPrec(2, Qor::unitMeters, Qor::formatDecimal), 5);
    EXPECT_EQ(QOR::autoPrec(2, Qor::unitInches, Qor::formatDecimal), 3);
    EXPECT_EQ(QOR::autoPrec(3, Qor::unitInches, Qor::formatFractional), 8);
    EXPECT_EQ(QOR::autoPrec(2, Qor::unitMicrons, Qor::formatDecimal), 0);
    QOR::acad_unit_set(Qor::unitCentimeters);
    EXPECT_EQ(QOR::autoPrec(2, Qor::unitCurrent, Qor::formatDecimal), 3);
}

TEST_F(UnitsTest, AutoPrecStaysWithinZeroToSixteen) {
    EXPECT_EQ(QOR::autoPrec(-3, Qor::unitMillimeters, Qor::formatDecimal), 0);
    EXPECT_EQ(QOR::autoPrec(40, Qor::unitMillimeters, Qor::formatDecimal), 16);
    EXPECT_EQ(QOR::autoPrec(8, Qor::unitKilometers, Qor::formatDecimal), 14);
    EXPECT_EQ(QOR::autoPrec(8, Qor::unitParsecs, Qor::formatDecimal), 16);
    EXPECT_EQ(QOR::autoPrec(5, Qor::unitUnspecified, Qor::formatDecimal), 5);
}
