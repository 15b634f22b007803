#pragma once

#include "desk/window/theme.h"

#include <QElapsedTimer>
#include <QWidget>

class QHBoxLayout;
class QLabel;
class QTimer;

namespace window {

/// Covers a dock that takes nothing at the moment: what lies below shows at half strength.
class Veil : public QWidget {
    Q_OBJECT

  public:
    /// Covers `covered`, whatever its size.
    explicit Veil(QWidget* covered);
    void setOn(bool on);

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

  private:
    QWidget* covered_;
};

/// The tab at the window's edge that a folded dock leaves; a click unfolds it.
class EdgeTab : public QWidget {
    Q_OBJECT

  public:
    explicit EdgeTab(QWidget* parent = nullptr);
    void setText(const QString& text);
    void setUnfolded(bool unfolded);

  signals:
    void clicked();

  protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

  private:
    QString text_;
    bool unfolded_ = false;
};

/// The 2 px below the toolbar where a long work shows itself.
class BusyBar : public QWidget {
    Q_OBJECT

  public:
    explicit BusyBar(QWidget* parent = nullptr);
    /// Shows or ends the work; a share below 0 is not known.
    void setBusy(bool busy, double share = -1);

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    QTimer* timer_;
    QElapsedTimer clock_;  ///< moves the bar also where no timer does
    bool busy_ = false;
    double share_ = -1;
};

/// A line below the toolbar that tells what needs an answer but not at once, with its answers at the right.
class NoticeBar : public QWidget {
    Q_OBJECT

  public:
    explicit NoticeBar(QWidget* parent = nullptr);
    void tell(const QString& text, const QStringList& answers);
    QString text() const;

  signals:
    void answered(int index);

  private:
    QLabel* sign_;
    QLabel* text_;
    QHBoxLayout* answers_;
};

}  // namespace window
