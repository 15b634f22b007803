#pragma once

#include "desk/model/context.h"

namespace model {

/// The block of a name, whatever the name looks like; where the drawing has none, the block that a file of
/// that name makes. The file's content comes in under its base name and redefines a block of that name, of
/// which the command line tells. A file that is already in as it stands isn't read again. Raises kFileError
/// where there is neither block nor file; for a file that can't be brought in too, after the command line
/// told why.
drawing::BlockId findOrBringIn(Context& context, const std::string& name);

}  // namespace model
