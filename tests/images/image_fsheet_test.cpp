#include "images/image_fsheet.h"

#include "displaylist/display_item.h"
#include "foundation/application/fsheet.h"
#include "foundation/records/layer_mgr.h"
#include "host/layer_store.h"
#include "host/sheet_catalog.h"
#include "image_test_data.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstring>

using namespace imagetest;

namespace {

using Rows = std::vector<std::vector<double>>;

const char* const kCatalog = R"(
"T" {
    "FLAT" {
        "CALC" = "SHEET"
        "SEG" = 1000.0
        "N" = 1.5
    }
    "ZERO" {
        "SEG" = 0.0
        "N" = 0.0
    }
    "SEG100" {
        "SEG" = 100.0
        "N" = 4.0
    }
    "PROFILE" {
        "SEG" = 100.0
        "N" = 1.0
        "POINTS" = ([0.0 0.0 0.0] [40.0 0.0 0.0] [50.0 20.0 0.0] [100.0 20.0 0.0])
    }
    "FACE" {
        "CALC" = "SHEET"
        "SEG" = 100.0
        "FILLET_P" = ([0.0 0.0 0.0] [100.0 0.0 0.0])
    }
    "RIB" {
        "CALC" = "REGION"
        "TYPE" = "STEEL"
        "REGION" = (([0.0 0.0 1.0] ([10.0 10.0 0.0] [20.0 10.0 0.0] 0.0 0)
            ([20.0 10.0 0.0] [20.0 20.0 0.0] 0.0 0) ([20.0 20.0 0.0] [10.0 20.0 0.0] 0.0 0)
            ([10.0 20.0 0.0] [10.0 10.0 0.0] 0.0 0)))
    }
    "GASKET" {
        "CALC" = "REGION"
        "TYPE" = "GASKET"
        "REGION" = (([0.0 0.0 1.0] ([30.0 10.0 0.0] [40.0 10.0 0.0] 0.0 0)
            ([40.0 10.0 0.0] [40.0 20.0 0.0] 0.0 0) ([40.0 20.0 0.0] [30.0 20.0 0.0] 0.0 0)
            ([30.0 20.0 0.0] [30.0 10.0 0.0] 0.0 0)))
    }
    "CORE" {
        "CALC" = "OUTLINE"
        "TYPE" = "INSULATION"
    }
    "COMP" {
        "CALC" = "COMPOUND"
        "SEG" = 100.0
        "N" = 1.0
        "THICK" {
            "TF" {
                "S" = 1.0
            }
            "BF" {
                "S_BOT" = 0.5
            }
        }
        "SANDWICH" {
            "1" {
                "ID" = "TF"
                "SIDE" = "TOP"
                "STACK" = ("T" "FACE")
                "ORIGIN" = [0.0 50.0 0.0]
            }
            "2" {
                "ID" = "BF"
                "SIDE" = "BOT"
                "STACK" = ("T" "FACE")
            }
            "3" {
                "SIDE" = "MID"
                "STACK" = ("T" "RIB")
            }
            "4" {
                "SIDE" = "MID"
                "STACK" = ("T" "GASKET")
            }
            "5" {
                "SIDE" = "MID"
                "STACK" = ("T" "CORE")
            }
        }
    }
    "COMP_MISSING" {
        "CALC" = "COMPOUND"
        "SEG" = 100.0
        "N" = 1.0
        "THICK" {
            "BF" {
                "S_BOT" = 0.5
            }
        }
        "SANDWICH" {
            "1" {
                "ID" = "TF"
                "SIDE" = "TOP"
                "STACK" = ("T" "NONE")
            }
            "2" {
                "ID" = "BF"
                "SIDE" = "BOT"
                "STACK" = ("T" "FACE")
            }
        }
    }
    "COMP_THIN" {
        "CALC" = "COMPOUND"
        "SEG" = 100.0
        "N" = 1.0
        "SANDWICH" {
            "1" {
                "ID" = "TF"
                "SIDE" = "TOP"
                "STACK" = ("T" "FACE")
            }
        }
    }
}
)";

QOR::CLayerProp layer(const wchar_t* name, short index) {
    QOR::CLayerProp l;
    l.name = name;
    l.color.setColorIndex(index);
    return l;
}

// The test catalogue of sheet definitions, and the layers RED (1), BLUE (5) and
// CEN (4) beside the drawing's "0" (7).
struct ImageFSheet : ::testing::Test {
    void SetUp() override {
        QOR::fsheetCatalogClear();
        CQorString error;
        ASSERT_TRUE(
            QOR::dataTextRead(kCatalog, std::strlen(kCatalog), *QOR::fsheetCatalog(), error))
            << error.c_str();
        QOR::host::layerSet(layer(L"RED", 1));
        QOR::host::layerSet(layer(L"BLUE", 5));
        QOR::host::layerSet(layer(L"CEN", 4));
    }
    void TearDown() override {
        QOR::fsheetCatalogClear();
        QOR::host::layersReset();
    }
};

FilePtr sheet(const char* def, const std::string& more) {
    return open(std::string("\"STACK\" = (\"T\" \"") + def + "\")\n" + more);
}

// The largest x of the contours of a line or region item.
double maxX(const CQorGDX& gdx, int i) {
    CQorArrayTempl<CQorVertexArray> contours = regionOf(gdx, i);
    if (gdx.typeGet(i) == GDX_VL)
        contours.append(lineOf(gdx, i));
    double x = -1e300;
    for (const CQorVertexArray& vl : contours)
        for (const CQorVertex& v : vl)
            x = std::max(x, std::max(v.m_start.x, v.m_end.x));
    return x;
}

} // namespace

TEST_F(ImageFSheet, NullGdxOrObjectIsFalse) {
    FilePtr object = sheet("FLAT", "\"S\" = 2.0\n");
    CQorGDX gdx = emptyDoc();
    EXPECT_FALSE(qor_gdx_image_fsheet(nullptr, object.get(), nullptr));
    EXPECT_FALSE(qor_gdx_image_fsheet(&gdx, nullptr, nullptr));
    EXPECT_EQ(gdx.lenGet(), 0);
}

TEST_F(ImageFSheet, UnknownDefinitionIsFalseWithNothingDrawn) {
    FilePtr unknown = sheet("NONE", "\"S\" = 2.0\n");
    FilePtr value = open("\"STACK\" = (\"T\" \"FLAT\" \"SEG\")\n\"S\" = 2.0\n");
    FilePtr noStack = open("\"S\" = 2.0\n");
    CQorGDX gdx = emptyDoc();
    EXPECT_FALSE(qor_gdx_image_fsheet(&gdx, unknown.get(), nullptr));
    EXPECT_FALSE(qor_gdx_image_fsheet(&gdx, value.get(), nullptr));
    EXPECT_FALSE(qor_gdx_image_fsheet(&gdx, noStack.get(), nullptr));
    EXPECT_EQ(gdx.lenGet(), 0);
}

TEST_F(ImageFSheet, FlatSheetIsOneContourLineOnLayerZero) {
    FilePtr object = sheet("FLAT", "\"S\" = 2.0\n");
    CQorGDX gdx = emptyDoc();
    ASSERT_TRUE(qor_gdx_image_fsheet(&gdx, object.get(), nullptr));
    ASSERT_EQ(gdx.lenGet(), 1);
    EXPECT_EQ(gdx.typeGet(0), GDX_VL);
    EXPECT_EQ(gdx.flagGet(0), 0ul);
    EXPECT_EQ(gdx.colorGet(0).colorIndex(), 7);
    EXPECT_EQ(gdx.thicknGet(0), 0);
    EXPECT_TRUE(stackOf(gdx, 0).empty());
    EXPECT_TRUE(isIdentity(gdx.mtxGet(0)));
    // N 1.5 segments of 1000: a run of 1500, the sheet 2 thick above it.
    const Rows want{{0.0, 0.0, 1500.0, 0.0, 0.0},
                    {1500.0, 0.0, 1500.0, 2.0, 0.0},
                    {1500.0, 2.0, 0.0, 2.0, 0.0},
                    {0.0, 2.0, 0.0, 0.0, 0.0}};
    EXPECT_EQ(pieces(lineOf(gdx, 0)), want);
}

TEST_F(ImageFSheet, NAndSegBothZeroWithDMinus20GiveARunOf100) {
    FilePtr object = sheet("ZERO", "\"S\" = 2.0\n\"D\" = -20.0\n");
    CQorGDX gdx = emptyDoc();
    ASSERT_TRUE(qor_gdx_image_fsheet(&gdx, object.get(), nullptr));
    ASSERT_EQ(gdx.lenGet(), 1);
    EXPECT_EQ(maxX(gdx, 0), 100.0);
}

TEST_F(ImageFSheet, SegmSWithSeg100GivesRun150AndThreeCentreLines) {
    FilePtr object = sheet("SEG100", "\"S\" = 2.0\n\"AXIS\" = t\n");
    FilePtr params = open("\"SEGM\" = \"S\"\n");
    CQorGDX gdx = emptyDoc();
    ASSERT_TRUE(qor_gdx_image_fsheet(&gdx, object.get(), params.get()));
    ASSERT_EQ(gdx.lenGet(), 4);
    EXPECT_EQ(maxX(gdx, 0), 150.0);
    // Across the sheet from a thickness below it to a thickness above, at 0, 100
    // and 200: the last beyond the run.
    for (int i = 0; i < 3; ++i) {
        const double x = 100.0 * i;
        EXPECT_EQ(pieces(lineOf(gdx, 1 + i)), (Rows{{x, -2.0, x, 4.0, 0.0}})) << i;
        EXPECT_EQ(gdx.colorGet(1 + i).colorIndex(), 7) << i;
    }
}

TEST_F(ImageFSheet, WithoutSegmSTheDefinitionsNumberOfSegmentsCounts) {
    FilePtr object = sheet("SEG100", "\"S\" = 2.0\n\"AXIS\" = t\n");
    CQorGDX gdx = emptyDoc();
    ASSERT_TRUE(qor_gdx_image_fsheet(&gdx, object.get(), nullptr));
    // N 4: a run of 400 and five centre lines.
    ASSERT_EQ(gdx.lenGet(), 6);
    EXPECT_EQ(maxX(gdx, 0), 400.0);
    EXPECT_EQ(pieces(lineOf(gdx, 5)), (Rows{{400.0, -2.0, 400.0, 4.0, 0.0}}));
}

TEST_F(ImageFSheet, CentreLinesTakeTheColourOfLayerPartCen) {
    FilePtr object = sheet("SEG100", "\"S\" = 2.0\n\"AXIS\" = t\n\"PART_CEN\" = \"CEN\"\n"
                                     "\"PART_CON\" = \"RED\"\n");
    FilePtr params = open("\"SEGM\" = \"S\"\n");
    CQorGDX gdx = emptyDoc();
    ASSERT_TRUE(qor_gdx_image_fsheet(&gdx, object.get(), params.get()));
    ASSERT_EQ(gdx.lenGet(), 4);
    EXPECT_EQ(gdx.colorGet(0).colorIndex(), 1);
    for (int i = 1; i < 4; ++i)
        EXPECT_EQ(gdx.colorGet(i).colorIndex(), 4) << i;
}

TEST_F(ImageFSheet, CentreLinesOfAnUnknownPartCenKeepTheContourColour) {
    FilePtr object = sheet("SEG100", "\"S\" = 2.0\n\"AXIS\" = t\n\"PART_CEN\" = \"NOWHERE\"\n"
                                     "\"PART_CON\" = \"RED\"\n");
    FilePtr params = open("\"SEGM\" = \"S\"\n");
    CQorGDX gdx = emptyDoc();
    ASSERT_TRUE(qor_gdx_image_fsheet(&gdx, object.get(), params.get()));
    ASSERT_EQ(gdx.lenGet(), 4);
    for (int i = 0; i < 4; ++i)
        EXPECT_EQ(gdx.colorGet(i).colorIndex(), 1) << i;
}

TEST_F(ImageFSheet, MissingPartFillUsesThePartConLayer) {
    FilePtr object = sheet("FLAT", "\"S\" = 2.0\n\"DRAW\" = \"S\"\n\"PART_CON\" = \"RED\"\n");
    CQorGDX gdx = emptyDoc();
    ASSERT_TRUE(qor_gdx_image_fsheet(&gdx, object.get(), nullptr));
    ASSERT_EQ(gdx.lenGet(), 1);
    EXPECT_EQ(gdx.typeGet(0), GDX_REG);
    EXPECT_EQ(gdx.flagGet(0), 17ul);
    EXPECT_EQ(gdx.colorGet(0).colorIndex(), 1);
    EXPECT_EQ(gdx.fcolorGet(0).colorIndex(), 1);
    EXPECT_EQ(regionOf(gdx, 0).len(), 1);
}

TEST_F(ImageFSheet, DrawSFillsInTheColourOfPartFill) {
    FilePtr object = sheet("FLAT", "\"S\" = 2.0\n\"DRAW\" = \"S\"\n\"PART_CON\" = \"RED\"\n"
                                   "\"PART_FILL\" = \"BLUE\"\n");
    CQorGDX gdx = emptyDoc();
    ASSERT_TRUE(qor_gdx_image_fsheet(&gdx, object.get(), nullptr));
    ASSERT_EQ(gdx.lenGet(), 1);
    EXPECT_EQ(gdx.colorGet(0).colorIndex(), 1);
    EXPECT_EQ(gdx.fcolorGet(0).colorIndex(), 5);
}

TEST_F(ImageFSheet, DrawLFillsInTheContourColour) {
    FilePtr object = sheet("FLAT", "\"S\" = 2.0\n\"DRAW\" = \"L\"\n\"PART_CON\" = \"RED\"\n"
                                   "\"PART_FILL\" = \"BLUE\"\n");
    CQorGDX gdx = emptyDoc();
    ASSERT_TRUE(qor_gdx_image_fsheet(&gdx, object.get(), nullptr));
    ASSERT_EQ(gdx.lenGet(), 1);
    EXPECT_EQ(gdx.flagGet(0), 17ul);
    EXPECT_EQ(gdx.fcolorGet(0).colorIndex(), 1);
    QOR::CHatchProp hatch;
    ASSERT_TRUE(gdx.hatchGet(0, hatch));
    EXPECT_EQ(hatch.name.len(), 0);
}

TEST_F(ImageFSheet, UnknownLayerNameDrawsTheContourInTheDefaultColour) {
    FilePtr object = sheet("FLAT", "\"S\" = 2.0\n\"PART_CON\" = \"NOWHERE\"\n");
    CQorGDX gdx = emptyDoc();
    ASSERT_TRUE(qor_gdx_image_fsheet(&gdx, object.get(), nullptr));
    ASSERT_EQ(gdx.lenGet(), 1);
    EXPECT_EQ(gdx.colorGet(0).colorIndex(), -1);
}

TEST_F(ImageFSheet, CoatLinesAreBothFacesInTheSurfaceColours) {
    FilePtr object = sheet("FLAT", "\"S\" = 2.0\n\"COATLINE\" = t\n"
                                   "\"SURFACE\" {\n\"1\" = 1\n\"2\" = 5\n}\n");
    CQorGDX gdx = emptyDoc();
    ASSERT_TRUE(qor_gdx_image_fsheet(&gdx, object.get(), nullptr));
    ASSERT_EQ(gdx.lenGet(), 3);
    EXPECT_EQ(gdx.colorGet(1).colorIndex(), 1);
    EXPECT_EQ(pieces(lineOf(gdx, 1)), (Rows{{0.0, 0.0, 1500.0, 0.0, 0.0}}));
    EXPECT_EQ(gdx.colorGet(2).colorIndex(), 5);
    EXPECT_EQ(pieces(lineOf(gdx, 2)), (Rows{{0.0, 2.0, 1500.0, 2.0, 0.0}}));
    EXPECT_EQ(gdx.thicknGet(1), 0);
}

TEST_F(ImageFSheet, CoatLinesNeedCoatlineAndTheirOwnColour) {
    FilePtr without = sheet("FLAT", "\"S\" = 2.0\n\"SURFACE\" {\n\"1\" = 1\n\"2\" = 5\n}\n");
    FilePtr onlyFirst =
        sheet("FLAT", "\"S\" = 2.0\n\"COATLINE\" = t\n\"SURFACE\" {\n\"1\" = 1\n}\n");
    CQorGDX gdx = emptyDoc();
    ASSERT_TRUE(qor_gdx_image_fsheet(&gdx, without.get(), nullptr));
    EXPECT_EQ(gdx.lenGet(), 1);
    CQorGDX first = emptyDoc();
    ASSERT_TRUE(qor_gdx_image_fsheet(&first, onlyFirst.get(), nullptr));
    ASSERT_EQ(first.lenGet(), 2);
    EXPECT_EQ(first.colorGet(1).colorIndex(), 1);
}

TEST_F(ImageFSheet, CoordAddsTheBasePointAfterTheCoatLines) {
    FilePtr object = sheet("FLAT", "\"S\" = 2.0\n\"COATLINE\" = t\n\"AXIS\" = t\n"
                                   "\"SURFACE\" {\n\"1\" = 1\n}\n");
    FilePtr params = open("\"COORD\" = t\n");
    CQorGDX gdx = emptyDoc();
    ASSERT_TRUE(qor_gdx_image_fsheet(&gdx, object.get(), params.get()));
    // Contour, coat line, base point, three centre lines.
    ASSERT_EQ(gdx.lenGet(), 6);
    ASSERT_EQ(gdx.typeGet(2), GDX_PT);
    EXPECT_EQ(gdx.flagGet(2), 1024ul);
    EXPECT_EQ(gdx.colorGet(2).colorIndex(), -1);
    EXPECT_EQ(gdx.pdModeGet(2), gdx.pdModeGet());
    EXPECT_EQ(gdx.pdSizeGet(2), gdx.pdSizeGet());
    CQorPoint3d p(1.0, 1.0, 1.0);
    gdx.geomGet(p, 2);
    EXPECT_EQ(p.x, 0.0);
    EXPECT_EQ(p.y, 0.0);
    EXPECT_EQ(p.z, 0.0);
    for (int i = 3; i < 6; ++i)
        EXPECT_EQ(gdx.typeGet(i), GDX_VL) << i;
}

TEST_F(ImageFSheet, CoordWithoutContoursAddsNoBasePoint) {
    // No thickness: the sheet has no contour.
    FilePtr object = sheet("FLAT", "\"COATLINE\" = t\n\"SURFACE\" {\n\"1\" = 1\n}\n");
    FilePtr params = open("\"COORD\" = t\n");
    CQorGDX gdx = emptyDoc();
    ASSERT_TRUE(qor_gdx_image_fsheet(&gdx, object.get(), params.get()));
    // Only the coat line, empty as the sheet's geometry is.
    ASSERT_EQ(gdx.lenGet(), 1);
    EXPECT_EQ(gdx.typeGet(0), GDX_VL);
    EXPECT_EQ(lineOf(gdx, 0).len(), 0);
}

TEST_F(ImageFSheet, PointsDefinitionDrawsTheProfile) {
    FilePtr object = sheet("PROFILE", "\"S\" = 1.0\n");
    CQorGDX gdx = emptyDoc();
    ASSERT_TRUE(qor_gdx_image_fsheet(&gdx, object.get(), nullptr));
    ASSERT_EQ(gdx.lenGet(), 1);
    const CQorVertexArray vl = lineOf(gdx, 0);
    // Three pieces of the reference face, its end cap, three of the other face,
    // the start cap.
    ASSERT_EQ(vl.len(), 8);
    EXPECT_EQ(pieces(vl)[0], (std::vector<double>{0.0, 0.0, 40.0, 0.0, 0.0}));
    EXPECT_EQ(maxX(gdx, 0), 100.0);
}

TEST_F(ImageFSheet, CompoundDrawsFacesFillingsCoatLinesCentreLinesAndBasePoint) {
    FilePtr object = sheet("COMP", "\"PART_CON\" = \"RED\"\n\"PART_FILL\" = \"BLUE\"\n"
                                   "\"COATLINE\" = t\n\"IS_HATCH2\" = t\n\"AXIS\" = t\n"
                                   "\"SURFACE\" {\n\"1\" = 1\n\"2\" = 5\n}\n");
    FilePtr params = open("\"COORD\" = t\n");
    CQorGDX gdx = emptyDoc();
    ASSERT_TRUE(qor_gdx_image_fsheet(&gdx, object.get(), params.get()));
    // Top face: contour, two centre lines, coat line, base point. Bottom face:
    // contour, coat line. Rib, gasket and core: one region each.
    ASSERT_EQ(gdx.lenGet(), 10);
    const QorDisplayObj kinds[] = {GDX_VL, GDX_VL, GDX_VL,  GDX_VL,  GDX_PT,
                                   GDX_VL, GDX_VL, GDX_REG, GDX_REG, GDX_REG};
    const unsigned long flags[] = {0, 0, 0, 0, 1024, 0, 0, 17, 17, 17};
    const short colours[] = {1, 7, 7, 1, -1, 1, 5, 1, 7, 7};
    for (int i = 0; i < 10; ++i) {
        EXPECT_EQ(gdx.typeGet(i), kinds[i]) << i;
        EXPECT_EQ(gdx.flagGet(i), flags[i]) << i;
        EXPECT_EQ(gdx.colorGet(i).colorIndex(), colours[i]) << i;
        EXPECT_TRUE(stackOf(gdx, i).empty()) << i;
    }
    // The top face lies at 50, 1 thick; its centre lines reach a thickness past it.
    EXPECT_EQ(pieces(lineOf(gdx, 1)), (Rows{{0.0, 49.0, 0.0, 52.0, 0.0}}));
    EXPECT_EQ(pieces(lineOf(gdx, 2)), (Rows{{100.0, 49.0, 100.0, 52.0, 0.0}}));
    EXPECT_EQ(pieces(lineOf(gdx, 3)), (Rows{{0.0, 50.0, 100.0, 50.0, 0.0}}));
    // The rib on the sheet's layers, filled in PART_FILL; the gasket and the core
    // on layer "0".
    EXPECT_EQ(gdx.fcolorGet(7).colorIndex(), 5);
    EXPECT_EQ(gdx.fcolorGet(8).colorIndex(), 7);
    EXPECT_EQ(gdx.fcolorGet(9).colorIndex(), 7);
    // The core between the faces, with the rib and the gasket as its holes.
    const CQorArrayTempl<CQorVertexArray> core = regionOf(gdx, 9);
    ASSERT_EQ(core.len(), 3);
    CQorPoint3d lo, hi;
    ASSERT_TRUE(core[0].extents(lo, hi));
    EXPECT_EQ(lo.y, 0.5);
    EXPECT_EQ(hi.y, 50.0);
    EXPECT_EQ(pieces(core[1]), pieces(regionOf(gdx, 7)[0]));
}

TEST_F(ImageFSheet, SecondCoatLineOfACompoundIsTheBottomFacesReferenceFace) {
    FilePtr object = sheet("COMP", "\"COATLINE\" = t\n\"SURFACE\" {\n\"2\" = 5\n}\n");
    CQorGDX gdx = emptyDoc();
    ASSERT_TRUE(qor_gdx_image_fsheet(&gdx, object.get(), nullptr));
    // Top contour, bottom contour, its coat line, three fillings.
    ASSERT_EQ(gdx.lenGet(), 6);
    EXPECT_EQ(gdx.colorGet(2).colorIndex(), 5);
    // The face at 0, and not its other face at 0.5.
    EXPECT_EQ(pieces(lineOf(gdx, 2)), (Rows{{0.0, 0.0, 100.0, 0.0, 0.0}}));
}

TEST_F(ImageFSheet, FillingsWithoutIsHatch2AreOutlinesInTheDefaultColours) {
    FilePtr object = sheet("COMP", "\"PART_CON\" = \"RED\"\n\"PART_FILL\" = \"BLUE\"\n");
    CQorGDX gdx = emptyDoc();
    ASSERT_TRUE(qor_gdx_image_fsheet(&gdx, object.get(), nullptr));
    ASSERT_EQ(gdx.lenGet(), 5);
    for (int i = 2; i < 5; ++i) {
        EXPECT_EQ(gdx.typeGet(i), GDX_REG) << i;
        EXPECT_EQ(gdx.flagGet(i), 16ul) << i;
        EXPECT_EQ(gdx.colorGet(i).colorIndex(), -1) << i;
        EXPECT_EQ(gdx.fcolorGet(i).colorIndex(), -1) << i;
    }
}

TEST_F(ImageFSheet, CompoundWithAMissingLayerDefinitionGoesOnWithTheNextLayer) {
    FilePtr object =
        sheet("COMP_MISSING", "\"COATLINE\" = t\n\"AXIS\" = t\n\"SURFACE\" {\n\"2\" = 5\n}\n");
    FilePtr params = open("\"COORD\" = t\n");
    CQorGDX gdx = emptyDoc();
    ASSERT_TRUE(qor_gdx_image_fsheet(&gdx, object.get(), params.get()));
    // Only the bottom face: its contour and its coat line.
    ASSERT_EQ(gdx.lenGet(), 2);
    EXPECT_EQ(gdx.typeGet(0), GDX_VL);
    EXPECT_EQ(lineOf(gdx, 0).len(), 4);
    EXPECT_EQ(gdx.colorGet(1).colorIndex(), 5);
}

TEST_F(ImageFSheet, FaceWithoutGeometryIsDrawnAsOneEmptyContour) {
    // No thickness for the top face: its geometry fails, and the face still
    // counts as one (empty) contour, drawn and marked with the base point.
    FilePtr object = sheet("COMP_THIN", "");
    FilePtr params = open("\"COORD\" = t\n");
    CQorGDX gdx = emptyDoc();
    ASSERT_TRUE(qor_gdx_image_fsheet(&gdx, object.get(), params.get()));
    ASSERT_EQ(gdx.lenGet(), 2);
    EXPECT_EQ(gdx.typeGet(0), GDX_VL);
    EXPECT_EQ(lineOf(gdx, 0).len(), 0);
    EXPECT_EQ(gdx.typeGet(1), GDX_PT);
}

TEST_F(ImageFSheet, GuardEndsTheCentreLinesAfterTenThousandAndOne) {
    QOR::fsheetCatalogClear();
    const std::string text = "\"HUGE\" {\n\"SEG\" = 1.0\n\"N\" = 1e300\n}\n";
    CQorString error;
    ASSERT_TRUE(QOR::dataTextRead(text.c_str(), text.size(), *QOR::fsheetCatalog(), error));
    FilePtr huge = open("\"STACK\" = (\"HUGE\")\n\"S\" = 2.0\n\"AXIS\" = t\n");
    CQorGDX gdx = emptyDoc();
    ASSERT_TRUE(qor_gdx_image_fsheet(&gdx, huge.get(), nullptr));
    // The contour and a bounded number of centre lines.
    EXPECT_EQ(gdx.lenGet(), 1 + 10001);
}

namespace {

// The sample sheets with the sample catalogue.
struct ImageFSheetSample : ::testing::Test {
    void SetUp() override {
        ASSERT_TRUE(QOR::fsheetCatalogLoad(L"" QOR_TEST_DATA_DIR L"/model/sheets.qdt"));
    }
    void TearDown() override { QOR::fsheetCatalogClear(); }
};

void expectVertical(const CQorVertexArray& vl, double x, double y0, double y1) {
    ASSERT_EQ(vl.len(), 1);
    EXPECT_NEAR(vl[0].m_start.x, x, 1e-9);
    EXPECT_NEAR(vl[0].m_end.x, x, 1e-9);
    EXPECT_NEAR(vl[0].m_start.y, y0, 1e-9);
    EXPECT_NEAR(vl[0].m_end.y, y1, 1e-9);
}

} // namespace

TEST_F(ImageFSheetSample, SingleTrapezoidalSheetDrawsContourCoatLinesBaseAndCentreLines) {
    FilePtr sample = openSample(L"fsheet_single.qdt");
    ASSERT_NE(sample, nullptr);
    FilePtr object = part(sample, L"OBJECT");
    FilePtr params = part(sample, L"PARAMS");
    CQorGDX gdx = emptyDoc();
    ASSERT_TRUE(qor_gdx_image_fsheet(&gdx, object.get(), params.get()));
    // Contour, the two coat lines, the base point, centre lines at 0, 200, 400.
    ASSERT_EQ(gdx.lenGet(), 7);
    const QorDisplayObj kinds[] = {GDX_VL, GDX_VL, GDX_VL, GDX_PT, GDX_VL, GDX_VL, GDX_VL};
    const unsigned long flags[] = {0, 0, 0, 1024, 0, 0, 0};
    const short colours[] = {7, 1, 8, -1, 7, 7, 7};
    for (int i = 0; i < 7; ++i) {
        EXPECT_EQ(gdx.typeGet(i), kinds[i]) << i;
        EXPECT_EQ(gdx.flagGet(i), flags[i]) << i;
        EXPECT_EQ(gdx.colorGet(i).colorIndex(), colours[i]) << i;
        EXPECT_TRUE(stackOf(gdx, i).empty()) << i;
    }
    // 1.5 segments of 200 are covered by two whole periods of the profile.
    EXPECT_NEAR(maxX(gdx, 0), 400.0, 1e-9);
    const CQorVertexArray coatA = lineOf(gdx, 1);
    const CQorVertexArray coatB = lineOf(gdx, 2);
    ASSERT_GT(coatA.len(), 0);
    ASSERT_GT(coatB.len(), 0);
    EXPECT_EQ(coatA[0].m_start.x, 0.0);
    EXPECT_EQ(coatA[0].m_start.y, 0.0);
    EXPECT_NEAR(coatB[0].m_start.x, 0.0, 1e-12);
    EXPECT_NEAR(coatB[0].m_start.y, 0.75, 1e-12);
    // From 0.75 below the lower flats to 0.75 above the upper face of the ribs.
    for (int i = 0; i < 3; ++i)
        expectVertical(lineOf(gdx, 4 + i), 200.0 * i, -0.75, 36.5);
}

TEST_F(ImageFSheetSample, SandwichPanelDrawsFacesGasketAndCore) {
    FilePtr sample = openSample(L"fsheet_sandwich.qdt");
    ASSERT_NE(sample, nullptr);
    FilePtr object = part(sample, L"OBJECT");
    FilePtr params = part(sample, L"PARAMS");
    CQorGDX gdx = emptyDoc();
    ASSERT_TRUE(qor_gdx_image_fsheet(&gdx, object.get(), params.get()));
    // Top face: contour, centre lines at 0 and 1000, coat line, base point.
    // Bottom face: contour, coat line. Gasket and core: one filled region each.
    ASSERT_EQ(gdx.lenGet(), 9);
    const QorDisplayObj kinds[] = {GDX_VL, GDX_VL, GDX_VL,  GDX_VL, GDX_PT,
                                   GDX_VL, GDX_VL, GDX_REG, GDX_REG};
    const unsigned long flags[] = {0, 0, 0, 0, 1024, 0, 0, 17, 17};
    const short colours[] = {7, 7, 7, 1, -1, 7, 8, 7, 7};
    for (int i = 0; i < 9; ++i) {
        EXPECT_EQ(gdx.typeGet(i), kinds[i]) << i;
        EXPECT_EQ(gdx.flagGet(i), flags[i]) << i;
        EXPECT_EQ(gdx.colorGet(i).colorIndex(), colours[i]) << i;
    }
    // The top face at 80 with ribs 35 high, 0.75 thick.
    expectVertical(lineOf(gdx, 1), 0.0, 79.25, 116.5);
    expectVertical(lineOf(gdx, 2), 1000.0, 79.25, 116.5);
    const CQorVertexArray topCoat = lineOf(gdx, 3);
    ASSERT_GT(topCoat.len(), 0);
    EXPECT_NEAR(topCoat[0].m_start.x, 0.0, 1e-12);
    EXPECT_NEAR(topCoat[0].m_start.y, 80.0, 1e-12);
    // The bottom face's coat line is its reference face at 0.
    const CQorVertexArray botCoat = lineOf(gdx, 6);
    ASSERT_EQ(botCoat.len(), 1);
    EXPECT_NEAR(botCoat[0].m_start.y, 0.0, 1e-12);
    EXPECT_NEAR(botCoat[0].m_end.x, 1000.0, 1e-9);
    EXPECT_NEAR(botCoat[0].m_end.y, 0.0, 1e-12);
    // The gasket as it is defined; the core with the gasket as its hole.
    const CQorArrayTempl<CQorVertexArray> gasket = regionOf(gdx, 7);
    ASSERT_EQ(gasket.len(), 1);
    EXPECT_EQ(pieces(gasket[0])[0], (std::vector<double>{5.0, 2.0, 25.0, 2.0, 0.0}));
    const CQorArrayTempl<CQorVertexArray> core = regionOf(gdx, 8);
    ASSERT_EQ(core.len(), 2);
    EXPECT_EQ(pieces(core[1]), pieces(gasket[0]));
    CQorPoint3d lo, hi;
    ASSERT_TRUE(core[0].extents(lo, hi));
    EXPECT_NEAR(lo.y, 0.6, 1e-12);
    EXPECT_NEAR(hi.y, 115.0, 1e-9);
}
