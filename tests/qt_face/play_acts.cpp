// The console's program with the Qt face, offscreen: a transcript's acts are done by mouse and keyboard on
// the widgets, and the story is told as the console tells it. The mirror watches that every change is told.
#include "basic/error.h"
#include "desk/console/arguments.h"
#include "desk/console/console.h"
#include "desk/console/session_loop.h"
#include "desk/console/text_prompter.h"
#include "desk/shell/surroundings.h"
#include "faces/text/text_screen.h"
#include "forms/file_dialog.h"
#include "tests/fakes/mirror.h"
#include "tests/qt_face/widget_hand.h"

#include <QApplication>
#include <QFileDialog>
#include <QFileInfo>
#include <QPushButton>
#include <QTimer>
#include <csignal>
#include <fstream>
#include <iostream>

namespace {

class PlayedScreen : public text_face::TextScreen {
  public:
    using TextScreen::TextScreen;

    void runModal(forms::Form& form) override {
        printShown(form);
        mirror_.shown(form);
        const int depth = ++depth_;
        QTimer timer;
        QObject::connect(&timer, &QTimer::timeout, [&] { step(form, depth); });
        timer.start(0);
        try {
            qt_.runModal(form);
        } catch (...) {
            isBusy_[depth_--] = false;
            throw;
        }
        isBusy_[depth_--] = false;
    }
    void hidden(forms::Form& form) override {
        TextScreen::hidden(form);
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
        const forms::Answer wanted = TextScreen::messageBox(box);
        static const std::map<forms::Answer, const char*> kWords = {{forms::Answer::Ok, "OK"},
                                                                    {forms::Answer::Cancel, "Cancel"},
                                                                    {forms::Answer::Yes, "Yes"},
                                                                    {forms::Answer::No, "No"}};
        press(kWords.at(wanted));
        require(qt_.messageBox(box) == wanted, "a message box gave another answer");
        return wanted;
    }
    std::optional<std::string> fileDialog(const forms::FileDialog& dialog,
                                          forms::FileDialogMode mode) override {
        const std::optional<std::string> wanted = TextScreen::fileDialog(dialog, mode);
        const QFileInfo file(qt_face::toQt(wanted.value_or("")));
        // The toolkit's dialog refuses to open what isn't there, and asks before it writes over what is.
        if (wanted && file.exists() != (mode == forms::FileDialogMode::Open)) return wanted;
        QTimer::singleShot(0, [&] {
            auto* drawn = qobject_cast<QFileDialog*>(qt_.top());
            if (wanted) drawn->selectFile(file.absoluteFilePath());
            QMetaObject::invokeMethod(drawn, wanted ? "accept" : "reject");
        });
        const std::optional<std::string> given = qt_.fileDialog(dialog, mode);
        require(given.has_value() == wanted.has_value(), "a file dialog was not answered");
        if (given)
            require(QFileInfo(qt_face::toQt(*given)).absoluteFilePath() == file.absoluteFilePath(),
                    "a file dialog gave another path");
        return wanted;
    }
    void reportFailure(std::int32_t number, const std::string& description) override {
        TextScreen::reportFailure(number, description);
        press("OK");
        qt_.reportFailure(number, description);
    }

  private:
    static void require(bool holds, const std::string& what) {
        if (!holds) throw std::logic_error(what);
    }
    void press(const char* button) {
        QTimer::singleShot(0, [this, button] {
            QTest::mouseClick(qt_.top()->findChild<QPushButton*>(button), Qt::LeftButton);
        });
    }
    /// With VORLANE_PICTURES naming a folder, each dialog is painted there as it was before its last act.
    void paint(const forms::Form& form) {
        const QString folder = qEnvironmentVariable("VORLANE_PICTURES");
        if (!folder.isEmpty() && qt_.windowOf(form) != nullptr)
            qt_.windowOf(form)->grab().save(folder + '/' + qt_face::toQt(form.name()) + ".png");
    }
    void step(forms::Form& form, int depth) {
        if (depth != depth_ || isBusy_[depth] || !form.visible()) return;
        isBusy_[depth] = true;
        paint(form);
        hand_.window(form).act(nullptr, [&] {
            performNext(form, hand_);
            std::string missed;
            for (const std::string& difference : mirror_.differences()) missed += difference + '\n';
            require(missed.empty(), missed);
        });
        isBusy_[depth] = false;
    }

    fakes::Mirror mirror_;
    qt_face::QtScreen qt_;
    fakes::WidgetHand hand_{qt_};
    int depth_ = 0;
    std::map<int, bool> isBusy_;
};

int fail(const std::string& text, int code) {
    std::cout.flush();
    std::cerr << "vorlane-console: " << text << "\n";
    return code;
}

int run(const console::CommandLine& line) {
    std::ifstream script(line.script);
    text_face::StreamLines source(script, false);
    if (line.keepGoing) source.keepGoing(std::cerr, "vorlane-console: ");
    PlayedScreen screen(source, std::cout);
    screen.setExplain(console::adviceOn);
    console::TextPrompter prompter(source, std::cout);
    shell::DeskOptions options;
    options.installFolder = shell::installFolder(shell::readEnvironment);
    options.resources = shell::resourceFolder();
    options.regional = line.regional.empty() ? shell::desktopRegional(shell::readEnvironment)
                                             : shell::regionalByName(line.regional).value();
    options.frenchDesktop = shell::isFrenchDesktop(shell::readEnvironment);
    std::unique_ptr<shell::Desk> desk;
    try {
        desk = std::make_unique<shell::Desk>(options, screen, prompter, std::cout);
        prompter.setEvaluate([&desk](const std::string& expression) { return desk->answerOf(expression); });
        desk->open(line.drawing);
    } catch (const basic::Error& error) {
        return fail(error.description(), 2);
    }
    try {
        console::runCommandLine(*desk, source);
    } catch (const text_face::ScriptError& error) {
        return fail(error.what(), 1);
    }
    return source.failures() > 0 ? 1 : 0;
}

}  // namespace

int main(int argc, char** argv) {
    std::signal(SIGXFSZ, SIG_IGN);  // as the console does
    const std::vector<std::string> arguments(argv + 1, argv + argc);
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) {});
    QApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
    int count = 1;  // the arguments are ours
    QApplication application(count, argv);
    return run(console::readCommandLine(jobs::parseArguments(jobs::kConsole, arguments)));
}
