#include "windows/com/border.h"
#include "windows/com/ole_errors.h"
#include "windows/com/ole_variant.h"

#include <gtest/gtest.h>
#include <limits>

namespace com {
namespace {

using basic::Variant;
using Kind = Variant::Kind;

class VariantTest : public testing::Test {
  protected:
    Variant there(const Variant& value) {
        OleVariant ole;
        toOle(value, ole, border_);
        return fromOle(ole, border_);
    }
    Border border_;
};

TEST_F(VariantTest, KeepsEveryKind) {
    EXPECT_TRUE(there({}).isEmpty());
    EXPECT_TRUE(there(basic::Missing{}).isMissing());
    EXPECT_TRUE(there(true).boolean());
    EXPECT_TRUE(there(std::int16_t{-7}).is(Kind::Int16));
    EXPECT_EQ(there(std::int32_t{70000}).integer(), 70000);
    EXPECT_EQ(there(0.1).number(), 0.1);
    EXPECT_EQ(there("Fen\u00EAtre\0x").text(), "Fen\u00EAtre");
    EXPECT_TRUE(there(basic::ObjectRef()).isNothing());
    EXPECT_EQ(there(basic::Doubles{1, 2, 3}).doubles(), (basic::Doubles{1, 2, 3}));
    EXPECT_EQ(there(basic::Shorts{100, 2}).shorts(), (basic::Shorts{100, 2}));
    EXPECT_EQ(there(basic::Array{"a", 2.5}).array()[1].number(), 2.5);
}

TEST_F(VariantTest, TakesOtherNumbersAndReferencesToThem) {
    OleVariant value;
    value.vt = VT_UI4;
    value.ulVal = 4000000000u;
    EXPECT_EQ(fromOle(value, border_).number(), 4000000000.0);
    value.vt = VT_UI1;
    value.bVal = 200;
    EXPECT_EQ(fromOle(value, border_).integer(), 200);
    value.vt = VT_R4;
    value.fltVal = 0.5F;
    OleVariant outer;
    outer.vt = VT_BYREF | VT_VARIANT;
    outer.pvarVal = &value;
    OleVariant outermost;
    outermost.vt = VT_BYREF | VT_VARIANT;
    outermost.pvarVal = &outer;
    EXPECT_EQ(fromOle(outermost, border_).number(), 0.5);
    value.vt = VT_RECORD;
    EXPECT_THROW(fromOle(value, border_), basic::Error);
    value.vt = VT_EMPTY;
}

TEST_F(VariantTest, TakesArraysOfAnyTypeAndLowerBound) {
    SAFEARRAYBOUND bound{2, 5};
    OleVariant texts;
    texts.parray = SafeArrayCreate(VT_BSTR, 1, &bound);
    texts.vt = VT_ARRAY | VT_BSTR;
    for (LONG i = 5; i < 7; ++i) {
        BSTR text = SysAllocString(i == 5 ? L"five" : L"six");
        SafeArrayPutElement(texts.parray, &i, text);
        SysFreeString(text);
    }
    EXPECT_EQ(fromOle(texts, border_).array()[1].text(), "six");
    SAFEARRAYBOUND plane[2] = {{2, 0}, {2, 0}};
    OleVariant matrix;
    matrix.parray = SafeArrayCreate(VT_R8, 2, plane);
    matrix.vt = VT_ARRAY | VT_R8;
    EXPECT_THROW(fromOle(matrix, border_), basic::Error);
}

TEST_F(VariantTest, GivesBackInTheCallersType) {
    BSTR text = SysAllocString(L"old");
    VARIANT parameter;
    parameter.vt = VT_BYREF | VT_BSTR;
    parameter.pbstrVal = &text;
    giveBack(12.5, parameter, border_);
    EXPECT_NE(std::wstring(text).find(L"12"), std::wstring::npos);
    SysFreeString(text);

    std::int16_t small = 3;
    parameter.vt = VT_BYREF | VT_I2;
    parameter.piVal = &small;
    giveBack(40.0, parameter, border_);
    EXPECT_EQ(small, 40);
    EXPECT_THROW(giveBack(40000.0, parameter, border_), basic::Error);
    EXPECT_EQ(small, 40);

    OleVariant variant;
    parameter.vt = VT_BYREF | VT_VARIANT;
    parameter.pvarVal = &variant;
    giveBack(basic::Doubles{1, 2, 3}, parameter, border_);
    EXPECT_EQ(variant.vt, VT_ARRAY | VT_R8);
}

struct ErrorCase {
    HRESULT result;
    std::int32_t number;
};

TEST(OleErrors, HaveTheirClassicNumbers) {
    const ErrorCase cases[] = {
        {DISP_E_UNKNOWNNAME, 438},
        {DISP_E_MEMBERNOTFOUND, 438},
        {DISP_E_TYPEMISMATCH, 13},
        {DISP_E_OVERFLOW, 6},
        {DISP_E_BADINDEX, 9},
        {DISP_E_BADPARAMCOUNT, 450},
        {DISP_E_PARAMNOTOPTIONAL, 449},
        {static_cast<HRESULT>(0x800A005B), 91},
        {static_cast<HRESULT>(0x80200009), static_cast<std::int32_t>(0x80200009)},
    };
    for (const ErrorCase& known : cases) {
        EXCEPINFO info{};
        try {
            raiseOle(known.result, info, "Area");
        } catch (const basic::Error& error) {
            EXPECT_EQ(error.number(), known.number);
            // The member where a name helps: what the object lacks, and what has no number of ours.
            const bool named = known.number == 438 || known.number < 0;
            EXPECT_EQ(error.description().find("Area") != std::string::npos, named) << error.description();
        }
    }
}

HRESULT WINAPI fillLate(EXCEPINFO* info) {
    info->wCode = 1004;
    info->bstrDescription = SysAllocString(L"late");
    return S_OK;
}

TEST(OleErrors, FillDeferredExceptions) {
    EXCEPINFO info{};
    info.pfnDeferredFillIn = fillLate;
    try {
        raiseOle(DISP_E_EXCEPTION, info, "Area");
    } catch (const basic::Error& error) {
        EXPECT_EQ(error.number(), 1004);
        EXPECT_EQ(error.description(), "late");
    }
}

}  // namespace
}  // namespace com
