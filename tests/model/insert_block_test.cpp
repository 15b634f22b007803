#include "desk/model/entity.h"
#include "model_world.h"
#include "tests/fakes/temp_folder.h"

namespace model {
namespace {

/// A drawing as a block file: a line from 3,0 to 4,0, an attribute, a reference of its own block LEG, the
/// base point 3,0.
std::string blockFile(double lineEnd = 4) {
    return drawing::PlainDrawing()
        .header("9 $INSBASE 10 3 20 0 30 0")
        .block("LEG")
        .inBlock("CIRCLE 8 0 10 0 20 0 40 1")
        .entity("LINE 8 WOOD 10 3 20 0 11 " + std::to_string(lineEnd) + " 21 0")
        .entity("ATTDEF 8 0 10 3 20 1 40 1 1 oak 3 Wood 2 WOOD 70 0")
        .entity("INSERT 8 0 2 LEG 10 5 20 0")
        .text();
}

class InsertBlockTest : public FurnishedTest {
  protected:
    int failure(const std::string& name) {
        return errorOf([&] { insert(name.c_str()); });
    }
    /// Where the first line of a block ends along X.
    double lineEnd(const char* block) const {
        const host::ObjectPtr definition = called(object("Blocks"), "Item", {block});
        return called(definition, "Item", {0})->get("EndPoint").doubles()[0];
    }

    fakes::TempFolder folder;
};

TEST_F(InsertBlockTest, GivesTheReferenceWhatTheCallSays) {
    const host::ObjectPtr door =
        called(space(), "InsertBlock",
               {basic::Doubles{1, 2, 3}, "door", 2.0, std::int16_t{-3}, "0.5", std::int32_t{1}});
    expectPoint(door, "InsertionPoint", {1, 2, 3});
    const std::pair<const char*, double> numbers[] = {
        {"XScaleFactor", 2}, {"YScaleFactor", -3}, {"ZScaleFactor", 0.5}, {"Rotation", 1}, {"Color", 256}};
    for (const auto& [member, value] : numbers) EXPECT_NEAR(numberOf(door, member), value, 1e-12) << member;
    EXPECT_EQ(textOf(item(6), "Name"), "DOOR") << "it stands at the end of model space";
}

TEST_F(InsertBlockTest, NamesOfNothingAndOfSpacesAreRefused) {
    EXPECT_EQ(failure("*Model_Space"), kSelfReference);
    for (const std::string& name :
         {std::string("NONE"), std::string(), std::string("/no/such/folder/door.dxf"), folder.path(),
          folder.write("notes.txt", "no drawing"), folder.write("broken.dxf", "no drawing")})
        EXPECT_EQ(failure(name), kFileError) << name;
    EXPECT_EQ(errorOf([&] { insert("DOOR", {0, 0, 0}, 0); }), drawing::kInvalidInput);
    EXPECT_EQ(errorOf([&] { insert("DOOR", {0, 0}); }), basic::kTypeMismatch);
    EXPECT_EQ(entityCount(), 6);
    EXPECT_FALSE(drawing().isModified());
}

TEST_F(InsertBlockTest, AFileComesInUnderItsBaseName) {
    const std::string path = folder.write("table.v2.dxf", blockFile());
    const host::ObjectPtr table = insert(path.c_str(), {10, 10, 0});
    EXPECT_EQ(textOf(table, "Name"), "table.v2");
    EXPECT_EQ(attributeTexts(table), (Texts{"WOOD=oak"}));
    EXPECT_NE(drawing().blocks().find("LEG"), drawing::kNoBlock) << "nested blocks come along";
    const Variant attributes = table->invoke("GetAttributes");
    EXPECT_EQ(drawing().attribute(toEntity(attributes.array().at(0))).position, (geometry::Point3{10, 11, 0}))
        << "counted from the base point";
    EXPECT_EQ(textOf(insert("TABLE.V2"), "Name"), "table.v2");
    EXPECT_EQ(prompter.messages, Texts{});
}

TEST_F(InsertBlockTest, TheDrawingsOwnBlocksComeBeforeFiles) {
    const std::string path = folder.write("plan.dxf", blockFile());
    ModelWorld house(drawing::Drawing::parse(
        drawing::PlainDrawing().block("plan.dwg").block("M~1/2").block(path).text(), path));
    for (const std::string& name : {std::string("plan.dwg"), std::string("m 1/2"), path})
        EXPECT_TRUE(basic::equalIgnoringCase(textOf(house.insert(name.c_str()), "Name"), name)) << name;
    EXPECT_EQ(textOf(house.insert("plan"), "Name"), "plan") << "a name that the drawing lacks is a file";
}

TEST_F(InsertBlockTest, ABlockOfThatNameIsRedefinedAndTheCommandLineSaysSo) {
    const std::string path = folder.write("plain.dxf", blockFile());
    const host::ObjectPtr old = item(Furnished::Plain);
    insert(path.c_str());
    EXPECT_EQ(prompter.messages, Texts{"Block plain redefined"});
    EXPECT_EQ(lineEnd("PLAIN"), 4);
    EXPECT_EQ(textOf(old, "Name"), "Plain") << "the references stay, and the name's spelling";

    insert(path.c_str());
    EXPECT_EQ(prompter.messages.size(), 1U) << "the same file again brings nothing new";
    folder.write("plain.dxf", blockFile(14.25));
    insert(path.c_str());
    EXPECT_EQ(prompter.messages, (Texts{"Block plain redefined", "Block plain redefined",
                                        "Duplicate definition of block LEG ignored."}));
    EXPECT_EQ(lineEnd("PLAIN"), 14.25) << "a changed file is read anew";
}

TEST_F(InsertBlockTest, AfterAnUndoTheFileIsReadAgain) {
    const std::string path = folder.write("PLAIN.dxf", blockFile());
    {
        const drawing::UndoStep step(drawing());
        insert(path.c_str());
    }
    EXPECT_EQ(lineEnd("PLAIN"), 4);
    ASSERT_TRUE(application->active()->undo());
    EXPECT_EQ(lineEnd("PLAIN"), 1);
    EXPECT_EQ(entityCount(), 6);
    insert(path.c_str());
    EXPECT_EQ(lineEnd("PLAIN"), 4);
}

TEST_F(InsertBlockTest, FilesAreFoundBesideTheDrawingAndInSupportFolders) {
    fakes::TempFolder support;
    support.write("CHAIR.dxf", blockFile());
    folder.write("STOOL.DXF", blockFile());
    const std::string path = folder.write("house.dxf", drawing::PlainDrawing().text());
    ModelWorld house(drawing::Drawing::open(path));
    house.application->environment().supportFolders = {support.path()};
    EXPECT_EQ(textOf(house.insert("CHAIR"), "Name"), "CHAIR");
    EXPECT_EQ(textOf(house.insert("STOOL.DXF"), "Name"), "STOOL");
    EXPECT_EQ(errorOf([&] { house.insert("BENCH"); }), kFileError);
}

TEST_F(InsertBlockTest, ADwgGoesThroughTheConverter) {
    const std::string path = folder.write("desk.dwg", "bytes of a DWG");
    EXPECT_EQ(failure(path), kFileError) << "no converter";

    application->environment().convertDwg = [](const std::string& dwg) -> std::string {
        throw basic::Error(basic::kFileNotFound, dwg + ": nothing to convert with");
    };
    EXPECT_EQ(failure(path), basic::kFileNotFound);

    std::string asked;
    application->environment().convertDwg = [&](const std::string& dwg) {
        asked = dwg;
        return folder.write("converted.dxf", blockFile());
    };
    EXPECT_EQ(textOf(insert(path.c_str()), "Name"), "desk");
    EXPECT_EQ(asked, path);
    EXPECT_FALSE(std::filesystem::exists(folder.file("converted.dxf"))) << "it goes when it has been read";

    application->environment().convertDwg = [&](const std::string&) {
        return folder.write("converted.dxf", "no drawing");
    };
    EXPECT_EQ(failure(folder.write("other.dwg", "")), kFileError);
    EXPECT_FALSE(std::filesystem::exists(folder.file("converted.dxf")));
}

}  // namespace
}  // namespace model
