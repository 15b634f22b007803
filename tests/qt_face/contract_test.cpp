// The contract of all faces on widgets, by mouse and keyboard.
#include "tests/fakes/face_contract.h"
#include "tests/fakes/mirror.h"
#include "tests/qt_face/widget_hand.h"

#include <QApplication>
#include <QFileDialog>
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
