#pragma once

#include "desk/window/canvas.h"
#include "desk/window/dialog_watch.h"
#include "desk/window/insertion_plan.h"
#include "desk/window/job_page.h"
#include "desk/window/session.h"

#include <QObject>
#include <QString>
#include <functional>
#include <map>

namespace window {

class CanvasPrompter;

/// Follows the dialogs of a command and shows beside them what they are about: the references that a
/// replacement would take and both blocks, the reference of an extraction's row, the label that hangs at the
/// cursor. The dialogs know nothing of it.
class JobView : public QObject {
    Q_OBJECT

  public:
    JobView(Session& session, DialogWatch& watch, Canvas& canvas, CanvasPrompter& prompter,
            const basic::Regional& regional, QObject* parent);

    /// The next dialog of the command is to open with this block chosen.
    void prefill(const QString& command, const QString& block);
    /// Brings marks and pages in line with the dialogs; gathered, once for many changes.
    void update();
    /// While the drawing is worked on nothing is shown; what changed is when the hold ends.
    void hold(bool on);
    /// How far the run of the dialog on top has come, below 0 where that isn't known.
    double share();
    /// All references that are lit now.
    const std::vector<drawing::EntityId>& lit() const { return marks_.lit; }
    /// Adds what the command in hand wants shown with a prompt.
    void prepare(CanvasPrompt& prompt);
    /// A command ends: the marks go, but for those of what failed, which stay until the next one begins.
    void end();
    void begin();
    /// Why a row of a dialog's table, from 1, failed in its last run; empty for one that didn't.
    QString faultOf(const forms::Control& table, int row) const;

  signals:
    /// The page of a replacement is to be shown; with nothing, the properties again.
    void replacementShown(const window::ReplacementView& view);
    void insertionShown(const window::InsertionView& view);
    void pageGone();
    /// The extraction's chosen row stands for this entity.
    void rowShown(drawing::EntityId entity);
    void marksChanged(const QString& text);

  private:
    void showNow();
    void showReplacement(forms::Form& form);
    void showExtraction(forms::Form& form);
    void showInsertion(forms::Form& form);
    void choosePrefilled();
    void noteRun(forms::Form& form, const std::string& report);
    void nameStep(const QString& name, const QString& block);
    std::vector<drawing::EntityId> replaced(const QString& block, bool wholeDrawing) const;
    ReplacementView replacementView(forms::Form& form, const QString& from, const QString& to);
    std::size_t countOf(const QString& block);

    Session& session_;
    DialogWatch& watch_;
    Canvas& canvas_;
    CanvasPrompter& prompter_;
    const basic::Regional& regional_;
    CanvasMarks marks_;
    InsertionPlan plan_;
    /// Rows that the last run of an insertion reported, and the key of the plan that it ran.
    std::map<int, QString> failedRows_;
    QString ranKey_;
    bool scheduled_ = false;
    bool held_ = false;
    bool pageShown_ = false;
    QString prefillForm_;
    QString prefillControl_;
    QString prefillBlock_;
    std::map<QString, std::size_t> counts_;  ///< references by block, of `countedRevision_`
    std::uint64_t countedRevision_ = 0;
    struct Run {
        std::size_t all = 0;   ///< references that it makes or takes away
        std::size_t done = 0;  ///< of them so far
        drawing::EntityId next = 0;
    };
    std::optional<Run> run_;  ///< the one at hand, from its first question for the share on
};

}  // namespace window
