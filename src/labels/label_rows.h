#pragma once

#include <string>

namespace labels {

/// The list of a block's attributes as the drafter sees it. Rows count from 1, in the order of the block's
/// attributes; a row outside the list raises kSubscript.
class LabelRows {
  public:
    /// The block to insert.
    virtual const std::string& blockName() const = 0;
    /// A row's typed value.
    virtual const std::string& manualValue(int row) const = 0;
    /// The text of a row's mode, which may be no mode at all.
    virtual const std::string& modeText(int row) const = 0;
    /// The entries of the list of modes, from 0.
    virtual int modeCount() const = 0;
    virtual const std::string& modeEntry(int mode) const = 0;

  protected:
    ~LabelRows() = default;
};

}  // namespace labels
