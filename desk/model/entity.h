#pragma once

#include "desk/model/context.h"
#include "desk/model/members.h"

namespace model {

/// Any entity of the drawing: what all have in common, and the measures, of which a kind has only some. Every
/// member of an erased entity raises kObjectErased; edits on a locked layer raise kLockedLayer.
class Entity : public Automation {
  public:
    Entity(ContextPtr context, drawing::EntityId id) : context_(std::move(context)), id_(id) {}

    drawing::EntityId id() const { return id_; }
    const ContextPtr& context() const { return context_; }

    Variant objectName() const;
    Variant handle() const;
    Variant layer() const;
    /// 0 ByBlock, 1 to 255, 256 ByLayer.
    Variant color() const;
    Variant visible() const;
    void setVisible(const Variant& value);
    Variant length() const;
    Variant area() const;
    Variant circumference() const;
    Variant perimeter() const;
    /// Redraws; a drawing without a screen only asks whether the object is alive.
    Variant update(Arguments& arguments);
    Variant erase(Arguments& arguments);

    static const MemberTable& table();

  protected:
    const MemberTable& members() const override { return table(); }
    const drawing::Drawing& drawing() const { return *context_->drawing; }
    /// For edits.
    drawing::Drawing& edit() { return *context_->drawing; }

    ContextPtr context_;
    drawing::EntityId id_;
};

/// LINE: StartPoint and EndPoint besides.
class Line : public Entity {
  public:
    using Entity::Entity;
    Variant startPoint() const;
    Variant endPoint() const;

  protected:
    const MemberTable& members() const override;
};

/// The object of an entity, of the class that its type asks for; of an erased one too, as a member of
/// a selection set may be.
std::shared_ptr<Entity> makeEntity(const ContextPtr& context, drawing::EntityId id);

/// The entity behind an object of this document; raises kTypeMismatch for any other value.
drawing::EntityId toEntity(const basic::Variant& value);

}  // namespace model
