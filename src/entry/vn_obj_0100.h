#pragma once

#include "basic/error.h"
#include "host/object.h"
#include "session/session.h"

#include <memory>
#include <string_view>

namespace entry {

/// The add-in's one public class. It holds no state of its own: what a command sets up lies in the session,
/// which outlives the object.
class VnObj0100 : public host::Object {
  public:
    explicit VnObj0100(std::shared_ptr<session::Session> session);
    ~VnObj0100() override;

    /// Sets up the session and runs the command whose code stands in the Lisp symbol "ZOL101", on the drawing
    /// document `Doc`. A failed set-up ends in one message box and no command; no error leaves the method.
    void Exec(const host::Variant& Doc);

    // Late binding: `Exec` is the one member.
    host::Variant get(std::string_view member) override;
    void set(std::string_view member, const host::Variant& value) override;
    host::Variant call(std::string_view member, host::Arguments& arguments) override;
    void enumerate(const std::function<bool(const host::Variant&)>& visit) override;

  private:
    void setUp(const host::Variant& Doc);
    /// Saves `VTable` and drops the dialogs. Raises nothing.
    void Class_Terminate();

    std::shared_ptr<session::Session> session_;
};

/// The message box of a failed set-up: number and description, never translated.
void ReportError(session::Session& session, const basic::Error& error);

}  // namespace entry
