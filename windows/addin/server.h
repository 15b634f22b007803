#pragma once

#include "entry/component.h"
#include "faces/win32/win32_screen.h"
#include "windows/addin/windows_platform.h"
#include "windows/com/border.h"

#include <memory>

namespace addin {

/// What the module holds while it is loaded: the add-in with its session, the platform and the face that it
/// runs on, and the border to the host's objects.
class Server {
  public:
    explicit Server(HMODULE module);
    ~Server();
    Server(const Server&) = delete;
    Server& operator=(const Server&) = delete;

    /// A new object of the public class as the interface `id`.
    HRESULT createObject(REFIID id, void** out);

  private:
    com::Border border_;
    WindowsPlatform platform_;
    win32_face::Win32Screen screen_;
    std::unique_ptr<entry::Component> component_;
    com::ObjectType type_;
};

}  // namespace addin
