#pragma once

#include "forms/screen.h"

#include <QObject>
#include <map>
#include <string>
#include <vector>

namespace window {

/// A face that another one does the work of: it tells which dialogs are up and what changes in them, for the
/// pages and marks about them.
class DialogWatch : public QObject, public forms::Screen {
    Q_OBJECT

  public:
    /// `face` shows the dialogs; it outlives this.
    explicit DialogWatch(forms::Screen& face, QObject* parent = nullptr) : QObject(parent), face_(face) {}

    /// The dialogs that are up, the one that takes the acts last; message boxes and file dialogs don't count.
    const std::vector<forms::Form*>& shown() const { return shown_; }
    /// A dialog of the command in hand by name, up or hidden; null for one that wasn't shown in it.
    forms::Form* find(const std::string& name) const;
    /// To be called when a command ends: its dialogs may be unloaded.
    void forget() { known_.clear(); }

    void runModal(forms::Form& form) override;
    void hidden(forms::Form& form) override;
    void changed(forms::Form& form, forms::Change change) override;
    void changed(forms::Control& control, forms::Change change) override;
    forms::Answer messageBox(const forms::MessageDialog& box) override;
    std::optional<std::string> fileDialog(const forms::FileDialog& dialog,
                                          forms::FileDialogMode mode) override;
    void reportFailure(std::int32_t number, const std::string& description) override;

  signals:
    /// A dialog or box comes up, or goes.
    void shownChanged();
    /// A message box comes up with this text.
    void boxShown(const std::string& text);
    /// Something of a dialog of the command changed.
    void formChanged();

  private:
    forms::Screen& face_;
    std::vector<forms::Form*> shown_;
    std::map<std::string, forms::Form*> known_;
};

}  // namespace window
