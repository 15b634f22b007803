// List boxes and combo boxes.
#include "faces/qt/control_widget.h"
#include "faces/qt/form_window.h"
#include "faces/qt/qt_text.h"
#include "forms/controls.h"

#include <QComboBox>
#include <QEvent>
#include <QLineEdit>
#include <QListWidget>
#include <QMouseEvent>

namespace qt_face {

namespace {

namespace acts = forms::acts;
using forms::Change;
using forms::Changes;
using forms::Control;

QStringList entriesOf(const forms::ListControl& list) {
    QStringList entries;
    entries.reserve(list.listCount());
    for (int i = 0; i < list.listCount(); ++i) entries << toShown(list.list(i));
    return entries;
}

/// A list that tells a choice by the mouse when its button is let go, so that what the choice opens doesn't
/// come up under a pressed button; a choice by a key at once.
class ChoiceList : public QListWidget {
  public:
    ChoiceList(QWidget* parent, std::function<void(int)> chosen)
        : QListWidget(parent), chosen_(std::move(chosen)) {
        QObject::connect(this, &QListWidget::currentRowChanged, this, [this](int row) {
            if (!isPressed_ && row >= 0) chosen_(row);
        });
    }

  protected:
    void mousePressEvent(QMouseEvent* event) override {
        isPressed_ = true;
        hasHit_ = indexAt(event->position().toPoint()).isValid();
        QListWidget::mousePressEvent(event);
    }
    void mouseReleaseEvent(QMouseEvent* event) override {
        QListWidget::mouseReleaseEvent(event);
        isPressed_ = false;
        if (event->button() == Qt::LeftButton && hasHit_ && currentRow() >= 0) chosen_(currentRow());
    }

  private:
    std::function<void(int)> chosen_;
    bool isPressed_ = false;
    bool hasHit_ = false;
};

class ListWidget : public ControlWidget {
  public:
    ListWidget(FormWindow& window, Control& control, QWidget* parent) : ControlWidget(window, control) {
        list_ = new ChoiceList(
            parent, [this](int row) { window_.act(&control_, [&] { acts::chooseIndex(control_, row); }); });
        widget_ = list_;
        list_->setUniformItemSizes(true);
    }

  protected:
    void drawOwn(Changes changes) override {
        const auto& list = static_cast<const forms::ListBox&>(control_);
        if (changes.has(Change::Entries)) {
            list_->clear();
            list_->addItems(entriesOf(list));
        }
        if ((changes.has(Change::Entries) || changes.has(Change::Selection)) &&
            list_->currentRow() != list.listIndex()) {
            list_->setCurrentRow(list.listIndex());
            if (list.listIndex() < 0) list_->clearSelection();
        }
        if (changes.has(Change::Visible)) list_->setAccessibleName(window_.nameOf(control_));
    }

  private:
    ChoiceList* list_;
};

/// The wheel over a closed combo belongs to what lies below: a choice can start a pick.
class StillCombo : public QComboBox {
  public:
    using QComboBox::QComboBox;

  protected:
    void wheelEvent(QWheelEvent* event) override { event->ignore(); }
};

class ComboWidget : public ControlWidget {
  public:
    ComboWidget(FormWindow& window, Control& control, QWidget* parent) : ControlWidget(window, control) {
        combo_ = new StillCombo(parent);
        widget_ = combo_;
        combo_->setMaxVisibleItems(16);
        QObject::connect(combo_, &QComboBox::activated, combo_, [this](int row) {
            window_.act(&control_, [&] { acts::chooseIndex(control_, row); });
        });
        if (!box().editable()) return;
        combo_->setEditable(true);
        combo_->setInsertPolicy(QComboBox::NoInsert);
        combo_->setCompleter(nullptr);  // what isn't typed isn't in the text
        QObject::connect(combo_->lineEdit(), &QLineEdit::textEdited, combo_, [this](const QString& text) {
            window_.act(&control_, [&] { acts::type(control_, fromShown(box().text(), text)); });
        });
    }
    std::vector<QObject*> inputs() const override {
        if (combo_->lineEdit() == nullptr) return {combo_};
        return {combo_, combo_->lineEdit()};
    }

  protected:
    void drawOwn(Changes changes) override {
        if (changes.has(Change::Entries)) {
            combo_->clear();
            combo_->addItems(entriesOf(box()));
        }
        const bool hasMoved = changes.has(Change::Entries) || changes.has(Change::Selection);
        if (hasMoved && combo_->currentIndex() != box().listIndex())
            combo_->setCurrentIndex(box().listIndex());
        if (box().editable() && (hasMoved || changes.has(Change::Text))) {
            const QString text = toShown(box().text());
            if (combo_->currentText() != text) combo_->setEditText(text);
            if (!combo_->hasFocus()) combo_->lineEdit()->setCursorPosition(0);
        }
        if (changes.has(Change::Visible)) combo_->setAccessibleName(window_.nameOf(control_));
    }

  private:
    const forms::ComboBox& box() const { return static_cast<const forms::ComboBox&>(control_); }

    StillCombo* combo_;
};

}  // namespace

std::unique_ptr<ControlWidget> makeListWidget(FormWindow& window, Control& control, QWidget* parent) {
    return std::make_unique<ListWidget>(window, control, parent);
}

std::unique_ptr<ControlWidget> makeComboWidget(FormWindow& window, Control& control, QWidget* parent) {
    return std::make_unique<ComboWidget>(window, control, parent);
}

}  // namespace qt_face
