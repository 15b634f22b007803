#pragma once

#include "windows/com/border.h"

#include <map>
#include <string>

namespace stand_in {

/// The border of AutoCAD's place: parameters have the types that AutoCAD declares, so a call that AutoCAD
/// would refuse fails here too; and a chosen member can be made to fail.
class AcadBorder : public com::Border {
  public:
    HRESULT admit(const host::Object& object, const std::string& member, WORD kind,
                  const DISPPARAMS& parameters) override;

    /// Makes each call of a member fail, as on an object that has been erased; with "=" at its end, each that
    /// assigns to it. Empty for none.
    void refuse(const std::string& member) { refused_ = member; }
    /// The calls that came in so far, by member, those that assign with "=" at the name's end.
    const std::map<std::string, long>& calls() const { return calls_; }

  private:
    std::string refused_;
    std::map<std::string, long> calls_;
};

}  // namespace stand_in
