#include "desk/window/blocks_panel.h"
#include "desk/window/drawing_lists.h"
#include "desk/window/help_window.h"
#include "desk/window/layers_panel.h"
#include "desk/window/parts.h"
#include "desk/window/properties_panel.h"
#include "desk/window/property_field.h"
#include "tests/window/window_bench.h"

#include <QComboBox>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QRegularExpression>
#include <QSignalSpy>
#include <QTextBrowser>
#include <QToolButton>

namespace window {
namespace {

using MainWindowTest = WindowTest;

PropertyField* field(MainWindow& window, const QString& label) {
    QTest::qWait(0);  // new rows are shown by the event loop
    for (auto* each : window.propertiesPanel().findChildren<PropertyField*>()) {
        if (each->isVisible() && each->accessibleName() == label) return each;
    }
    return nullptr;
}

TEST_F(MainWindowTest, AnEditedPropertyIsOneUndoStepForAllSelected) {
    const std::string before = drawing().savedBytes();
    const auto doors = referencesOf(drawing(), "PORTE_80");
    window_->canvas().setSelection(doors);
    emit window_->canvas().selectionChanged();
    ASSERT_NE(field(*window_, "REPERE"), nullptr);
    EXPECT_EQ(field(*window_, "REPERE")->placeholderText(), "varies");
    PropertyField* width = field(*window_, "LARGEUR");
    width->setFocus();
    width->selectAll();
    QTest::keyClicks(width, "83");
    QTest::keyClick(width, Qt::Key_Return);
    QTest::qWait(0);
    for (const drawing::EntityId id : doors)
        EXPECT_EQ(drawing().attributeText(drawing().attributes(id)[1]), "83");
    EXPECT_TRUE(window_->windowTitle().startsWith(QString::fromUtf8("● apartment.dxf")));
    EXPECT_TRUE(window_->action("undo")->text().endsWith("LARGEUR"));
    window_->action("undo")->trigger();
    EXPECT_EQ(drawing().savedBytes(), before);
    EXPECT_FALSE(window_->windowTitle().startsWith(QString::fromUtf8("●")));
    window_->action("redo")->trigger();
    EXPECT_EQ(drawing().attributeText(drawing().attributes(doors[3])[1]), "83");
    window_->action("undo")->trigger();
}

TEST_F(MainWindowTest, ControlCharactersAreShownAndOutliveAnEdit) {
    const std::string block = "A\x1B\u202EB";
    std::string bytes = folder_.read("apartment.dxf");
    for (std::size_t at = 0; (at = bytes.find("PORTE_80", at)) != std::string::npos;)
        bytes.replace(at, 8, "A^[\\U+202EB");
    folder_.write("controls.dxf", bytes);
    window_->open(QString::fromStdString(folder_.file("controls.dxf")));
    const auto door = referencesOf(drawing(), block).at(0);
    const drawing::EntityId width = drawing().attributes(door)[1];
    drawing().setAttributeText(width,
                               "a\x1B"
                               "8");
    window_->canvas().setSelection({door});
    emit window_->canvas().selectionChanged();
    PropertyField* shown = field(*window_, "LARGEUR");
    EXPECT_EQ(shown->text(), "a^[8");
    shown->setFocus();
    shown->end(false);
    QTest::keyClicks(shown, "3");
    QTest::keyClick(shown, Qt::Key_Return);
    QTest::qWait(0);
    EXPECT_EQ(drawing().attributeText(width),
              "a\x1B"
              "83");
    QStringList texts;
    for (const auto* label : window_->findChildren<QLabel*>()) texts << label->text() << label->toolTip();
    for (const auto* list : window_->findChildren<QAbstractItemView*>()) {
        for (int row = 0; list->model() != nullptr && row < list->model()->rowCount(); ++row)
            texts << list->model()->index(row, 0).data().toString();
    }
    EXPECT_GE(texts.count("A^[\\U+202EB"), 2) << "in the list of blocks and over the properties";
    EXPECT_EQ(texts.filter(QRegularExpression("[\\x1B\\x{202E}]")), QStringList());
    window_->action("undo")->trigger();
    EXPECT_EQ(drawing().attributeText(width),
              "a\x1B"
              "8");
}

TEST_F(MainWindowTest, ARefusedValueChangesNothing) {
    const std::string before = drawing().savedBytes();
    window_->canvas().setSelection(referencesOf(drawing(), "PORTE_80"));
    emit window_->canvas().selectionChanged();
    for (const char* text : {"0", "abc"}) {
        PropertyField* scale = field(*window_, "X scale");
        ASSERT_NE(scale, nullptr);
        scale->setFocus();
        scale->setText(text);
        QTest::keyClick(scale, Qt::Key_Return);
        QTest::qWait(0);
        EXPECT_EQ(drawing().savedBytes(), before) << text;
    }
    EXPECT_TRUE(window_->commandLine().historyText().contains("\"abc\" is no number"));
}

TEST_F(MainWindowTest, LayersSwitchOneStepEach) {
    auto* layers = window_->findChild<LayersPanel*>();
    const auto state = [&](const char* name) {
        for (const LayerRow& row : layerRows(drawing()))
            if (row.name == name) return row;
        return LayerRow{};
    };
    const bool wasFrozen = state("ELECTRICITE").frozen;
    emit layers->actAsked(LayerAct::Freeze, "ELECTRICITE");
    emit layers->actAsked(LayerAct::MakeCurrent, "MURS");
    EXPECT_NE(state("ELECTRICITE").frozen, wasFrozen);
    EXPECT_TRUE(state("MURS").current);
    emit layers->actAsked(LayerAct::Freeze, "MURS");
    EXPECT_FALSE(state("MURS").frozen) << "the current layer can't be frozen";
    window_->action("undo")->trigger();
    window_->action("undo")->trigger();
    EXPECT_EQ(state("ELECTRICITE").frozen, wasFrozen);
    EXPECT_TRUE(state("0").current);
    EXPECT_FALSE(window_->action("undo")->isEnabled());
}

TEST_F(MainWindowTest, AReplacementBlocksTheWindowTellsItsResultAndGoesBack) {
    const std::string before = drawing().savedBytes();
    const std::size_t doors = referencesOf(drawing(), "PORTE_80").size();
    face_->acts = {
        [this](forms::Form& form) {
            forms::acts::chooseText(forms::acts::controlNamed(form, "lstDestination"), "PORTE_80");
            EXPECT_FALSE(window_->action("save")->isEnabled());
            EXPECT_TRUE(window_->action("zoomAll")->isEnabled());
            window_->enterLine("LIST");
            EXPECT_TRUE(window_->commandLine().historyText().contains("is still running"));
        },
        [](forms::Form& form) {
            forms::acts::chooseText(forms::acts::controlNamed(form, "CboBlocReplacer"), "PORTE_90");
        },
        [](forms::Form& form) { forms::acts::click(forms::acts::controlNamed(form, "BtnReplace")); },
        [](forms::Form& form) { forms::acts::click(forms::acts::controlNamed(form, "BtnClose")); }};
    type("vnreplace");
    EXPECT_TRUE(face_->acts.empty());
    EXPECT_EQ(referencesOf(drawing(), "PORTE_80").size(), 0u);
    EXPECT_EQ(window_->status().resultText(), QString("%1 replaced").arg(doors));
    EXPECT_TRUE(window_->action("save")->isEnabled());
    EXPECT_TRUE(window_->action("undo")->text().endsWith("Replacement of PORTE_80"));
    emit window_->status().linkClicked(1);
    EXPECT_EQ(drawing().savedBytes(), before);
}

TEST_F(MainWindowTest, RowsThatAnInsertionRefusesStandOutWithTheirReason) {
    face_->file = folder_.file("rows.txt");
    QFile file(QString::fromStdString(*face_->file));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("x\tT\r\nN\tX\tY\tZ\tEX\tEY\tEZ\tR\r\n1\t1\t1\t0\t1\t1\t1\t0\r\n2\t5\t1\t0\tbig\t1\t1\t0\r\n");
    file.close();
    const auto press = [](const char* button) {
        return [button](forms::Form& form) { forms::acts::click(forms::acts::controlNamed(form, button)); };
    };
    face_->acts = {[](forms::Form& form) {
                       forms::acts::chooseText(forms::acts::controlNamed(form, "Combo1"), "PORTE_90");
                   },
                   press("BtnData"),
                   [this, press](forms::Form& form) {
                       const forms::Control& table = forms::acts::controlNamed(form, "ListView2");
                       EXPECT_EQ(window_->faultOf(table, 2), "") << "nothing failed before the run";
                       press("BtnInsert")(form);
                       EXPECT_EQ(window_->faultOf(table, 1), "");
                       EXPECT_EQ(window_->faultOf(table, 2), "Ech.X: \"big\" is no number");
                   },
                   press("BtnClose")};
    type("vninsert");
    EXPECT_TRUE(face_->acts.empty());
    EXPECT_EQ(window_->status().resultText(), "1 inserted");
    EXPECT_TRUE(window_->action("undo")->text().endsWith("Insertion of PORTE_90"));
}

TEST_F(MainWindowTest, TheHelpHasContentsAndASearch) {
    window_->action("help")->trigger();
    auto* help = window_->findChild<HelpWindow*>();
    ASSERT_TRUE(help != nullptr && help->isVisible());
    auto* contents = help->findChild<QListWidget*>("helpContents");
    const int all = contents->count();
    help->findChild<QLineEdit*>()->setText("vnlabel");
    EXPECT_TRUE(contents->count() > 0 && contents->count() < all);
    contents->setCurrentRow(contents->count() - 1);
    auto* page = help->findChild<QTextBrowser*>();
    EXPECT_TRUE(page->toPlainText().contains("VNLABEL"));
    EXPECT_FALSE(page->extraSelections().isEmpty()) << "what was searched is lit";
}

TEST_F(MainWindowTest, AnotherProgramsChangeIsOfferedAndNeverTakenSilently) {
    QSignalSpy opened(&window_->session(), &Session::opened);
    QFile file(QString::fromStdString(folder_.file("apartment.dxf")));
    ASSERT_TRUE(file.open(QIODevice::Append));
    file.write("999\nmore\n");
    file.close();
    ASSERT_TRUE(QTest::qWaitFor([this] { return window_->notice().isVisible(); }, 5000));
    EXPECT_TRUE(window_->notice().text().contains("changed by another program"));
    EXPECT_EQ(opened.count(), 0);
    emit window_->notice().answered(0);
    EXPECT_EQ(opened.count(), 1);
    EXPECT_TRUE(QString::fromStdString(drawing().savedBytes()).endsWith("more\n"));
}

TEST_F(MainWindowTest, NarrowItFoldsTheRightDockFirst) {
    auto* right = window_->findChild<QWidget*>("rightDock");
    auto* left = window_->findChild<QWidget*>("leftDock");
    EXPECT_TRUE(right->isVisible() && left->isVisible());
    window_->resize(1000, 800);
    EXPECT_TRUE(!right->isVisible() && left->isVisible());
    window_->resize(800, 800);
    EXPECT_TRUE(!right->isVisible() && !left->isVisible());
    window_->resize(1400, 900);
    EXPECT_TRUE(right->isVisible() && left->isVisible());
    window_->action("canvasAlone")->trigger();
    EXPECT_TRUE(!right->isVisible() && !left->isVisible() && !window_->commandLine().isVisible());
}

TEST_F(MainWindowTest, AHiddenCommandLineStillTakesWhatIsTypedOnTheDrawing) {
    window_->action("commandLine")->setChecked(false);
    QTest::keyClicks(&window_->canvas(), "(+ 1 22");
    QTest::keyClick(&window_->canvas(), Qt::Key_Backspace);
    QTest::keyClicks(&window_->canvas(), ")");
    QTest::keyClick(&window_->canvas(), Qt::Key_Return);
    EXPECT_TRUE(window_->commandLine().historyText().endsWith("(+ 1 2)\n3"));
    QTest::keyClicks(&window_->canvas(), "x");
    QTest::keyClick(&window_->canvas(), Qt::Key_Escape);
    EXPECT_EQ(window_->commandLine().text(), "");
}

TEST_F(MainWindowTest, EachCommandHasATextATipAndNoKeyTwice) {
    QSet<QString> keys;
    for (const Command* command = commandsBegin(); command != commandsEnd(); ++command) {
        const QAction* action = window_->action(command->id);
        EXPECT_FALSE(action->text().isEmpty()) << command->id;
        EXPECT_FALSE(action->toolTip().isEmpty()) << command->id;
        const QString key = action->shortcut().toString();
        EXPECT_FALSE(!key.isEmpty() && keys.contains(key)) << command->id << " " << key.toStdString();
        keys.insert(key);
    }
    for (const QWidget* each : window_->findChildren<QWidget*>()) {
        const bool takesKeys = each->isVisible() && (each->focusPolicy() & Qt::TabFocus) != 0;
        const bool isNamed = !each->accessibleName().isEmpty() || each->inherits("QAbstractButton") ||
                             each->inherits("QScrollArea");
        EXPECT_TRUE(!takesKeys || isNamed)
            << each->metaObject()->className() << " " << each->objectName().toStdString();
    }
}

TEST_F(MainWindowTest, KeysGoToTheDrawingAfterALinkOrAnOpening) {
    window_->status().showResult("done", StatusLine::Tone::Done, {"Show", "Undo"});
    QTest::qWait(0);
    auto* undo = window_->status().findChildren<QPushButton*>("link").last();
    undo->setFocus();
    ASSERT_EQ(QApplication::focusWidget(), undo);
    undo->click();
    EXPECT_EQ(QApplication::focusWidget(), &window_->canvas());
    window_->status().findChild<QToolButton*>("switch")->setFocus();
    window_->open(QString::fromStdString(folder_.file("apartment.dxf")));
    EXPECT_EQ(QApplication::focusWidget(), &window_->canvas());
}

}  // namespace
}  // namespace window
