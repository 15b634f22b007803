#pragma once

#include "basic/error.h"
#include "host/object.h"

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

namespace lisp {

class Value;
struct Call;
class Interpreter;

struct Cons;
struct Symbol;
struct Subr;
struct Usubr;
struct VariantBox;
struct SafeArray;
struct ObjectBox;
struct CaughtError;

using SymbolPtr = std::shared_ptr<Symbol>;

/// A Lisp value. Strings and list cells are shared and never change, so that no list can contain itself and
/// counting references frees everything; symbols, safe arrays and object boxes are the only nodes that
/// change.
class Value {
  public:
    enum class Kind {
        Nil,
        Integer,
        Real,
        Text,
        Symbol,
        Cons,
        Subr,
        Usubr,
        Variant,
        SafeArray,
        Object,
        Caught
    };

    Value() = default;  ///< nil, the empty list and false
    Value(std::int32_t number) : data_(number) {}
    Value(double number) : data_(number) {}
    Value(std::string text) : data_(std::make_shared<const std::string>(std::move(text))) {}
    Value(SymbolPtr symbol) : data_(std::move(symbol)) {}
    Value(std::shared_ptr<const Cons> cell) : data_(std::move(cell)) {}
    Value(std::shared_ptr<const Subr> subr) : data_(std::move(subr)) {}
    Value(std::shared_ptr<const Usubr> usubr) : data_(std::move(usubr)) {}
    Value(std::shared_ptr<const VariantBox> box) : data_(std::move(box)) {}
    Value(std::shared_ptr<SafeArray> array) : data_(std::move(array)) {}
    Value(std::shared_ptr<ObjectBox> box) : data_(std::move(box)) {}
    Value(std::shared_ptr<const CaughtError> error) : data_(std::move(error)) {}

    Kind kind() const { return static_cast<Kind>(data_.index()); }
    bool isNil() const { return data_.index() == 0; }
    bool isTrue() const { return data_.index() != 0; }
    bool isNumber() const { return kind() == Kind::Integer || kind() == Kind::Real; }

    // The content where the value is of that kind, else nullptr.
    const std::int32_t* integer() const { return std::get_if<std::int32_t>(&data_); }
    const double* real() const { return std::get_if<double>(&data_); }
    const std::string* text() const { return node<std::shared_ptr<const std::string>>(); }
    Symbol* symbol() const { return node<SymbolPtr>(); }
    const Cons* cons() const { return node<std::shared_ptr<const Cons>>(); }
    const Subr* subr() const { return node<std::shared_ptr<const Subr>>(); }
    const Usubr* usubr() const { return node<std::shared_ptr<const Usubr>>(); }
    const VariantBox* variant() const { return node<std::shared_ptr<const VariantBox>>(); }
    SafeArray* safeArray() const { return node<std::shared_ptr<SafeArray>>(); }
    ObjectBox* object() const { return node<std::shared_ptr<ObjectBox>>(); }
    const CaughtError* caught() const { return node<std::shared_ptr<const CaughtError>>(); }

    /// The symbol as a shared pointer; the value must be a symbol.
    const SymbolPtr& symbolPtr() const { return std::get<SymbolPtr>(data_); }
    /// An integer or a real as a real; the value must be a number.
    double number() const { return integer() ? *integer() : std::get<double>(data_); }
    /// Whether both are the same node, or the same number in the same type.
    bool isSame(const Value& other) const { return data_ == other.data_; }

    /// Whether the value is a list cell or a function of the user's that nothing else holds.
    bool isSoleOwner() const;

  private:
    template <typename Pointer>
    typename Pointer::element_type* node() const {
        const Pointer* pointer = std::get_if<Pointer>(&data_);
        return pointer ? pointer->get() : nullptr;
    }

    std::variant<std::monostate, std::int32_t, double, std::shared_ptr<const std::string>, SymbolPtr,
                 std::shared_ptr<const Cons>, std::shared_ptr<const Subr>, std::shared_ptr<const Usubr>,
                 std::shared_ptr<const VariantBox>, std::shared_ptr<SafeArray>, std::shared_ptr<ObjectBox>,
                 std::shared_ptr<const CaughtError>>
        data_;
};

/// A list cell. Freed without recursion, however long or deep the list.
struct Cons {
    Cons(Value head, Value tail) : first(std::move(head)), rest(std::move(tail)) {}
    Cons(const Cons&) = delete;
    Cons& operator=(const Cons&) = delete;
    ~Cons();

    mutable Value first, rest;  ///< changed by the destructor alone
};

/// An interned name with its one value, that of the innermost binding. A symbol never set has the value nil.
struct Symbol {
    std::string name;  ///< in capitals
    Value value;
    bool isConstant = false;  ///< T, nil: setting or binding it is an error
};

using SubrFunction = Value (*)(Call&);
using FormFunction = Value (*)(Interpreter&, const Value& forms);

/// A built-in: one of the two functions is set. `function` gets its arguments evaluated, `form` as they
/// stand.
struct Subr {
    std::string name;
    int least = 0;
    int most = -1;  ///< -1: any number
    SubrFunction function = nullptr;
    FormFunction form = nullptr;
};

/// A function of the user's, from defun or lambda. Freed without recursion, however deep functions hold
/// functions.
struct Usubr {
    std::string name;  ///< "LAMBDA" for one without a name
    std::vector<SymbolPtr> parameters;
    std::vector<SymbolPtr> locals;
    mutable Value body;  ///< the list of its forms; changed by the destructor alone

    Usubr() = default;
    Usubr(const Usubr&) = delete;
    Usubr& operator=(const Usubr&) = delete;
    ~Usubr();
};

/// Automation's type numbers, as vlax-variant-type gives them.
enum VariantType : std::int32_t {
    kVtEmpty = 0,
    kVtNull = 1,
    kVtInteger = 2,
    kVtLong = 3,
    kVtSingle = 4,
    kVtDouble = 5,
    kVtString = 8,
    kVtObject = 9,
    kVtBoolean = 11,
    kVtVariant = 12,
    kVtArray = 8192,  ///< added to the type of the elements
};

/// A value in automation's wrapping. Booleans are the symbols :VLAX-TRUE and :VLAX-FALSE.
struct VariantBox {
    std::int32_t type = kVtEmpty;
    Value content;
};

/// An array of automation, of one dimension. Elements of type kVtVariant are variants.
struct SafeArray {
    std::int32_t type = kVtVariant;
    std::int32_t lower = 0;
    std::vector<Value> elements;
};

/// An object of the host; nullptr once it has been released.
struct ObjectBox {
    host::ObjectPtr object;
};

/// What vl-catch-all-apply hands back for a failure.
struct CaughtError {
    std::string message;
};

Value cons(Value first, Value rest);
/// A list of `items`, ended by `tail`.
Value makeList(std::vector<Value> items, Value tail = {});

/// Builds a list from the front to the back.
class ListBuilder {
  public:
    void add(Value item) { items_.push_back(std::move(item)); }
    std::size_t size() const { return items_.size(); }
    Value take(Value tail = {}) { return makeList(std::move(items_), std::move(tail)); }

  private:
    std::vector<Value> items_;
};

/// A list's elements. Raises "bad argument type: listp" for an atom or a list that ends in one.
std::vector<Value> listItems(const Value& list);

/// The type's name as (type) gives it, "" for nil.
const char* typeName(const Value& value);

}  // namespace lisp
