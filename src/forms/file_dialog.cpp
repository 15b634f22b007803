#include "forms/file_dialog.h"

#include "forms/screen.h"

namespace forms {

namespace {

std::vector<std::string> split(std::string_view text, char delimiter) {
    std::vector<std::string> parts;
    while (true) {
        const std::size_t end = text.find(delimiter);
        parts.emplace_back(text.substr(0, end));
        if (end == std::string_view::npos) return parts;
        text.remove_prefix(end + 1);
    }
}

}  // namespace

std::vector<FileDialog::FilterEntry> FileDialog::filterEntries() const {
    std::vector<FilterEntry> entries;
    const std::vector<std::string> parts = split(state_.filter, '|');
    for (std::size_t i = 0; i + 1 < parts.size(); i += 2)
        entries.push_back({parts[i], split(parts[i + 1], ';')});
    return entries;
}

void FileDialog::run(Screen& screen, FileDialogMode mode) {
    if (std::optional<std::string> path = screen.fileDialog(*this, mode)) state_.fileName = std::move(*path);
}

void FileDialog::showOpen(Screen& screen) { run(screen, FileDialogMode::Open); }

void FileDialog::showSave(Screen& screen) { run(screen, FileDialogMode::Save); }

void FileDialog::keepDesign() {
    Control::keepDesign();
    design_ = state_;
}

void FileDialog::restoreDesign() {
    Control::restoreDesign();
    state_ = design_;
}

}  // namespace forms
