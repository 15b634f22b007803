#include "replace/fm_att_set.h"

#include "tests/replace/replace_world.h"

#include <gtest/gtest.h>

namespace replace {
namespace {

class TableTest : public testing::Test, public ReplaceWorld {
  protected:
    /// The doors are to become lamps, with transcription.
    TableTest() {
        screen.choose("lstDestination", "DOOR");
        screen.choose("CboBlocReplacer", "LAMP");
        screen.click("ChkAttSet");
    }
    /// Sets the destinations of the rows, in order; "" leaves a row alone.
    void pair(const Texts& tags) {
        screen.click("BtnAttSet");
        for (std::size_t row = 1; row <= tags.size(); ++row) {
            if (tags[row - 1].empty()) continue;
            screen.choose("ListView1", static_cast<int>(row));
            screen.choose("Combo2", tags[row - 1]);
        }
        screen.click("OKButton");
    }
    void replaceAndClose() {
        screen.click("BtnReplace");
        close();
        run();
    }
    Texts destinations() {
        Texts found;
        for (int row = 1; row <= table().rowCount(); ++row) found.push_back(table().destination(row));
        return found;
    }
    Texts lampTexts() {
        const auto lamp = host.references("LAMP").at(0);
        return {lamp->text("ROOM"), lamp->text("CODE")};
    }
};

TEST_F(TableTest, PairsAttributesAndTheRunCopiesThem) {
    screen.click("BtnAttSet");
    look([&] {
        EXPECT_TRUE(dialog().visible()) << "it stays behind";
        EXPECT_EQ(table().owner(), &session.form("fmOwner"));
        EXPECT_EQ(table().ListView1.listItems().item(1).text(), "MARK");
        EXPECT_EQ(table().ListView1.selectedItem().index(), 1);
        EXPECT_EQ(destinations(), (Texts{"", ""})) << "no pairing is proposed, not even of equal tags";
        EXPECT_EQ(entries(table().Combo2), (Texts{"CODE", "ROOM"})) << "sorted";
        EXPECT_EQ(table().ListView1.columnHeaders().item(2).width, table().ListView1.width() / 2 - 50);
    });
    screen.choose("Combo2", "CODE");
    screen.choose("ListView1", "ROOM");
    look([&] { EXPECT_EQ(table().Combo2.text(), "") << "an empty destination shows nothing"; });
    screen.choose("Combo2", "ROOM");
    screen.choose("ListView1", "MARK");
    look([&] {
        EXPECT_EQ(table().Combo2.text(), "CODE");
        EXPECT_FALSE(forms::acts::editLabel(table().ListView1, 2, "changed"));
        EXPECT_EQ(table().Combo2.text(), "ROOM") << "a refused edit shows its row's destination";
    });
    screen.click("OKButton");
    replaceAndClose();
    EXPECT_EQ(lampTexts(), (Texts{"hall", "D1"}));
    EXPECT_EQ(host.references("LAMP").size(), 2U) << "no trial reference is left";
    EXPECT_TRUE(failures().empty());
}

TEST_F(TableTest, SurvivesAsLongAsTheBlocksAreTheSame) {
    pair({"CODE"});
    screen.choose("CboBlocReplacer", "DOOR");
    screen.choose("CboBlocReplacer", "LAMP");
    look([&] { faulty.reset(); });
    screen.click("BtnAttSet");
    look([&] {
        EXPECT_EQ(destinations(), (Texts{"CODE", ""}));
        EXPECT_EQ(faulty.calls(), 0) << "nothing is inserted";
    });
    screen.click("OKButton");
    screen.choose("CboBlocReplacer", "DOOR");
    screen.click("BtnAttSet");
    look([&] {
        EXPECT_EQ(destinations(), (Texts{"", ""}));
        EXPECT_EQ(entries(table().Combo2), (Texts{"MARK", "ROOM"}));
    });
    screen.click("OKButton");
    close();
    run();
    EXPECT_TRUE(failures().empty());
}

TEST_F(TableTest, IsBuiltEmptyByTheFirstRunThatAsksForIt) {
    replaceAndClose();
    EXPECT_EQ(lampTexts(), (Texts{"nowhere", "L"}));
    EXPECT_EQ(destinations(), (Texts{"", ""}));
}

TEST_F(TableTest, DoesNothingWhileTheOptionIsDisabled) {
    pair({"CODE"});
    look([&] { dialog().ChkAttSet.setEnabled(false); });
    replaceAndClose();
    EXPECT_EQ(lampTexts(), (Texts{"nowhere", "L"}));
}

TEST_F(TableTest, OfAnEarlierPairStaysInForceByPosition) {
    pair({"", "ROOM"});
    // Another source block; nobody opens the table again.
    host.addBlock("SHELF", {{"ROOM", "r"}, {"SIZE", "s"}});
    host.addReference("SHELF", {}, {"attic", "120"});
    close();
    run();
    session.dropForm("fmReplace");  // as at the end of a command; the table outlives it
    screen.choose("lstDestination", "SHELF");
    screen.choose("CboBlocReplacer", "LAMP");
    screen.click("ChkAttSet");
    replaceAndClose();
    EXPECT_EQ(lampTexts(), (Texts{"120", "L"})) << "the second attribute, whatever its tag";
}

TEST_F(TableTest, AFailedBuildLeavesTheTrialReferenceAndTheNextUseTriesAgain) {
    screen.type("CboBlocReplacer", "NONE");
    screen.click("BtnAttSet");
    look([&] {
        EXPECT_EQ(failures().size(), 1U);
        EXPECT_EQ(host.references("DOOR").size(), 3U);
        EXPECT_FALSE(table().visible());
        EXPECT_TRUE(dialog().visible());
    });
    screen.type("CboBlocReplacer", "LAMP");
    pair({"CODE"});
    look([&] { EXPECT_EQ(destinations(), (Texts{"CODE", ""})); });
    close();
    run();

    // The same at a show of the dialog as it stands: its rows are discarded only when the blocks can be read.
    screen.type("CboBlocReplacer", "NONE");
    screen.click("BtnAttSet");
    look([&] { EXPECT_EQ(destinations(), (Texts{"CODE", ""})); });
    screen.click("OKButton");
    close();
    run();
    EXPECT_EQ(failures().size(), 2U);
}

}  // namespace
}  // namespace replace
