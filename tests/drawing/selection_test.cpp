#include "tests/drawing/plain_drawing.h"

namespace drawing {
namespace {

class Selection : public testing::Test {
  protected:
    /// Handles of what a filter lets pass, in hexadecimal.
    std::string select(const Filter& filter) const {
        std::ostringstream handles;
        for (EntityId id : drawing_->select(filter))
            handles << std::hex << std::uppercase << drawing_->handle(id) << ' ';
        return handles.str();
    }

    std::unique_ptr<Drawing> drawing_ =
        PlainDrawing(Kind::R2000)
            .block("USER")
            .inBlock("INSERT 5 91 330 50 100 AcDbEntity 8 0 100 AcDbBlockReference 2 DOOR 10 0.0 20 0.0")
            .entity("INSERT 5 60 100 AcDbEntity 8 WALLS 62 1 100 AcDbBlockReference 2 DOOR 10 0.0 20 0.0")
            .entity("INSERT 5 61 330 1E 100 AcDbEntity 67 1 8 0 100 AcDbBlockReference 2 door 10 1.0 20 2.0")
            .entity("INSERT 5 62 100 AcDbEntity 8 0 60 1 100 AcDbBlockReference 66 1 2 FIXED 10 0 20 0 70 3")
            .entity(
                "ATTRIB 5 63 330 62 100 AcDbEntity 8 0 100 AcDbText 10 0.0 20 0.0 40 1.0 1 a 100 "
                "AcDbAttribute 2 DOOR 70 0")
            .entity("SEQEND 5 64 330 62 100 AcDbEntity 8 0")
            .entity("HATCH 5 65 100 AcDbEntity 8 0 100 AcDbHatch 2 DOOR 70 0")
            .entity("LINE 5 66 100 AcDbEntity 8 0 100 AcDbLine 10 0.0 20 0.0 11 5.0 21 1.0")
            .make();
};

TEST_F(Selection, ByGroupsInAllSpacesButNotInDefinitions) {
    const std::pair<Filter, const char*> rows[] = {
        {{{100, "AcDbEntity"}, {2, "DOOR"}}, "60 61 65 "},
        {{{100, "AcDbBlockreference"}, {2, "DOOR"}}, "60 61 "},
        {{{100, "acdbblockreference"}, {2, "*oo?,f`ixed"}}, "60 61 62 "},
        {{{2, "NOBODY"}}, ""},
        {{}, "60 61 62 65 66 "},
        {{{0, "INSERT"}, {8, "walls"}}, "60 "},
        {{{0, "INSERT,LINE"}, {62, 256.0}}, "61 62 66 "},
        {{{67, 1.0}}, "61 "},
        {{{60, 1.0}}, "62 "},
        {{{5, "66"}}, "66 "},
        {{{100, "AcDbMInsertBlock"}}, "62 "},
        {{{100, "AcDbLine"}}, "66 "},
        {{{410, "model"}, {0, "LINE"}}, "66 "},
        {{{10, Point3{1, 2, 0}}}, "61 "},
        {{{11, Point3{5, 1, 0}}}, "66 "},
        {{{-4, "<OR"}, {0, "LINE"}, {2, "FIXED"}, {-4, "OR>"}}, "62 66 "},
        {{{-4, "<not"}, {0, "INSERT"}, {-4, "not>"}}, "65 66 "},
        {{{-4, ">="}, {70, 3.0}}, "62 "},
        {{{-4, "<"}, {62, 256.0}}, "60 "},
        {{{-4, "<="}, {62, 1.0}}, "60 "},
        {{{-4, ">"}, {62, 1.0}}, "61 62 65 66 "},
        {{{-4, "!="}, {62, 1.0}}, "61 62 65 66 "},
        {{{-4, "="}, {62, 1.0}}, "60 "},
        {{{-4, "&"}, {70, 6.0}}, "62 "},
        {{{-4, "&="}, {70, 2.0}}, "62 "},
        {{{-4, "&="}, {70, 6.0}}, ""},
        {{{-4, "*"}, {8, "nowhere"}}, "60 61 62 65 66 "},
        {{{-4, "<>"}, {8, "0"}}, "60 "},
        {{{-4, "/="}, {2, "DOOR"}}, "62 66 "},
        {{{-4, "<XOR"}, {0, "INSERT"}, {62, 1.0}, {-4, "XOR>"}}, "61 62 "},
        {{{62, "1"}}, ""},
        {{{10, Point3{1, 2, 1e-8}}}, ""},
    };
    for (const auto& [filter, handles] : rows) EXPECT_EQ(select(filter), handles) << &filter - &rows[0].first;
    for (const char* wrong : {"<OR", "~="})
        EXPECT_EQ(errorOf([&] { select({{-4, wrong}, {0, "LINE"}}); }), kInvalidInput) << wrong;

    const std::vector<EntityId> among{drawing_->byHandle(0x66), drawing_->byHandle(0x63),
                                      drawing_->byHandle(0x60), drawing_->byHandle(0x91), kNoEntity};
    EXPECT_EQ(drawing_->select({}, among), (std::vector{among[0], among[2]})) << "no strangers, their order";
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

TEST_F(Selection, OldDrawingsHaveTheHostsMarkers) {
    PlainDrawing old(Kind::R12);
    old.entity("INSERT 5 60 8 0 2 DOOR 10 0.0 20 0.0");
    old.entity("POLYLINE 5 61 8 0 66 1 70 8").entity("SEQEND 5 62 8 0");
    drawing_ = old.make();
    EXPECT_EQ(select({{100, "AcDbBlockreference"}, {2, "DOOR"}}), "60 ");
    EXPECT_EQ(select({{100, "AcDb3dPolyline"}}), "61 ");
    EXPECT_EQ(select({{100, "AcDbEntity"}}), "60 61 ");
}

}  // namespace
}  // namespace drawing
