#pragma once

#include "forms/controls.h"
#include "windows/stand_in/native.h"

#include <map>
#include <memory>
#include <vector>

namespace stand_in {

/// A form read off its windows: what the native controls hold, for printing and comparing. Nothing of the
/// add-in's own model is in it.
class WindowForm : public forms::Form {
  public:
    explicit WindowForm(HWND window);

  private:
    struct Box {
        forms::Control* control;
        RECT area;
    };
    forms::Control& read(HWND window);
    std::unique_ptr<forms::Control> make(HWND window);
    void place(forms::Control& control, const RECT& area, const std::vector<Box>& frames);

    std::vector<std::unique_ptr<forms::Control>> all_;
    float twipsPerPixel_;
};

}  // namespace stand_in
