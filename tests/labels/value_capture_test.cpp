#include "labels/value_capture.h"

#include "labels/polygon_measure.h"
#include "tests/labels/labels_world.h"

#include <gtest/gtest.h>

namespace labels {
namespace {

struct CaptureTest : testing::Test, LabelsWorld, LabelRows {
    CaptureTest() : LabelsWorld(fakes::drawingOf({}).entity("LINE 8 WALLS 62 5 10 0 20 0 11 7 21 0")) {
        resetLabelTable(session);
        growLabelTable(session, 2);
        faulty.reset();
    }
    const std::string& blockName() const override { return name; }
    const std::string& manualValue(int row) const override {
        if (row != 1) throw basic::Error(basic::kSubscript);
        return manual;
    }
    const std::string& modeText(int) const override { return name; }
    int modeCount() const override { return 0; }
    const std::string& modeEntry(int) const override { return name; }

    void slot(LabelSlot slot, basic::Variant value, int position = 0) {
        labelCell(session, slot, position) = std::move(value);
    }
    std::string text(const basic::Variant& value) { return basic::toText(value, platform.numbers); }
    std::string value(int mode, int position = 1) { return text(capture.AutoVal(position, mode)); }

    std::string name, manual = "typed";
    ValueCapture capture{session, *this};
};

TEST_F(CaptureTest, WithoutAnyPickTheValueIsEmptyAndOnlyThePrefixesStand) {
    slot(kPrefixSlot, "<");
    slot(kSuffixSlot, ">");
    slot(kDecimalsSlot, "2");
    escape();
    breakOffPick();
    for (const int mode : {1, 2, 3, 4, 6, 8, 11, 12, 13, -1}) EXPECT_EQ(value(mode), "<>") << mode;
    EXPECT_EQ(value(kManual), "<typed>");
    EXPECT_EQ(value(kManual, 2), "") << "a row that isn't there";
    EXPECT_EQ(value(kManual, 9), "") << "a position outside the table";
    EXPECT_EQ(prompts(), (Texts{kPoint, kObject}));
}

TEST_F(CaptureTest, TheMaskFollowsTheSlotWhateverStandsInIt) {
    point({2.5, 0, 0});
    const auto with = [&](basic::Variant decimals) {
        slot(kDecimalsSlot, std::move(decimals));
        return value(kPointX);
    };
    EXPECT_EQ(with("0"), "3");
    EXPECT_EQ(with("1"), "2.5");
    EXPECT_EQ(with("9"), "2.500000000");
    EXPECT_EQ(with(std::int16_t{-1}), "3.") << "the separator without decimals";
    EXPECT_EQ(with("some"), "3") << "a comparison that fails counts as equal to 0";
    EXPECT_EQ(with("99999"), "3.");
    EXPECT_EQ(with(""), "3");
    EXPECT_EQ(labelCell(session, kDecimalsSlot, 0).integer(), 0) << "written into an empty slot";
    session.PickPoint = basic::Doubles{-7.5, 0, 0};
    EXPECT_EQ(value(kPointX), "-8") << "a half goes away from zero";
}

TEST_F(CaptureTest, CountersStartAsTypedAndGoOnPlain) {
    const auto counter = [&](const char* first, const char* step) {
        slot(kValueSlot, first);
        slot(kStepSlot, step);
        return Texts{value(kCounter), value(kCounter), value(kCounter)};
    };
    EXPECT_EQ(counter("12b", "1"), (Texts{"12b", "13", "14"}));
    EXPECT_EQ(counter("", ""), (Texts{"", "0", "0"}));
    EXPECT_EQ(counter("x", "0.1"), (Texts{"x", "0.1", "0.2"}));
    slot(kDecimalsSlot, "3");
    EXPECT_EQ(value(kCounter), "0.3") << "15 digits, no mask";

    slot(kValueSlot, "7", 1);
    slot(kStepSlot, "1", 1);
    EXPECT_EQ(value(kCounter, 2), "7") << "each attribute counts for itself";
    EXPECT_EQ(value(kCounter), "0.4");

    platform.numbers = basic::Regional::french();
    EXPECT_EQ(counter("1", "0.5"), (Texts{"1", "1,5", "2"}));
    EXPECT_EQ(counter("1,5", "1"), (Texts{"1,5", "2", "3"})) << "a typed text is read to the comma";
    EXPECT_EQ(text(capture.Increm(9)), "");
}

TEST_F(CaptureTest, SinglePurposeOperationsPickForThemselves) {
    for (int i = 0; i < 5; ++i) pick(item(0), {1. * i, 0, 0});
    EXPECT_EQ((Texts{text(capture.ClicLong()), text(capture.ClicPerim(1)), text(capture.ClicAire()),
                     text(capture.ClicCalque()), text(capture.ClicColor())}),
              (Texts{"7", "7", "", "WALLS", "5"}))
        << "a line has no area";
    EXPECT_EQ(prompts(),
              (Texts{"Selectionner le contour pour la longueur. ",
                     "Selectionner le contour pour le périmètre. ", "Selectionner le contour pour l'aire. ",
                     "Selectionner l'objet pour le calque. ", "Selectionner l'objet pour la couleur. "}));
    EXPECT_EQ(session.PickPoint.doubles().at(0), 4);
    EXPECT_EQ(capture.PickedObject, nullptr) << "the label's own pick is another";

    for (int i = 0; i < 3; ++i) {
        for (const geometry::Point3& corner :
             {geometry::Point3{0, 0, 5}, {10, 0, 0}, {10, 10, 9}, {0, 10, 0}})
            point(corner);
        escape();
    }
    EXPECT_EQ((Texts{text(capture.ClicLong(2)), text(capture.ClicPerim(2)), text(capture.ClicAire(2))}),
              (Texts{"30", "40", "100"}));
    EXPECT_FALSE(capture.PolygonPicked || capture.ObjectPicked);
    EXPECT_EQ(measurePolygon({{0, 0, 0}, {10, 10, 0}, {10, 0, 0}, {0, 10, 0}}).area, 0) << "crosses itself";
    breakOffPick();
    EXPECT_EQ(text(capture.ClicAire()) + text(capture.ClicAire(3)), "");
}

}  // namespace
}  // namespace labels
