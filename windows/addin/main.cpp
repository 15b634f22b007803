// The four exports of the add-in's DLL.

#include "windows/addin/class_factory.h"
#include "windows/addin/class_type.h"
#include "windows/addin/registration.h"
#include "windows/addin/server.h"

#include <exception>

namespace {

// The address of any object of a module leads to the module.
HMODULE ownModule() {
    HMODULE module = nullptr;
    GetModuleHandleExW(GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT,
                       reinterpret_cast<LPCWSTR>(reinterpret_cast<const void*>(&ownModule)), &module);
    return module;
}

/// Made with the first object and never destroyed: nothing of it may run as the process ends.
addin::Server& server() {
    static addin::Server* const loaded = new addin::Server(ownModule());
    return *loaded;
}

addin::ClassFactory& factory() {
    static addin::ClassFactory* const made = new addin::ClassFactory([](REFIID id, void** out) {
        try {
            return server().createObject(id, out);
        } catch (const std::exception&) {
            return E_FAIL;
        }
    });
    return *made;
}

}  // namespace

extern "C" {

HRESULT WINAPI DllGetClassObject(REFCLSID id, REFIID face, LPVOID* out) {
    if (out == nullptr) return E_POINTER;
    *out = nullptr;
    if (id != addin::kClass) return CLASS_E_CLASSNOTAVAILABLE;
    try {
        return factory().QueryInterface(face, out);
    } catch (const std::exception&) {
        return E_OUTOFMEMORY;
    }
}

/// The session and some dialogs live as long as the component, and windows may still be on their way out: a
/// module that was used stays until the host ends.
HRESULT WINAPI DllCanUnloadNow() { return S_FALSE; }

HRESULT WINAPI DllRegisterServer() {
    try {
        return addin::registerServer(ownModule());
    } catch (const std::exception&) {
        return E_OUTOFMEMORY;
    }
}

HRESULT WINAPI DllUnregisterServer() {
    try {
        return addin::unregisterServer();
    } catch (const std::exception&) {
        return E_OUTOFMEMORY;
    }
}
}
