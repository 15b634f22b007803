#pragma once

#include <string_view>
#include <vector>

namespace importing {

/// The subclass markers that an entity of R12 gets from R13 on, AcDbEntity not among them; `flags` is its
/// group 70. Empty for a type that R12 doesn't have. A SEQEND has none, which `isKnownToR12` tells from that.
std::vector<std::string_view> markersFor(std::string_view type, int flags);
/// Behind which of these markers a group stands, from 0.
std::size_t markerOfGroup(std::string_view type, int flags, int code);
bool isKnownToR12(std::string_view type);

}  // namespace importing
