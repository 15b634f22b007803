#include "labels/value_capture.h"

#include "labels/polygon_measure.h"
#include "tests/labels/labels_world.h"

#include <gtest/gtest.h>

namespace labels {
namespace {

struct CaptureTest : testing::Test, LabelsWorld, LabelRows {
    CaptureTest() {
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
    host.breakOffPick();
    for (const int mode : {1, 2, 3, 4, 6, 8, 11, 12, 13, -1}) EXPECT_EQ(value(mode), "<>") << mode;
    EXPECT_EQ(value(kManual), "<typed>");
    EXPECT_EQ(value(kManual, 2), "") << "a row that isn't there";
    EXPECT_EQ(value(kManual, 9), "") << "a position outside the table";
    EXPECT_EQ(prompts(), (Texts{kPoint, kObject}));
}

TEST_F(CaptureTest, OneObjectServesAllValues) {
    pick(entity({{"Length", 12.346}, {"Area", 80}}), {3, 4, 0});
    slot(kDecimalsSlot, "2");
    EXPECT_EQ(value(kObjectLength), "12.35");
    EXPECT_EQ(value(kObjectPerimeter, 2) + " " + value(kObjectArea, 2), "12 80");
    EXPECT_EQ(value(kObjectColor), "256") << "by layer is a number too, and goes through no mask";
    EXPECT_EQ(prompts(), Texts{kObject});
    EXPECT_EQ(session.PickPoint.doubles(), (basic::Doubles{3, 4, 0}));
    platform.numbers = basic::Regional::french();
    EXPECT_EQ(value(kObjectLength), "12,35");
}

TEST_F(CaptureTest, TheMeasureIsTheSumOfWhatAnObjectHas) {
    const auto reading = [&](std::map<std::string, double> measures) {
        capture.ObjectPicked = false;
        pick(entity(std::move(measures)));
        return value(kObjectLength);
    };
    EXPECT_EQ(reading({{"Perimeter", 7}, {"Area", 3}}), "7");
    EXPECT_EQ(reading({{"Circumference", 9}}), "9");
    EXPECT_EQ(reading({{"Length", 5}, {"Perimeter", 7}, {"Circumference", 9}}), "21");
    EXPECT_EQ(reading({{"ArcLength", 5}}), "") << "an arc has none of the three";
    capture.ObjectPicked = false;
    host.breakOffPick();
    EXPECT_EQ(value(kObjectArea), "") << "broken off: the object of before, which has no area";
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
    const auto contour = entity({{"Perimeter", 7}, {"Area", 3}});
    contour->layer = "ROOMS";
    contour->color = 5;
    for (int i = 0; i < 5; ++i) pick(contour, {1. * i, 0, 0});
    EXPECT_EQ((Texts{text(capture.ClicLong()), text(capture.ClicPerim(1)), text(capture.ClicAire()),
                     text(capture.ClicCalque()), text(capture.ClicColor())}),
              (Texts{"7", "7", "3", "ROOMS", "5"}));
    EXPECT_EQ(prompts(),
              (Texts{"Selectionner le contour pour la longueur. ",
                     "Selectionner le contour pour le périmètre. ", "Selectionner le contour pour l'aire. ",
                     "Selectionner l'objet pour le calque. ", "Selectionner l'objet pour la couleur. "}));
    EXPECT_EQ(session.PickPoint.doubles().at(0), 4);
    EXPECT_EQ(capture.PickedObject, nullptr) << "the label's own pick is another";

    for (int i = 0; i < 3; ++i) {
        for (const Point& corner : {Point{0, 0, 5}, Point{10, 0, 0}, Point{10, 10, 9}, Point{0, 10, 0}})
            point(corner);
        escape();
    }
    EXPECT_EQ((Texts{text(capture.ClicLong(2)), text(capture.ClicPerim(2)), text(capture.ClicAire(2))}),
              (Texts{"30", "40", "100"}));
    EXPECT_FALSE(capture.PolygonPicked || capture.ObjectPicked);
    EXPECT_EQ(measurePolygon({{0, 0, 0}, {10, 10, 0}, {10, 0, 0}, {0, 10, 0}}).area, 0) << "crosses itself";
    host.breakOffPick();
    EXPECT_EQ(text(capture.ClicAire()) + text(capture.ClicAire(3)), "");
}

}  // namespace
}  // namespace labels
