#include "faces/text/text_screen.h"

#include "basic/text.h"
#include "faces/text/act_line.h"
#include "faces/text/form_text.h"
#include "forms/acts.h"
#include "forms/file_dialog.h"
#include "forms/form.h"

#include <filesystem>
#include <ostream>
#include <vector>

namespace text_face {

namespace {

using forms::Answer;
using forms::MessageBox;

struct NamedAnswer {
    Answer answer;
    const char* word;
};

std::vector<NamedAnswer> answersOf(MessageBox::Buttons buttons) {
    switch (buttons) {
        case MessageBox::Buttons::OkCancel:
            return {{Answer::Ok, "ok"}, {Answer::Cancel, "cancel"}};
        case MessageBox::Buttons::YesNo:
            return {{Answer::Yes, "yes"}, {Answer::No, "no"}};
        case MessageBox::Buttons::Ok:
            break;
    }
    return {{Answer::Ok, "ok"}};
}

const char* iconText(MessageBox::Icon icon) {
    switch (icon) {
        case MessageBox::Icon::Exclamation:
            return " (!)";
        case MessageBox::Icon::Information:
            return " (i)";
        case MessageBox::Icon::None:
            break;
    }
    return "";
}

/// Prints a text of several lines, each with a margin.
void printBody(std::ostream& output, std::string_view text) {
    while (true) {
        const std::size_t end = text.find_first_of("\r\n");
        output << "|  " << text.substr(0, end) << '\n';
        if (end == std::string_view::npos) return;
        text.remove_prefix(text.substr(end).starts_with("\r\n") ? end + 2 : end + 1);
    }
}

void printBox(std::ostream& output, const MessageBox& box, const std::vector<NamedAnswer>& answers) {
    output << "+-- " << (box.title.empty() ? "Message" : box.title) << iconText(box.icon) << '\n';
    printBody(output, box.text);
    output << "+--";
    for (const NamedAnswer& named : answers) output << " [" << named.word << ']';
    output << '\n';
}

void printFileDialog(std::ostream& output, const forms::FileDialog& dialog, forms::FileDialogMode mode) {
    const char* untitled = mode == forms::FileDialogMode::Open ? "Open" : "Save as";
    output << "+-- " << (dialog.dialogTitle().empty() ? untitled : dialog.dialogTitle()) << '\n';
    for (const auto& entry : dialog.filterEntries()) output << "|  " << entry.label << '\n';
    if (!dialog.initDir().empty()) output << "|  in " << dialog.initDir() << '\n';
    output << "+-- [file PATH] [cancel]\n";
}

std::string inFolder(const std::string& folder, const std::string& path) {
    if (folder.empty()) return path;
    return (std::filesystem::path(folder) / path).string();
}

}  // namespace

TextScreen::TextScreen(LineSource& source, std::ostream& output, std::function<void(int)> help)
    : source_(source), output_(output), help_(std::move(help)) {}

std::string TextScreen::nextLine(std::string_view waiting) {
    std::optional<std::string> line = source_.nextAct(output_);
    if (!line) endedWhile(waiting);
    return *line;
}

void TextScreen::runModal(forms::Form& form) {
    const bool first = form.timesDrawn() == 1;
    output_ << '[' << form.name() << "] " << form.caption() << (first ? "\n" : " (again)\n");
    if (first) printForm(output_, form, Detail::Brief);
    while (form.visible()) {
        const std::string line = nextLine(form.name());
        try {
            performLine(output_, form, line);
        } catch (const forms::ActError& error) {
            refuseLine(source_, output_, line, error.what());
        }
    }
}

void TextScreen::hidden(forms::Form& form) { output_ << '[' << form.name() << "] hidden\n"; }

Answer TextScreen::messageBox(const MessageBox& box) {
    const std::vector<NamedAnswer> answers = answersOf(box.buttons);
    printBox(output_, box, answers);
    while (true) {
        const std::string line = nextLine("a message box");
        for (const NamedAnswer& named : answers) {
            if (basic::equalIgnoringCase(basic::trim(line), named.word)) return named.answer;
        }
        refuseLine(source_, output_, line, "is no button of the message box");
    }
}

std::optional<std::string> TextScreen::fileDialog(const forms::FileDialog& dialog,
                                                  forms::FileDialogMode mode) {
    printFileDialog(output_, dialog, mode);
    while (true) {
        const std::string line = nextLine("a file dialog");
        if (basic::trim(line) == "cancel") return std::nullopt;
        if (line.starts_with("file ")) {
            const std::string path(basic::trim(std::string_view(line).substr(5)));
            if (!path.empty()) return inFolder(dialog.initDir(), path);
        }
        refuseLine(source_, output_, line, "is neither \"file PATH\" nor \"cancel\"");
    }
}

void TextScreen::reportFailure(std::int32_t number, const std::string& description) {
    output_ << "! Error " << number << ": " << description << '\n';
}

void TextScreen::showHelp(int context) { help_(context); }

}  // namespace text_face
