#pragma once

#include "forms/screen.h"

#include <QIcon>
#include <QObject>
#include <QPoint>
#include <QRect>
#include <QSize>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <vector>

class QWidget;

namespace qt_face {

class FormWindow;

/// What the program round the dialogs adds to them; each may be left out.
struct QtHooks {
    /// The window that dialogs and boxes stand over.
    std::function<QWidget*()> parent;
    /// A dialog has come up or has gone; `shown` comes each time it does. No toolkit modality holds other
    /// windows back: between the two the program's windows take what they please and refuse the rest
    /// themselves.
    std::function<void(const forms::Form&, QWidget& window)> shown;
    std::function<void(const forms::Form&)> hidden;
    /// A message box or file dialog has come up (true) or has gone.
    std::function<void(bool up)> boxUp;
    /// Where a dialog of that size opens when it has no place of its own yet; else over the middle of the
    /// parent.
    std::function<std::optional<QPoint>(const forms::Form&, QSize)> place;
    /// The patterns ("*.dwg") that a file dialog offers in the place of a form's own: a program may read
    /// more.
    std::function<QStringList(QStringList patterns)> patterns;
    /// Why a row of a table, from 1, stands out as failed; empty for one that doesn't. Asked when a row is
    /// drawn; after a message box all rows are.
    std::function<QString(const forms::Control& table, int row)> rowFault;
    /// The icon of a resource's name.
    std::function<QIcon(const std::string& name)> icon;
    /// The face's own few words ("OK", "Cancel", "Yes", "No", "Open", "Save as", "Error") in the user's
    /// language.
    std::function<QString(const char* word)> word;
};

/// The face on Qt widgets. It needs a QApplication and takes font, palette and style from it.
///
/// A dialog's window runs an event loop of its own while it is up; input to the dialogs below it is dropped.
/// An exception that isn't a basic::Error leaves that loop and is raised again from runModal.
class QtScreen : public QObject, public forms::Screen {
  public:
    explicit QtScreen(QtHooks hooks = {});
    ~QtScreen() override;

    void runModal(forms::Form& form) override;
    void hidden(forms::Form& form) override;
    void changed(forms::Form& form, forms::Change change) override;
    void changed(forms::Control& control, forms::Change change) override;
    forms::Answer messageBox(const forms::MessageDialog& box) override;
    std::optional<std::string> fileDialog(const forms::FileDialog& dialog,
                                          forms::FileDialogMode mode) override;
    void reportFailure(std::int32_t number, const std::string& description) override;

    /// The dialog or box on top, null while none is up.
    QWidget* top() const;
    /// The window of a dialog that is up; null for another.
    QWidget* windowOf(const forms::Form& form) const;

  protected:
    /// Drops the user's input to dialogs that aren't on top.
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    struct Shown {
        std::unique_ptr<FormWindow> window;
        int depth = 0;  ///< shows of the form that haven't returned
    };

    FormWindow* find(const forms::Form& form) const;
    void place(FormWindow& window);
    void flushAll();
    QWidget* owner() const;
    QString word(const char* english) const;
    /// Runs a box that is no form until it is closed.
    void runBox(class QDialog& box);

    QtHooks hooks_;
    std::map<const forms::Form*, Shown> shown_;
    std::vector<FormWindow*> stack_;  ///< the dialogs that are visible, the one on top last
    std::vector<QWidget*> boxes_;
    std::map<std::string, QPoint> places_;  ///< where a dialog stood last, by its name
};

}  // namespace qt_face
