#include "faces/text/text_screen.h"

#include "basic/text.h"
#include "faces/text/act_line.h"
#include "faces/text/completions.h"
#include "faces/text/form_text.h"
#include "forms/acts.h"
#include "forms/file_dialog.h"
#include "forms/form.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <ostream>
#include <vector>

namespace text_face {

namespace fs = std::filesystem;

namespace {

using forms::Answer;
using forms::MessageDialog;

struct NamedAnswer {
    Answer answer;
    const char* word;
};

std::vector<NamedAnswer> answersOf(MessageDialog::Buttons buttons) {
    switch (buttons) {
        case MessageDialog::Buttons::OkCancel:
            return {{Answer::Ok, "ok"}, {Answer::Cancel, "cancel"}};
        case MessageDialog::Buttons::YesNo:
            return {{Answer::Yes, "yes"}, {Answer::No, "no"}};
        case MessageDialog::Buttons::Ok:
            break;
    }
    return {{Answer::Ok, "ok"}};
}

const char* iconText(MessageDialog::Icon icon) {
    switch (icon) {
        case MessageDialog::Icon::Exclamation:
            return " (!)";
        case MessageDialog::Icon::Information:
            return " (i)";
        case MessageDialog::Icon::None:
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

void printBox(std::ostream& output, const MessageDialog& box, const std::vector<NamedAnswer>& answers) {
    output << "+-- " << (box.title.empty() ? "Message" : box.title) << iconText(box.icon) << '\n';
    printBody(output, box.text);
    output << "+--";
    for (const NamedAnswer& named : answers) output << " [" << named.word << ']';
    output << '\n';
}

/// The dialogs ask for the host's own drawings; here those in DXF are read as well.
bool readsDxfToo(const forms::FileDialog::FilterEntry& entry) {
    const auto has = [&](const char* pattern) {
        return std::find(entry.patterns.begin(), entry.patterns.end(), pattern) != entry.patterns.end();
    };
    return has("*.dwg") && !has("*.dxf");
}

void printFileDialog(std::ostream& output, const forms::FileDialog& dialog, forms::FileDialogMode mode) {
    const char* untitled = mode == forms::FileDialogMode::Open ? "Open" : "Save as";
    output << "+-- " << (dialog.dialogTitle().empty() ? untitled : dialog.dialogTitle()) << '\n';
    for (const auto& entry : dialog.filterEntries()) {
        output << "|  " << entry.label << (readsDxfToo(entry) ? " (.dxf too)" : "") << '\n';
    }
    if (!dialog.initDir().empty()) output << "|  in " << dialog.initDir() << '\n';
    output << "+-- [file PATH] [cancel]\n";
}

/// The path that a user means: "~" is the user's own folder, a relative one counts from the dialog's.
fs::path absolutePath(const std::string& folder, std::string_view typed) {
    const fs::path path = expandHome(std::string(typed));
    return fs::absolute(folder.empty() ? path : fs::path(folder) / path).lexically_normal();
}

/// What a desktop's file dialog would say about the path; empty for one that will do.
std::string objection(const fs::path& path, forms::FileDialogMode mode) {
    std::error_code ignored;
    const fs::file_type type = fs::status(path, ignored).type();
    if (type == fs::file_type::directory) return path.string() + " is a folder";
    // Opening a pipe would wait for its other end.
    if (type == fs::file_type::fifo || type == fs::file_type::socket) return path.string() + " is a pipe";
    if (mode == forms::FileDialogMode::Open) {
        if (type == fs::file_type::character || type == fs::file_type::block)
            return path.string() + " is a device";
        return std::ifstream(path).is_open() ? "" : path.string() + " isn't there or can't be read";
    }
    if (!fs::is_directory(path.parent_path(), ignored)) {
        return "there is no folder " + path.parent_path().string();
    }
    const bool there = fs::exists(path, ignored);
    // Opened for appending, so that nothing is lost; what wasn't there goes again.
    const bool writable = std::ofstream(path, std::ios::app).is_open();
    if (!there) fs::remove(path, ignored);
    return writable ? "" : path.string() + " can't be written";
}

}  // namespace

std::string TextScreen::nextLine(std::string_view waiting) {
    std::optional<std::string> line = source_.nextAct(output_);
    if (!line) endedWhile(waiting);
    return *line;
}

void TextScreen::printShown(const forms::Form& form) {
    const bool first = form.timesDrawn() == 1;
    output_ << '[' << form.name() << "] " << form.caption() << (first ? "\n" : " (again)\n");
    if (first) printForm(output_, form, Detail::Brief);
}

void TextScreen::performNext(forms::Form& form, Hand& hand) {
    source_.offer([&form](std::string_view beginning) { return actCompletions(form, beginning); });
    const std::string line = nextLine(form.name());
    try {
        if (line == kBreakOff) {
            hand.key(form, forms::Key::Escape);
        } else {
            // A person has Tab and `show Name` for long lists; a story tells all.
            performLine(output_, hand, form, line, source_.interactive() ? Detail::Brief : Detail::Full);
        }
    } catch (const forms::ActError& error) {
        refuseLine(source_, output_, error.what());
    }
}

void TextScreen::runModal(forms::Form& form) {
    printShown(form);
    Hand hand;
    while (form.visible()) performNext(form, hand);
}

void TextScreen::hidden(forms::Form& form) { output_ << '[' << form.name() << "] hidden\n"; }

Answer TextScreen::messageBox(const MessageDialog& box) {
    const std::vector<NamedAnswer> answers = answersOf(box.buttons);
    printBox(output_, box, answers);
    while (true) {
        source_.offer([&answers](std::string_view) {
            std::vector<std::string> words;
            words.reserve(answers.size());
            for (const NamedAnswer& named : answers) words.emplace_back(named.word);
            return words;
        });
        const std::string line = nextLine("a message box");
        // Esc means the last button, unless it is a question that has to be answered.
        if (line == kBreakOff && box.buttons != MessageDialog::Buttons::YesNo) return answers.back().answer;
        for (const NamedAnswer& named : answers) {
            if (!basic::equalIgnoringCase(basic::trim(line), named.word)) continue;
            // A warning that asks nothing tells that something went wrong: rows that failed, a text that is
            // no number.
            if (box.icon == MessageDialog::Icon::Exclamation && answers.size() == 1) source_.fail(box.text);
            return named.answer;
        }
        refuseLine(source_, output_, "is no button of the message box");
    }
}

std::optional<std::string> TextScreen::fileDialog(const forms::FileDialog& dialog,
                                                  forms::FileDialogMode mode) {
    printFileDialog(output_, dialog, mode);
    while (true) {
        source_.offer([](std::string_view beginning) {
            const std::string_view rest = beginning.size() > 5 ? beginning.substr(5) : std::string_view();
            std::vector<std::string> lines = fileCompletions("file ", rest, {});
            lines.emplace_back("cancel");
            return lines;
        });
        const std::string line = nextLine("a file dialog");
        if (basic::trim(line) == "cancel" || line == kBreakOff) return std::nullopt;
        const std::string_view typed =
            line.starts_with("file ") ? basic::trim(std::string_view(line).substr(5)) : std::string_view();
        if (typed.empty()) {
            refuseLine(source_, output_, "is neither \"file PATH\" nor \"cancel\"");
            continue;
        }
        const fs::path path = absolutePath(dialog.initDir(), typed);
        const std::string reason = objection(path, mode);
        if (!reason.empty()) refuseLine(source_, output_, reason);
        if (!source_.interactive() || (reason.empty() && mayOverwrite(path, mode))) return path.string();
    }
}

bool TextScreen::mayOverwrite(const std::filesystem::path& path, forms::FileDialogMode mode) {
    std::error_code ignored;
    if (mode == forms::FileDialogMode::Open || !fs::exists(path, ignored)) return true;
    const std::optional<std::string> answer =
        source_.next(output_, path.string() + " is there already. Overwrite it? [yes/no] ");
    return answer && basic::equalIgnoringCase(basic::trim(*answer), "yes");
}

void TextScreen::reportFailure(std::int32_t number, const std::string& description) {
    const std::string failure = "Error " + std::to_string(number) + ": " + description;
    output_ << "! " << failure << '\n';
    const std::string advice = explain_ ? explain_(number) : std::string();
    if (!advice.empty()) output_ << "  " << advice << '\n';
    source_.fail(failure);
}

}  // namespace text_face
