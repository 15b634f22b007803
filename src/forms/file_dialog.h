#pragma once

#include "forms/control.h"

#include <string>
#include <vector>

namespace forms {

class Screen;

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
    const std::string& filter() const { return filter_; }
    void setFilter(std::string_view filter) { filter_ = filter; }
    std::vector<FilterEntry> filterEntries() const;

    /// The title; while it is empty, the face shows its own.
    const std::string& dialogTitle() const { return dialogTitle_; }
    void setDialogTitle(std::string_view title) { dialogTitle_ = title; }
    /// 4 hides the read-only box, which our faces have none of; it asks neither for an overwrite question nor
    /// for a test that the file exists.
    int flags() const { return flags_; }
    void setFlags(int flags) { flags_ = flags; }
    const std::string& initDir() const { return initDir_; }
    void setInitDir(std::string_view folder) { initDir_ = folder; }
    /// The path that was chosen last. A cancelled dialog leaves it as it was.
    const std::string& fileName() const { return fileName_; }
    void setFileName(std::string_view path) { fileName_ = path; }

    void showOpen(Screen& screen);
    void showSave(Screen& screen);

    void keepDesign() override {}
    void restoreDesign() override;

  private:
    std::string filter_, dialogTitle_, initDir_, fileName_;
    int flags_ = 0;
};

}  // namespace forms
