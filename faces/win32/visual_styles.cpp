#include "faces/win32/visual_styles.h"

namespace win32_face {

VisualStyles::VisualStyles(HMODULE module) : context_(INVALID_HANDLE_VALUE) {
    constexpr int kManifestOfDll = 2;
    wchar_t path[MAX_PATH * 4] = L"";
    GetModuleFileNameW(module, path, MAX_PATH * 4);
    ACTCTXW description{};
    description.cbSize = sizeof description;
    description.dwFlags = ACTCTX_FLAG_RESOURCE_NAME_VALID | ACTCTX_FLAG_HMODULE_VALID;
    description.lpSource = path;
    description.lpResourceName = MAKEINTRESOURCEW(kManifestOfDll);
    description.hModule = module;
    context_ = CreateActCtxW(&description);
}

VisualStyles::~VisualStyles() {
    if (context_ != INVALID_HANDLE_VALUE) ReleaseActCtx(context_);
}

VisualStyles::Active::Active(const VisualStyles& styles) {
    on_ = styles.context_ != INVALID_HANDLE_VALUE && ActivateActCtx(styles.context_, &cookie_) != FALSE;
}

VisualStyles::Active::~Active() {
    if (on_) DeactivateActCtx(0, cookie_);
}

}  // namespace win32_face
