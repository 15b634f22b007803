#pragma once

#include "desk/painter/qt_canvas.h"
#include "desk/picture/renderer.h"
#include "desk/window/canvas_view.h"

#include <QElapsedTimer>
#include <QImage>
#include <QObject>
#include <QTimer>
#include <functional>
#include <memory>
#include <optional>

namespace window {

/// The finished picture of a space on a canvas. After a change of view the last picture is shown moved and
/// scaled at once; the new one is drawn after a rest, in portions so short that nobody waits for them. A
/// picture that is quickly drawn comes at once.
class CanvasPicture : public QObject {
  public:
    /// `changed` is called when there is something new to show.
    CanvasPicture(painter::Glyphs& glyphs, std::function<void()> changed);
    ~CanvasPicture() override;

    /// What is drawn and how; a null picture for none. The image of before is given up.
    void setContent(picture::Picture* picture, drawing::BlockId space);
    void setInks(const painter::Inks& inks);
    void setWeights(bool on);
    /// Device pixels a logical one, for lines and for the size of points.
    void setPixelRatio(double ratio);
    /// What is shown changed, the view didn't.
    void contentChanged();
    /// To be called on every change of view.
    void setView(const CanvasView& view);

    /// Draws it as it stands, coarse or fine, in device pixels.
    void paint(QPainter& painter) const;
    bool isFine() const { return !job_ && imageLook_ == view_.look(); }
    /// Draws all of what is wanted now, whatever time it takes.
    void finish();

  private:
    struct Job;
    void start();
    /// Returns whether the picture is complete.
    bool work(int milliseconds);
    void schedule();

    painter::Glyphs& glyphs_;
    std::function<void()> changed_;
    picture::Picture* picture_ = nullptr;
    drawing::BlockId space_ = drawing::kNoBlock;
    painter::Inks inks_;
    bool weights_ = false;
    double ratio_ = 1;
    CanvasView view_;
    QImage image_;
    std::optional<CanvasView::Look> imageLook_;
    std::unique_ptr<Job> job_;
    QTimer rest_;
    QTimer portion_;
    double lastMilliseconds_ = 0;  ///< that the last complete picture took
};

}  // namespace window
