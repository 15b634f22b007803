// The contract of all faces on native controls, by clicks, pastes and keys.
#include "faces/win32/win32_screen.h"
#include "faces/win32/windows_api.h"
#include "tests/fakes/face_contract.h"
#include "tests/fakes/mirror.h"
#include "windows/stand_in/box_acts.h"
#include "windows/stand_in/dialog_acts.h"
#include "windows/stand_in/window_form.h"

#include <commctrl.h>
#include <filesystem>
#include <fstream>

namespace {

std::string printed(const forms::Form& form) {
    std::ostringstream text;
    text_face::printForm(text, form, text_face::Detail::Full);
    return text.str();
}

/// The Win32 face, with the mirror beside it. Whenever the thread has nothing else to do, the dialog on top
/// gets the next act.
class NativeFace : public fakes::ContractFace, public forms::Screen {
  public:
    NativeFace() {
        playing = this;
        timer_ = SetTimer(nullptr, 0, 10, [](HWND, UINT, UINT_PTR, DWORD) { playing->step(); });
    }
    ~NativeFace() override { KillTimer(nullptr, timer_); }

    forms::Screen& screen() override { return *this; }

    void runModal(forms::Form& form) override {
        mirror_.shown(form);
        form_ = &form;
        win32_.runModal(form);
    }
    void hidden(forms::Form& form) override {
        mirror_.hidden(form);
        win32_.hidden(form);
    }
    void changed(forms::Form& form, forms::Change change) override {
        mirror_.changed(form, change);
        win32_.changed(form, change);
    }
    void changed(forms::Control& control, forms::Change change) override {
        mirror_.changed(control, change);
        win32_.changed(control, change);
    }
    forms::Answer messageBox(const forms::MessageDialog& box) override { return win32_.messageBox(box); }
    std::optional<std::string> fileDialog(const forms::FileDialog& dialog,
                                          forms::FileDialogMode mode) override {
        std::ofstream file(fakes::kContractFile);
        return win32_.fileDialog(dialog, mode);
    }
    void reportFailure(std::int32_t number, const std::string& description) override {
        win32_.reportFailure(number, description);
        failures.push_back(std::to_string(number) + description);
    }

  private:
    // No exception may pass through the system's frames.
    void step() try {
        HWND top = stand_in::topDialog();
        if (top == nullptr) return;
        if (stand_in::isBox(top)) return answer(top);
        // The acts before are done and drawn: what the controls hold is what the model says.
        EXPECT_EQ(printed(stand_in::WindowForm(top)), printed(*form_));
        EXPECT_GE(ListView_GetNextItem(stand_in::controlNamed(top, "ListView1"), -1, LVNI_SELECTED), 0);
        for (const std::string& difference : mirror_.differences()) ADD_FAILURE() << difference;
        if (!runs(*form_)) return form_->hide();
        stand_in::performOnWindow(output_, top, takeLine());
    } catch (const std::exception& failure) {
        ADD_FAILURE() << failure.what();
    }
    void answer(HWND box) {
        if (stand_in::isFailureReport(box)) {
            stand_in::passFailure(output_, box);
        } else {
            stand_in::answerBox(
                box, stand_in::isFileDialog(box) ? std::string("file ") + fakes::kContractFile : "yes",
                folder_);
        }
    }

    static inline NativeFace* playing = nullptr;
    fakes::Mirror mirror_;
    win32_face::Win32Screen win32_{GetModuleHandleW(nullptr)};
    std::ostringstream output_;
    forms::Form* form_ = nullptr;
    const std::filesystem::path folder_ = std::filesystem::current_path();
    UINT_PTR timer_ = 0;
};

TEST(Win32ContractTest, TheWin32FaceKeepsTheContract) {
    NativeFace face;
    fakes::expectContract(face);
    EXPECT_EQ(face.failures, std::vector<std::string>{"1000failed"});
}

TEST(Win32TextTest, ControlCharactersAreShownAndOutliveAnEdit) {
    const std::string before = "a\x1B[31m\r\nb\xE2\x80\xAE";
    EXPECT_EQ(win32_face::toShown(before), L"a^[[31m\r\nb\\U+202E");
    EXPECT_EQ(win32_face::fromShown(before, L"a^[[31m\r\nnew b\\U+202E"), "a\x1B[31m\r\nnew b\xE2\x80\xAE");
    EXPECT_EQ(win32_face::fromShown(before, win32_face::toShown(before)), before);
}

}  // namespace
