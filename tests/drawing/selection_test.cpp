#include "tests/drawing/sample_drawing.h"

namespace drawing {
namespace {

class Selection : public testing::Test {
  protected:
    /// Handles of what a filter lets pass, in hexadecimal.
    std::string select(const Filter& filter) const {
        std::string handles;
        for (EntityId id : drawing_->select(filter)) {
            char text[20];
            std::snprintf(text, sizeof text, "%llX ", static_cast<unsigned long long>(drawing_->handle(id)));
            handles += text;
        }
        return handles;
    }

    std::unique_ptr<Drawing> drawing_ =
        SampleDrawing()
            .block("BLOCK 5 90 330 50 8 0 2 USER 70 0 10 0.0 20 0.0")
            .block("INSERT 5 91 330 50 100 AcDbEntity 8 0 100 AcDbBlockReference 2 DOOR 10 0.0 20 0.0")
            .block("ENDBLK 5 92 8 0")
            .model(
                "INSERT 5 60 330 1F 100 AcDbEntity 8 WALLS 62 1 100 AcDbBlockReference 2 DOOR 10 0.0 20 0.0")
            .model("INSERT 5 61 330 1E 100 AcDbEntity 67 1 8 0 100 AcDbBlockReference 2 door 10 1.0 20 2.0")
            .model(
                "INSERT 5 62 330 1F 100 AcDbEntity 8 0 60 1 100 AcDbBlockReference 66 1 2 FIXED 10 0.0 20 "
                "0.0 70 3")
            .model(
                "ATTRIB 5 63 330 62 100 AcDbEntity 8 0 100 AcDbText 10 0.0 20 0.0 40 1.0 1 a 100 "
                "AcDbAttribute 2 DOOR 70 0")
            .model("SEQEND 5 64 330 62 100 AcDbEntity 8 0")
            .model("HATCH 5 65 330 1F 100 AcDbEntity 8 0 100 AcDbHatch 2 DOOR 70 0")
            .model("LINE 5 66 330 1F 100 AcDbEntity 8 0 100 AcDbLine 10 0.0 20 0.0 11 5.0 21 1.0")
            .make();
};

TEST_F(Selection, ByNameInAllSpacesButNotInDefinitions) {
    EXPECT_EQ(select({{100, "AcDbEntity"}, {2, "DOOR"}}), "60 61 65 ");
    EXPECT_EQ(select({{100, "AcDbBlockreference"}, {2, "DOOR"}}), "60 61 ");
    EXPECT_EQ(select({{100, "acdbblockreference"}, {2, "*oo?,f`ixed"}}), "60 61 62 ");
    EXPECT_EQ(select({{2, "NOBODY"}}), "");
    EXPECT_EQ(select({}), "60 61 62 65 66 ");
}

TEST_F(Selection, ByOtherGroups) {
    EXPECT_EQ(select({{0, "INSERT"}, {8, "walls"}}), "60 ");
    EXPECT_EQ(select({{0, "INSERT,LINE"}, {62, 256.0}}), "61 62 66 ");
    EXPECT_EQ(select({{67, 1.0}}), "61 ");
    EXPECT_EQ(select({{60, 1.0}}), "62 ");
    EXPECT_EQ(select({{5, "66"}}), "66 ");
    EXPECT_EQ(select({{100, "AcDbMInsertBlock"}}), "62 ");
    EXPECT_EQ(select({{100, "AcDbLine"}}), "66 ");
    EXPECT_EQ(select({{410, "model"}, {0, "LINE"}}), "66 ");
    EXPECT_EQ(select({{10, Point3{1, 2, 0}}}), "61 ");
    EXPECT_EQ(select({{11, Point3{5, 1, 0}}}), "66 ");
}

TEST_F(Selection, Operators) {
    EXPECT_EQ(select({{-4, "<OR"}, {0, "LINE"}, {2, "FIXED"}, {-4, "OR>"}}), "62 66 ");
    EXPECT_EQ(select({{-4, "<not"}, {0, "INSERT"}, {-4, "not>"}}), "65 66 ");
    EXPECT_EQ(select({{-4, ">="}, {70, 1.0}}), "62 ");
    EXPECT_EQ(errorOf([&] { select({{-4, "<OR"}, {0, "LINE"}}); }), kInvalidInput);
    EXPECT_EQ(errorOf([&] { select({{-4, "~="}, {0, "LINE"}}); }), kInvalidInput);
}

TEST_F(Selection, FollowsWhatIsErasedMadeAndUndone) {
    drawing_->erase(drawing_->byHandle(0x60));
    EXPECT_EQ(select({{2, "DOOR"}}), "61 65 ");
    drawing_->insertBlock(drawing_->blocks().find("DOOR"), {}, {1, 1, 1}, 0);
    EXPECT_EQ(select({{2, "DOOR"}}), "61 65 100 ");
    drawing_->undo();
    drawing_->undo();
    EXPECT_EQ(select({{2, "DOOR"}}), "60 61 65 ");
    drawing_->setText(drawing_->byHandle(0x60), 2, "AcDbBlockReference", "PLAIN");
    EXPECT_EQ(select({{2, "DOOR"}}), "61 65 ");
    EXPECT_EQ(select({{2, "PLAIN"}}), "60 ");
    drawing_->undo();
    EXPECT_EQ(select({{2, "DOOR"}}), "60 61 65 ");
    EXPECT_EQ(select({{2, "PLAIN"}}), "");
}

TEST_F(Selection, AmongSomeKeepsTheirOrderAndDropsStrangers) {
    const std::vector<EntityId> among{drawing_->byHandle(0x66), drawing_->byHandle(0x63),
                                      drawing_->byHandle(0x60), drawing_->byHandle(0x91), kNoEntity};
    const std::vector<EntityId> expected{drawing_->byHandle(0x66), drawing_->byHandle(0x60)};
    EXPECT_EQ(drawing_->select({}, among), expected);
}

TEST(SelectionOfR12, MarkersAreTakenAsTheHostHasThem) {
    const auto drawing = SampleDrawing(true)
                             .model("INSERT 5 60 8 0 2 DOOR 10 0.0 20 0.0")
                             .model("POLYLINE 5 61 8 0 66 1 70 8")
                             .model("SEQEND 5 62 8 0")
                             .make();
    EXPECT_EQ(drawing->select({{100, "AcDbBlockreference"}, {2, "DOOR"}}).size(), 1u);
    EXPECT_EQ(drawing->select({{100, "AcDb3dPolyline"}}).size(), 1u);
    EXPECT_EQ(drawing->select({{100, "AcDbEntity"}}).size(), 2u);
}

}  // namespace
}  // namespace drawing
