#include "desk/window/theme.h"

#include "desk/shell/surroundings.h"

#include <QRegularExpression>
#include <iterator>

namespace window {

namespace {

struct Entry {
    const char* name;
    QRgb dark;
    QRgb light;
};

constexpr Entry kColors[] = {
    {"canvas", 0xFF0F1316, 0xFFFBFBFA},    {"base", 0xFF1C2126, 0xFFF2F4F5},
    {"raised", 0xFF242A30, 0xFFFFFFFF},    {"field", 0xFF14181C, 0xFFFFFFFF},
    {"hairline", 0xFF343C44, 0xFFD3D9DD},  {"border", 0xFF74808B, 0xFF78848E},
    {"text", 0xFFE3E7EA, 0xFF1A2126},      {"text-2", 0xFFA9B3BC, 0xFF53606A},
    {"disabled", 0xFF6B7680, 0xFF8A949D},  {"accent", 0xFF4CB2DF, 0xFF0B6E99},
    {"on-accent", 0xFF06202C, 0xFFFFFFFF}, {"accent-quiet", 0xFF173C4E, 0xFFCFE6F1},
    {"select", 0xFF58AEFF, 0xFF0A66CC},    {"hover", 0xFFFFFFFF, 0xFF101418},
    {"preview", 0xFFFFB04D, 0xFFA85400},   {"snap", 0xFF3FDD78, 0xFF0B7F3A},
    {"window", 0xFF5AA2F5, 0xFF1667C7},    {"crossing", 0xFF45C96B, 0xFF187A39},
    {"warn", 0xFFF2B84B, 0xFF8A5A00},      {"error", 0xFFFF8A80, 0xFFB3261E},
    {"ok", 0xFF63D08A, 0xFF187A39},
};
static_assert(std::size(kColors) == kTokenCount);

const Entry& entry(Token token) { return kColors[static_cast<int>(token)]; }

// "@name" stands for a colour of the table. Edges of 1 px; the focus ring takes the pixel of padding that it
// needs.
constexpr const char* kSheet = R"(
QMenuBar { background: @raised; padding: 2px 6px; border: none; }
QMenuBar::item { background: transparent; padding: 4px 10px; border-radius: 3px; }
QMenuBar::item:selected { background: @accent-quiet; color: @text; }
QMenuBar::item:disabled { color: @disabled; }
QMenu { background: @raised; border: 1px solid @hairline; padding: 4px; }
QMenu::item { padding: 4px 24px 4px 28px; border-radius: 3px; }
QMenu::item:selected { background: @accent-quiet; color: @text; }
QMenu::item:disabled { color: @disabled; }
QMenu::separator { height: 1px; background: @hairline; margin: 4px 6px; }
QMenu::icon { padding-left: 6px; }
QToolTip { background: @raised; color: @text; border: 1px solid @border; padding: 3px 6px; }

QToolBar { background: @raised; border: none; border-bottom: 1px solid @hairline; spacing: 2px; padding: 4px 8px; }
QToolBar::separator { background: @hairline; width: 1px; margin: 6px 7px; }
QToolButton { border: 2px solid transparent; border-radius: 3px; padding: 1px 5px; color: @text; }
QToolButton:hover { background: @accent-quiet; }
QToolButton:pressed, QToolButton:checked { background: @accent-quiet; }
QToolButton:focus { border-color: @accent; }
QToolButton:disabled { color: @disabled; }
QToolButton::menu-indicator { image: none; }

QPushButton { background: @raised; color: @text; border: 1px solid @border; border-radius: 3px; padding: 3px 12px; }
QPushButton:hover { border-color: @text-2; }
QPushButton:pressed { background: @accent-quiet; border-color: @accent; }
QPushButton:focus { border: 2px solid @accent; padding: 2px 11px; }
QPushButton:default { background: @accent; color: @on-accent; border-color: @accent; }
QPushButton:disabled { background: transparent; color: @disabled; border-color: @hairline; }

QLineEdit, QPlainTextEdit, QTextEdit {
    background: @field; color: @text; border: 1px solid @border; border-radius: 3px;
    padding: 1px 5px; selection-background-color: @accent; selection-color: @on-accent; }
QLineEdit:hover { border-color: @text-2; }
QLineEdit:focus, QPlainTextEdit:focus, QTextEdit:focus { border: 2px solid @accent; padding: 0px 4px; }
QLineEdit:disabled { background: transparent; color: @disabled; border-color: @hairline; }
QLineEdit[refused="true"] { border: 2px solid @error; padding: 0px 4px; }

QAbstractScrollArea { background: @base; border: none; }
QListView, QTreeView, QTableView, QListWidget { outline: none; }
QHeaderView::section { background: @raised; color: @text-2; border: none; border-right: 1px solid @hairline;
    border-bottom: 1px solid @hairline; padding: 4px 6px; }
QScrollBar:vertical { background: transparent; width: 10px; margin: 0; }
QScrollBar:horizontal { background: transparent; height: 10px; margin: 0; }
QScrollBar::handle { background: @hairline; border-radius: 3px; margin: 2px; }
QScrollBar::handle:vertical { min-height: 24px; }
QScrollBar::handle:horizontal { min-width: 24px; }
QScrollBar::handle:hover { background: @border; }
QScrollBar::add-line, QScrollBar::sub-line { width: 0; height: 0; }
QScrollBar::add-page, QScrollBar::sub-page { background: none; }

QSplitter::handle { background: transparent; }

#commandLine { background: @base; border-top: 1px solid @hairline; }
#commandHistory { background: @base; border: none; color: @text-2; padding: 0 2px; }
#commandFrame { background: @field; border: 1px solid @border; border-radius: 3px; }
#commandFrame[focused="true"] { border: 2px solid @accent; }
#commandInput, #commandInput:focus, #commandInput:hover { background: transparent; border: none; padding: 0; }
#commandSign { color: @accent; }
#offeredWords { background: @raised; color: @text; border: 1px solid @border; }
#offeredWords::item:selected { background: @accent-quiet; color: @text; }
#secondText { color: @text-2; }
#warnText { color: @warn; }
#errorText { color: @error; }
#statusLine { background: @raised; border-top: 1px solid @hairline; }
#statusSeparator { background: @hairline; }
#resultText[tone="done"] { color: @ok; }
#resultText[tone="failed"] { color: @error; }
#link { background: transparent; border: none; border-bottom: 1px solid @accent; border-radius: 0; color: @accent;
    padding: 0 1px; margin: 0 5px; }
#link:focus { border: 2px solid @accent; }
#switch { color: @text-2; padding: 2px 6px; border: 1px solid transparent; margin: 2px 1px; }
#switch:checked { background: @accent-quiet; color: @text; }
#switch:focus { border-color: @accent; }
#spaceTabs { background: transparent; }
#spaceTabs::tab { background: transparent; color: @text-2; border: none; border-top: 2px solid transparent;
    padding: 3px 13px 4px 13px; }
#spaceTabs::tab:selected { background: @base; color: @text; border-top: 2px solid @accent; font-weight: 600; }
#spaceTabs::tab:hover { color: @text; }
#spaceTabs:focus { border: none; }
#noticeBar { background: @raised; border-bottom: 1px solid @warn; }
#blockPicture { background: @canvas; border: 1px solid @hairline; border-radius: 3px; }
#groupHead { background: transparent; border: none; border-top: 1px solid @hairline; border-radius: 0;
    text-align: left; font-weight: 600; padding: 5px 10px 5px 10px; color: @text; }
#groupHead:hover { background: @raised; }
#groupHead:focus { border: 2px solid @accent; padding: 4px 8px; }
#groupTitle { border-top: 1px solid @hairline; font-weight: 600; }
#propertyField { background: transparent; border: 1px solid transparent; padding: 1px 5px; }
#propertyField:hover { background: @field; border-color: @border; }
#propertyField:focus { background: @field; border: 2px solid @accent; padding: 0 4px; }
#propertyField[refused="true"] { border: 2px solid @error; }
#propertyChoice { background: transparent; border: 1px solid transparent; border-radius: 3px; padding: 1px 4px; }
#propertyChoice:hover { background: @field; border-color: @border; }
#propertyChoice:focus { border: 2px solid @accent; padding: 0 3px; }
#propertyChoice::drop-down { border: none; width: 18px; }
#propertyChoice::down-arrow { image: none; }
#propertyChoice[varies="true"] { color: @text-2; }
#parts::handle, #leftDock::handle { background: @hairline; }

QCheckBox::indicator, QRadioButton::indicator { width: 12px; height: 12px; border: 1px solid @border; background: @field; }
QCheckBox::indicator { border-radius: 3px; }
QRadioButton::indicator { border-radius: 7px; }
QCheckBox::indicator:hover, QRadioButton::indicator:hover { border-color: @text-2; }
QCheckBox::indicator:focus, QRadioButton::indicator:focus { border: 2px solid @accent; width: 10px; height: 10px; }
QCheckBox::indicator:checked { background: @accent; border-color: @accent; image: url(@check); }
QRadioButton::indicator:checked { border-color: @accent; background: qradialgradient(cx: 0.5, cy: 0.5, radius: 0.5,
    fx: 0.5, fy: 0.5, stop: 0 @on-accent, stop: 0.38 @on-accent, stop: 0.46 @accent, stop: 1 @accent); }
QCheckBox::indicator:disabled, QRadioButton::indicator:disabled { border-color: @hairline; background: transparent; }
QComboBox { background: @field; color: @text; border: 1px solid @border; border-radius: 3px; padding: 1px 5px; }
QComboBox:hover { border-color: @text-2; }
QComboBox:focus { border: 2px solid @accent; padding: 0 4px; }
QComboBox:disabled { background: transparent; color: @disabled; border-color: @hairline; }
QComboBox::drop-down { border: none; width: 20px; }
QComboBox::down-arrow { image: url(@chevron); width: 12px; height: 12px; }
QComboBox QAbstractItemView { background: @raised; color: @text; border: 1px solid @border;
    selection-background-color: @accent; selection-color: @on-accent; }
QComboBox QLineEdit, QComboBox QLineEdit:focus { border: none; background: transparent; padding: 0; }
QListWidget, QTableWidget, QTreeWidget, QTableView { background: @field; border: 1px solid @border; border-radius: 3px; }
QListWidget::item { min-height: 21px; padding: 0 5px; border: none; }
QTreeView::item { min-height: 22px; padding: 0 5px; border: none; }
QListWidget::item:selected, QTreeView::item:selected { background: @accent; color: @on-accent; }
QListWidget:focus, QTableWidget:focus, QTreeWidget:focus, QTableView:focus { border: 2px solid @accent; }

QGroupBox { border: 1px solid @hairline; border-radius: 3px; margin-top: 9px; font-weight: 600; }
QGroupBox * { font-weight: 400; }
QGroupBox QGroupBox { font-weight: 600; }
QGroupBox::title { subcontrol-origin: margin; left: 10px; padding: 0 4px; }
)";

}  // namespace

QColor color(Token token, Scheme scheme) {
    return QColor::fromRgb(scheme == Scheme::Dark ? entry(token).dark : entry(token).light);
}

const char* tokenName(Token token) { return entry(token).name; }

QPalette themePalette(Scheme scheme) {
    const auto of = [scheme](Token token) { return color(token, scheme); };
    QPalette palette;
    palette.setColor(QPalette::Window, of(Token::Base));
    palette.setColor(QPalette::WindowText, of(Token::Text));
    palette.setColor(QPalette::Base, of(Token::Field));
    palette.setColor(QPalette::AlternateBase, of(Token::Base));
    palette.setColor(QPalette::Text, of(Token::Text));
    palette.setColor(QPalette::PlaceholderText, of(Token::Text2));
    palette.setColor(QPalette::Button, of(Token::Raised));
    palette.setColor(QPalette::ButtonText, of(Token::Text));
    palette.setColor(QPalette::BrightText, of(Token::Error));
    palette.setColor(QPalette::ToolTipBase, of(Token::Raised));
    palette.setColor(QPalette::ToolTipText, of(Token::Text));
    palette.setColor(QPalette::Highlight, of(Token::Accent));
    palette.setColor(QPalette::HighlightedText, of(Token::OnAccent));
    palette.setColor(QPalette::Link, of(Token::Accent));
    palette.setColor(QPalette::LinkVisited, of(Token::Accent));
    palette.setColor(QPalette::Light, of(Token::Raised));
    palette.setColor(QPalette::Midlight, of(Token::Raised));
    palette.setColor(QPalette::Mid, of(Token::Hairline));
    palette.setColor(QPalette::Dark, of(Token::Border));
    palette.setColor(QPalette::Shadow, of(Token::Canvas));
    for (const QPalette::ColorRole role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
        palette.setColor(QPalette::Disabled, role, of(Token::Disabled));
    }
    // A list without the focus keeps its chosen row quietly.
    palette.setColor(QPalette::Inactive, QPalette::Highlight, of(Token::AccentQuiet));
    palette.setColor(QPalette::Inactive, QPalette::HighlightedText, of(Token::Text));
    palette.setColor(QPalette::Disabled, QPalette::Highlight, of(Token::AccentQuiet));
    palette.setColor(QPalette::Disabled, QPalette::HighlightedText, of(Token::Disabled));
    return palette;
}

QString themeStyleSheet(Scheme scheme) {
    QString sheet = QString::fromLatin1(kSheet);
    const QString icons = QString::fromStdString((shell::resourceFolder() / "icons/window").string());
    const QString variant = scheme == Scheme::Dark ? "-dark.svg" : ".svg";
    sheet.replace("@check)", icons + "/check" + variant + ")");
    sheet.replace("@chevron)", icons + "/chevron-down" + variant + ")");
    static const QRegularExpression name("@([a-z][a-z0-9-]*)");
    QString filled;
    qsizetype last = 0;
    for (auto found = name.globalMatch(sheet); found.hasNext();) {
        const QRegularExpressionMatch match = found.next();
        filled += sheet.mid(last, match.capturedStart() - last);
        last = match.capturedEnd();
        for (const Entry& candidate : kColors) {
            if (match.captured(1) != QLatin1String(candidate.name)) continue;
            filled += QColor::fromRgb(scheme == Scheme::Dark ? candidate.dark : candidate.light).name();
        }
    }
    return filled + sheet.mid(last);
}

Scheme schemeOf(const QPalette& desktop) {
    return desktop.color(QPalette::Window).lightness() < desktop.color(QPalette::WindowText).lightness()
               ? Scheme::Dark
               : Scheme::Light;
}

}  // namespace window
