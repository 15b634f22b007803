#pragma once

#include "desk/drawing/ids.h"
#include "desk/model/context.h"

#include <string>
#include <string_view>

namespace model {

/// "layer,colour,linetype,space": what is kept, in the writing of the variable VNKEEP; empty for nothing.
std::string toText(const Keep& keep);
/// The same read, parted by commas, without regard to case. Raises kInvalidInput for any other word.
Keep parseKeep(std::string_view text);

/// A reference is about to be deleted: where the newest reference was just inserted at its place, that one is
/// its successor, and takes over what is to be kept.
void handOver(const Context& context, drawing::EntityId old);

}  // namespace model
