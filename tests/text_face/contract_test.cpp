// The contract of all faces, on the faces that need no screen.
#include "faces/text/text_screen.h"
#include "tests/fakes/face_contract.h"
#include "tests/fakes/mirror.h"

#include <gtest/gtest.h>
#include <sstream>

namespace {

/// The face without a screen: the acts themselves.
class BareFace : public fakes::ContractFace, public forms::Screen {
  public:
    forms::Screen& screen() override { return *this; }

    void runModal(forms::Form& form) override {
        mirror.shown(form);
        while (form.visible() && runs(form)) {
            next(form, hand_);
            for (const std::string& difference : mirror.differences()) ADD_FAILURE() << difference;
        }
    }
    void hidden(forms::Form& form) override { mirror.hidden(form); }
    void changed(forms::Form& form, forms::Change change) override { mirror.changed(form, change); }
    void changed(forms::Control& control, forms::Change change) override { mirror.changed(control, change); }
    forms::Answer messageBox(const forms::MessageDialog&) override { return forms::Answer::Yes; }
    std::optional<std::string> fileDialog(const forms::FileDialog&, forms::FileDialogMode) override {
        return fakes::kContractFile;
    }
    void reportFailure(std::int32_t number, const std::string& description) override {
        failures.push_back(std::to_string(number) + description);
    }

    fakes::Mirror mirror;

  private:
    text_face::Hand hand_;
};

/// The text face reads the same acts from a script.
class TextFace : public fakes::ContractFace {
  public:
    TextFace() : input_(fakes::contractScript()), source_(input_, false), screen_(source_, output_) {
        source_.keepGoing(output_, {});
    }
    forms::Screen& screen() override { return screen_; }

  private:
    std::istringstream input_;
    std::ostringstream output_;
    text_face::StreamLines source_;
    text_face::TextScreen screen_;
};

TEST(ContractTest, TheTextFaceAndTheMirrorKeepTheContract) {
    BareFace bare;
    fakes::expectContract(bare);
    EXPECT_EQ(bare.failures, std::vector<std::string>{"1000failed"});
    TextFace text;
    fakes::expectContract(text);
}

}  // namespace
