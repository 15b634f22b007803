#pragma once

#include "faces/win32/windows_api.h"

namespace win32_face {

/// The module's manifest, which gives windows the system's visual styles also in a host that has none.
class VisualStyles {
  public:
    explicit VisualStyles(HMODULE module);
    ~VisualStyles();
    VisualStyles(const VisualStyles&) = delete;
    VisualStyles& operator=(const VisualStyles&) = delete;

    /// In force as long as this lives.
    class Active {
      public:
        explicit Active(const VisualStyles& styles);
        ~Active();
        Active(const Active&) = delete;
        Active& operator=(const Active&) = delete;

      private:
        ULONG_PTR cookie_ = 0;
        bool on_ = false;
    };

  private:
    HANDLE context_;
};

}  // namespace win32_face
