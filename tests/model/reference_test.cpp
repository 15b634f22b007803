#include "desk/model/entity.h"
#include "model_world.h"

namespace model {
namespace {

class ReferenceTest : public FurnishedTest {
  protected:
    /// The attribute reference at a position of a reference's array.
    static host::ObjectPtr attribute(const host::ObjectPtr& reference, std::size_t position) {
        return host::asObject(reference->invoke("GetAttributes").array().at(position));
    }
    static int errorSetting(const host::ObjectPtr& object, const char* member, const Variant& value) {
        return errorOf([&] { object->set(member, value); });
    }
};

TEST_F(ReferenceTest, TellsWhatTheFileSays) {
    EXPECT_DOUBLE_EQ(numberOf(item(Furnished::Door), "Rotation"), geometry::kPi / 2) << "radians";
    EXPECT_EQ(numberOf(item(Furnished::Door), "Color"), 3);
    const host::ObjectPtr array = item(Furnished::Plain);
    EXPECT_EQ(textOf(array, "ObjectName"), "AcDbMInsertBlock");
    EXPECT_EQ(textOf(array, "Name"), "Plain") << "as the definition spells it";
    EXPECT_FALSE(array->get("Visible").boolean());
    EXPECT_EQ(array->get("Color").integer(), 256);
    EXPECT_EQ(textOf(item(Furnished::Anonymous), "Name"), "*U1");
}

TEST_F(ReferenceTest, PointsAreWorldCoordinatesWhateverTheExtrusion) {
    drawing::PlainDrawing plain;
    plain.block("B").entity("INSERT 8 0 66 1 2 B 10 10 20 20 30 1 210 0 220 0 230 -1");
    plain.entity("ATTRIB 8 0 10 11 20 22 30 1 40 1 1 x 2 T 70 0 210 0 220 0 230 -1").entity("SEQEND 8 0");
    const ModelWorld free(plain.make());
    expectPoint(item(Furnished::Mirrored), "InsertionPoint", {-10, 20, -1});
    const host::ObjectPtr mirrored = free.item(0);
    mirrored->set("InsertionPoint", basic::Doubles{5, 6, 7});
    expectPoint(mirrored, "InsertionPoint", {5, 6, 7});
    EXPECT_EQ(free.drawing().placement(toEntity(mirrored)).insertion, (geometry::Point3{-5, 6, -7}));
    // The attribute stays where it was as seen from the reference: 1 along, 2 up.
    drawing::expectNear(free.drawing().attribute(toEntity(attribute(mirrored, 0))).position, {-4, 8, -7});
}

TEST_F(ReferenceTest, ValuesAreConvertedAsAutomationDoes) {
    const host::ObjectPtr door = item(Furnished::Door);
    door->set("XScaleFactor", std::int16_t{-7});
    EXPECT_EQ(numberOf(door, "XScaleFactor"), -7);
    door->set("YScaleFactor", " 1.5 ");
    EXPECT_EQ(numberOf(door, "YScaleFactor"), 1.5);
    door->set("Rotation", "90");
    EXPECT_EQ(numberOf(door, "Rotation"), 90) << "a text is no angle in degrees either";
    door->set("Visible", std::int16_t{0});
    EXPECT_FALSE(door->get("Visible").boolean());
    door->set("InsertionPoint", basic::Array{1.0, "2", std::int16_t{3}});
    expectPoint(door, "InsertionPoint", {1, 2, 3});
    // A number as an attribute's text.
    attribute(door, 0)->set("TextString", 2.5);
    EXPECT_EQ(attributeTexts(door), (Texts{"MARK=2.5", "ROOM=hall"}));
    EXPECT_EQ(numberOf(door, "ZScaleFactor"), 4);
}

TEST_F(ReferenceTest, RefusedValuesChangeNothing) {
    const std::tuple<const char*, Variant, int> rows[] = {
        {"XScaleFactor", 0.0, drawing::kInvalidInput},
        {"ZScaleFactor", "0", drawing::kInvalidInput},
        {"ZScaleFactor", "Unchanged", basic::kTypeMismatch},
        {"Rotation", "", basic::kTypeMismatch},
        {"Rotation", 1 / 0.0, drawing::kInvalidInput},
        {"InsertionPoint", basic::Doubles{1, 2}, basic::kTypeMismatch},
        {"InsertionPoint", "1,2,3", basic::kTypeMismatch},
        {"Visible", "perhaps", basic::kTypeMismatch},
        {"Name", "FIXED", basic::kNoSuchMember},
    };
    for (const auto& [member, value, number] : rows)
        EXPECT_EQ(errorSetting(item(Furnished::Door), member, value), number) << member;
    EXPECT_FALSE(drawing().isModified());
}

TEST_F(ReferenceTest, AttributesInTheirOrderWithoutTheConstantOnes) {
    EXPECT_EQ(attributeTexts(item(Furnished::Door)), (Texts{"MARK=D1", "ROOM=hall"}));
    EXPECT_EQ(attributeTexts(insert("DOOR")), (Texts{"MARK=?", "ROOM=-"}));
    // Only constant ones: it has attributes, but there are none to get.
    for (const host::ObjectPtr& fixed : {item(Furnished::Fixed), insert("FIXED")}) {
        EXPECT_TRUE(fixed->get("hasAttributes").boolean());
        EXPECT_EQ(attributeTexts(fixed), Texts{});
    }
    EXPECT_FALSE(item(Furnished::Plain)->get("hasAttributes").boolean());
    EXPECT_EQ(attributeTexts(item(Furnished::Plain)), Texts{});

    const host::ObjectPtr mark = attribute(item(Furnished::Door), 0);
    mark->set("TextString", "D\xC3\xA9p\xC3\xB4t");
    EXPECT_EQ(textOf(mark, "TextString"), "D\xC3\xA9p\xC3\xB4t");
    EXPECT_EQ(errorOf([&] { mark->set("TagString", "OTHER"); }), basic::kNoSuchMember);
}

TEST_F(ReferenceTest, ErasedObjectsRaiseWhateverIsAsked) {
    const host::ObjectPtr door = item(Furnished::Door);
    const host::ObjectPtr mark = attribute(door, 0);
    door->invoke("Delete");
    for (const char* member :
         {"Name", "InsertionPoint", "XScaleFactor", "Rotation", "Visible", "Layer", "Color", "Handle",
          "ObjectName", "hasAttributes", "GetAttributes", "Update", "Delete"})
        EXPECT_EQ(errorOf([&] { door->get(member); }), drawing::kObjectErased) << member;
    EXPECT_EQ(errorSetting(door, "Rotation", 1.0), drawing::kObjectErased);
    EXPECT_EQ(errorSetting(door, "Visible", true), drawing::kObjectErased);
    EXPECT_EQ(errorOf([&] { mark->get("TextString"); }), drawing::kObjectErased);
    EXPECT_EQ(errorSetting(mark, "TextString", ""), drawing::kObjectErased);
    EXPECT_EQ(errorOf([&] { byHandle("A1"); }), drawing::kKeyNotFound);
    EXPECT_EQ(entityCount(), 5);

    drawing().undo();
    EXPECT_EQ(textOf(door, "Name"), "DOOR") << "an object comes back with its entity";
    EXPECT_EQ(textOf(mark, "TextString"), "D1");
    const host::ObjectPtr fresh = insert("DOOR");
    drawing().undo();
    EXPECT_EQ(errorOf([&] { fresh->get("Name"); }), drawing::kObjectErased);
}

TEST_F(ReferenceTest, ALockedLayerRefusesEditsAndDeletionOnly) {
    const host::ObjectPtr locked = item(Furnished::Mirrored);
    const std::pair<const char*, Variant> edits[] = {{"Rotation", 1.0},
                                                     {"InsertionPoint", basic::Doubles{0, 0, 0}},
                                                     {"XScaleFactor", 2.0},
                                                     {"Visible", false}};
    for (const auto& [member, value] : edits)
        EXPECT_EQ(errorSetting(locked, member, value), drawing::kLockedLayer) << member;
    for (const int index : {Furnished::Mirrored, Furnished::LockedLine})
        EXPECT_EQ(errorOf([&] { item(index)->invoke("Delete"); }), drawing::kLockedLayer);
    EXPECT_FALSE(drawing().isModified());
    EXPECT_EQ(errorOf([&] { locked->invoke("Update"); }), 0);
    EXPECT_EQ(textOf(locked, "Name"), "DOOR");
}

TEST_F(ReferenceTest, EveryKindHasItsClassAndItsMeasuresOnly) {
    struct Row {
        const char* words;
        const char* objectName;
        const char* has;  ///< a letter a measure: L, A, C
    };
    const Row rows[] = {
        {"LINE 8 0 10 0 20 0 11 3 21 4", "AcDbLine", "L"},
        {"LWPOLYLINE 8 0 90 2 70 0 10 0 20 0 10 3 20 4", "AcDbPolyline", "LA"},
        {"CIRCLE 8 0 10 0 20 0 40 1", "AcDbCircle", "AC"},
        {"ARC 8 0 10 0 20 0 40 1 50 0 51 90", "AcDbArc", "A"},
        {"ELLIPSE 8 0 10 0 20 0 11 2 21 0 40 0.5 41 0 42 6.283185307179586", "AcDbEllipse", "A"},
        {"TEXT 8 0 10 0 20 0 40 1 1 x", "AcDbText", ""},
        {"MTEXT 8 0 10 0 20 0 40 1 1 x", "AcDbMText", ""},
        {"POINT 8 0 10 0 20 0", "AcDbPoint", ""},
        {"SOLID 8 0 10 0 20 0 11 1 21 0 12 0 22 1 13 1 23 1", "AcDbSolid", ""},
        {"3DFACE 8 0 10 0 20 0 11 1 21 0 12 0 22 1 13 1 23 1", "AcDbFace", ""},
        {"INSERT 8 0 2 DOOR 10 0 20 0", "AcDbBlockReference", ""},
    };
    for (const Row& row : rows) {
        ModelWorld world(drawing::PlainDrawing().entity(row.words).make());
        const host::ObjectPtr entity = world.item(0);
        EXPECT_EQ(textOf(entity, "ObjectName"), row.objectName);
        const std::pair<char, const char*> measures[] = {
            {'L', "length"}, {'A', "Area"}, {'C', "Circumference"}, {'P', "Perimeter"}};
        for (const auto& measure : measures) {
            const char letter = measure.first;
            const char* const member = measure.second;
            const bool has = std::string_view(row.has).find(letter) != std::string_view::npos;
            EXPECT_EQ(errorOf([&] { entity->get(member); }), has ? 0 : basic::kNoSuchMember)
                << row.objectName << " " << member;
        }
    }
}

}  // namespace
}  // namespace model
