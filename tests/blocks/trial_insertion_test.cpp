#include "blocks/trial_insertion.h"

#include "blocks/block_file.h"
#include "tests/fakes/dialog_world.h"

#include <gtest/gtest.h>

namespace blocks {
namespace {

class TrialInsertionTest : public testing::Test, public fakes::DialogWorld {
  protected:
    struct Dialog : forms::Form {
        using Form::Form;
        forms::FileDialog CommonDialog1{*this, "CommonDialog1"};
    } dialog{"fmTest", "", ""};
    basic::Variant attributes{"as it was"};

    /// A drawing file with a block.
    void addFile(const std::string& path, const std::string& block, fakes::FakeBlock::Attributes tags) {
        host.drawing().files[path] = std::make_shared<fakes::FakeBlock>(block, std::move(tags));
    }
    /// The user chooses a path, or none.
    std::string browse(const std::optional<std::string>& path) {
        screen.paths = {path};
        return BrowseBlockFile(session, dialog.CommonDialog1, attributes, "", "Select a block file");
    }
};

TEST_F(TrialInsertionTest, AsksTheHostForNothingWithoutANameAndLetsFailuresOut) {
    EXPECT_TRUE(InsertTrialReference(session, "").isNothing());
    EXPECT_EQ(faulty.calls(), 0);
    EXPECT_EQ(fakes::errorOf([&] { InsertTrialReference(session, "NONE"); }), fakes::kKeyNotFound);
    host.addBlock("DOOR");
    EXPECT_EQ(InsertTrialReference(session, "DOOR").Name(), "DOOR");
    ASSERT_EQ(host.references("DOOR").size(), 1U) << "the caller deletes it";
    EXPECT_EQ(host.references("DOOR")[0]->point, fakes::Point{});
    EXPECT_EQ(host.references("DOOR")[0]->scale, (fakes::Point{1, 1, 1}));
}

TEST_F(TrialInsertionTest, ABlockFileBringsItsBlockIn) {
    dialog.CommonDialog1.setFileName("/blocks/old.dwg");
    EXPECT_EQ(browse(std::nullopt), "") << "cancelled, whatever was chosen before";
    EXPECT_EQ(faulty.calls(), 0);

    addFile("/blocks/chair.dwg", "chair", {});
    EXPECT_EQ(browse("/blocks/chair.dwg"), "chair");
    EXPECT_EQ(attributes.text(), "as it was") << "for a block without any";

    addFile("/blocks/door.v2.dwg", "door.v2", {{"MARK", "D"}});
    EXPECT_EQ(browse("/blocks/door.v2.dwg"), "door.v2");
    EXPECT_NE(host.drawing().findBlock("door.v2"), nullptr);
    EXPECT_TRUE(host.references("door.v2").empty()) << "the trial reference is gone";
    EXPECT_EQ(attributes.array().size(), 1U);
    EXPECT_EQ(dialog.CommonDialog1.filter(), "Dessin bloc AutoCAD (*.dwg)|*.dwg");
    EXPECT_EQ(dialog.CommonDialog1.flags(), 4);
    EXPECT_EQ(dialog.CommonDialog1.dialogTitle(), "Select a block file");
}

TEST_F(TrialInsertionTest, ABlockFilePassesOverFailuresOfTheHost) {
    EXPECT_EQ(browse("/blocks/broken.dwg"), "broken") << "refused, which shows only when its name is used";

    addFile("/blocks/door.dwg", "door", {{"MARK", "D"}});
    for (const char* access : {"get hasAttributes", "call GetAttributes", "call Delete"}) {
        faulty.failAt(access);
        EXPECT_EQ(browse("/blocks/door.dwg"), "door") << access;
        EXPECT_TRUE(faulty.failed()) << access;
        EXPECT_EQ(host.references("door").size(), access == std::string("call Delete") ? 1U : 0U) << access;
    }
}

}  // namespace
}  // namespace blocks
