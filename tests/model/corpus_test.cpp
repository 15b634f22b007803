#include "desk/model/entity.h"
#include "model_world.h"

#include <filesystem>
#include <fstream>

namespace model {
namespace {

/// Reads what the add-in reads of any entity; gives the names of the members that failed in a way that no
/// lacking measure explains.
Texts failedReads(const host::ObjectPtr& entity) {
    Texts failed;
    for (const char* member : {"ObjectName", "Handle", "Layer", "Color", "Visible", "Update"})
        if (errorOf([&] { entity->get(member); }) != 0) failed.emplace_back(member);
    for (const char* member : {"Length", "Area", "Circumference", "Perimeter"}) {
        double value = 0;
        const int number = errorOf([&] { value = numberOf(entity, member); });
        const bool lacks = number == basic::kNoSuchMember || number == drawing::kNotApplicable;
        if ((number != 0 && !lacks) || !std::isfinite(value) || value < 0) failed.emplace_back(member);
    }
    const std::string kind = textOf(entity, "ObjectName");
    if (kind != "AcDbBlockReference" && kind != "AcDbMInsertBlock") return failed;
    for (const char* member : {"Name", "InsertionPoint", "XScaleFactor", "YScaleFactor", "ZScaleFactor",
                               "Rotation", "hasAttributes"})
        if (errorOf([&] { entity->get(member); }) != 0) failed.emplace_back(member);
    if (!attributeTexts(entity).empty() && !entity->get("hasAttributes").boolean())
        failed.emplace_back("attributes");
    return failed;
}

class ModelCorpusTest : public testing::TestWithParam<const char*> {
  protected:
    void SetUp() override {
        if (!std::filesystem::exists(path)) GTEST_SKIP() << "no corpus beside the checkout";
    }
    const std::string path = VORLANE_ROOT "/../shared/corpus/" + std::string(GetParam()) + ".dxf";
};

/// Every entity answers. Each block can be inserted and edited and its references deleted; the outcome is a
/// sound drawing, and undoing all gives the file back to the byte.
TEST_P(ModelCorpusTest, EveryEntityAnswersAndEveryBlockCanBeInserted) {
    const ModelWorld world(drawing::Drawing::open(path));
    drawing::Drawing& drawing = world.drawing();
    EXPECT_TRUE(drawing.findings().empty()) << dxf::toText(drawing.findings().front());
    world.object("Blocks")->enumerate([&](const Variant& element) {
        const host::ObjectPtr block = host::asObject(element);
        std::int32_t walked = 0;
        block->enumerate([&](const Variant& entity) {
            ++walked;
            EXPECT_EQ(failedReads(host::asObject(entity)), Texts{})
                << textOf(host::asObject(entity), "Handle");
            return true;
        });
        EXPECT_EQ(block->get("Count").integer(), walked) << textOf(block, "Name");
        return true;
    });
    EXPECT_FALSE(drawing.isModified());

    drawing.beginStep();
    for (drawing::BlockId id = 0; id < drawing.blocks().size(); ++id) {
        const drawing::Block block = drawing.blocks()[id];
        if (block.isLayout()) continue;
        const host::ObjectPtr reference = world.insert(block.name.c_str(), {1, 2, 3}, 2, 0.5);
        EXPECT_EQ(textOf(reference, "Name"), block.name);
        EXPECT_EQ(attributeTexts(reference).size(), block.attributeDefinitions.size()) << block.name;
        for (const drawing::EntityId part : drawing.attributes(toEntity(reference)))
            drawing.setAttributeText(part, "à la place");
        reference->set("YScaleFactor", -1.0);
        reference->set("InsertionPoint", basic::Doubles{0, 0, 0});
        expectPoint(reference, "InsertionPoint", {0, 0, 0});
        if (id % 2 == 0) reference->invoke("Delete");
    }
    drawing.endStep();
    const auto again = drawing::Drawing::parse(drawing.savedBytes(), "again.dxf");
    EXPECT_TRUE(again->findings().empty()) << dxf::toText(again->findings().front());
    EXPECT_EQ(again->entityCount(again->modelSpace()), drawing.entityCount(drawing.modelSpace()));
    drawing.undo();
    std::ifstream file(path, std::ios::binary);
    EXPECT_TRUE(drawing.savedBytes() == std::string(std::istreambuf_iterator<char>(file), {}));
}

INSTANTIATE_TEST_SUITE_P(Drawings, ModelCorpusTest,
                         testing::Values("architecture", "attribute", "custom_blocks", "example_2000",
                                         "example_2018", "example_r12", "floorplan", "furniture",
                                         "multi_insert_with_attribs", "table_with_block", "ts1_2018",
                                         "uncommon", "visibility"));

}  // namespace
}  // namespace model
