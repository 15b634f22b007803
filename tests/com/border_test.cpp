// Two borders in one program stand for two modules: what crosses is only what automation carries.

#include "windows/com/border.h"

#include "windows/com/com_object.h"
#include "windows/com/dispatch.h"
#include "windows/com/ole_errors.h"
#include "windows/com/ole_variant.h"

#include <gtest/gtest.h>
#include <stdexcept>

namespace com {
namespace {

using basic::Variant;

class Recorder : public host::Object {
  public:
    Variant get(std::string_view member) override { return "get " + std::string(member); }
    void set(std::string_view member, const Variant& value) override {
        if (member == "Locked") throw basic::Error(70, "It is locked");
        last_ = value;
    }
    Variant call(std::string_view member, host::Arguments& arguments) override {
        if (member == "Missing") throw basic::Error(basic::kNoSuchMember);
        if (member == "Bug") throw std::runtime_error("a bug");
        if (member == "GetEntity") {
            arguments[0] = std::make_shared<Recorder>();
            arguments[1] = basic::Doubles{1, 2, 3};
        }
        kinds_.clear();
        for (const Variant& argument : arguments) kinds_.push_back(argument.kind());
        return arguments.empty() ? Variant(last_) : arguments.back();
    }
    void enumerate(const std::function<bool(const Variant&)>& visit) override {
        for (std::int32_t i = 1; i <= 3; ++i)
            if (!visit(i)) return;
    }
    Variant last_;
    std::vector<Variant::Kind> kinds_;
};

class BorderTest : public testing::Test {
  protected:
    BorderTest() {
        IDispatch* pointer = theirs_.give(there_);
        here_ = ours_.take(pointer);
        pointer->Release();
    }
    std::int32_t numberOf(const std::function<void()>& call) {
        try {
            call();
        } catch (const basic::Error& error) {
            return error.number();
        }
        return 0;
    }
    Border ours_;
    Border theirs_;
    std::shared_ptr<Recorder> there_ = std::make_shared<Recorder>();
    host::ObjectPtr here_;
};

TEST_F(BorderTest, CarriesCallsAndWhatComesBack) {
    EXPECT_EQ(here_->get("Layer").text(), "get Layer");
    here_->set("Layer", 2.5);
    EXPECT_EQ(there_->last_.number(), 2.5);
    host::Arguments arguments{host::ObjectPtr(), Variant(), "prompt"};
    EXPECT_EQ(here_->call("GetEntity", arguments).text(), "prompt");
    EXPECT_NE(host::asObject(arguments[0]), nullptr);
    EXPECT_EQ(arguments[1].doubles(), (basic::Doubles{1, 2, 3}));
    here_->invoke("Select",
                  {std::int16_t{5}, basic::Missing{}, basic::Shorts{100}, basic::Array{"AcDbEntity"}});
    using Kind = Variant::Kind;
    EXPECT_EQ(there_->kinds_,
              (std::vector{Kind::Int16, Kind::Missing, Kind::ShortArray, Kind::VariantArray}));
    int sum = 0;
    here_->enumerate([&](const Variant& element) { return (sum += element.integer()) < 3; });
    EXPECT_EQ(sum, 3);
}

TEST_F(BorderTest, CarriesFailures) {
    EXPECT_EQ(numberOf([&] { here_->set("Locked", 1.0); }), 70);
    EXPECT_EQ(numberOf([&] { here_->invoke("Missing", {1}); }), 438);
    EXPECT_EQ(numberOf([&] { here_->invoke("Bug", {1}); }), basic::kInternalError);
}

TEST_F(BorderTest, GivesAnObjectBackAsItselfAndOnePointerToEach) {
    const auto mine = std::make_shared<Recorder>();
    EXPECT_EQ(host::asObject(here_->invoke("Echo", {mine})), mine);
    IDispatch* first = ours_.give(mine);
    IDispatch* second = ours_.give(mine);
    EXPECT_EQ(first, second);
    first->Release();
    second->Release();
    EXPECT_EQ(ours_.given(), 0);
    here_.reset();
    EXPECT_EQ(theirs_.given(), 0);
    EXPECT_EQ(ours_.taken(), 0);
}

TEST_F(BorderTest, KnowsNamesInAnyCaseAndRefusesForeignNumbers) {
    IDispatch* pointer = theirs_.give(there_);
    wchar_t small[] = L"layer";
    wchar_t big[] = L"LAYER";
    LPOLESTR names[] = {small};
    DISPID one = 0;
    DISPID two = 1;
    pointer->GetIDsOfNames(IID_NULL, names, 1, 0, &one);
    names[0] = big;
    pointer->GetIDsOfNames(IID_NULL, names, 1, 0, &two);
    EXPECT_EQ(one, two);
    DISPPARAMS none{};
    EXPECT_EQ(pointer->Invoke(999, IID_NULL, 0, DISPATCH_METHOD, &none, nullptr, nullptr, nullptr),
              DISP_E_MEMBERNOTFOUND);
    // A put has the one named id for puts.
    OleVariant value;
    DISPPARAMS unnamed{&value, nullptr, 1, 0};
    EXPECT_EQ(pointer->Invoke(one, IID_NULL, 0, DISPATCH_PROPERTYPUT, &unnamed, nullptr, nullptr, nullptr),
              DISP_E_BADPARAMCOUNT);
    pointer->Release();
}

}  // namespace
}  // namespace com
