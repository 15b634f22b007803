#include "extract/fm_re_insert.h"

#include "tests/extract/extract_world.h"

namespace extract {
namespace {

using forms::Answer;

class ReInsertTest : public testing::Test, public ExtractWorld {
  protected:
    ReInsertTest() {
        host.addBlock("TREE", {{"SPECIES", "oak"}, {"GIRTH", "1"}});
        host.addBlock("bench");
    }
    fmReInsert& form() { return insertion(); }
    std::string data(const std::string& name, const std::string& rows) {
        return folder.write(name,
                            "Donn\xE9"
                            "es du bloc \tTREE\r\n" +
                                std::string(kColumnLine) + "\tSPECIES\tGIRTH\tCalque\tCouleur\r\n" + rows);
    }
    void load(const std::string& path) {
        screen.click("BtnData");
        screen.paths.push_back(path);
    }
    void close() { screen.click("BtnClose"); }
    void setMapping(const std::string& parameter, const std::string& text) {
        screen.choose("ListView1", parameter);
        screen.type("ComboBox1", text);
    }
};

const Texts kPlaceholders{"Colonne 1", "Colonne 2", "Colonne 3", "Colonne 4", "Colonne 5", "Colonne 6",
                          "Colonne 7", "0",         "0",         "0",         "Colonne 8", "Colonne 9"};
const Texts kFromFile{"X insertion", "Y insertion", "Z insertion", "Ech. X", "Ech. Y",  "Ech. Z",
                      "Rotation",    "0",           "0",           "0",      "SPECIES", "GIRTH"};

TEST_F(ReInsertTest, OpensWithTheFixedParametersAndTheBlocks) {
    look([&] {
        EXPECT_EQ(entries(form().Combo1), (Texts{"<<< Select", "bench", "Browse >>>", "TREE"}))
            << "a block that sorts before the second command takes its place";
        EXPECT_EQ(form().Combo1.text(), "");
        EXPECT_EQ(form().ListView1.listItems().count(), 10);
        EXPECT_EQ(mappings(form().ListView1), Texts(10, ""));
        EXPECT_EQ(headers(form().ListView1), (Texts{"Paramètre", "Colonne-valeurs"}));
        EXPECT_FALSE(form().ListView1.hideSelection());
        EXPECT_FALSE(form().BtnInsert.enabled());
        EXPECT_FALSE(form().Check1.enabled());
        EXPECT_FALSE(form().BtnBloc.visible());
        EXPECT_EQ(form().caption(), "Vorlane 1.0 : Block re-insertion");
        EXPECT_FALSE(forms::acts::editLabel(form().ListView1, 1, "other"));
    });
    close();
    runInsertion();
}

TEST_F(ReInsertTest, MapsABlockOnPlaceholdersAndAFileOnItsColumns) {
    screen.choose("Combo1", "TREE");
    look([&] {
        EXPECT_EQ(form().Frame1.caption(), "Attributs de 'TREE'");
        EXPECT_EQ(mappings(form().ListView1), kPlaceholders);
        EXPECT_EQ(headers(form().ListView2).size(), 13U);
        EXPECT_EQ(form().ListView2.columnHeaders().item(1).width, 400);
        EXPECT_EQ(form().ComboBox1.listCount(), 12);
        EXPECT_FALSE(form().BtnInsert.enabled());
        EXPECT_TRUE(host.references("TREE").empty()) << "the trial reference is gone";
    });
    screen.choose("Combo1", "TREE");  // the same once more changes nothing
    look([&] { EXPECT_EQ(form().ComboBox1.listCount(), 12); });
    const std::string path =
        data("trees.txt", "1\t2\t3\r\n\r\n1\t2\t3\t4\t5\t6\t7\t8\t9\t10\t11\t12\t13\r\n");
    load(path);
    look([&] {
        EXPECT_EQ(form().Frame2.caption(), "Données d'insert° du bloc 'TREE' : '" + path + "'");
        EXPECT_EQ(form().CommonDialog1.dialogTitle(), "Sélectionnez le fichier des données d'insertion");
        EXPECT_EQ(headers(form().ListView2).front(), "N°");
        EXPECT_EQ(form().ListView2.columnHeaders().item(1).width, 300);
        EXPECT_EQ(form().ListView2.columnHeaders().item(2).width, 700);
        EXPECT_EQ(entries(form().ComboBox1), headers(form().ListView2));
        EXPECT_EQ(mappings(form().ListView1), kFromFile);
        ASSERT_EQ(form().ListView2.listItems().count(), 3);
        EXPECT_EQ(row(form().ListView2, 1), (Texts{"1", "2", "3", "", "", "", "", "", "", "", "", ""}));
        EXPECT_EQ(row(form().ListView2, 2), Texts(12, ""));
        EXPECT_EQ(row(form().ListView2, 3).back(), "12") << "the thirteenth field is dropped";
        EXPECT_TRUE(form().BtnInsert.enabled());
    });
    close();
    runInsertion();
    EXPECT_EQ(shows("fmReInsert"), 2) << "a choice of a block hides nothing";
}

TEST_F(ReInsertTest, KeepsTheFirstFilesColumnsForASecondFile) {
    load(data("first.txt", "1\t5\r\n"));
    screen.choose("Combo1", "TREE");
    setMapping("SPECIES", "Calque");
    load(folder.write("second.txt", "x\tOTHER\r\nN\tA\tB\r\n1\t2\t3\r\n"));
    look([&] {
        EXPECT_TRUE(form().Frame2.caption().starts_with("Données d'insert° du bloc 'OTHER' : '"));
        EXPECT_EQ(headers(form().ListView2).size(), 12U);
        ASSERT_EQ(form().ListView2.listItems().count(), 2);
        EXPECT_EQ(row(form().ListView2, 1)[1], "A") << "the column line is a row";
        EXPECT_EQ(form().ComboBox1.listCount(), 12);
        EXPECT_EQ(mappings(form().ListView1)[10], "Calque") << "the mapping stays";
        EXPECT_TRUE(form().BtnInsert.enabled());
    });
    load(folder.file("none.txt"));  // can't be opened: the rows go, the caption stays, the dialog comes back
    look([&] {
        EXPECT_EQ(form().ListView2.listItems().count(), 0);
        EXPECT_TRUE(form().Frame2.caption().starts_with("Données d'insert° du bloc 'OTHER' : '"));
    });
    close();
    runInsertion();
    EXPECT_TRUE(failures().empty());
}

TEST_F(ReInsertTest, ReadsWhatIsThereOfAnOddFile) {
    load(folder.write("empty.txt", ""));
    look([&] { EXPECT_EQ(form().Frame2.caption(), "Insertion data: ''"); });
    load(folder.write("title.txt", "no tab"));
    look([&] { EXPECT_EQ(form().Frame2.caption(), "Insertion data: ''"); });
    load(folder.write("one.txt", "x\tTREE'\r\n"));
    look([&] {
        EXPECT_TRUE(headers(form().ListView2).empty());
        EXPECT_NE(form().Frame2.caption(), "Insertion data: ''");
    });
    load(folder.write("narrow.txt", "x\tTREE\r\nN\tX\tY\r\n"));
    look([&] {
        EXPECT_EQ(mappings(form().ListView1), (Texts{"X", "Y", "", "", "", "", "", "0", "0", "0"}));
    });
    screen.click("BtnData");  // a cancel hands back the old name: its column line is a row by now
    screen.paths.push_back(std::nullopt);
    look([&] { EXPECT_EQ(row(form().ListView2, 1), (Texts{"N", "X", "Y"})); });
    close();
    runInsertion();
}

TEST_F(ReInsertTest, KeepsInsertionOffForNamesThatEndInAnApostrophe) {
    host.addBlock("L'AUTRE'");
    load(data("d.txt", ""));
    screen.choose("Combo1", "L'AUTRE'");
    look([&] {
        EXPECT_EQ(form().Frame1.caption(), "Attributs de 'L'AUTRE''");
        EXPECT_FALSE(form().BtnInsert.enabled());
    });
    screen.choose("Combo1", "TREE");
    look([&] { EXPECT_TRUE(form().BtnInsert.enabled()); });
    load(data("d'", ""));
    look([&] { EXPECT_FALSE(form().BtnInsert.enabled()); });
    close();
    runInsertion();
}

TEST_F(ReInsertTest, PicksABlockAndComesBackByTheLoop) {
    const auto tree = host.addReference("TREE");
    host.breakOffPick();
    screen.choose("Combo1", 0);
    screen.answers.push_back(Answer::Cancel);
    look([&] {
        EXPECT_EQ(form().Combo1.text(), "") << "the command is out of the field";
        EXPECT_EQ(form().Frame1.caption(), "Attributes of ''");
    });
    host.pick(tree);
    screen.choose("Combo1", 0);
    look([&] {
        EXPECT_EQ(form().Combo1.text(), "TREE");
        EXPECT_EQ(form().Combo1.listIndex(), 3);
        EXPECT_EQ(form().Frame1.caption(), "Attributs de 'TREE'");
        EXPECT_EQ(mappings(form().ListView1), kPlaceholders);
    });
    screen.closeBox();  // no way out: the loop shows it again
    close();
    runInsertion();
    EXPECT_EQ(shows("fmReInsert"), 4);
    EXPECT_EQ(host.drawing().prompts[0], "Select the reference to insert :");
    EXPECT_EQ(host.references("TREE").size(), 1U);
}

TEST_F(ReInsertTest, TellsTheCommandsByTheirPlacesAlone) {
    screen.choose("Combo1", "bench");  // stands where browsing is
    screen.paths.push_back("/plans/door.dwg");
    host.drawing().files["/plans/door.dwg"] =
        std::make_shared<fakes::FakeBlock>("door", fakes::FakeBlock::Attributes{{"MARK", "D"}});
    look([&] {
        EXPECT_EQ(form().CommonDialog2.dialogTitle(), "Select a block file");
        EXPECT_EQ(form().TxtName.text(), "door");
        EXPECT_EQ(entries(form().Combo1), (Texts{"<<< Select", "bench", "Browse >>>", "door", "TREE"}));
        EXPECT_EQ(form().Combo1.text(), "door");
        EXPECT_EQ(mappings(form().ListView1).size(), 11U);
    });
    screen.choose("Combo1", "Browse >>>");  // treated as a block's name
    look([&] {
        EXPECT_EQ(form().Frame1.caption(), "Attributs de 'Browse >>>'");
        EXPECT_EQ(mappings(form().ListView1).size(), 10U);
    });
    screen.choose("Combo1", "bench");
    screen.paths.push_back(std::nullopt);  // cancelled: no block is chosen any more
    look([&] {
        EXPECT_EQ(form().Frame1.caption(), "Attributs de ''");
        EXPECT_EQ(form().Combo1.text(), "");
        EXPECT_EQ(form().ComboBox1.listCount(), 11 + 10 + 10) << "placeholders pile up";
    });
    close();
    runInsertion();
    EXPECT_TRUE(host.references("door").empty());
}

TEST_F(ReInsertTest, OffersTheLeaderLineWhileADeltaIsNotZero) {
    struct Row {
        const char* text;
        bool enabled;
    };
    load(data("d.txt", ""));
    screen.choose("Combo1", "TREE");
    look([&] { EXPECT_FALSE(form().Check1.enabled()); });
    for (const Row& step : {Row{"1.5", true}, Row{"0.00", false}, Row{"Z insertion", true}, Row{"-0", false},
                            Row{"", true}, Row{"0", false}, Row{"1", true}}) {
        setMapping("DeltaY", step.text);
        look([this, step] {
            EXPECT_EQ(form().Check1.enabled(), step.enabled) << step.text;
            if (!step.enabled) {
                EXPECT_EQ(form().Check1.value(), 0);
            }
            EXPECT_EQ(mappings(form().ListView1)[8], step.text);
        });
        if (step.enabled) screen.click("Check1");
    }
    screen.choose("ComboBox1", "Calque");  // a choice from the list counts like typing
    look([&] { EXPECT_EQ(mappings(form().ListView1)[8], "Calque"); });
    setMapping("DeltaX", "0");
    setMapping("DeltaY", "2");
    load(data("e.txt", "1\r\n"));
    look([&] { EXPECT_EQ(form().Check1.value(), 1) << "a file leaves the option alone"; });
    close();
    runInsertion();
    EXPECT_EQ(form().Check1.value(), 0);
    EXPECT_EQ(form().ListView1.listItems().count(), 0);
    EXPECT_EQ(form().ListView2.columnHeaders().count(), 0);
    EXPECT_EQ(form().TxtName.text(), "TREE") << "stays";
}

TEST_F(ReInsertTest, EndsASecondCommandOnTheSameObjectWithTheFirstHide) {
    close();
    runInsertion();
    host.pick(host.addReference("TREE"));
    screen.choose("Combo1", 0);
    runInsertion();
    EXPECT_EQ(shows("fmReInsert"), 2);
}

TEST_F(ReInsertTest, StillHasTheOldPick) {
    const auto tree = host.addReference("TREE");
    host.pick(host.addEntity("AcDbLine"));
    host.pick(tree);
    host.breakOffPick();
    screen.answers = {Answer::Ok, Answer::Cancel};
    screen.acts.push_back([&](forms::Form&) { form().BtnBloc.press(); });
    look([&] {
        EXPECT_EQ(form().Frame1.caption(), "Attributs de 'TREE'");
        EXPECT_EQ(mappings(form().ListView1), kPlaceholders);
        EXPECT_FALSE(tree->erased);
        form().BtnBloc.press();
    });
    close();
    runInsertion();
    EXPECT_EQ(host.drawing().prompts[0], "Selectionner l'étiquette à insérer :");
    EXPECT_EQ(screen.boxes[0].title, "Ardenix 1.0 : Selection de l'étiquette");
    EXPECT_EQ(form().TxtName.text(), "TREE");
}

}  // namespace
}  // namespace extract
