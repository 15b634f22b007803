#pragma once

#include "desk/model/context.h"

namespace model {

/// The block of a name; where the drawing has none, the block that a file of that name makes. A name with a
/// folder or with the extension .dxf or .dwg is a file in any case: its content comes in under the file's
/// base name and redefines a block of that name, of which the command line tells. A file that is already in
/// as it stands isn't read again. Raises kFileError where there is neither block nor file, and for a file
/// that can't be brought in.
drawing::BlockId findOrBringIn(Context& context, const std::string& name);

}  // namespace model
