// The contract of all faces on widgets, by mouse and keyboard.
#include "tests/fakes/face_contract.h"
#include "tests/fakes/mirror.h"
#include "tests/qt_face/widget_hand.h"

#include <QApplication>
#include <QCheckBox>
#include <QFileDialog>
#include <QGroupBox>
#include <QMessageBox>
#include <QPushButton>
#include <QTimer>

namespace {

/// The Qt face, with the mirror beside it.
class WidgetFace : public fakes::ContractFace, public forms::Screen {
  public:
    forms::Screen& screen() override { return *this; }

    void runModal(forms::Form& form) override {
        mirror_.shown(form);
        const int depth = ++depth_;
        QTimer timer;
        QObject::connect(&timer, &QTimer::timeout, [&] {
            if (depth != depth_ || isBusy_[depth]) return;
            isBusy_[depth] = true;
            if (!runs(form)) return form.hide();
            next(form, hand_);
            isBusy_[depth] = false;
            for (const std::string& difference : mirror_.differences()) ADD_FAILURE() << difference;
        });
        timer.start(0);
        qt_.runModal(form);
        isBusy_[depth_--] = false;
    }
    void hidden(forms::Form& form) override {
        mirror_.hidden(form);
        qt_.hidden(form);
    }
    void changed(forms::Form& form, forms::Change change) override {
        mirror_.changed(form, change);
        qt_.changed(form, change);
    }
    void changed(forms::Control& control, forms::Change change) override {
        mirror_.changed(control, change);
        qt_.changed(control, change);
    }
    forms::Answer messageBox(const forms::MessageDialog& box) override {
        press("Yes");
        return qt_.messageBox(box);
    }
    std::optional<std::string> fileDialog(const forms::FileDialog& dialog,
                                          forms::FileDialogMode mode) override {
        QFile file(fakes::kContractFile);
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        QTimer::singleShot(0, [this] {
            auto* drawn = qobject_cast<QFileDialog*>(qt_.top());
            drawn->selectFile(fakes::kContractFile);
            QMetaObject::invokeMethod(drawn, "accept");
        });
        return qt_.fileDialog(dialog, mode);
    }
    void reportFailure(std::int32_t number, const std::string& description) override {
        press("OK");
        qt_.reportFailure(number, description);
        failures.push_back(std::to_string(number) + description);
    }

  private:
    void press(const char* button) {
        QTimer::singleShot(0, [this, button] {
            QTest::mouseClick(qt_.top()->findChild<QPushButton*>(button), Qt::LeftButton);
        });
    }

    fakes::Mirror mirror_;
    qt_face::QtScreen qt_;
    fakes::WidgetHand hand_{qt_};
    int depth_ = 0;
    std::map<int, bool> isBusy_;
};

TEST(QtContractTest, TheQtFaceKeepsTheContract) {
    WidgetFace face;
    fakes::expectContract(face);
    EXPECT_EQ(face.failures, std::vector<std::string>{"1000failed"});
}

/// A text with a control character, one that turns what follows, and markup; and as it must be shown.
constexpr char kRaw[] = "<b>a\x1B[2J\u202Eb";
constexpr char kShown[] = "<b>a^[[2J\\U+202Eb";

TEST(QtFaceTest, ShowsNoControlCharacterAndKeepsItInWhatIsEdited) {
    fakes::SampleForm form;
    form.setCaption(kRaw);
    form.Frame1.setCaption(kRaw);
    form.Check1.setCaption(kRaw);
    form.Check1.setToolTipText(kRaw);
    form.Text1.setEnabled(true);
    form.Text1.setText(kRaw);
    for (forms::ListControl* list : std::initializer_list<forms::ListControl*>{&form.List1, &form.Combo1})
        list->addItem(kRaw);
    form.Combo1.setText(kRaw);
    form.ListView1.columnHeaders().add(kRaw, 2000);
    form.ListView1.listItems().add(kRaw);
    qt_face::QtScreen screen;
    QTimer::singleShot(0, [&] {
        QWidget& window = *screen.windowOf(form);
        const auto is = [](const QString& text) { EXPECT_EQ(text.toStdString(), kShown); };
        is(window.windowTitle());
        is(window.findChild<QGroupBox*>("Frame1")->title());
        is(window.findChild<QCheckBox*>("Check1")->accessibleName());
        EXPECT_EQ(window.findChild<QWidget*>("Check1")->toolTip().indexOf(QChar(0x1B)), -1);
        is(window.findChild<QListWidget*>("List1")->item(0)->text());
        is(window.findChild<QComboBox*>("Combo1")->itemText(0));
        is(window.findChild<QComboBox*>("Combo1")->currentText());
        const QAbstractItemModel& rows = *window.findChild<QTreeView*>("ListView1")->model();
        is(rows.headerData(2, Qt::Horizontal).toString());
        is(rows.data(rows.index(0, 0)).toString());

        auto* field = window.findChild<QLineEdit*>("Text1");
        is(field->text());
        field->setCursorPosition(4);
        QTest::keyClicks(field, "c");
        EXPECT_EQ(form.Text1.text(), "<b>ac\x1B[2J\u202Eb");
        fakes::WidgetHand(screen).edit(form.ListView1, 1, std::string(kShown) + "!");
        EXPECT_EQ(form.ListView1.listItems().item(1).text(), std::string(kRaw) + "!");
        form.hide();
    });
    form.show(screen);
    QTimer::singleShot(0, [&] {
        auto* box = qobject_cast<QMessageBox*>(screen.top());
        EXPECT_EQ(box->text().toStdString(), std::string(kShown) + "\n");
        box->findChild<QPushButton*>("OK")->click();
    });
    screen.messageBox({std::string(kRaw) + "\r\n", kRaw});
}

}  // namespace

int main(int argc, char** argv) {
    testing::InitGoogleTest(&argc, argv);
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
    QApplication application(argc, argv);
    QFont font = QApplication::font();
    font.setPixelSize(13);
    QApplication::setFont(font);
    return RUN_ALL_TESTS();
}
