#include "blocks/trial_insertion.h"

#include "blocks/block_file.h"
#include "forms/controls.h"
#include "tests/blocks/blocks_world.h"

#include <gtest/gtest.h>

namespace blocks {
namespace {

/// Keeps the arguments of a call of `InsertBlock`.
struct ArgumentKeeper : fakes::FakeObject {
    host::Arguments kept;
    basic::Variant get(std::string_view) override { return std::make_shared<Space>(kept); }

    struct Space : fakes::FakeObject {
        explicit Space(host::Arguments& kept) : kept(kept) {}
        host::Arguments& kept;
        basic::Variant call(std::string_view, host::Arguments& arguments) override {
            kept = arguments;
            return basic::ObjectRef();
        }
    };
};

class BrowseTest : public testing::Test, public BlocksWorld {
  protected:
    struct Dialog : forms::Form {
        using Form::Form;
        forms::FileDialog CommonDialog1{*this, "CommonDialog1"};
    } dialog{"fmTest", "", ""};
    basic::Variant attributes{"as it was"};

    /// A drawing file with a block of one attribute, or of none.
    void addFile(const std::string& path, const std::string& block, fakes::FakeBlock::Attributes tags) {
        host.drawing().files[path] = std::make_shared<fakes::FakeBlock>(block, std::move(tags));
    }
    std::string browse(const std::string& title = "") {
        return BrowseBlockFile(session, dialog.CommonDialog1, attributes, "", title);
    }
};

TEST(TrialInsertionTest, PassesTheTrialPointAndSixteenBitNumbers) {
    BlocksWorld world;
    const auto keeper = std::make_shared<ArgumentKeeper>();
    world.session.AcadDoc = keeper;
    InsertTrialReference(world.session, "DOOR");
    ASSERT_EQ(keeper->kept.size(), 6U);
    EXPECT_EQ(keeper->kept[0].doubles(), (basic::Doubles{0, 0, 0}));
    EXPECT_EQ(keeper->kept[1].text(), "DOOR");
    for (int i = 2; i < 6; ++i) {
        EXPECT_TRUE(keeper->kept[i].is(basic::Variant::Kind::Int16)) << i;
        EXPECT_EQ(keeper->kept[i].integer(), i < 5 ? 1 : 0) << i;
    }
}

TEST(TrialInsertionTest, AsksTheHostForNothingWithoutANameAndLetsFailuresOut) {
    BlocksWorld world;
    EXPECT_TRUE(InsertTrialReference(world.session, "").isNothing());
    EXPECT_EQ(world.faulty.calls(), 0);
    EXPECT_EQ(fakes::errorOf([&] { InsertTrialReference(world.session, "NONE"); }), fakes::kKeyNotFound);

    world.host.addBlock("DOOR");
    EXPECT_EQ(InsertTrialReference(world.session, "DOOR").Name(), "DOOR");
    EXPECT_EQ(world.host.references("DOOR").size(), 1U) << "the caller deletes it";
}

TEST_F(BrowseTest, BringsTheBlockInAndDeletesTheTrialReference) {
    addFile("/blocks/door.v2.dwg", "door.v2", {{"MARK", "D"}});
    screen.paths = {"/blocks/door.v2.dwg"};
    EXPECT_EQ(browse("Select a block file"), "door.v2");
    EXPECT_NE(host.drawing().findBlock("door.v2"), nullptr);
    EXPECT_TRUE(host.references("door.v2").empty());
    EXPECT_EQ(attributes.array().size(), 1U);
    EXPECT_EQ(dialog.CommonDialog1.filter(), "Dessin bloc AutoCAD (*.dwg)|*.dwg");
    EXPECT_EQ(dialog.CommonDialog1.flags(), 4);
    EXPECT_EQ(dialog.CommonDialog1.dialogTitle(), "Select a block file");
}

TEST_F(BrowseTest, LeavesTheAttributesAloneForABlockWithoutAny) {
    addFile("/blocks/chair.dwg", "chair", {});
    screen.paths = {"/blocks/chair.dwg"};
    EXPECT_EQ(browse(), "chair");
    EXPECT_EQ(attributes.text(), "as it was");
}

TEST_F(BrowseTest, GivesTheEmptyTextOnCancelWhateverWasChosenBefore) {
    dialog.CommonDialog1.setFileName("/blocks/old.dwg");
    screen.paths = {std::nullopt};
    EXPECT_EQ(browse(), "");
    EXPECT_EQ(attributes.text(), "as it was");
    EXPECT_EQ(faulty.calls(), 0);
}

TEST_F(BrowseTest, PassesOverFailuresOfTheHost) {
    screen.paths = {"/blocks/broken.dwg"};
    EXPECT_EQ(browse(), "broken") << "a file that the host refuses shows only when its name is used";

    addFile("/blocks/door.dwg", "door", {{"MARK", "D"}});
    for (const char* access : {"get hasAttributes", "call GetAttributes"}) {
        screen.paths = {"/blocks/door.dwg"};
        faulty.failAt(access);
        EXPECT_EQ(browse(), "door") << access;
        EXPECT_TRUE(host.references("door").empty()) << access;
    }
    screen.paths = {"/blocks/door.dwg"};
    faulty.failAt("call Delete");
    EXPECT_EQ(browse(), "door");
    EXPECT_EQ(host.references("door").size(), 1U) << "a failed deletion leaves the trial reference";
}

}  // namespace
}  // namespace blocks
