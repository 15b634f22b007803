#pragma once

#include "desk/model/context.h"
#include "desk/model/members.h"

namespace model {

/// A block definition; model space and the paper spaces are block definitions too, and a collection of their
/// entities.
class Block : public Automation {
  public:
    Block(ContextPtr context, drawing::BlockId id) : context_(std::move(context)), id_(id) {}

    Variant name() const;
    Variant isLayout() const;
    Variant isXRef() const;
    Variant count() const;
    /// Entity by index from 0.
    Variant item(Arguments& arguments);
    void enumerate(const std::function<bool(const Variant&)>& visit) override;

    static const MemberTable& table();

  protected:
    const MemberTable& members() const override { return table(); }
    const drawing::Block& block() const { return context_->drawing->blocks()[id_]; }

    ContextPtr context_;
    drawing::BlockId id_;
};

/// Model space, where new entities go.
class ModelSpace : public Block {
  public:
    using Block::Block;
    /// Insertion point, name of a block or of a file, X, Y, Z scale, rotation in radians.
    Variant insertBlock(Arguments& arguments);
    /// Start point, end point.
    Variant addLine(Arguments& arguments);

  protected:
    const MemberTable& members() const override;
};

/// The block definitions in the drawing's order.
class Blocks : public Automation {
  public:
    explicit Blocks(ContextPtr context) : context_(std::move(context)) {}
    Variant count() const;
    /// By index from 0 or by name without regard to case.
    Variant item(Arguments& arguments);
    void enumerate(const std::function<bool(const Variant&)>& visit) override;

  protected:
    const MemberTable& members() const override;

  private:
    std::vector<drawing::BlockId> ids() const;
    ContextPtr context_;
};

}  // namespace model
