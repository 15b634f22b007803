#include "windows/stand_in/box_acts.h"

#include "basic/path.h"
#include "basic/text.h"
#include "basic/wide.h"
#include "forms/acts.h"

#include <dlgs.h>
#include <ostream>

namespace stand_in {

namespace {

constexpr int kMessageText = 0xFFFF;
constexpr const char* kFailurePrefix = "Error ";

struct NamedButton {
    int id;
    const char* word;
};
constexpr NamedButton kButtons[] = {{IDOK, "ok"}, {IDCANCEL, "cancel"}, {IDYES, "yes"}, {IDNO, "no"}};

/// The field of a file dialog for the file's name: the combo box of newer styles, or the plain field.
HWND nameField(HWND box) {
    HWND field = GetDlgItem(box, cmb13);
    return field != nullptr ? field : GetDlgItem(box, edt1);
}

void printLines(std::ostream& output, const std::string& text) {
    std::string_view rest = text;
    while (true) {
        const std::size_t end = rest.find_first_of("\r\n");
        output << "|  " << rest.substr(0, end) << '\n';
        if (end == std::string_view::npos) return;
        rest.remove_prefix(rest.substr(end).starts_with("\r\n") ? end + 2 : end + 1);
    }
}

void printFilters(std::ostream& output, HWND box) {
    HWND filters = GetDlgItem(box, cmb1);
    if (filters == nullptr) return;
    for (const std::string& label : entriesOf(filters)) output << "|  " << label << '\n';
}

/// A box with OK alone: Windows gives its button the id of cancel, so that Escape works; Wine doesn't.
bool isLoneOk(HWND box) {
    return GetDlgItem(box, IDYES) == nullptr &&
           (GetDlgItem(box, IDOK) == nullptr || GetDlgItem(box, IDCANCEL) == nullptr);
}

bool offers(HWND box, int id) {
    if (isLoneOk(box)) return id == IDOK;
    return GetDlgItem(box, id) != nullptr;
}

struct NamedIcon {
    LPCWSTR icon;
    const char* mark;
};
// The system's icons are shared: one handle each.
const NamedIcon kIcons[] = {{IDI_EXCLAMATION, " (!)"}, {IDI_INFORMATION, " (i)"}};

/// The mark of a message box's icon, as the text face prints it; empty for none.
const char* iconMark(HWND box) {
    for (HWND child = GetWindow(box, GW_CHILD); child != nullptr; child = GetWindow(child, GW_HWNDNEXT)) {
        if (classOf(child) != "Static" || (GetWindowLongW(child, GWL_STYLE) & SS_TYPEMASK) != SS_ICON)
            continue;
        const auto shown = reinterpret_cast<HICON>(SendMessageW(child, STM_GETICON, 0, 0));
        for (const NamedIcon& known : kIcons)
            if (shown != nullptr && shown == LoadIconW(nullptr, known.icon)) return known.mark;
    }
    return "";
}

void choose(HWND box, const std::filesystem::path& full) {
    SendMessageW(nameField(box), WM_SETTEXT, 0, reinterpret_cast<LPARAM>(full.c_str()));
    PostMessageW(box, WM_COMMAND, IDOK, 0);
}

}  // namespace

bool isFileDialog(HWND box) { return nameField(box) != nullptr; }

bool isFailureReport(HWND box) {
    return !isFileDialog(box) && textOf(box) == "Vorlane" &&
           textOf(GetDlgItem(box, kMessageText)).starts_with(kFailurePrefix);
}

std::optional<std::string> warning(HWND box) {
    if (isFileDialog(box) || !isLoneOk(box) || iconMark(box) != std::string_view(" (!)")) return std::nullopt;
    return textOf(GetDlgItem(box, kMessageText));
}

void printBox(std::ostream& output, HWND box) {
    output << "+-- " << textOf(box) << iconMark(box) << '\n';
    if (isFileDialog(box)) {
        printFilters(output, box);
        output << "+-- [file PATH] [cancel]\n";
        return;
    }
    printLines(output, textOf(GetDlgItem(box, kMessageText)));
    output << "+--";
    for (const NamedButton& button : kButtons)
        if (offers(box, button.id)) output << " [" << button.word << ']';
    output << '\n';
}

std::string passFailure(std::ostream& output, HWND box) {
    std::string text = textOf(GetDlgItem(box, kMessageText));
    std::erase(text, '\r');
    output << "! " << text << '\n';
    PostMessageW(box, WM_COMMAND, IDCANCEL, 0);
    return text;
}

void answerBox(HWND box, std::string_view answer, const std::filesystem::path& folder) {
    if (isFileDialog(box)) {
        if (basic::trim(answer) == "cancel") {
            PostMessageW(box, WM_COMMAND, IDCANCEL, 0);
        } else if (answer.starts_with("file ")) {
            choose(box, folder / basic::toPath(basic::trim(answer.substr(5))));
        } else {
            throw forms::ActError("is neither \"file PATH\" nor \"cancel\"");
        }
        return;
    }
    for (const NamedButton& button : kButtons) {
        if (!basic::equalIgnoringCase(basic::trim(answer), button.word) || !offers(box, button.id)) continue;
        const int id = GetDlgItem(box, button.id) != nullptr ? button.id : IDCANCEL;
        PostMessageW(box, WM_COMMAND, static_cast<WPARAM>(id), 0);
        return;
    }
    throw forms::ActError("is no button of the message box");
}

}  // namespace stand_in
