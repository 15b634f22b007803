#pragma once

#include "basic/error.h"

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

namespace basic {

/// Base of everything a variant can refer to. The rooms that know more derive from it.
class Referable {
  public:
    virtual ~Referable() = default;
};
using ObjectRef = std::shared_ptr<Referable>;

/// An argument that the caller left out.
struct Missing {
    bool operator==(const Missing&) const = default;
};

class Variant;
using Array = std::vector<Variant>;        ///< array of variants, from 0
using Doubles = std::vector<double>;       ///< array of 64-bit floats, from 0; a point has three
using Shorts = std::vector<std::int16_t>;  ///< array of 16-bit integers, from 0; a filter's group codes

/// A value as it crosses the host's border. Arrays are shared and never changed once they are in a variant;
/// an object variant without an object is "nothing".
class Variant {
  public:
    enum class Kind {
        Empty,
        Missing,
        Boolean,
        Int16,
        Int32,
        Double,
        Text,
        Object,
        VariantArray,
        DoubleArray,
        ShortArray
    };

    Variant() = default;
    Variant(Missing) : value_(Missing{}) {}
    Variant(bool value) : value_(value) {}
    Variant(std::int16_t value) : value_(value) {}
    Variant(std::int32_t value) : value_(value) {}
    Variant(double value) : value_(value) {}
    Variant(std::string value) : value_(std::move(value)) {}
    Variant(std::string_view value) : value_(std::string(value)) {}
    Variant(const char* value) : value_(std::string(value)) {}
    Variant(ObjectRef value) : value_(std::move(value)) {}
    template <typename T>
    requires std::is_base_of_v<Referable, T> Variant(std::shared_ptr<T> value)
        : value_(ObjectRef(std::move(value))) {}
    Variant(Array value) : value_(std::make_shared<const Array>(std::move(value))) {}
    Variant(Doubles value) : value_(std::make_shared<const Doubles>(std::move(value))) {}
    Variant(Shorts value) : value_(std::make_shared<const Shorts>(std::move(value))) {}

    Kind kind() const { return static_cast<Kind>(value_.index()); }
    bool is(Kind kind) const { return value_.index() == static_cast<std::size_t>(kind); }
    bool isEmpty() const { return is(Kind::Empty); }
    bool isMissing() const { return is(Kind::Missing); }
    /// Whether this is an object variant that holds no object, or an empty variant.
    bool isNothing() const;
    bool isNumber() const;

    // The value as the kind it has; another kind raises kTypeMismatch (object(): kObjectRequired).
    bool boolean() const;
    const std::string& text() const;
    const ObjectRef& object() const;
    const Array& array() const;
    const Doubles& doubles() const;
    const Shorts& shorts() const;

    /// A number of any width, a Boolean (true is -1) or empty (0) as a float; text raises kTypeMismatch:
    /// conversions of text depend on regional settings and stand in basic/numbers.h.
    double number() const;
    /// A whole number as 32 bits, a float rounded half to even; raises kOverflow beyond 32 bits.
    std::int32_t integer() const;

  private:
    template <typename T>
    const T& as() const {
        const T* value = std::get_if<T>(&value_);
        if (value == nullptr) throw Error(kTypeMismatch);
        return *value;
    }

    std::variant<std::monostate, Missing, bool, std::int16_t, std::int32_t, double, std::string, ObjectRef,
                 std::shared_ptr<const Array>, std::shared_ptr<const Doubles>, std::shared_ptr<const Shorts>>
        value_;
};

/// The name of a kind for messages, such as "text".
const char* kindName(Variant::Kind kind);

}  // namespace basic
