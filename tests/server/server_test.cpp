// The registered class from a program in C++.

#include "windows/com/ole.h"

#include <gtest/gtest.h>
#include <string>

namespace {

class ServerTest : public testing::Test {
  protected:
    static void SetUpTestSuite() { CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED); }

    static IDispatch* create() {
        CLSID id;
        IDispatch* object = nullptr;
        EXPECT_HRESULT_SUCCEEDED(CLSIDFromProgID(L"Vorlane.VnObj0100", &id));
        EXPECT_HRESULT_SUCCEEDED(CoCreateInstance(id, nullptr, CLSCTX_INPROC_SERVER, IID_IDispatch,
                                                  reinterpret_cast<void**>(&object)));
        return object;
    }
    static DISPID idOf(IDispatch* object, std::wstring name) {
        LPOLESTR names[] = {name.data()};
        DISPID id = DISPID_UNKNOWN;
        object->GetIDsOfNames(IID_NULL, names, 1, LOCALE_USER_DEFAULT, &id);
        return id;
    }
};

TEST_F(ServerTest, AnswersByItsTypeInformation) {
    IDispatch* object = create();
    ASSERT_NE(object, nullptr);
    EXPECT_EQ(idOf(object, L"Exec"), idOf(object, L"EXEC"));
    EXPECT_EQ(idOf(object, L"Quit"), DISPID_UNKNOWN);
    wchar_t exec[] = L"Exec";
    wchar_t doc[] = L"Doc";
    LPOLESTR names[] = {exec, doc};
    DISPID ids[2] = {-1, -1};
    EXPECT_HRESULT_SUCCEEDED(object->GetIDsOfNames(IID_NULL, names, 2, LOCALE_USER_DEFAULT, ids));
    EXPECT_EQ(ids[1], 0);
    UINT count = 0;
    object->GetTypeInfoCount(&count);
    EXPECT_EQ(count, 1u);
    ITypeInfo* type = nullptr;
    ASSERT_HRESULT_SUCCEEDED(object->GetTypeInfo(0, LOCALE_USER_DEFAULT, &type));
    type->Release();
    DISPPARAMS none{};
    EXPECT_EQ(object->Invoke(ids[0], IID_NULL, LOCALE_USER_DEFAULT, DISPATCH_METHOD, &none, nullptr, nullptr,
                             nullptr),
              DISP_E_BADPARAMCOUNT);
    object->Release();
}

TEST_F(ServerTest, MakesSeveralObjectsAndKnowsItsInterface) {
    IDispatch* first = create();
    IDispatch* second = create();
    ASSERT_NE(first, nullptr);
    EXPECT_NE(first, second);
    const HMODULE module = GetModuleHandleW(L"Vorlane.dll");
    const HRSRC found = FindResourceW(module, L"_IID_VNOBJ0100", RT_RCDATA);
    ASSERT_NE(found, nullptr);
    const auto* id = static_cast<const IID*>(LockResource(LoadResource(module, found)));
    IUnknown* own = nullptr;
    EXPECT_HRESULT_SUCCEEDED(first->QueryInterface(*id, reinterpret_cast<void**>(&own)));
    if (own != nullptr) own->Release();
    first->Release();
    second->Release();
}

}  // namespace
