#include "desk/shapes/pick.h"

#include "desk/import/import_block.h"
#include "tests/drawing/plain_drawing.h"

#include <algorithm>
#include <optional>
#include <string>
#include <vector>

namespace shapes {
namespace {

using namespace drawing;

/// Place in model space of an entity, -1 for none.
int indexOf(const Drawing& drawing, const std::optional<EntityId>& id) {
    const auto all = modelEntities(drawing);
    const auto found = std::find(all.begin(), all.end(), id);
    return found == all.end() ? -1 : static_cast<int>(found - all.begin());
}

/// What is found within 0.1 of each of some places, by its index.
void expectPicks(const Drawing& drawing, int index, const std::vector<Point3>& places) {
    for (const Point3& place : places)
        EXPECT_EQ(indexOf(drawing, pickEntity(drawing, place, 0.1)), index) << place.x << ',' << place.y;
}

/// Indices that a window (`crossing` or not) finds.
std::vector<int> windowed(const Drawing& drawing, const Point3& a, const Point3& b, bool crossing) {
    std::vector<int> result;
    for (EntityId id : selectWindow(drawing, a, b, crossing)) result.push_back(indexOf(drawing, id));
    return result;
}

TEST(PickTest, NearestWithinTheTolerance) {
    PlainDrawing plain;
    plain.entity("LINE 8 0 10 0 20 0 11 10 21 0").entity("LINE 8 0 10 0 20 0.15 11 10 21 0.15");
    plain.entity("CIRCLE 8 LOCKED 10 50 20 0 40 5").entity("POINT 8 0 10 50 20 0 30 9");
    const auto drawing = plain.entity("LWPOLYLINE 8 0 90 2 70 0 43 4 10 0 20 20 10 10 20 20").make();
    expectPicks(*drawing, 0, {{5, 0.05}});
    expectPicks(*drawing, 1, {{5, 0.12}});
    expectPicks(*drawing, 2, {{50, 4.95}});
    expectPicks(*drawing, 3, {{50, 0.05}});
    // On the band of a wide polyline, 2 to either side.
    expectPicks(*drawing, 4, {{5, 21.9}});
    expectPicks(*drawing, -1, {{5, -0.11}, {50, 2}, {5, 22.2}});
}

TEST(PickTest, FillsAndTextsAreFoundInsideBehindStrokes) {
    const auto drawing =
        PlainDrawing()
            .entity("LINE 8 0 10 -5 20 1 11 15 21 1")
            .entity("SOLID 8 0 10 0 20 0 11 10 21 0 12 0 22 10 13 10 23 10")
            .entity("TEXT 8 0 10 20 20 0 40 2 1 Salon 50 90")
            .entity("TEXT 8 0 10 0 20 0 11 40 21 5 40 2 1 Salon 72 1 73 2")
            .entity(
                "HATCH 8 0 10 0 20 0 30 0 2 SOLID 70 1 71 0 91 2 92 3 72 0 73 1 93 4 10 50 20 0 10 60 20 0"
                " 10 60 20 10 10 50 20 10 97 0 92 2 72 1 73 1 93 2 10 54 20 5 42 1 10 56 20 5 42 1 97 0 75 0")
            .make();
    expectPicks(*drawing, 0, {{5, 1.02}});
    // Drawn as an hourglass the solid wouldn't cover the second place.
    expectPicks(*drawing, 1, {{5, 5}, {9, 5}});
    expectPicks(*drawing, 2, {{19, 3}});
    expectPicks(*drawing, 3, {{39, 5}});
    expectPicks(*drawing, 4, {{52, 5}});
    expectPicks(*drawing, -1, {{22, 1}, {55, 5}});
}

TEST(PickTest, OnlyWhatIsShown) {
    PlainDrawing plain;
    plain.block("BOX")
        .inBlock("LINE 8 0 10 0 20 0 11 10 21 0")
        .inBlock("LINE 8 PLAIN 10 0 20 5 11 10 21 5")
        .inBlock("LINE 8 OFF 10 0 20 7 11 10 21 7")
        .inBlock("ATTDEF 8 0 10 0 20 9 40 1 1 X 2 TAG 70 0 3 P")
        .inBlock("ATTDEF 8 0 10 5 20 9 40 1 1 X 2 TAG 70 2 3 P");
    plain.entity("LINE 8 OFF 10 0 20 0 11 10 21 0").entity("LINE 8 FROZEN 10 0 20 1 11 10 21 1");
    plain.entity("LINE 8 0 60 1 10 0 20 2 11 10 21 2");
    plain.entity("INSERT 8 OFF 2 BOX 10 100 20 0").entity("INSERT 8 FROZEN 2 BOX 10 200 20 0");
    plain.entity("INSERT 8 0 60 1 2 BOX 10 300 20 0").entity("INSERT 8 PLAIN 2 BOX 10 400 20 0");
    plain.entity("INSERT 8 0 2 BOX 66 1 10 500 20 0")
        .entity("ATTRIB 8 0 10 502 20 20 40 1 1 Text 2 TAG 70 0");
    plain.entity("ATTRIB 8 0 10 502 20 30 40 1 1 Text 2 TAG 70 1").entity("SEQEND 8 0");
    const auto drawing = plain.make();
    expectPicks(*drawing, -1, {{5, 0}, {5, 1}, {5, 2}});
    // On a layer that is off a reference still shows what its block has on other layers.
    expectPicks(*drawing, 3, {{105, 5}});
    expectPicks(*drawing, -1, {{105, 0}, {205, 5}, {305, 5}, {405, 7}});
    // Of the definitions only the constant one is drawn; of the attributes the visible one.
    expectPicks(*drawing, 6, {{405, 0}, {405.3, 9.5}});
    expectPicks(*drawing, 7, {{503, 20.5}});
    expectPicks(*drawing, -1, {{400.3, 9.5}, {503, 30.5}});
}

TEST(PickTest, NestedScaledMirroredAndArrayed) {
    PlainDrawing plain;
    plain.block("ARM", 1, 1).inBlock("LINE 8 0 10 1 20 1 11 3 21 1").inBlock("CIRCLE 8 0 10 3 20 1 40 1");
    plain.block("PAIR")
        .inBlock("INSERT 8 0 2 ARM 10 0 20 0")
        .inBlock("INSERT 8 0 2 ARM 10 0 20 0 50 90 41 2 42 0.5");
    plain.entity("INSERT 8 0 2 PAIR 10 100 20 0 41 -1");
    plain.entity("INSERT 8 0 2 ARM 10 -200 20 0 210 0 220 0 230 -1");
    plain.entity("INSERT 8 0 2 ARM 10 0 20 500 50 90 70 1000 71 1000 44 10 45 20");
    plain.entity("INSERT 8 0 2 NOWHERE 10 0 20 0");
    const auto drawing = plain.make();
    // The first arm of the pair points to the left, the second one upwards, twice as long; its circle is an
    // ellipse of 2 by 0.5.
    expectPicks(*drawing, 0, {{99, 0}, {97, 0}, {100, 3}, {100, 6}, {99.5, 4}});
    expectPicks(*drawing, -1, {{101, 0}, {99, 4}});
    // Seen from below.
    expectPicks(*drawing, 1, {{199, 0}});
    // A million copies: turned upwards, columns go up and rows to the left.
    expectPicks(*drawing, 2, {{0, 501}, {-20 * 700, 500 + 10 * 900 + 1}});
    expectPicks(*drawing, -1, {{-20 * 700 - 10, 500 + 10 * 900 + 1}, {-20 * 1000, 501}});
    EXPECT_EQ(windowed(*drawing, {-1e6, 499, 0}, {1e6, 1e6, 0}, false), (std::vector<int>{2}));
}

TEST(PickTest, BlocksThatContainThemselvesOrMultiplyAreSurvived) {
    PlainDrawing plain;
    plain.block("LOOP").inBlock("LINE 8 0 10 0 20 0 11 1 21 0").inBlock("INSERT 8 0 2 LOOP 10 5 20 0");
    plain.block("B0").inBlock("LINE 8 0 10 0 20 0 11 1 21 0");
    // A to L: each holds ten of the one before, the last one 10^12 lines.
    for (char name = 'A'; name < 'M'; ++name) {
        const std::string inner = name == 'A' ? "B0" : std::string(1, static_cast<char>(name - 1));
        const std::string reference = "INSERT 8 0 2 " + inner + " 10 0 20 0";
        plain.block(std::string(1, name));
        for (int copy = 0; copy < 10; ++copy) plain.inBlock(reference);
    }
    plain.entity("INSERT 8 0 2 LOOP 10 0 20 0").entity("INSERT 8 0 2 L 10 50 20 0");
    const auto drawing = plain.make();
    expectPicks(*drawing, 0, {{0.5, 0}});
    expectPicks(*drawing, 1, {{50.5, 0}});
    expectPicks(*drawing, -1, {{5.5, 0}});
}

TEST(PickTest, WindowsAndCrossings) {
    PlainDrawing plain;
    plain.block("ARM").inBlock("LINE 8 0 10 0 20 0 11 4 21 0").inBlock("ARC 8 0 10 0 20 0 40 4 50 0 51 90");
    plain.entity("LINE 8 0 10 1 20 1 11 2 21 2").entity("LINE 8 0 10 1 20 1 11 20 21 1");
    plain.entity("INSERT 8 0 2 ARM 10 3 20 3").entity("INSERT 8 0 2 ARM 10 3 20 3 50 -45 41 3 42 3 43 3");
    plain.entity("CIRCLE 8 0 10 5 20 5 40 30").entity("TEXT 8 OFF 10 2 20 2 40 1 1 A");
    plain.entity("SOLID 8 0 10 -50 20 -50 11 50 21 -50 12 -50 22 50 13 50 23 50");
    const auto drawing = plain.make();
    EXPECT_EQ(windowed(*drawing, {10, 10, 0}, {0, 0, 0}, false), (std::vector<int>{0, 2}));
    EXPECT_EQ(windowed(*drawing, {0, 0, 0}, {10, 10, 0}, true), (std::vector<int>{0, 1, 2, 3, 6}));
    // Amid the quarter circle, whose box it lies in.
    EXPECT_EQ(windowed(*drawing, {3.5, 3.5, 0}, {4, 4, 0}, true), (std::vector<int>{6}));
}

TEST(PickTest, EndlessLinesMeshesTolerancesAndFrames) {
    PlainDrawing plain;
    plain.block("AXIS").inBlock("XLINE 8 0 10 0 20 0 11 1 21 0");
    plain.entity("RAY 8 0 10 0 20 0 11 0 21 1").entity("INSERT 8 0 2 AXIS 10 0 20 -10 50 45");
    // A strip of two faces, the edge between them once.
    plain.entity(
        "MESH 8 0 71 2 72 0 91 0 92 6 10 20 20 0 10 30 20 0 10 40 20 0 10 40 20 10 10 30 20 10 10 20 20 10"
        " 93 10 90 4 90 0 90 1 90 4 90 5 90 4 90 1 90 2 90 3 90 4 94 0 95 0 90 0");
    plain.entity("VIEWPORT 8 0 10 70 20 5 40 20 41 10 68 0 69 2");
    // Two rows, 0.36 high each; the symbol for concentricity in the first cell.
    plain.entity("TOLERANCE 8 0 10 100 20 0 11 1 21 0 1 {\\Fgdt;r}%%v1%%v%%v%%v%%v^J10");
    const auto drawing = plain.make();
    expectPicks(*drawing, 0, {{0, 0}, {0.05, 5000}});
    expectPicks(*drawing, 1, {{5000, 4990.05}, {-5000, -5010}});
    expectPicks(*drawing, 2, {{30.05, 5}, {25, 10}});
    expectPicks(*drawing, 3, {{60, 5}, {70, 0.05}});
    expectPicks(*drawing, 4, {{100, 0}, {100.2, -0.55}, {100.3, 0}});
    expectPicks(*drawing, -1, {{0, -1}, {1, 4990}, {25, 5}, {70, 5}, {100, -0.7}});
    EXPECT_EQ(windowed(*drawing, {-1, 40, 0}, {1, 60, 0}, true), std::vector<int>{0});
    EXPECT_EQ(windowed(*drawing, {-1, -20, 0}, {1, 60, 0}, false), std::vector<int>{});
    const Box box = extentsOf(*drawing, drawing->modelSpace());
    EXPECT_EQ(box.low.x, 0);
    EXPECT_EQ(box.low.y, -10);
}

TEST(PickTest, ContoursComeBeforeTheirHatch) {
    const std::string hatch =
        "HATCH 8 0 10 0 20 0 30 0 2 SOLID 70 1 71 0 91 1 92 3 72 0 73 1 93 4 10 0 20 0 10 9 20 0 10 9 20 9 "
        "10 0 20 9"
        " 97 0 75 0";
    const auto drawing = PlainDrawing()
                             .entity("LWPOLYLINE 8 0 90 4 70 1 10 0 20 0 10 9 20 0 10 9 20 9 10 0 20 9")
                             .entity(hatch)
                             .make();
    expectPicks(*drawing, 0, {{4, 0}, {4, 0.02}, {9.05, 4}});
    expectPicks(*drawing, 1, {{4, 4}, {4, 0.09}});
    const auto ids = modelEntities(*drawing);
    EXPECT_EQ(entitiesAt(*drawing, drawing->modelSpace(), {4, 0.02, 0}, 0.1), ids) << "the hatch comes next";
}

TEST(PickTest, SpellingsOfANameThatDifferInCaseAreOne) {
    PlainDrawing plain;
    plain.block("Arm").inBlock("LINE 8 0 10 0 20 0 11 4 21 0");
    const auto drawing = plain.entity("INSERT 8 0 2 ARM 10 10 20 0").make();
    expectPicks(*drawing, 0, {{12, 0}});
    EXPECT_EQ(windowed(*drawing, {9, -1, 0}, {11, 1, 0}, true), (std::vector<int>{0}));
    EXPECT_EQ(windowed(*drawing, {9, -1, 0}, {15, 1, 0}, false), (std::vector<int>{0}));
}

/// What is found at each place that matters, as a fresh drawing of the same bytes finds it.
void expectFreshAnswers(const Drawing& drawing) {
    const auto fresh = Drawing::parse(drawing.savedBytes(), "fresh.dxf");
    for (int x = -1; x < 14; ++x) {
        for (int y = -1; y < 14; ++y) {
            const Point3 point{double(x), double(y), 0};
            EXPECT_EQ(indexOf(drawing, pickEntity(drawing, point, 0.1)),
                      indexOf(*fresh, pickEntity(*fresh, point, 0.1)))
                << x << ',' << y;
        }
    }
    const Box kept = extentsOf(drawing, drawing.modelSpace());
    const Box made = extentsOf(*fresh, fresh->modelSpace());
    EXPECT_EQ(kept.low, made.low);
    EXPECT_EQ(kept.high, made.high);
}

TEST(PickTest, TheIndexFollowsTheDrawing) {
    PlainDrawing plain(Kind::R2000);
    plain.block("ARM").inBlock("LINE 8 0 10 0 20 0 11 4 21 0");
    plain.block("NEST").inBlock("INSERT 8 0 2 ARM 10 1 20 1").inBlock("INSERT 8 0 2 LATER 10 0 20 9");
    plain.entity("INSERT 8 0 2 ARM 10 0 20 0").entity("INSERT 8 0 2 NEST 10 0 20 2 66 1");
    plain.entity("ATTRIB 8 0 10 6 20 6 40 1 1 Text 2 TAG 70 0").entity("SEQEND 8 0");
    const auto drawing = plain.entity("LINE 8 0 10 5 20 0 11 5 21 3").make();
    const auto ids = modelEntities(*drawing);
    const auto again = [&](const char* what) {
        SCOPED_TRACE(what);
        expectFreshAnswers(*drawing);
    };
    again("at first");
    drawing->setRotation(ids[0], kPi / 2);
    again("turned");
    drawing->setInsertionPoint(ids[1], {2, 2, 0});
    again("moved with its attribute");
    drawing->setVisible(ids[2], false);
    again("hidden");
    const EntityId line = drawing->addLine({7, 7, 0}, {9, 7, 0});
    again("a new line");
    drawing->insertBlock(drawing->blocks().find("NEST"), {8, 8, 0}, {1, 1, 1}, 0);
    again("a new reference");
    drawing->erase(ids[0]);
    drawing->erase(line);
    again("two erased");
    drawing->setText(ids[1], 2, "AcDbBlockReference", "arm");
    again("another block");
    drawing->setText(ids[1], 8, "AcDbEntity", "OFF");
    again("on a layer that is off");
    const auto file = PlainDrawing(Kind::R2000).entity("LINE 8 PLAIN 10 0 20 0 11 0 21 3").make();
    importing::importBlock(*drawing, *file, "LATER");
    again("a block that references lacked");
    importing::importBlock(*drawing, *file, "ARM");
    again("a block redefined");
    while (drawing->undo()) again("undone");
}

TEST(PickTest, LargeOnesAreFoundInPartsAndFollowed) {
    PlainDrawing plain(Kind::R2000);
    std::string comb = "LWPOLYLINE 5 60 100 AcDbEntity 8 0 100 AcDbPolyline 90 4000 70 0";
    for (int i = 0; i < 4000; ++i)
        comb += " 10 " + std::to_string(i / 2) + ".5 20 " + std::to_string((i + 1) / 2 % 2 * 50);
    plain.block("MANY").inBlock(comb);
    for (int i = 0; i < 500; ++i)
        plain.inBlock("LINE 8 0 10 " + std::to_string(i * 7 % 500) + " 20 100 11 " +
                      std::to_string(i * 7 % 500) + " 21 110");
    const auto drawing = plain.entity(comb).entity("INSERT 5 61 8 0 2 MANY 10 0 20 1000").make();
    const auto ids = modelEntities(*drawing);
    expectPicks(*drawing, 0, {{1234.5, 25}, {0.5, 25}, {1, 50}, {1999.5, 25}});
    expectPicks(*drawing, 1, {{1234.5, 1025}, {7, 1105}, {499, 1105}, {2, 1105}});
    expectPicks(*drawing, -1, {{1234, 25}, {2.5, 1105}});
    EXPECT_EQ(windowed(*drawing, {0, -1, 0}, {2000, 51, 0}, false), std::vector<int>{0});
    EXPECT_EQ(windowed(*drawing, {0, -1, 0}, {1500, 51, 0}, false), std::vector<int>{});
    EXPECT_EQ(windowed(*drawing, {700, 1020, 0}, {702, 1030, 0}, true), std::vector<int>{1});
    drawing->setVisible(ids[0], false);
    expectPicks(*drawing, -1, {{1234.5, 25}});
    drawing->setVisible(ids[0], true);
    expectPicks(*drawing, 0, {{1234.5, 25}});
    drawing->erase(ids[0]);
    EXPECT_EQ(pickEntity(*drawing, {1234.5, 25, 0}, 0.1), std::nullopt);
}

// A door of the sample by its swing, a label by its text, the array by one of its posts.
TEST(PickTest, Sample) {
    const auto drawing = Drawing::open(VORLANE_ROOT "/samples/apartment.dxf");
    const double diagonal = 0.8 * std::sqrt(0.5);
    const std::pair<Point3, const char*> places[] = {
        {{1.5 + diagonal, 5.8 + diagonal, 0}, "PORTE_80"},
        {{16.5 - diagonal, 5.8 + diagonal, 0}, "PORTE_80"},
        {{2.2, 2.9, 0}, "ETIQUETTE_PIECE"},
        {{0.4 + 3 * 1.8 + 0.1, -2.7 + 2.2, 0}, "POTEAU"},
        // A chair, two references down, and the invisible door.
        {{2.2 + 0.4 + 0.22, 1.6 + 0.65, 0}, "ENSEMBLE_REPAS"},
        {{11.1 - diagonal, 8.75 - diagonal, 0}, ""},
    };
    for (const auto& [place, name] : places) {
        const auto found = pickEntity(*drawing, place, 0.05);
        EXPECT_EQ(found ? drawing->name(*found) : "", name);
    }
}

}  // namespace
}  // namespace shapes
