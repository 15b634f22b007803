#pragma once

#include "host/object.h"
#include "windows/com/border.h"
#include "windows/com/ole.h"

#include <map>
#include <string>

namespace com {

/// A late-bound object of another module behind IDispatch.
///
/// Arguments travel so that what comes back can: an object as a pointer to its pointer, an empty variant and
/// an array of floats (a point) as a pointer to a variant; all else by value. A member is asked for as
/// property and method at once, since the caller can't know which it is. Failures are raised by `raiseOle`.
class ComObject : public host::Object {
  public:
    ComObject(Border& border, IDispatch* dispatch);
    ~ComObject() override;
    ComObject(const ComObject&) = delete;
    ComObject& operator=(const ComObject&) = delete;

    IDispatch* dispatch() const { return dispatch_; }

    host::Variant get(std::string_view member) override;
    void set(std::string_view member, const host::Variant& value) override;
    host::Variant call(std::string_view member, host::Arguments& arguments) override;
    void enumerate(const std::function<bool(const host::Variant&)>& visit) override;

  private:
    DISPID idOf(std::string_view member);
    /// One Invoke; raises its failure.
    void invoke(DISPID id, std::string_view member, WORD kind, DISPPARAMS& parameters, VARIANT* result);

    Border& border_;
    IDispatch* dispatch_;
    std::map<std::string, DISPID, std::less<>> ids_;  ///< the numbers that this object gave for names
};

}  // namespace com
