#include "blocks/block_names.h"

#include "tests/fakes/dialog_world.h"

namespace blocks {
namespace {

using fakes::Texts;

Texts texts(const std::optional<BlockNames>& names) {
    return names ? Texts(names->begin(), names->end()) : Texts{"(empty result)"};
}

/// WINDOW stands in paper space, SITE is an external reference, UNUSED was erased.
struct BlockNamesTest : testing::Test, fakes::DialogWorld {
    BlockNamesTest() : DialogWorld(drawing()) { place("UNUSED")->invoke("Delete"); }

    static drawing::PlainDrawing drawing() {
        auto plain = fakes::drawingOf({{"WINDOW", {}}, {"*U7", {}}, {"DOOR", {}}, {"UNUSED", {}}});
        plain.inBlock("ENDBLK 8 0").inBlock("BLOCK 8 0 2 SITE 70 4 10 0 20 0 1 site.dwg");
        return plain.entity("INSERT 8 0 2 SITE 10 0 20 0")
            .entity("INSERT 8 0 2 door 10 0 20 0")
            .entity("INSERT 8 0 2 *U7 10 0 20 0")
            .entity("INSERT 8 0 67 1 2 WINDOW 10 0 20 0");
    }
    Texts inserted() { return texts(GetInsertedBlockNames(session)); }
};

TEST_F(BlockNamesTest, KeepsTheOrderAndRefusesAKeyInAnyCase) {
    BlockNames names;
    for (const char* name : {"PORTE", "*U1", "Été"}) names.Add(name);
    for (const char* name : {"porte", "*u1", "ÉTÉ"})
        EXPECT_EQ(fakes::errorOf([&] { names.Add(name); }), basic::kDuplicateKey) << name;
    EXPECT_EQ(texts(names), (Texts{"PORTE", "*U1", "Été"}));
}

TEST_F(BlockNamesTest, ListsAllBlocksAndTheInsertedOnes) {
    EXPECT_EQ(texts(GetBlockNames(session)), (Texts{"WINDOW", "*U7", "DOOR", "UNUSED"}));
    faulty.reset();
    EXPECT_EQ(inserted(), (Texts{"WINDOW", "*U7", "DOOR"}));
    EXPECT_EQ(setNames(), Texts{}) << "the temporary set is gone";
    EXPECT_EQ(faulty.count("call Select"), 4) << "one selection for each block that qualifies";
}

TEST_F(BlockNamesTest, LeavesTheTemporarySetAfterAFailureAndFailsOnItFromThenOn) {
    for (const char* access : {"walk", "get Name", "call Clear", "call Select", "get Count", "call Delete"}) {
        faulty.failAt(access);
        EXPECT_THROW(inserted(), basic::Error) << access;
        EXPECT_EQ(setNames(), Texts{"sTemp"}) << access;

        faulty.reset();
        EXPECT_EQ(fakes::errorOf([&] { inserted(); }), model::kSelectionSetExists);
        EXPECT_EQ(faulty.log().back(), "call Add") << "it ends at the host's refusal";
        set(0)->invoke("Delete");
    }
}

}  // namespace
}  // namespace blocks
