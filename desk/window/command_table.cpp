#include "desk/window/command_table.h"

#include <QCoreApplication>
#include <iterator>

namespace window {

namespace {

constexpr bool kGroupEnds = true;
constexpr bool kAlive = true;
constexpr bool kCheckable = true;

constexpr Command kCommands[] = {
    {"open", Menu::File, QT_TRANSLATE_NOOP("window", "&Open…"), "Ctrl+O", "open", "OPEN"},
    {"recent", Menu::File, QT_TRANSLATE_NOOP("window", "Open &recent"), "", "", "", kGroupEnds},
    {"save", Menu::File, QT_TRANSLATE_NOOP("window", "&Save"), "Ctrl+S", "save", "SAVE"},
    {"saveAs", Menu::File, QT_TRANSLATE_NOOP("window", "Save &as…"), "Ctrl+Shift+S", "", "SAVEAS",
     kGroupEnds},
    {"quit", Menu::File, QT_TRANSLATE_NOOP("window", "&Quit"), "Ctrl+Q", "", "QUIT"},

    {"undo", Menu::Edit, QT_TRANSLATE_NOOP("window", "&Undo"), "Ctrl+Z", "undo", "U"},
    {"redo", Menu::Edit, QT_TRANSLATE_NOOP("window", "&Redo"), "Ctrl+Y", "redo", "REDO", kGroupEnds},
    {"erase", Menu::Edit, QT_TRANSLATE_NOOP("window", "&Erase"), "Del", "", "ERASE", kGroupEnds},
    {"find", Menu::Edit, QT_TRANSLATE_NOOP("window", "&Find a block…"), "Ctrl+F", "search", "FIND"},

    {"zoomAll", Menu::View, QT_TRANSLATE_NOOP("window", "Zoom &all"), "Ctrl+E", "zoom-all", "ZOOM", false,
     kAlive},
    {"zoomWindow", Menu::View, QT_TRANSLATE_NOOP("window", "Zoom &window"), "Ctrl+W", "zoom-window", "ZW",
     false, kAlive},
    {"zoomPrevious", Menu::View, QT_TRANSLATE_NOOP("window", "Zoom &previous"), "Ctrl+Backspace",
     "zoom-previous", "ZP", false, kAlive},
    {"zoomSelection", Menu::View, QT_TRANSLATE_NOOP("window", "Zoom &selection"), "Ctrl+Shift+E", "show",
     "ZS", kGroupEnds, kAlive},
    {"lightDark", Menu::View, QT_TRANSLATE_NOOP("window", "&Light or dark window"), "Ctrl+L", "light-dark",
     "THEME", false, kAlive},
    {"lightDarkCanvas", Menu::View, QT_TRANSLATE_NOOP("window", "Light or dark &drawing"), "Ctrl+Shift+L", "",
     "BACKGROUND", false, kAlive},
    {"trueColors", Menu::View, QT_TRANSLATE_NOOP("window", "&True colours"), "", "", "TRUECOLOURS", false,
     kAlive, kCheckable},
    {"fullCross", Menu::View, QT_TRANSLATE_NOOP("window", "&Full-size cross hairs"), "", "", "CROSSHAIRS",
     false, kAlive, kCheckable},
    {"weights", Menu::View, QT_TRANSLATE_NOOP("window", "Line&weights"), "", "", "LWDISPLAY", kGroupEnds,
     kAlive, kCheckable},
    {"properties", Menu::View, QT_TRANSLATE_NOOP("window", "P&roperties"), "Ctrl+1", "", "PROPERTIES", false,
     kAlive, kCheckable},
    {"blocks", Menu::View, QT_TRANSLATE_NOOP("window", "&Blocks and layers"), "Ctrl+2", "", "BLOCKS", false,
     kAlive, kCheckable},
    {"commandLine", Menu::View, QT_TRANSLATE_NOOP("window", "&Command line"), "Ctrl+9", "", "COMMANDLINE",
     false, kAlive, kCheckable},
    {"history", Menu::View, QT_TRANSLATE_NOOP("window", "Tall &history"), "F2", "", "HISTORY", false, kAlive,
     kCheckable},
    {"canvasAlone", Menu::View, QT_TRANSLATE_NOOP("window", "Drawing al&one"), "Ctrl+0", "", "CLEANSCREEN",
     false, kAlive, kCheckable},
    {"nextPart", Menu::View, QT_TRANSLATE_NOOP("window", "&Next part of the window"), "F6", "", "", false,
     kAlive},

    {"selectAll", Menu::Select, QT_TRANSLATE_NOOP("window", "&All"), "Ctrl+A", "", "SELECTALL"},
    {"selectNone", Menu::Select, QT_TRANSLATE_NOOP("window", "&Nothing"), "Ctrl+Shift+A", "", "SELECTNONE"},
    {"selectPrevious", Menu::Select, QT_TRANSLATE_NOOP("window", "&Previous"), "", "", "SELECTPREVIOUS"},
    {"selectSame", Menu::Select, QT_TRANSLATE_NOOP("window", "References of the same &block"), "Ctrl+B", "",
     "SELECTSAME"},
    {"selectInvert", Menu::Select, QT_TRANSLATE_NOOP("window", "All &others"), "Ctrl+I", "", "SELECTOTHERS"},

    {"label", Menu::Blocks, QT_TRANSLATE_NOOP("window", "&Label…"), "Alt+1", "label", "VNLABEL"},
    {"replace", Menu::Blocks, QT_TRANSLATE_NOOP("window", "&Replace…"), "Alt+2", "replace", "VNREPLACE"},
    {"extract", Menu::Blocks, QT_TRANSLATE_NOOP("window", "&Extract…"), "Alt+3", "extract", "VNEXTRACT"},
    {"insert", Menu::Blocks, QT_TRANSLATE_NOOP("window", "&Insert…"), "Alt+4", "insert", "VNINSERT",
     kGroupEnds},
    {"list", Menu::Blocks, QT_TRANSLATE_NOOP("window", "L&ist in the history"), "", "", "LIST"},

    {"snap", Menu::Tools, QT_TRANSLATE_NOOP("window", "&Snap"), "F3", "", "OSNAP", false, kAlive, kCheckable},
    {"ortho", Menu::Tools, QT_TRANSLATE_NOOP("window", "&Ortho"), "F8", "", "ORTHO", false, kAlive,
     kCheckable},

    {"help", Menu::Help, QT_TRANSLATE_NOOP("window", "&Help"), "F1", "help", "VNHELP"},
    {"about", Menu::Help, QT_TRANSLATE_NOOP("window", "&About and language…"), "", "about", "VNABOUT"},
};

}  // namespace

const Command* commandsBegin() { return std::begin(kCommands); }
const Command* commandsEnd() { return std::end(kCommands); }

const char* menuTitle(Menu menu) {
    static const char* const kTitles[] = {
        QT_TRANSLATE_NOOP("window", "&File"),   QT_TRANSLATE_NOOP("window", "&Edit"),
        QT_TRANSLATE_NOOP("window", "&View"),   QT_TRANSLATE_NOOP("window", "&Select"),
        QT_TRANSLATE_NOOP("window", "&Blocks"), QT_TRANSLATE_NOOP("window", "&Tools"),
        QT_TRANSLATE_NOOP("window", "&Help")};
    return kTitles[static_cast<int>(menu)];
}

QString plainText(const QString& text) { return QString(text).remove('&').remove(QChar(0x2026)); }

}  // namespace window
