#include "extract/fm_re_insert.h"

#include "tests/extract/extract_world.h"

namespace extract {
namespace {

using forms::Answer;

class ReInsertTest : public testing::Test, public ExtractWorld {
  protected:
    fmReInsert& form() { return insertion(); }
    void load(const std::string& path) {
        screen.click("BtnData");
        screen.paths.push_back(path);
    }
    void runAndClose() {
        screen.click("BtnClose");
        runInsertion();
    }
};

const Texts kPlaceholders{"Colonne 1", "Colonne 2", "Colonne 3", "Colonne 4", "Colonne 5", "Colonne 6",
                          "Colonne 7", "0",         "0",         "0",         "Colonne 8", "Colonne 9"};

TEST_F(ReInsertTest, ReadsWhatIsThereOfAnOddFile) {
    for (const char* text : {"", "no tab"}) {
        load(folder.write(std::string("odd") + text, text));
        look([&] { EXPECT_EQ(form().Frame2.caption(), "Insertion data: ''"); });
    }
    load(folder.write("one.txt", "x\tTREE'\r\n"));
    look([&] {
        EXPECT_TRUE(headers(form().ListView2).empty());
        EXPECT_NE(form().Frame2.caption(), "Insertion data: ''");
    });
    load(folder.write("narrow.txt", "x\tTREE\r\nN\tX\tY\r\n"));
    look([&] {
        EXPECT_EQ(form().ListView2.columnHeaders().item(1).width, 300);
        EXPECT_EQ(mappings(form().ListView1), (Texts{"X", "Y", "", "", "", "", "", "0", "0", "0"}));
    });
    screen.click("BtnData");  // a cancel hands back the old name: its column line is a row by now
    screen.paths.push_back(std::nullopt);
    look([&] { EXPECT_EQ(row(form().ListView2, 1), (Texts{"N", "X", "Y"})); });
    runAndClose();
}

TEST_F(ReInsertTest, PicksABlockAndComesBackByTheLoop) {
    const auto tree = place("TREE");
    breakOffPick();
    screen.choose("Combo1", 0);
    screen.answers.push_back(Answer::Cancel);
    look([&] {
        EXPECT_EQ(form().Combo1.text(), "") << "the command is out of the field";
        EXPECT_EQ(form().Frame1.caption(), "Attributes of ''");
    });
    pick(tree);
    screen.choose("Combo1", 0);
    look([&] {
        EXPECT_EQ(form().Combo1.text(), "TREE");
        EXPECT_EQ(mappings(form().ListView1), kPlaceholders);
        EXPECT_EQ(references("TREE").size(), 1U) << "the trial reference is gone";
    });
    screen.choose("Combo1", "TREE");  // the same once more changes nothing
    look([&] { EXPECT_EQ(form().ComboBox1.listCount(), 12); });
    screen.closeBox();  // no way out: the loop shows it again
    runAndClose();
    EXPECT_EQ(shows("fmReInsert"), 4);
}

TEST_F(ReInsertTest, OffersTheLeaderLineWhileADeltaIsNotZero) {
    load(folder.write("d.txt", "x\tTREE\r\nN\tX\r\n"));
    screen.choose("Combo1", "TREE");
    using Step = std::pair<const char*, bool>;
    for (const Step& step : {Step("1.5", true), Step("0.00", false), Step("Z insertion", true),
                             Step("-0", false), Step("", true), Step("0", false), Step("1", true)}) {
        screen.choose("ListView1", "DeltaY");
        screen.type("ComboBox1", step.first);
        look([this, step] {
            EXPECT_EQ(form().Check1.enabled(), step.second) << step.first;
            EXPECT_LE(form().Check1.value(), step.second ? 1 : 0);
            EXPECT_EQ(mappings(form().ListView1)[8], step.first);
        });
        if (step.second) screen.click("Check1");
    }
    screen.choose("ComboBox1", "N");  // a choice from the list counts like typing
    look([&] { EXPECT_EQ(mappings(form().ListView1)[8], "N"); });
    screen.type("ComboBox1", "2");
    load(folder.write("e.txt", "x\tTREE\r\n"));
    look([&] { EXPECT_EQ(form().Check1.value(), 1) << "a file leaves the option alone"; });
    runAndClose();
    EXPECT_EQ(form().Check1.value(), 0);
    EXPECT_EQ(form().TxtName.text(), "TREE") << "stays";
}

TEST_F(ReInsertTest, EndsASecondCommandOnTheSameObjectWithTheFirstHide) {
    runAndClose();
    pick(place("TREE"));
    screen.choose("Combo1", 0);
    runInsertion();
    EXPECT_EQ(shows("fmReInsert"), 2);
}

TEST_F(ReInsertTest, StillHasTheOldPick) {
    const auto tree = place("TREE");
    space()->invoke("AddLine", {basic::Doubles{0, 0, 0}, basic::Doubles{1, 0, 0}});
    pick(item(1));
    pick(tree);
    breakOffPick();
    screen.answers = {Answer::Ok, Answer::Cancel};
    screen.acts.push_back([&](forms::Form&) { form().BtnBloc.press(); });
    look([&] {
        EXPECT_EQ(mappings(form().ListView1), kPlaceholders);
        EXPECT_EQ(references("TREE").size(), 1U);
        form().BtnBloc.press();
    });
    runAndClose();
    EXPECT_EQ(prompter.prompts[0], "Selectionner l'étiquette à insérer :");
    EXPECT_EQ(screen.boxes[0].title, "Ardenix 1.0 : Selection de l'étiquette");
    EXPECT_EQ(form().TxtName.text(), "TREE");
}

}  // namespace
}  // namespace extract
