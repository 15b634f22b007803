#pragma once

#include "desk/model/prompter.h"
#include "desk/window/canvas.h"

#include <QObject>
#include <QString>
#include <functional>
#include <unordered_set>

class QEventLoop;

namespace window {

class CommandLine;

/// Asks on the canvas and on the command line at once: an answer is clicked or typed, whichever comes first.
/// A prompt runs an event loop of its own until it has its answer.
class CanvasPrompter : public QObject, public model::Prompter {
    Q_OBJECT

  public:
    /// Both outlive the prompter.
    CanvasPrompter(Canvas& canvas, CommandLine& line, QObject* parent = nullptr);

    /// Adds to a prompt what the command in hand wants shown with it: the job's block, a hanging label.
    void setPreparation(std::function<void(CanvasPrompt&)> prepare) { prepare_ = std::move(prepare); }

    bool isAsking() const { return loop_ != nullptr; }
    /// Takes a typed line as the answer to the prompt.
    void answer(const QString& line);
    void breakOff();
    /// The entities of the last selection that was given, which P selects again.
    const std::vector<drawing::EntityId>& lastSelection() const { return previous_; }
    /// To be called for another drawing: its entities are others.
    void forget();

    model::EntityPick getEntity(const drawing::Drawing& drawing, const std::string& prompt) override;
    model::PointPick getPoint(const std::optional<geometry::Point3>& base,
                              const std::string& prompt) override;
    model::AnglePick getAngle(const geometry::Point3& base, const std::string& prompt) override;
    model::SelectionPick selectEntities(const drawing::Drawing& drawing, const std::string& prompt) override;
    void message(const std::string& text) override;

  signals:
    /// A prompt begins: the canvas has the focus from here to `answered`.
    void asked();
    void answered();
    void told(const QString& line);

  private:
    enum class Area { None, Window, Crossing, Fence };
    struct Polygon {
        std::vector<geometry::Point3> corners;
        std::size_t given = 0;  ///< corners handed on so far
        bool isClosed = false;  ///< the user has ended it; the rest is only handed on
    };

    /// Runs the prompt until it is answered. One from Lisp amid another prompt gets no answer.
    void wait();
    void give(model::Answer answer);
    void finish();
    model::PointPick nextCorner(const std::string& prompt);
    void showPrompt();
    void pointGiven(const geometry::Point3& point);
    void takeBackCorner();
    void answerPoint(const QString& line);
    void answerEntity(const QString& line);
    void answerAngle(const QString& line);
    void answerSelection(const QString& line);
    void beginArea(Area area);
    void askAreaCorner();
    void areaCorner(const geometry::Point3& corner);
    void finishArea();
    void leaveArea();
    void select(const std::vector<drawing::EntityId>& found);
    void refuse(const QString& line, const QString& why);
    std::optional<geometry::Point3> typedPoint(const QString& line) const;

    Canvas& canvas_;
    CommandLine& line_;
    std::function<void(CanvasPrompt&)> prepare_;
    QEventLoop* loop_ = nullptr;
    CanvasPrompt prompt_;
    CanvasPrompt shown_;                         ///< as it was shown last
    const drawing::Drawing* drawing_ = nullptr;  ///< of the prompt in hand, where it needs one
    Polygon polygon_;
    std::optional<geometry::Point3> lastPoint_;  ///< "@" counts from it where there is no base point
    std::vector<drawing::EntityId> previous_;
    Area area_ = Area::None;  ///< a typed W, C or F waits for its corners
    std::vector<geometry::Point3> areaCorners_;
    bool removing_ = false;  ///< R: what is picked goes out of the selection

    model::Answer answer_ = model::Answer::BrokenOff;
    geometry::Point3 point_;
    drawing::EntityId entity_ = drawing::kNoEntity;
    double radians_ = 0;
};

}  // namespace window
