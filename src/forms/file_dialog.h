#pragma once

#include "forms/control.h"
#include "forms/screen.h"

#include <string>
#include <vector>

namespace forms {

/// The file dialog as a control: never drawn on the form, with none of the common properties.
class FileDialog : public Control {
  public:
    FileDialog(Form& form, std::string name) : Control(form, std::move(name), Kind::FileDialog) {}

    /// One kind of file that the dialog offers: "Blocks", {"*.dwg", "*.dxf"}.
    struct FilterEntry {
        std::string label;
        std::vector<std::string> patterns;
    };

    /// Pairs of label and patterns, all parted by "|", patterns of one label by ";".
    const std::string& filter() const { return state_.filter; }
    void setFilter(std::string_view filter) { state_.filter = filter; }
    std::vector<FilterEntry> filterEntries() const;

    /// The title; while it is empty, the face shows its own.
    const std::string& dialogTitle() const { return state_.dialogTitle; }
    void setDialogTitle(std::string_view title) { state_.dialogTitle = title; }
    /// 4 hides the read-only box, which no face of ours draws; it asks neither for an overwrite question nor
    /// for a test that the file exists.
    int flags() const { return state_.flags; }
    void setFlags(int flags) { state_.flags = flags; }
    /// The folder that the dialog starts in; empty for the current one.
    const std::string& initDir() const { return state_.initDir; }
    void setInitDir(std::string_view folder) { state_.initDir = folder; }
    /// The path that was chosen last. A cancelled dialog leaves it as it was.
    const std::string& fileName() const { return state_.fileName; }
    void setFileName(std::string_view path) { state_.fileName = path; }

    void showOpen(Screen& screen);
    void showSave(Screen& screen);

    void keepDesign() override;
    void restoreDesign() override;

  private:
    struct State {
        std::string filter, dialogTitle, initDir, fileName;
        int flags = 0;
    };
    void run(Screen& screen, FileDialogMode mode);

    State state_;
    State design_;
};

}  // namespace forms
