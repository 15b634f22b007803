#pragma once

#include "basic/text.h"
#include "host/object.h"
#include "windows/com/ole.h"

#include <string>
#include <unordered_map>
#include <vector>

namespace com {

class Dispatch;

/// What a class tells of itself: its type information, the id of its own interface, and the names of its
/// members by their numbers, from 1.
struct ObjectType {
    ITypeInfo* info = nullptr;
    IID id{};
    std::vector<std::string> members;
};

/// The border of one module (the add-in's DLL, or a program): its objects go out as IDispatch pointers and
/// the objects of others come in as host objects. An object that comes home is itself again; one object has
/// one pointer at a time. It outlives all pointers that it gave.
class Border {
  public:
    Border() = default;
    virtual ~Border() = default;
    Border(const Border&) = delete;
    Border& operator=(const Border&) = delete;

    /// A pointer to an object, counted once for the caller; null for nothing. Raises kObjectRequired for what
    /// is no host object.
    IDispatch* give(const basic::ObjectRef& object);
    /// The same for an object of a class with a type, which outlives the pointer.
    IDispatch* give(const host::ObjectPtr& object, const ObjectType* type);
    /// The object behind a pointer, which stays the caller's; null for null.
    host::ObjectPtr take(IDispatch* dispatch);

    /// How many pointers of ours others hold, and how many of others we hold.
    long given() const { return given_; }
    long taken() const { return taken_; }

    /// Asked before each call of a member of ours, with the arguments as they came: a failure refuses it. A
    /// program may hold its callers to declared types here.
    virtual HRESULT admit(const host::Object& /*object*/, const std::string& /*member*/, WORD /*kind*/,
                          const DISPPARAMS& /*parameters*/) {
        return S_OK;
    }

    /// The number of a member's name: one for the whole module, whatever the case.
    DISPID idOf(std::string_view name);
    /// The name of a number that `idOf` gave; null for any other.
    const std::string* nameOf(DISPID id) const;

  private:
    friend class Dispatch;
    friend class ComObject;
    friend class Enumerator;

    std::unordered_map<const void*, Dispatch*> byObject_;   ///< by the host object
    std::unordered_map<const void*, Dispatch*> byPointer_;  ///< by the pointer that stands for its identity
    std::unordered_map<std::string, DISPID, basic::NameHash, basic::NameEqual> ids_;
    std::vector<const std::string*> names_;
    long given_ = 0;
    long taken_ = 0;
};

}  // namespace com
