#include "blocks/block_names.h"

#include "tests/fakes/dialog_world.h"

#include <gtest/gtest.h>

namespace blocks {
namespace {

using fakes::Texts;

class BlockNamesTest : public testing::Test, public fakes::DialogWorld {
  protected:
    static Texts texts(const std::optional<BlockNames>& names) {
        return names ? Texts(names->begin(), names->end()) : Texts{"(empty result)"};
    }
    Texts all() { return texts(GetBlockNames(session)); }
    Texts inserted() { return texts(GetInsertedBlockNames(session)); }
};

TEST_F(BlockNamesTest, KeepsTheOrderAndRefusesAKeyInAnyCase) {
    BlockNames names;
    for (const char* name : {"PORTE", "*U1", "Été"}) names.Add(name);
    for (const char* name : {"porte", "*u1", "ÉTÉ"})
        EXPECT_EQ(fakes::errorOf([&] { names.Add(name); }), basic::kDuplicateKey) << name;
    EXPECT_EQ(texts(names), (Texts{"PORTE", "*U1", "Été"}));
    EXPECT_EQ(names.Count(), 3);
}

TEST_F(BlockNamesTest, ListsAllBlocksAndTheInsertedOnes) {
    host.addBlock("*Model_Space").isLayout = true;
    EXPECT_EQ(all(), Texts{"(empty result)"});
    for (const char* name : {"WINDOW", "*U7", "SITE", "DOOR", "UNUSED"}) host.addBlock(name);
    host.drawing().findBlock("SITE")->isXRef = true;
    EXPECT_EQ(inserted(), Texts{"(empty result)"});
    host.addReference("SITE");
    host.addReference("door");  // group code 2 is compared without regard to case
    host.addReference("*U7");
    host.addReference("UNUSED")->erased = true;
    host.addReference("WINDOW")->space = fakes::Space::Paper;

    EXPECT_EQ(all(), (Texts{"WINDOW", "*U7", "DOOR", "UNUSED"}));
    faulty.reset();
    EXPECT_EQ(inserted(), (Texts{"WINDOW", "*U7", "DOOR"}));
    EXPECT_EQ(host.setNames(), Texts{}) << "the temporary set is gone";
    EXPECT_EQ(faulty.count("call Select"), 4) << "one selection for each block that qualifies";
}

TEST_F(BlockNamesTest, DropsAClashOnlyAmongTheInsertedBlocks) {
    host.addBlock("DOOR");
    host.addBlock("Door");
    host.addReference("DOOR");
    EXPECT_EQ(fakes::errorOf([&] { all(); }), basic::kDuplicateKey);
    EXPECT_EQ(inserted(), Texts{"DOOR"});
}

TEST_F(BlockNamesTest, LeavesTheTemporarySetAfterAFailureAndFailsOnItFromThenOn) {
    host.addBlock("DOOR");
    host.addReference("DOOR");
    for (const char* access : {"walk", "get Name", "call Clear", "call Select", "get Count", "call Delete"}) {
        faulty.failAt(access);
        EXPECT_THROW(inserted(), basic::Error) << access;
        EXPECT_EQ(host.setNames(), Texts{"sTemp"}) << access;

        faulty.reset();
        EXPECT_EQ(fakes::errorOf([&] { inserted(); }), fakes::kRefusedValue);
        EXPECT_EQ(faulty.log().back(), "call Add") << "it ends at the host's refusal";
        host.drawing().sets.clear();
    }
}

}  // namespace
}  // namespace blocks
