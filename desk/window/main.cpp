#include "basic/error.h"
#include "desk/dxf/transient.h"
#include "desk/shell/surroundings.h"
#include "desk/window/main_window.h"
#include "faces/qt/qt_screen.h"
#include "faces/qt/qt_text.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QIcon>
#include <QMessageBox>
#include <QSettings>
#include <QStyleFactory>
#include <QTimer>
#include <csignal>
#include <exception>
#include <iostream>

namespace {

shell::DeskOptions deskOptions(const QString& regional) {
    shell::DeskOptions options;
    options.installFolder = shell::installFolder(shell::readEnvironment);
    options.resources = shell::resourceFolder();
    options.regional = shell::regionalByName(regional.toStdString())
                           .value_or(shell::desktopRegional(shell::readEnvironment));
    options.stateFolder = shell::stateFolder(shell::readEnvironment);
    options.autosave = true;
    options.frenchDesktop = shell::isFrenchDesktop(shell::readEnvironment);
    return options;
}

/// Of the lower edge of a dialog that opens: it leaves command line and status free.
constexpr int kBelowDialog = 140;

qt_face::QtHooks hooks(QWidget& owner) {
    [[maybe_unused]] static const char* const kWords[] = {
        QT_TRANSLATE_NOOP("window", "OK"),   QT_TRANSLATE_NOOP("window", "Cancel"),
        QT_TRANSLATE_NOOP("window", "Yes"),  QT_TRANSLATE_NOOP("window", "No"),
        QT_TRANSLATE_NOOP("window", "Open"), QT_TRANSLATE_NOOP("window", "Save as"),
        QT_TRANSLATE_NOOP("window", "Error")};
    qt_face::QtHooks hooks;
    hooks.parent = [&owner] { return &owner; };
    hooks.word = [](const char* word) { return QCoreApplication::translate("window", word); };
    // Over the left dock: there it hides least of the drawing, and nothing of its page at the right.
    hooks.place = [&owner](const forms::Form&, QSize size) -> std::optional<QPoint> {
        return owner.mapToGlobal(QPoint(14, qMax(40, owner.height() - kBelowDialog - size.height())));
    };
    // Blocks come from drawings in DXF too.
    hooks.patterns = [](QStringList patterns) {
        if (patterns.contains("*.dwg", Qt::CaseInsensitive)) patterns.prepend("*.dxf");
        return patterns;
    };
    hooks.rowFault = [&owner](const forms::Control& table, int row) {
        return static_cast<window::MainWindow&>(owner).faultOf(table, row);
    };
    hooks.icon = [](const std::string&) { return QApplication::windowIcon(); };
    return hooks;
}

}  // namespace

int main(int argc, char** argv) {
    // A full disk or a file limit is an error of the write that meets it, not the end of the program.
    std::signal(SIGXFSZ, SIG_IGN);
    dxf::removeTransientsAtSignals();
    QApplication::setHighDpiScaleFactorRoundingPolicy(Qt::HighDpiScaleFactorRoundingPolicy::PassThrough);
    QApplication application(argc, argv);
    QApplication::setApplicationName("vorlane");
    QApplication::setDesktopFileName("vorlane");
    QCommandLineParser parser;
    parser.setApplicationDescription("Manages block references in a CAD drawing.");
    parser.addPositionalArgument("DRAWING", "the drawing to open, DXF or DWG");
    QCommandLineOption regional("regional", "how numbers are written: fr or en", "fr|en");
    parser.addOption(regional);
    parser.addHelpOption();
    parser.process(application);

    const window::Scheme desktop = window::schemeOf(QApplication::palette());
    QApplication::setStyle(QStyleFactory::create("Fusion"));
    const std::filesystem::path icons = shell::resourceFolder() / "icons";
    QApplication::setWindowIcon(QIcon(QString::fromStdString((icons / "vorlane.svg").string())));
    try {
        QSettings settings(QSettings::IniFormat, QSettings::UserScope, "Vorlane", "window");
        const auto face = [](QWidget& owner) -> std::unique_ptr<forms::Screen> {
            return std::make_unique<qt_face::QtScreen>(hooks(owner));
        };
        window::MainWindow window(deskOptions(parser.value(regional)), face, settings, desktop);
        window.show();
        // From the event loop, so that the window can be closed while it reads.
        if (!parser.positionalArguments().isEmpty()) {
            QTimer::singleShot(0, &window, [&] { window.open(parser.positionalArguments().front()); });
        }
        return QApplication::exec();
    } catch (const basic::Error& error) {
        QMessageBox::critical(nullptr, "Vorlane", qt_face::toShown(error.description()));
    } catch (const std::exception& error) {
        QMessageBox::critical(nullptr, "Vorlane", qt_face::toShown(error.what()));
    }
    return 2;
}
