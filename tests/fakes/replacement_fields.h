#pragma once

#include "replace/replacement_engine.h"

#include <array>
#include <string>
#include <vector>

namespace fakes {

/// What a replacement reads, without a dialog: a block name, the overrides, and the destination tags of the
/// table's rows, which is on when there are any.
struct ReplacementFields : replace::ReplacementFields, replace::TranscriptionTable {
    std::string name;
    std::array<std::string, 3> scales;  ///< empty: no override
    std::string angle;                  ///< the same
    int visibility = -1;                ///< -1: box off
    std::vector<std::string> destinations;

    const std::string& blockName() const override { return name; }
    const std::string* xScale() const override { return given(scales[0]); }
    const std::string* yScale() const override { return given(scales[1]); }
    const std::string* zScale() const override { return given(scales[2]); }
    const std::string* rotation() const override { return given(angle); }
    bool overridesVisibility() const override { return visibility >= 0; }
    int visibilityIndex() const override { return visibility < 0 ? 2 : visibility; }
    bool transcribesAttributes() const override { return !destinations.empty(); }
    const TranscriptionTable& transcriptionTable() const override { return *this; }
    int rowCount() const override { return static_cast<int>(destinations.size()); }
    const std::string& destination(int row) const override {
        return destinations.at(static_cast<std::size_t>(row - 1));
    }

  private:
    static const std::string* given(const std::string& text) { return text.empty() ? nullptr : &text; }
};

}  // namespace fakes
