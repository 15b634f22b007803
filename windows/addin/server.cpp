#include "windows/addin/server.h"

#include "windows/addin/class_type.h"

#include <exception>

namespace addin {

Server::Server(HMODULE module)
    : platform_(module, [this] { return component_->session().CurLng.Name; }),
      screen_(module),
      component_(std::make_unique<entry::Component>(platform_, screen_)),
      type_{makeClassType(), kInterface, {"Exec"}} {}

Server::~Server() {
    if (type_.info != nullptr) type_.info->Release();
}

HRESULT Server::createObject(REFIID id, void** out) {
    try {
        IDispatch* object = border_.give(component_->createVnObj0100(), &type_);
        const HRESULT result = object->QueryInterface(id, out);
        object->Release();
        return result;
    } catch (const std::bad_alloc&) {
        return E_OUTOFMEMORY;
    } catch (const std::exception&) {
        return E_FAIL;
    }
}

}  // namespace addin
