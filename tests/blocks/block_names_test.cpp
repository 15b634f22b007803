#include "blocks/block_names.h"

#include "tests/blocks/blocks_world.h"

#include <gtest/gtest.h>

namespace blocks {
namespace {

Texts texts(const std::optional<BlockNames>& names) {
    return names ? Texts(names->begin(), names->end()) : Texts{"(empty result)"};
}

TEST(BlockNamesTest, KeepsTheOrderAndRefusesAKeyInAnyCase) {
    BlockNames names;
    for (const char* name : {"PORTE", "*U1", "Été"}) names.Add(name);
    for (const char* name : {"porte", "*u1", "ÉTÉ"})
        EXPECT_EQ(fakes::errorOf([&] { names.Add(name); }), basic::kDuplicateKey) << name;
    EXPECT_EQ(Texts(names.begin(), names.end()), (Texts{"PORTE", "*U1", "Été"}));
    EXPECT_EQ(names.Count(), 3);
}

TEST(BlockNamesTest, ListsAllBlocksAndTheInsertedOnes) {
    BlocksWorld world;
    world.host.addBlock("*Model_Space").isLayout = true;
    world.host.addBlock("WINDOW");
    world.host.addBlock("*U7");
    world.host.addBlock("SITE").isXRef = true;
    world.host.addBlock("DOOR");
    world.host.addBlock("UNUSED");
    world.host.addReference("SITE");
    world.host.addReference("door");  // group code 2 is compared without regard to case
    world.host.addReference("*U7");
    world.host.addReference("UNUSED")->erased = true;
    world.host.addReference("WINDOW")->space = fakes::Space::Paper;

    EXPECT_EQ(texts(GetBlockNames(world.session)), (Texts{"WINDOW", "*U7", "DOOR", "UNUSED"}));
    EXPECT_EQ(texts(GetInsertedBlockNames(world.session)), (Texts{"WINDOW", "*U7", "DOOR"}));
    EXPECT_EQ(world.host.setNames(), Texts{}) << "the temporary set is gone";
    EXPECT_EQ(world.faulty.count("call Select"), 4) << "one selection for each block that qualifies";
}

TEST(BlockNamesTest, GivesTheEmptyResultWhereNothingQualifies) {
    BlocksWorld world;
    world.host.addBlock("*Model_Space").isLayout = true;
    EXPECT_FALSE(GetBlockNames(world.session));
    EXPECT_FALSE(GetInsertedBlockNames(world.session));
    world.host.addBlock("DOOR");
    EXPECT_TRUE(GetBlockNames(world.session));
    EXPECT_FALSE(GetInsertedBlockNames(world.session));
}

TEST(BlockNamesTest, DropsAClashOnlyAmongTheInsertedBlocks) {
    BlocksWorld world;
    world.host.addBlock("DOOR");
    world.host.addBlock("Door");
    world.host.addReference("DOOR");
    EXPECT_EQ(fakes::errorOf([&] { GetBlockNames(world.session); }), basic::kDuplicateKey);
    EXPECT_EQ(texts(GetInsertedBlockNames(world.session)), Texts{"DOOR"});
}

TEST(BlockNamesTest, LeavesTheTemporarySetAfterAFailureAndFailsOnItFromThenOn) {
    BlocksWorld world;
    world.host.addBlock("DOOR");
    world.host.addReference("DOOR");
    for (const char* access : {"walk", "get Name", "call Clear", "call Select", "get Count", "call Delete"}) {
        world.faulty.failAt(access);
        EXPECT_THROW(GetInsertedBlockNames(world.session), basic::Error) << access;
        EXPECT_EQ(world.host.setNames(), Texts{"sTemp"}) << access;

        world.faulty.reset();
        EXPECT_EQ(fakes::errorOf([&] { GetInsertedBlockNames(world.session); }), fakes::kRefusedValue);
        EXPECT_EQ(world.faulty.log().back(), "call Add") << "it ends at the host's refusal";
        world.host.drawing().sets.clear();
    }
}

}  // namespace
}  // namespace blocks
