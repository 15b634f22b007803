#include "windows/addin/registration.h"

#include "windows/addin/class_type.h"
#include "windows/addin/module_path.h"

#include <olectl.h>
#include <string>

namespace addin {

namespace {

const std::wstring kClasses = L"Software\\Classes\\";
const std::wstring kCompany = L"Software\\Merovane";
const std::wstring kProduct = kCompany + L"\\Vorlane";
const std::wstring kVersion = kProduct + L"\\1.0";

std::wstring classKey() { return kClasses + L"CLSID\\" + kClassText; }

/// Writes texts below one root until the first failure.
class Writer {
  public:
    explicit Writer(HKEY root) : root_(root) {}

    void put(const std::wstring& key, const wchar_t* name, const std::wstring& value) {
        if (status_ != ERROR_SUCCESS) return;
        const auto size = static_cast<DWORD>((value.size() + 1) * sizeof(wchar_t));
        status_ = RegSetKeyValueW(root_, key.c_str(), name, REG_SZ, value.c_str(), size);
    }
    LSTATUS status() const { return status_; }

  private:
    HKEY root_;
    LSTATUS status_ = ERROR_SUCCESS;
};

LSTATUS registerBelow(HKEY root, HMODULE module) {
    const std::wstring program = kClasses + kProgramId;
    Writer writer(root);
    writer.put(program, nullptr, kProgramId);
    writer.put(program + L"\\CLSID", nullptr, kClassText);
    writer.put(classKey(), nullptr, kProgramId);
    writer.put(classKey() + L"\\InprocServer32", nullptr, modulePath(module));
    writer.put(classKey() + L"\\InprocServer32", L"ThreadingModel", L"Apartment");
    writer.put(classKey() + L"\\ProgID", nullptr, kProgramId);
    writer.put(classKey() + L"\\Programmable", nullptr, L"");
    writer.put(kVersion, L"InstallPath", moduleFolder(module));
    return writer.status();
}

void removeIfEmpty(HKEY root, const std::wstring& key) {
    HKEY open = nullptr;
    if (RegOpenKeyExW(root, key.c_str(), 0, KEY_READ, &open) != ERROR_SUCCESS) return;
    DWORD keys = 0;
    DWORD values = 0;
    const LSTATUS status = RegQueryInfoKeyW(open, nullptr, nullptr, nullptr, &keys, nullptr, nullptr, &values,
                                            nullptr, nullptr, nullptr, nullptr);
    RegCloseKey(open);
    if (status == ERROR_SUCCESS && keys == 0 && values == 0) RegDeleteKeyW(root, key.c_str());
}

/// What isn't there counts as taken out.
LSTATUS remove(HKEY root, const std::wstring& key) {
    const LSTATUS status = RegDeleteTreeW(root, key.c_str());
    return status == ERROR_FILE_NOT_FOUND ? ERROR_SUCCESS : status;
}

LSTATUS unregisterBelow(HKEY root) {
    LSTATUS status = remove(root, kClasses + kProgramId);
    if (status == ERROR_SUCCESS) status = remove(root, classKey());
    if (status == ERROR_SUCCESS) status = remove(root, kVersion);
    removeIfEmpty(root, kProduct);
    removeIfEmpty(root, kCompany);
    return status;
}

}  // namespace

HRESULT registerServer(HMODULE module) {
    if (registerBelow(HKEY_LOCAL_MACHINE, module) == ERROR_SUCCESS) return S_OK;
    return registerBelow(HKEY_CURRENT_USER, module) == ERROR_SUCCESS ? S_OK : SELFREG_E_CLASS;
}

HRESULT unregisterServer() {
    const LSTATUS forUser = unregisterBelow(HKEY_CURRENT_USER);
    const LSTATUS forAll = unregisterBelow(HKEY_LOCAL_MACHINE);
    return forUser == ERROR_SUCCESS && forAll == ERROR_SUCCESS ? S_OK : SELFREG_E_CLASS;
}

}  // namespace addin
