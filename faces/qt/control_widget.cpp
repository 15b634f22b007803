#include "faces/qt/control_widget.h"

#include "faces/qt/form_window.h"
#include "faces/qt/qt_text.h"
#include "forms/controls.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QFrame>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QMouseEvent>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QStyle>
#include <algorithm>

namespace qt_face {

namespace {

namespace acts = forms::acts;
using forms::Change;
using forms::Changes;
using forms::Control;
using forms::Kind;

int linesIn(int height, const QWidget& widget) {
    return std::max(1, height / widget.fontMetrics().lineSpacing());
}

/// A label that hears a click.
class ClickLabel : public QLabel {
  public:
    ClickLabel(QWidget* parent, std::function<void()> clicked)
        : QLabel(parent), clicked_(std::move(clicked)) {}

  protected:
    void mouseReleaseEvent(QMouseEvent* event) override {
        QLabel::mouseReleaseEvent(event);
        if (event->button() == Qt::LeftButton && rect().contains(event->position().toPoint())) clicked_();
    }

  private:
    std::function<void()> clicked_;
};

class LabelWidget : public ControlWidget {
  public:
    LabelWidget(FormWindow& window, Control& control, QWidget* parent) : ControlWidget(window, control) {
        label_ = new ClickLabel(parent, [this] { window_.act(nullptr, [&] { acts::click(control_); }); });
        widget_ = label_;
        label_->setTextFormat(Qt::PlainText);
    }

  protected:
    void drawOwn(Changes changes) override {
        if (!changes.has(Change::Caption) && !changes.has(Change::Bounds)) return;
        QWidget* buddy = window_.buddyOf(control_);
        label_->setBuddy(buddy);
        const int lines = linesIn(label_->height(), *label_);
        label_->setAlignment(Qt::AlignLeft | (lines > 1 ? Qt::AlignTop : Qt::AlignVCenter));
        label_->setText(
            window_.captionOf(control_, label_->width(), lines, buddy != nullptr, &isCaptionCut_));
        setTip();
    }

  private:
    ClickLabel* label_;
};

class FrameWidget : public ControlWidget {
  public:
    FrameWidget(FormWindow& window, Control& control, QWidget* parent) : ControlWidget(window, control) {
        box_ = new QGroupBox(parent);
        widget_ = box_;
    }

  protected:
    void drawOwn(Changes changes) override {
        if (!changes.has(Change::Caption) && !changes.has(Change::Bounds)) return;
        // The title's font may be wider than the one that captions are measured in.
        const QString whole = toShown(control_.caption());
        const double plain = window_.fontMetrics().horizontalAdvance(whole);
        const double drawn = box_->fontMetrics().horizontalAdvance(whole);
        const double room = (box_->width() - 24) * (drawn > plain ? plain / drawn : 1);
        box_->setTitle(window_.captionOf(control_, static_cast<int>(room), 1, true, &isCaptionCut_));
        setTip();
    }

  private:
    QGroupBox* box_;
};

class PictureWidget : public ControlWidget {
  public:
    PictureWidget(FormWindow& window, Control& control, QWidget* parent) : ControlWidget(window, control) {
        widget_ = new QWidget(parent);
    }

  protected:
    void drawOwn(Changes) override {}
};

class LineWidget : public ControlWidget {
  public:
    LineWidget(FormWindow& window, Control& control, QWidget* parent) : ControlWidget(window, control) {
        auto* line = new QFrame(parent);
        line->setFrameShape(QFrame::HLine);
        line->setFrameShadow(QFrame::Sunken);
        widget_ = line;
    }

  protected:
    void drawPlace() override {
        const auto& line = static_cast<const forms::Line&>(control_);
        QRect place = window_.placeOf({line.x1(), line.y1(), line.x2() - line.x1(), line.y2() - line.y1()});
        place.setHeight(std::max(place.height(), 2));
        widget_->setGeometry(place);
    }
    void drawOwn(Changes) override {}
};

/// Button, check box or option.
class ButtonWidget : public ControlWidget {
  public:
    ButtonWidget(FormWindow& window, Control& control, QWidget* parent) : ControlWidget(window, control) {
        button_ = make(parent);
        widget_ = button_;
        QObject::connect(button_, &QAbstractButton::clicked, button_,
                         [this] { window_.act(&control_, [&] { acts::click(control_); }); });
    }
    bool keyPressed(int key, const QString&) override {
        const bool isBack = key == Qt::Key_Up || key == Qt::Key_Left;
        if (!isBack && key != Qt::Key_Down && key != Qt::Key_Right) return false;
        window_.act(&control_, [&] { acts::key(control_, isBack ? forms::Key::Up : forms::Key::Down); });
        return true;
    }

  protected:
    void drawOwn(Changes changes) override {
        if (changes.has(Change::Caption) || changes.has(Change::Bounds)) drawCaption();
        if (changes.has(Change::Value)) drawValue();
    }

  private:
    QAbstractButton* make(QWidget* parent) {
        if (control_.kind() == Kind::CheckBox) return new QCheckBox(parent);
        if (control_.kind() == Kind::OptionButton) {
            auto* option = new QRadioButton(parent);
            // In a group of its own the model alone unchecks it, and screen readers still call it an option.
            auto* alone = new QButtonGroup(option);
            alone->setExclusive(false);
            alone->addButton(option);
            return option;
        }
        auto* button = new QPushButton(parent);
        button->setAutoDefault(false);
        button->setDefault(static_cast<const forms::Button&>(control_).isDefault());
        return button;
    }
    void drawCaption() {
        const bool isPush = control_.kind() == Kind::Button;
        const QStyle& style = *button_->style();
        const int beside = isPush ? 8
                                  : style.pixelMetric(QStyle::PM_IndicatorWidth) +
                                        style.pixelMetric(QStyle::PM_CheckBoxLabelSpacing);
        const int lines = linesIn(button_->height() - (isPush ? 6 : 0), *button_);
        button_->setText(window_.captionOf(control_, button_->width() - beside, lines, true, &isCaptionCut_));
        button_->setAccessibleName(toShown(control_.caption()));
        setTip();
    }
    void drawValue() {
        if (control_.kind() == Kind::OptionButton) {
            button_->setChecked(static_cast<const forms::OptionButton&>(control_).value());
        } else if (control_.kind() == Kind::CheckBox) {
            const int value = static_cast<const forms::CheckBox&>(control_).value();
            auto* box = static_cast<QCheckBox*>(button_);
            box->setTristate(value == 2);
            box->setCheckState(value == 0 ? Qt::Unchecked : value == 1 ? Qt::Checked : Qt::PartiallyChecked);
        }
    }

    QAbstractButton* button_;
};

class FieldWidget : public ControlWidget {
  public:
    FieldWidget(FormWindow& window, Control& control, QWidget* parent) : ControlWidget(window, control) {
        field_ = new QLineEdit(parent);
        widget_ = field_;
        field_->setReadOnly(box().locked());
        QObject::connect(field_, &QLineEdit::textEdited, field_, [this](const QString& text) {
            window_.act(&control_, [&] { acts::type(control_, fromShown(box().text(), text)); });
        });
    }

  protected:
    void drawOwn(Changes changes) override {
        // A text that is the same stays, and with it the place of the cursor.
        const QString text = toShown(box().text());
        if (changes.has(Change::Text) && field_->text() != text) {
            field_->setText(text);
            if (!field_->hasFocus()) field_->setCursorPosition(0);
        }
        if (changes.has(Change::Visible)) field_->setAccessibleName(window_.nameOf(control_));
    }

  private:
    const forms::TextBox& box() const { return static_cast<const forms::TextBox&>(control_); }

    QLineEdit* field_;
};

class NoticeWidget : public ControlWidget {
  public:
    NoticeWidget(FormWindow& window, Control& control, QWidget* parent) : ControlWidget(window, control) {
        text_ = new QPlainTextEdit(parent);
        widget_ = text_;
        text_->setReadOnly(box().locked());
        text_->setTabChangesFocus(true);
        QObject::connect(text_, &QPlainTextEdit::textChanged, text_, [this] {
            window_.act(&control_,
                        [&] { acts::type(control_, fromShown(box().text(), text_->toPlainText())); });
        });
    }

  protected:
    void drawOwn(Changes changes) override {
        const QString text = toShown(box().text());
        if (changes.has(Change::Text) && text_->toPlainText() != text) text_->setPlainText(text);
    }

  private:
    const forms::TextBox& box() const { return static_cast<const forms::TextBox&>(control_); }

    QPlainTextEdit* text_;
};

}  // namespace

void ControlWidget::drawPlace() { widget_->setGeometry(window_.placeOf(control_.bounds())); }

/// The control's own tip, or else the whole of a caption that is cut short.
void ControlWidget::setTip() {
    QString tip = control_.has(forms::Property::ToolTipText) ? toShown(control_.toolTipText()) : QString();
    if (tip.isEmpty() && isCaptionCut_) tip = toShown(control_.caption());
    widget_->setToolTip(plainTip(tip));
}

void ControlWidget::draw(Changes changes) {
    if (changes.has(Change::Bounds)) drawPlace();
    drawOwn(changes);
    if (changes.has(Change::ToolTip)) setTip();
    if (changes.has(Change::Enabled) && control_.has(forms::Property::Enabled))
        widget_->setEnabled(control_.enabled());
    if (changes.has(Change::Visible) || changes.has(Change::Bounds))
        widget_->setVisible(control_.visible() && !control_.isCutOff());
}

std::unique_ptr<ControlWidget> makeWidget(FormWindow& window, Control& control, QWidget* parent) {
    switch (control.kind()) {
        case Kind::Label:
            return std::make_unique<LabelWidget>(window, control, parent);
        case Kind::Button:
        case Kind::CheckBox:
        case Kind::OptionButton:
            return std::make_unique<ButtonWidget>(window, control, parent);
        case Kind::TextBox:
            if (static_cast<forms::TextBox&>(control).multiLine())
                return std::make_unique<NoticeWidget>(window, control, parent);
            return std::make_unique<FieldWidget>(window, control, parent);
        case Kind::Frame:
            return std::make_unique<FrameWidget>(window, control, parent);
        case Kind::PictureBox:
            return std::make_unique<PictureWidget>(window, control, parent);
        case Kind::Line:
            return std::make_unique<LineWidget>(window, control, parent);
        case Kind::ListBox:
            return makeListWidget(window, control, parent);
        case Kind::ComboBox:
            return makeComboWidget(window, control, parent);
        case Kind::ListView:
            return makeTableWidget(window, control, parent);
        case Kind::FileDialog:
            break;
    }
    return nullptr;
}

}  // namespace qt_face
