#include "model_world.h"

namespace model {
namespace {

using MembersTest = FurnishedTest;

TEST_F(MembersTest, NamesAreMatchedWithoutRegardToCase) {
    const host::ObjectPtr door = item(Furnished::Door);
    EXPECT_EQ(textOf(door, "oBJECTnAME"), "AcDbBlockReference");
    door->set("rotation", 1.0);
    EXPECT_EQ(numberOf(door, "Rotation"), 1);
    EXPECT_EQ(textOf(called(document, "handletoobject", {"a8"}), "Handle"), "A8");
    // Properties can be called and methods got; with arguments it can't have meant the property.
    EXPECT_EQ(space()->invoke("count").integer(), 6);
    EXPECT_EQ(door->get("GetAttributes").array().size(), 2U);
    EXPECT_EQ(errorOf([&] { space()->invoke("Count", {1}); }), basic::kNoSuchMember);
}

TEST_F(MembersTest, WhatTheTableLacksIsToldByName) {
    const host::ObjectPtr line = item(Furnished::LockedLine);
    EXPECT_EQ(errorOf([&] { line->get("XScaleFactor"); }), basic::kNoSuchMember);
    EXPECT_EQ(errorOf([&] { line->invoke("GetAttributes"); }), basic::kNoSuchMember);
    EXPECT_EQ(errorOf([&] { line->enumerate([](const Variant&) { return true; }); }), basic::kNoSuchMember);
    // Not there, can only be read, a method.
    for (const char* member : {"Lenght", "Length", "Delete"})
        EXPECT_EQ(errorOf([&] { line->set(member, 1.0); }), basic::kNoSuchMember) << member;
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
    const std::tuple<host::ObjectPtr, const char*, host::Arguments> rows[] = {
        {door, "Delete", {1}},
        {door, "GetAttributes", {1}},
        {door, "Update", {1}},
        {space(), "Item", {}},
        {space(), "InsertBlock", {basic::Doubles{0, 0, 0}, "DOOR"}},
        {object("Utility"), "GetEntity", {Variant()}},
        {object("SelectionSets"), "Add", {}},
    };
    for (const auto& [object, member, arguments] : rows)
        EXPECT_EQ(errorOf([&, o = object, m = member, a = arguments] { o->invoke(m, a); }), kArgumentCount)
            << member;
    EXPECT_EQ(entityCount(), 6);
}

TEST_F(MembersTest, TheDocumentLeadsToItsParts) {
    const host::ObjectPtr host = object("Application");
    EXPECT_EQ(host, application);
    EXPECT_EQ(host::asObject(host->get("ActiveDocument")), document);
    EXPECT_EQ(textOf(document, "Name"), "plain.dxf");
    EXPECT_TRUE(document->get("Saved").boolean());
    item(Furnished::Door)->set("Rotation", 2.0);
    EXPECT_FALSE(document->get("Saved").boolean());
    for (const char* wrong : {"BAD", "no handle"})
        EXPECT_EQ(errorOf([&] { byHandle(wrong); }), drawing::kKeyNotFound);

    auto part = std::make_shared<Blocks>(application->active()->context());
    application->registerObject("Some.Object", [&] { return part; });
    EXPECT_EQ(called(host, "GetInterfaceObject", {"SOME.object"}), part);
    EXPECT_EQ(errorOf([&] { host->invoke("GetInterfaceObject", {"Other.Object"}); }), kUnknownProgId);
}

TEST_F(MembersTest, BlocksByIndexNameAndWalk) {
    const host::ObjectPtr blocks = object("Blocks");
    const Texts names = walked(blocks, "Name");
    ASSERT_EQ(names.size(), 6U);
    EXPECT_EQ(Texts(names.begin() + 2, names.end()), (Texts{"DOOR", "FIXED", "Plain", "*U1"}));
    EXPECT_EQ(textOf(called(blocks, "Item", {std::int16_t{4}}), "Name"), "Plain");
    const host::ObjectPtr door = called(blocks, "Item", {"door"});
    EXPECT_EQ(textOf(door, "Name"), "DOOR");
    EXPECT_FALSE(door->get("IsLayout").boolean());
    EXPECT_FALSE(door->get("IsXRef").boolean());
    EXPECT_EQ(walked(door, "ObjectName"), (Texts{"AcDbLine", "AcDbAttributeDefinition",
                                                 "AcDbAttributeDefinition", "AcDbAttributeDefinition"}));
    for (const char* layout : {"ModelSpace", "PaperSpace"})
        EXPECT_TRUE(object(layout)->get("IsLayout").boolean()) << layout;
    EXPECT_EQ(errorOf([&] { blocks->invoke("Item", {"NONE"}); }), drawing::kKeyNotFound);
    for (const int index : {-1, 6})
        for (const host::ObjectPtr& collection : {blocks, space()})
            EXPECT_EQ(errorOf([&] { collection->invoke("Item", {index}); }), drawing::kInvalidInput);
    EXPECT_EQ(errorOf([&] { door->invoke("InsertBlock"); }), basic::kNoSuchMember)
        << "only model space takes new entities";

    int visits = 0;
    space()->enumerate([&](const Variant&) { return ++visits < 2; });
    blocks->enumerate([&](const Variant&) { return ++visits < 4; });
    EXPECT_EQ(visits, 4) << "a walk ends when it is told to";

    std::string text = Furnished::drawing().text();
    text.replace(text.find("FIXED\r\n 70\r\n0"), 13, "FIXED\r\n 70\r\n4");
    document = application->open(drawing::Drawing::parse(text, "xref.dxf"));
    EXPECT_TRUE(called(object("Blocks"), "Item", {"FIXED"})->get("IsXRef").boolean());
}

TEST(ModelLifetimeTest, ObjectsOutliveTheirDocument) {
    host::ObjectPtr door, set, document;
    {
        ModelWorld world(Furnished::drawing().make());
        door = world.item(Furnished::Door);
        set = called(world.object("SelectionSets"), "Add", {"S"});
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
