#pragma once

#include "faces/qt/form_window.h"
#include "faces/qt/qt_screen.h"
#include "faces/qt/qt_text.h"
#include "faces/text/hand.h"
#include "forms/controls.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QComboBox>
#include <QHeaderView>
#include <QLineEdit>
#include <QListWidget>
#include <QTest>
#include <QTreeView>

namespace fakes {

/// A hand on mouse and keyboard of the Qt face.
class WidgetHand : public text_face::Hand {
  public:
    explicit WidgetHand(qt_face::QtScreen& screen) : screen_(screen) {}

    void click(forms::Control& control) override {
        QWidget& widget = at(control);
        if (auto* table = qobject_cast<QTreeView*>(&widget)) {
            QWidget* inside = table->viewport();
            QTest::mouseClick(inside, Qt::LeftButton, {}, {inside->width() / 2, inside->height() - 2});
        } else if (control.kind() == forms::Kind::Label || control.kind() == forms::Kind::Button ||
                   control.kind() == forms::Kind::CheckBox || control.kind() == forms::Kind::OptionButton) {
            // In reach of the indicator, which the click area of a check box ends with its caption.
            QTest::mouseClick(&widget, Qt::LeftButton, {}, {8, widget.height() / 2});
        } else {
            widget.setFocus(Qt::MouseFocusReason);
        }
    }
    void type(forms::Control& control, std::string_view text) override {
        QWidget& widget = at(control);
        auto* combo = qobject_cast<QComboBox*>(&widget);
        auto* field = combo != nullptr ? combo->lineEdit() : qobject_cast<QLineEdit*>(&widget);
        if (field == nullptr || field->isReadOnly()) return Hand::type(control, text);
        widget.setFocus(Qt::MouseFocusReason);
        field->selectAll();
        text.empty() ? field->del() : field->insert(qt_face::toQt(text));
    }
    void chooseText(forms::Control& control, std::string_view text) override {
        forms::acts::requireReachable(control);
        int index = -1;
        if (control.kind() == forms::Kind::ListView) {
            const auto& items = static_cast<forms::ListView&>(control).listItems();
            for (int row = items.count(); row >= 1; --row)
                if (items.item(row).text() == text) index = row;
        } else if (const auto* list = dynamic_cast<forms::ListControl*>(&control)) {
            index = list->indexOf(text);
        }
        index < 0 ? Hand::chooseText(control, text) : chooseIndex(control, index);
    }
    void chooseIndex(forms::Control& control, int index) override {
        QWidget& widget = at(control);
        auto* combo = qobject_cast<QComboBox*>(&widget);
        auto* view = combo != nullptr ? combo->view() : qobject_cast<QAbstractItemView*>(&widget);
        const int row = control.kind() == forms::Kind::ListView ? index - 1 : index;
        if (view == nullptr || row < 0 || row >= view->model()->rowCount())
            return Hand::chooseIndex(control, index);
        const QModelIndex entry = view->model()->index(row, 0);
        if (combo != nullptr) {
            combo->setFocus(Qt::MouseFocusReason);
            combo->showPopup();
            view->setCurrentIndex(entry);
            QTest::keyClick(view, Qt::Key_Return);
        } else {
            view->setFocus(Qt::MouseFocusReason);
            view->scrollTo(entry);
            const QRect place = view->visualRect(entry);
            QTest::mouseClick(view->viewport(), Qt::LeftButton, {},
                              {std::max(2, place.left() + 2), place.center().y()});
        }
    }
    bool edit(forms::Control& control, int row, std::string_view text) override {
        auto* table = qobject_cast<QTreeView*>(&at(control));
        if (table == nullptr || row < 1 || row > table->model()->rowCount())
            return Hand::edit(control, row, text);
        table->setFocus(Qt::MouseFocusReason);
        table->edit(table->model()->index(row - 1, 0));
        auto* field = table->viewport()->findChild<QLineEdit*>();
        if (field == nullptr) return false;
        field->setText(qt_face::toQt(text));
        QTest::keyClick(field, Qt::Key_Return);
        QCoreApplication::processEvents();  // the text is handed over later
        return true;
    }
    void focus(forms::Control& control) override {
        QWidget& widget = at(control);
        if (!control.has(forms::Property::Focus)) return Hand::focus(control);
        widget.setFocus(Qt::MouseFocusReason);
    }
    void key(forms::Form& form, forms::Key key) override {
        static constexpr Qt::Key kKeys[] = {Qt::Key_F1,       Qt::Key_Up,    Qt::Key_Down,   Qt::Key_PageUp,
                                            Qt::Key_PageDown, Qt::Key_Home,  Qt::Key_End,    Qt::Key_Tab,
                                            Qt::Key_Backtab,  Qt::Key_Space, Qt::Key_Return, Qt::Key_Escape,
                                            Qt::Key_X};
        const bool shift = key == forms::Key::ShiftTab;
        QTest::keyClick(focused(form), kKeys[static_cast<std::size_t>(key)],
                        shift ? Qt::ShiftModifier : Qt::NoModifier);
    }
    void accelerator(forms::Form& form, char letter) override {
        QTest::keyClick(focused(form), letter, Qt::AltModifier);
        QTest::qWait(150);  // a button that a shortcut presses stays down a while
    }
    void resizeColumn(forms::Control& control, int column, forms::Twips width) override {
        auto* table = qobject_cast<QTreeView*>(&at(control));
        if (table == nullptr) return Hand::resizeColumn(control, column, width);
        table->header()->resizeSection(column - 1, window(control.form()).toPixels(width));
    }
    void resize(forms::Form& form, forms::Twips width, forms::Twips height) override {
        if (!form.resizable()) return Hand::resize(form, width, height);
        window(form).resize(window(form).insideOf(width, height));
    }
    void move(forms::Form& form, forms::Twips left, forms::Twips top) override {
        window(form).move(window(form).toPixels(left), window(form).toPixels(top));
    }
    void closeBox(forms::Form& form) override { window(form).close(); }

    qt_face::FormWindow& window(const forms::Form& form) const {
        QWidget* window = screen_.windowOf(form);
        if (window == nullptr) throw forms::ActError(form.name() + " has no window");
        return *static_cast<qt_face::FormWindow*>(window);
    }

  private:
    QWidget& at(forms::Control& control) const {
        forms::acts::requireReachable(control);
        QWidget* widget = window(control.form()).widgetOf(control);
        if (widget == nullptr || !widget->isVisible() || !widget->isEnabled())
            throw std::logic_error(control.name() + " isn't drawn as the model has it");
        return *widget;
    }
    QWidget* focused(const forms::Form& form) const {
        qt_face::FormWindow& up = window(form);
        if (!QTest::qWaitForWindowActive(&up)) throw std::logic_error(form.name() + " isn't active");
        if (QApplication::activeWindow() != &up)
            QApplication::setActiveWindow(&up);  // as after a popup, offscreen
        return up.focusWidget() != nullptr ? up.focusWidget() : &up;
    }

    qt_face::QtScreen& screen_;
};

}  // namespace fakes
