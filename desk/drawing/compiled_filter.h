#pragma once

#include "desk/drawing/drawing.h"
#include "desk/drawing/store.h"
#include "desk/drawing/wildcard.h"

#include <optional>
#include <string>
#include <vector>

namespace drawing {

/// A selection filter made ready for many entities. Raises kInvalidInput for operators that don't pair.
class CompiledFilter {
  public:
    CompiledFilter(const Drawing& drawing, const Filter& filter);

    /// Whether a main entity of a space passes.
    bool passes(EntityId id) const;
    /// The names (group 2) that the filter asks for outside of any operator, where it does: only entities of
    /// these can pass.
    const std::optional<std::vector<NameKey>>& names() const { return names_; }

  private:
    /// What holds between an entity's value and the condition's: the host's words are "=", "!=" (also "/="
    /// and "<>"),
    /// "<", "<=", ">", ">=", "&" (some bits in common), "&=" (all bits of the condition) and "*" (whatever it
    /// is).
    enum class Relation {
        Equal,
        NotEqual,
        Less,
        LessEqual,
        Greater,
        GreaterEqual,
        AnyBit,
        AllBits,
        Anything
    };
    struct Test {
        int code = 0;
        Relation relation = Relation::Equal;
        bool isText = false;
        bool isPoint = false;
        std::string text;
        double number = 0;
        Point3 point;
        std::optional<Wildcard> pattern;  ///< where the text has wildcards
        NameKey name = NameKey::None;     ///< of groups 2 and 8: the name that matches,
        std::vector<char> matching;       ///< or by name, whether it matches, where the text has wildcards
    };
    /// The filter as a tree: a group of conditions or one condition.
    struct Node {
        enum class Kind { And, Or, Xor, Not, Test } kind = Kind::And;
        std::vector<Node> children;
        Test test;
    };

    /// Reads conditions up to the operator `closing`, or all if that is empty; `position` is behind them
    /// then.
    Node parseGroup(const Filter& filter, std::size_t& position, const std::string& closing) const;
    Test compile(const FilterCondition& condition, Relation relation) const;
    /// Fills `name` or `matching`.
    void matchNames(Test& test) const;
    void findNames();

    bool passes(EntityId id, const Node& node) const;
    bool passes(EntityId id, const Test& test) const;
    bool matches(const Test& test, std::string_view text) const;
    static bool matches(const Test& test, double number);
    bool matchesName(const Test& test, NameId name) const;
    /// Group 100: any of the entity's subclasses.
    bool matchesMarker(EntityId id, const Test& test) const;
    /// Any code that has no rule of its own: some group of that code.
    bool matchesGroups(EntityId id, const Test& test) const;

    const Drawing& drawing_;
    const Store& store_;
    Node root_;
    std::optional<std::vector<NameKey>> names_;
};

}  // namespace drawing
