#pragma once

#include "entry/vn_obj_0100.h"
#include "forms/screen.h"
#include "platform/platform.h"
#include "session/session.h"

#include <memory>
#include <string_view>

namespace entry {

/// The loaded add-in: owns the session, and with it the dialogs that outlive a command, and makes the objects
/// of its public class. Platform and screen outlive it and the objects.
class Component {
  public:
    /// The program identifier under which the class is created.
    static constexpr std::string_view kProgramId = "Vorlane.VnObj0100";

    Component(platform::Platform& platform, forms::Screen& screen);

    session::Session& session() { return *session_; }
    std::shared_ptr<VnObj0100> createVnObj0100();

  private:
    std::shared_ptr<session::Session> session_;
};

}  // namespace entry
