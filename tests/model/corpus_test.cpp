#include "desk/model/entity.h"
#include "model_world.h"

#include <filesystem>

namespace model {
namespace {

std::vector<std::string> corpusDrawings() {
    std::vector<std::string> paths;
    std::error_code ignored;
    for (const auto& entry : std::filesystem::directory_iterator(VORLANE_ROOT "/../shared/corpus", ignored)) {
        if (entry.path().extension() == ".dxf") paths.push_back(entry.path().string());
    }
    return paths;
}

/// Reads what the add-in reads of any entity; gives the names of the members that failed in a way that no
/// lacking measure explains.
Texts failedReads(const host::ObjectPtr& entity) {
    Texts failed;
    for (const char* member : {"ObjectName", "Handle", "Layer", "Color", "Visible", "Length", "Area",
                               "Circumference", "Perimeter", "Update"}) {
        const int number = errorOf([&] { entity->get(member); });
        if (number != 0 && number != basic::kNoSuchMember && number != drawing::kNotApplicable) {
            failed.emplace_back(member);
        }
    }
    const std::string kind = textOf(entity, "ObjectName");
    if (kind != "AcDbBlockReference" && kind != "AcDbMInsertBlock") return failed;
    for (const char* member : {"Name", "InsertionPoint", "XScaleFactor", "YScaleFactor", "ZScaleFactor",
                               "Rotation", "hasAttributes"}) {
        if (errorOf([&] { entity->get(member); }) != 0) failed.emplace_back(member);
    }
    if (!attributeTexts(entity).empty() && !entity->get("hasAttributes").boolean())
        failed.emplace_back("attributes");
    return failed;
}

/// Every entity of every drawing answers, and what was answered changed nothing.
TEST(ModelCorpusTest, EveryEntityAnswers) {
    if (corpusDrawings().empty()) GTEST_SKIP() << "no corpus";
    for (const std::string& path : corpusDrawings()) {
        const ModelWorld world(drawing::Drawing::open(path));
        world.object("Blocks")->enumerate([&](const Variant& element) {
            const host::ObjectPtr block = host::asObject(element);
            std::int32_t walked = 0;
            block->enumerate([&](const Variant& entity) {
                ++walked;
                EXPECT_EQ(failedReads(host::asObject(entity)), Texts{})
                    << path << ": " << textOf(host::asObject(entity), "Handle");
                return true;
            });
            EXPECT_EQ(block->get("Count").integer(), walked) << path << ": " << textOf(block, "Name");
            return true;
        });
        EXPECT_FALSE(world.drawing().isModified()) << path;
    }
}

/// Each block of each drawing can be inserted, edited and deleted again, with the attributes of its
/// definition, and undoing all gives the file back to the byte.
TEST(ModelCorpusTest, EveryBlockCanBeInserted) {
    if (corpusDrawings().empty()) GTEST_SKIP() << "no corpus";
    for (const std::string& path : corpusDrawings()) {
        const ModelWorld world(drawing::Drawing::open(path));
        const std::string before = world.drawing().savedBytes();
        world.drawing().beginStep();
        for (drawing::BlockId id = 0; id < world.drawing().blocks().size(); ++id) {
            const drawing::Block& block = world.drawing().blocks()[id];
            if (block.isLayout()) continue;
            const std::string name = block.name;
            const std::size_t attributes = block.attributeDefinitions.size();
            const host::ObjectPtr reference = world.insert(name.c_str(), {1, 2, 3}, 2, 0.5);
            EXPECT_EQ(textOf(reference, "Name"), name) << path;
            EXPECT_EQ(attributeTexts(reference).size(), attributes) << path << ": " << name;
            reference->set("YScaleFactor", -1.0);
            reference->set("InsertionPoint", basic::Doubles{0, 0, 0});
            expectPoint(reference, "InsertionPoint", {0, 0, 0});
            if (id % 2 == 0) reference->invoke("Delete");
        }
        world.drawing().endStep();
        world.drawing().undo();
        EXPECT_TRUE(world.drawing().savedBytes() == before) << path;
    }
}

}  // namespace
}  // namespace model
