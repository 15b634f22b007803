#pragma once

#include "replace/fm_replace.h"
#include "replace/replacement_engine.h"

namespace replace {

/// The fields of a replacement as the dialog holds them, and the table of fmAttSet, which is made and loaded
/// when it is first asked for.
class DialogFields : public ReplacementFields {
  public:
    DialogFields(Session& session, const fmReplace& dialog) : session_(session), dialog_(dialog) {}

    const std::string& blockName() const override { return dialog_.CboBlocReplacer.text(); }
    const std::string* xScale() const override { return ifOn(dialog_.chkXScale, dialog_.txtXScale); }
    const std::string* yScale() const override { return ifOn(dialog_.chkYScale, dialog_.txtYScale); }
    const std::string* zScale() const override { return ifOn(dialog_.chkZScale, dialog_.txtZScale); }
    const std::string* rotation() const override { return ifOn(dialog_.chkRotation, dialog_.txtRotation); }
    bool overridesVisibility() const override { return dialog_.chkVisibility.value() == 1; }
    int visibilityIndex() const override { return dialog_.cboVisibility.listIndex(); }
    bool transcribesAttributes() const override {
        return dialog_.ChkAttSet.value() == 1 && dialog_.ChkAttSet.enabled();
    }
    const TranscriptionTable& transcriptionTable() const override;

  private:
    static const std::string* ifOn(const forms::CheckBox& check, const forms::TextBox& text) {
        return check.value() == 1 ? &text.text() : nullptr;
    }

    Session& session_;
    const fmReplace& dialog_;
};

}  // namespace replace
