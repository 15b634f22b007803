// Drawings made to keep a program busy: what a question costs is bounded. None of them may take more than a
// second or two; without its bound each runs for minutes or for ever.
#include "desk/shapes/measure.h"
#include "desk/shapes/pick.h"
#include "tests/drawing/plain_drawing.h"

namespace shapes {
namespace {

using namespace drawing;

std::string square(double low, double high) {
    std::ostringstream words;
    words << " 92 3 72 0 73 1 93 4 10 " << low << " 20 " << low << " 10 " << high << " 20 " << low << " 10 "
          << high << " 20 " << high << " 10 " << low << " 20 " << high << " 97 0";
    return words.str();
}

std::unique_ptr<Drawing> hatched(const std::string& loops) {
    PlainDrawing plain;
    plain.entity("HATCH 8 0 10 0 20 0 30 0 2 SOLID 70 1 71 0 91 20000" + loops + " 75 0 76 1 98 0");
    return plain.make();
}

TEST(HostileTest, AHatchOfTwentyThousandLoops) {
    constexpr int kLoops = 20000;
    std::string islands = square(-1, 2 * kLoops + 1);
    std::string rings, crossing;
    for (int i = 0; i < kLoops; ++i) {
        islands += square(2 * i, 2 * i + 1);
        rings += square(-i - 1, i + 1);
        crossing += square(i * 0.25, i * 0.25 + 10000);
    }
    const auto plate = hatched(islands);
    const double side = 2 * kLoops + 2;
    EXPECT_DOUBLE_EQ(measure(*plate, modelEntities(*plate)[0], Measure::Area), side * side - kLoops);
    for (const std::string& loops : {rings, crossing}) {
        const auto drawing = hatched(loops);
        EXPECT_EQ(errorOf([&] { measure(*drawing, modelEntities(*drawing)[0], Measure::Area); }),
                  kNotApplicable);
    }
}

/// Blocks that hold each other in arrays, and arrays that multiply from level to level, 500 of them in a
/// place.
TEST(HostileTest, ArraysOfArraysAndBlocksInCircles) {
    PlainDrawing plain;
    const std::string array = " 10 0.0 20 0.0 70 30000 71 30000 44 0.001 45 0.001";
    plain.block("A").inBlock("INSERT 8 0 2 B" + array).inBlock("CIRCLE 8 0 10 5.0 20 5.0 40 1.0");
    plain.block("B").inBlock("INSERT 8 0 2 A" + array).inBlock("INSERT 8 0 2 C1" + array);
    for (int level = 1; level < 10; ++level) {
        plain.block("C" + std::to_string(level))
            .inBlock("INSERT 8 0 2 C" + std::to_string(level + 1) + array);
        plain.inBlock("LINE 8 0 10 0.0 20 0.0 11 9.0 21 9.0");
    }
    plain.block("C10").inBlock("LINE 8 0 10 0.0 20 0.0 11 9.0 21 9.0");
    for (int i = 0; i < 500; ++i) plain.entity("INSERT 8 0 2 A" + array);
    const auto drawing = plain.make();
    EXPECT_FALSE(extentsOf(*drawing, drawing->modelSpace()).empty());
    pickEntity(*drawing, {5, 5, 0}, 0.5);
    selectWindow(*drawing, {4, 4, 0}, {6, 6, 0}, true);
    selectWindow(*drawing, {-1, -1, 0}, {6, 6, 0}, false);
}

}  // namespace
}  // namespace shapes
