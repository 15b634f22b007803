#include "desk/model/entity.h"
#include "model_world.h"
#include "tests/fakes/temp_folder.h"

namespace model {
namespace {

/// A drawing as a block file: a line from 3,0 to 4,0, an attribute, a reference of its own block LEG, the
/// base point 3,0.
std::string blockFile(double lineEnd = 4) {
    return "0\nSECTION\n2\nHEADER\n9\n$INSBASE\n10\n3\n20\n0\n30\n0\n0\nENDSEC\n"
           "0\nSECTION\n2\nBLOCKS\n0\nBLOCK\n8\n0\n2\nLEG\n70\n0\n10\n0\n20\n0\n"
           "0\nCIRCLE\n8\n0\n10\n0\n20\n0\n40\n1\n0\nENDBLK\n8\n0\n0\nENDSEC\n"
           "0\nSECTION\n2\nENTITIES\n0\nLINE\n8\nWOOD\n10\n3\n20\n0\n11\n" +
           std::to_string(lineEnd) +
           "\n21\n0\n0\nATTDEF\n8\n0\n10\n3\n20\n1\n40\n1\n1\noak\n3\nWood\n2\nWOOD\n70\n0\n"
           "0\nINSERT\n8\n0\n2\nLEG\n10\n5\n20\n0\n0\nENDSEC\n0\nEOF\n";
}

class InsertBlockTest : public testing::Test, protected ModelWorld {
  protected:
    InsertBlockTest() : ModelWorld(Furnished::drawing().make()) {}

    int failure(const std::string& name) {
        return errorOf([&] { insert(name.c_str()); });
    }
    bool hasBlock(const char* name) const { return drawing().blocks().find(name) != drawing::kNoBlock; }
    /// The end point of the first line of a block.
    basic::Doubles lineEnd(const char* block) const {
        const host::ObjectPtr definition = host::asObject(object("Blocks")->invoke("Item", {block}));
        return pointOf(host::asObject(definition->invoke("Item", {0})), "EndPoint");
    }

    fakes::TempFolder folder;
};

TEST_F(InsertBlockTest, GivesTheReferenceWhatTheCallSays) {
    const host::ObjectPtr door = host::asObject(space()->invoke(
        "InsertBlock", {basic::Doubles{1, 2, 3}, "door", 2.0, std::int16_t{-3}, "0.5", std::int32_t{1}}));
    EXPECT_EQ(textOf(door, "Name"), "DOOR");
    expectPoint(door, "InsertionPoint", {1, 2, 3});
    EXPECT_EQ(numberOf(door, "XScaleFactor"), 2);
    EXPECT_EQ(numberOf(door, "YScaleFactor"), -3);
    EXPECT_EQ(numberOf(door, "ZScaleFactor"), 0.5);
    EXPECT_NEAR(numberOf(door, "Rotation"), 1, 1e-12);
    EXPECT_EQ(textOf(door, "Layer"), "0");
    EXPECT_EQ(door->get("Color").integer(), 256);
    EXPECT_TRUE(door->get("Visible").boolean());
    EXPECT_EQ(textOf(item(6), "Name"), "DOOR") << "it stands at the end of model space";
    // The definition's places go through the reference's scale, mirroring and rotation.
    const Variant attributes = door->invoke("GetAttributes");
    const drawing::Point3 text = drawing().attribute(toEntity(attributes.array().at(0))).position;
    EXPECT_NEAR(text.x, 1 + 2 * std::cos(1.0) + 6 * std::sin(1.0), 1e-9);
    EXPECT_NEAR(text.y, 2 + 2 * std::sin(1.0) - 6 * std::cos(1.0), 1e-9);
    EXPECT_EQ(textOf(host::asObject(attributes.array().at(1)), "Layer"), "PLAIN");
}

TEST_F(InsertBlockTest, NamesOfNothingAndOfSpacesAreRefused) {
    EXPECT_EQ(failure("NONE"), kFileError);
    EXPECT_EQ(failure(""), kFileError);
    EXPECT_EQ(failure("/no/such/folder/door.dxf"), kFileError);
    EXPECT_EQ(failure("*Model_Space"), kSelfReference);
    EXPECT_EQ(failure(folder.path()), kFileError) << "a folder is no drawing";
    EXPECT_EQ(failure(folder.write("notes.txt", "no drawing")), kFileError);
    EXPECT_EQ(failure(folder.write("broken.dxf", "no drawing")), kFileError);
    EXPECT_EQ(errorOf([&] { insert("DOOR", {0, 0, 0}, 0); }), drawing::kInvalidInput);
    EXPECT_EQ(errorOf([&] { insert("DOOR", {0, 0}); }), basic::kTypeMismatch);
    EXPECT_EQ(space()->get("Count").integer(), 6);
    EXPECT_FALSE(drawing().isModified());
}

TEST_F(InsertBlockTest, AFileComesInUnderItsBaseName) {
    const std::string path = folder.write("table.v2.dxf", blockFile());
    const host::ObjectPtr table = insert(path.c_str(), {10, 10, 0});
    EXPECT_EQ(textOf(table, "Name"), "table.v2");
    EXPECT_EQ(attributeTexts(table), (Texts{"WOOD=oak"}));
    EXPECT_TRUE(hasBlock("LEG")) << "nested blocks come along";
    EXPECT_EQ(drawing().blocks()[drawing().blocks().find("table.v2")].basePoint, (drawing::Point3{3, 0, 0}));
    const Variant attributes = table->invoke("GetAttributes");
    EXPECT_EQ(drawing().attribute(toEntity(attributes.array().at(0))).position, (drawing::Point3{10, 11, 0}))
        << "counted from the base point";
    EXPECT_EQ(textOf(insert("TABLE.V2"), "Name"), "table.v2");
    EXPECT_EQ(prompter.messages, Texts{});
}

TEST_F(InsertBlockTest, ABlockOfThatNameIsRedefinedAndTheCommandLineSaysSo) {
    const std::string path = folder.write("plain.dxf", blockFile());
    const host::ObjectPtr old = item(Furnished::Plain);
    insert(path.c_str());
    ASSERT_EQ(prompter.messages.size(), 1U);
    EXPECT_EQ(prompter.messages[0], "Block plain redefined");
    EXPECT_EQ(lineEnd("PLAIN")[0], 4);
    EXPECT_EQ(textOf(old, "Name"), "Plain") << "the references stay, and the name's spelling";

    insert(path.c_str());
    EXPECT_EQ(prompter.messages.size(), 1U) << "the same file again brings nothing new";
    folder.write("plain.dxf", blockFile(14.25));
    insert(path.c_str());
    EXPECT_EQ(prompter.messages, (Texts{"Block plain redefined", "Block plain redefined",
                                        "Duplicate definition of block LEG ignored."}));
    EXPECT_EQ(lineEnd("PLAIN")[0], 14.25) << "a changed file is read anew";
}

TEST_F(InsertBlockTest, AfterAnUndoTheFileIsReadAgain) {
    const std::string path = folder.write("PLAIN.dxf", blockFile());
    {
        const drawing::UndoStep step(drawing());
        insert(path.c_str());
    }
    EXPECT_EQ(lineEnd("PLAIN")[0], 4);
    ASSERT_TRUE(application->active()->undo());
    EXPECT_EQ(lineEnd("PLAIN")[0], 1);
    EXPECT_EQ(space()->get("Count").integer(), 6);
    insert(path.c_str());
    EXPECT_EQ(lineEnd("PLAIN")[0], 4);
}

TEST_F(InsertBlockTest, FilesAreFoundBesideTheDrawingAndInSupportFolders) {
    fakes::TempFolder support;
    support.write("CHAIR.dxf", blockFile());
    folder.write("STOOL.DXF", blockFile());
    const std::string path = folder.write("house.dxf", "0\nSECTION\n2\nENTITIES\n0\nENDSEC\n0\nEOF\n");
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
