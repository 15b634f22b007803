#include "model_world.h"

namespace model {
namespace {

class MembersTest : public testing::Test, protected ModelWorld {
  protected:
    MembersTest() : ModelWorld(Furnished::drawing().make()) {}
};

TEST_F(MembersTest, NamesAreMatchedWithoutRegardToCase) {
    EXPECT_EQ(textOf(item(Furnished::Door), "oBJECTnAME"), "AcDbBlockReference");
    EXPECT_EQ(item(Furnished::Door)->get("hasattributes").boolean(), true);
    EXPECT_EQ(item(Furnished::LockedLine)->get("length").number(), 5);
    EXPECT_EQ(host::asObject(document->get("MODELSPACE"))->get("count").integer(), 6);
    item(Furnished::Door)->set("rotation", 1.0);
    EXPECT_EQ(numberOf(item(Furnished::Door), "Rotation"), 1);
    EXPECT_EQ(host::asObject(document->invoke("handletoobject", {"a8"}))->get("Handle").text(), "A8");
}

TEST_F(MembersTest, PropertiesCanBeCalledAndMethodsGot) {
    EXPECT_EQ(space()->invoke("Count").integer(), 6);
    EXPECT_EQ(item(Furnished::Door)->get("GetAttributes").array().size(), 2U);
    // With arguments it can't have meant the property.
    EXPECT_EQ(errorOf([&] { space()->invoke("Count", {1}); }), basic::kNoSuchMember);
}

TEST_F(MembersTest, WhatTheTableLacksIsToldByName) {
    const host::ObjectPtr line = item(Furnished::LockedLine);
    EXPECT_EQ(errorOf([&] { line->get("XScaleFactor"); }), basic::kNoSuchMember);
    EXPECT_EQ(errorOf([&] { line->set("Lenght", 1.0); }), basic::kNoSuchMember);
    EXPECT_EQ(errorOf([&] { line->invoke("GetAttributes"); }), basic::kNoSuchMember);
    EXPECT_EQ(errorOf([&] { line->enumerate([](const Variant&) { return true; }); }), basic::kNoSuchMember);
    EXPECT_EQ(errorOf([&] { line->set("Length", 1.0); }), basic::kNoSuchMember) << "can only be read";
    EXPECT_EQ(errorOf([&] { line->set("Delete", 1.0); }), basic::kNoSuchMember);
    EXPECT_EQ(errorOf([&] { object("Blocks")->get(""); }), basic::kNoSuchMember);
    try {
        line->get("Radius");
        FAIL();
    } catch (const basic::Error& error) {
        EXPECT_EQ(error.description(), "Object doesn't support this property or method: 'Radius'");
    }
}

TEST_F(MembersTest, WrongCountsOfArgumentsAreErrors) {
    const host::ObjectPtr door = item(Furnished::Door);
    const auto failure = [](const host::ObjectPtr& object, const char* member, host::Arguments arguments) {
        return errorOf([&] { object->call(member, arguments); });
    };
    EXPECT_EQ(failure(door, "Delete", {1}), kArgumentCount);
    EXPECT_EQ(failure(door, "GetAttributes", {1}), kArgumentCount);
    EXPECT_EQ(failure(door, "Update", {1}), kArgumentCount);
    EXPECT_EQ(failure(space(), "Item", {}), kArgumentCount);
    EXPECT_EQ(failure(space(), "InsertBlock", {basic::Doubles{0, 0, 0}, "DOOR"}), kArgumentCount);
    EXPECT_EQ(failure(object("Utility"), "GetEntity", {Variant()}), kArgumentCount);
    EXPECT_EQ(failure(object("SelectionSets"), "Add", {}), kArgumentCount);
    EXPECT_EQ(space()->get("Count").integer(), 6);
}

TEST_F(MembersTest, TheDocumentLeadsToItsParts) {
    const host::ObjectPtr host = object("Application");
    EXPECT_EQ(host, application);
    EXPECT_EQ(host::asObject(host->get("ActiveDocument")), document);
    EXPECT_EQ(textOf(document, "Name"), "plain.dxf");
    EXPECT_TRUE(document->get("Saved").boolean());
    item(Furnished::Door)->set("Rotation", 2.0);
    EXPECT_FALSE(document->get("Saved").boolean());
    EXPECT_EQ(object("PaperSpace")->get("Count").integer(), 0);
    EXPECT_EQ(errorOf([&] { byHandle("BAD"); }), drawing::kKeyNotFound);
    EXPECT_EQ(errorOf([&] { byHandle("no handle"); }), drawing::kKeyNotFound);

    const auto part = std::make_shared<Blocks>(application->active()->context());
    application->registerObject("Some.Object", [&] { return part; });
    EXPECT_EQ(host::asObject(host->invoke("GetInterfaceObject", {"SOME.object"})), part);
    EXPECT_EQ(errorOf([&] { host->invoke("GetInterfaceObject", {"Other.Object"}); }), kUnknownProgId);
}

TEST_F(MembersTest, BlocksByIndexNameAndWalk) {
    const host::ObjectPtr blocks = object("Blocks");
    const Texts names = walked(blocks, "Name");
    ASSERT_EQ(names.size(), 6U);
    EXPECT_EQ(Texts(names.begin() + 2, names.end()), (Texts{"DOOR", "FIXED", "Plain", "*U1"}));
    EXPECT_EQ(blocks->get("Count").integer(), 6);
    EXPECT_EQ(textOf(host::asObject(blocks->invoke("Item", {std::int16_t{4}})), "Name"), "Plain");
    const host::ObjectPtr door = host::asObject(blocks->invoke("Item", {"door"}));
    EXPECT_EQ(textOf(door, "Name"), "DOOR");
    EXPECT_FALSE(door->get("IsLayout").boolean());
    EXPECT_FALSE(door->get("IsXRef").boolean());
    EXPECT_EQ(walked(door, "ObjectName"), (Texts{"AcDbLine", "AcDbAttributeDefinition",
                                                 "AcDbAttributeDefinition", "AcDbAttributeDefinition"}));
    EXPECT_TRUE(space()->get("IsLayout").boolean());
    EXPECT_TRUE(object("PaperSpace")->get("IsLayout").boolean());
    EXPECT_EQ(errorOf([&] { blocks->invoke("Item", {"NONE"}); }), drawing::kKeyNotFound);
    for (const int index : {-1, 6}) {
        EXPECT_EQ(errorOf([&] { blocks->invoke("Item", {index}); }), drawing::kInvalidInput);
        EXPECT_EQ(errorOf([&] { space()->invoke("Item", {index}); }), drawing::kInvalidInput);
    }
    EXPECT_EQ(errorOf([&] { door->invoke("InsertBlock"); }), basic::kNoSuchMember)
        << "only model space takes new entities";
}

TEST_F(MembersTest, AWalkEndsWhenItIsToldTo) {
    int visits = 0;
    space()->enumerate([&](const Variant&) { return ++visits < 2; });
    EXPECT_EQ(visits, 2);
    object("Blocks")->enumerate([&](const Variant&) { return ++visits < 4; });
    EXPECT_EQ(visits, 4);
}

TEST(ModelXRefTest, ExternalReferencesAreTold) {
    const auto text =
        "0\nSECTION\n2\nBLOCKS\n0\nBLOCK\n8\n0\n2\nSITE\n70\n4\n10\n0\n20\n0\n1\nsite.dwg\n0\nENDBLK\n8\n0\n"
        "0\nENDSEC\n0\nSECTION\n2\nENTITIES\n0\nENDSEC\n0\nEOF\n";
    const ModelWorld world(drawing::Drawing::parse(text, "xref.dxf"));
    EXPECT_TRUE(host::asObject(world.object("Blocks")->invoke("Item", {"SITE"}))->get("IsXRef").boolean());
}

TEST(ModelLifetimeTest, ObjectsOutliveTheirDocument) {
    host::ObjectPtr door, set, document;
    {
        ModelWorld world(Furnished::drawing().make());
        door = world.item(Furnished::Door);
        set = host::asObject(world.object("SelectionSets")->invoke("Add", {"S"}));
        document = world.document;
        world.application->open(drawing::PlainDrawing().make());
        EXPECT_EQ(textOf(door, "Name"), "DOOR") << "another document is active now";
    }
    set->invoke("Select", {std::int16_t{5}});
    EXPECT_EQ(set->get("Count").integer(), 6);
    EXPECT_EQ(attributeTexts(door), (Texts{"MARK=D1", "ROOM=hall"}));
    EXPECT_TRUE(document->get("Application").isNothing());
    document.reset();
    door->set("Rotation", 0.5);
    set->invoke("Delete");
    EXPECT_EQ(numberOf(door, "Rotation"), 0.5);
}

}  // namespace
}  // namespace model
