#pragma once

#include "forms/change.h"
#include "forms/controls.h"

#include <array>
#include <map>
#include <sstream>
#include <string>
#include <vector>

namespace fakes {

/// A face's memory of the forms: what it drew first and what `changed` named since. Where it differs from the
/// model, a change wasn't told, and a native face would show the form as it was.
class Mirror {
  public:
    void shown(forms::Form& form) {
        Drawn& drawn = forms_[&form];
        drawn = {};
        for (forms::Change what : kAll) drawn.form[at(what)] = aspect(form, what);
        for (forms::Control* control : form.controls())
            for (forms::Change what : kAll) drawn.controls[control][at(what)] = aspect(*control, what);
    }
    /// The form is gone from the screen, and with its command perhaps for good.
    void hidden(forms::Form& form) { forms_.erase(&form); }
    void changed(forms::Form& form, forms::Change what) { forms_[&form].formDirty.add(what); }
    void changed(forms::Control& control, forms::Change what) {
        forms_[&control.form()].dirty[&control].add(what);
    }

    /// Draws what was told and compares: a line for each difference, none if the face and the model are the
    /// same.
    std::vector<std::string> differences() {
        std::vector<std::string> found;
        for (auto& entry : forms_) {
            auto* const form = entry.first;
            auto& drawn = entry.second;
            if (!form->visible()) continue;
            const auto update = [&](auto& element, forms::Changes& dirty, Aspects& aspects,
                                    const std::string& name) {
                for (forms::Change what : kAll) {
                    const std::string now = aspect(element, what);
                    std::string& was = aspects[at(what)];
                    if (dirty.has(what)) was = now;
                    if (was == now) continue;
                    found.push_back(form->name() + "." + name + ", change " + std::to_string(at(what)) +
                                    ": " + was + " is " + now);
                    was = now;
                }
                dirty = {};
            };
            update(*form, drawn.formDirty, drawn.form, "");
            for (forms::Control* control : form->controls())
                update(*control, drawn.dirty[control], drawn.controls[control], control->name());
        }
        return found;
    }

  private:
    using Change = forms::Change;
    using Aspects = std::array<std::string, 14>;
    static constexpr std::array kAll = {Change::Caption, Change::Icon,    Change::Pointer, Change::Bounds,
                                        Change::Enabled, Change::Visible, Change::ToolTip, Change::Focus,
                                        Change::Value,   Change::Text,    Change::Entries, Change::Selection,
                                        Change::Columns, Change::Rows};
    struct Drawn {
        Aspects form;
        forms::Changes formDirty;
        std::map<forms::Control*, Aspects> controls;
        std::map<forms::Control*, forms::Changes> dirty;
    };

    static std::size_t at(Change what) { return static_cast<std::size_t>(what); }
    template <typename... Parts>
    static std::string text(const Parts&... parts) {
        std::ostringstream joined;
        ((joined << parts << ' '), ...);
        return joined.str();
    }
    static std::string boundsText(const forms::Bounds& bounds) {
        return text(bounds.left, bounds.top, bounds.width, bounds.height);
    }

    static std::string aspect(const forms::Form& form, Change what) {
        switch (what) {
            case Change::Caption:
                return form.caption();
            case Change::Icon:
                return form.icon();
            case Change::Pointer:
                return text(form.mousePointer());
            case Change::Bounds:
                return boundsText(form.bounds());
            default:
                return "";
        }
    }
    static std::string aspect(const forms::Control& control, Change what) {
        using forms::Property;
        switch (what) {
            case Change::Caption:
                return control.has(Property::Caption) ? control.caption() : "";
            case Change::Bounds:
                return control.has(Property::Bounds) ? boundsText(control.bounds()) : "";
            case Change::Enabled:
                return control.has(Property::Enabled) ? text(control.enabled()) : "";
            case Change::Visible:
                return control.has(Property::Visible) ? text(control.visible()) : "";
            case Change::ToolTip:
                return control.has(Property::ToolTipText) ? control.toolTipText() : "";
            case Change::Focus:
                return text(control.form().activeControl() == &control);
            default:
                return content(control, what);
        }
    }
    static std::string content(const forms::Control& control, Change what) {
        switch (control.kind()) {
            case forms::Kind::CheckBox:
                return what == Change::Value ? text(static_cast<const forms::CheckBox&>(control).value())
                                             : "";
            case forms::Kind::OptionButton:
                return what == Change::Value ? text(static_cast<const forms::OptionButton&>(control).value())
                                             : "";
            case forms::Kind::TextBox:
                return what == Change::Text ? static_cast<const forms::TextBox&>(control).text() : "";
            case forms::Kind::ListBox:
            case forms::Kind::ComboBox:
                return listContent(static_cast<const forms::ListControl&>(control), what);
            case forms::Kind::ListView:
                return viewContent(static_cast<const forms::ListView&>(control), what);
            default:
                return "";
        }
    }
    static std::string listContent(const forms::ListControl& list, Change what) {
        std::string joined;
        if (what == Change::Selection) return text(list.listIndex());
        if (what == Change::Entries)
            for (int i = 0; i < list.listCount(); ++i) joined += list.list(i) + '\n';
        const auto* combo = dynamic_cast<const forms::ComboBox*>(&list);
        if (what == Change::Text && combo != nullptr && combo->editable()) joined = combo->text();
        return joined;
    }
    static std::string viewContent(const forms::ListView& view, Change what) {
        const int columns = view.columnHeaders().count();
        std::string joined;
        if (what == Change::Selection)
            return text(view.hasSelectedItem() ? view.selectedItem().index() : 0, view.hideSelection());
        if (what == Change::Columns)
            for (int i = 1; i <= columns; ++i)
                joined += text(view.columnHeaders().item(i).text, view.columnHeaders().item(i).width);
        if (what == Change::Rows)
            for (int row = 1; row <= view.listItems().count(); ++row) {
                joined += view.listItems().item(row).text();
                for (int i = 1; i < columns; ++i) joined += '\t' + view.listItems().item(row).subItem(i);
                joined += '\n';
            }
        return joined;
    }

    std::map<forms::Form*, Drawn> forms_;
};

}  // namespace fakes
