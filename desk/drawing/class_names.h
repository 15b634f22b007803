#pragma once

#include <string_view>

namespace drawing {

/// What the host's classes say of an entity type.
struct EntityClass {
    std::string_view type;  ///< group 0
    std::string_view
        className;  ///< the class that `ObjectName` tells, where it doesn't depend on the entity's flags
    /// Subclass markers (group 100) behind AcDbEntity; a file of R12 has none, yet a filter on them works.
    std::string_view markers[4];
};

/// The class of an entity type, null for a type that the host's drawings don't have.
const EntityClass* entityClass(std::string_view type);
/// The class of a POLYLINE by its flags (group 70).
std::string_view polylineClass(int flags);
/// Whether a type is a dimension, whose picture is a block named in group 2.
inline bool isDimension(std::string_view type) { return type.ends_with("DIMENSION"); }
/// The class of a DIMENSION by its kind (group 70).
std::string_view dimensionClass(int kind);

}  // namespace drawing
