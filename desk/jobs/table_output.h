#pragma once

#include "basic/numbers.h"
#include "desk/drawing/ids.h"
#include "desk/jobs/options.h"
#include "desk/jobs/table.h"

#include <string>

namespace jobs {

// Headers that the tables of the verbs have beside the dialog's, which are the same in every language.
inline constexpr const char* kLayerHeader = "Calque";
inline constexpr const char* kColorHeader = "Couleur";
inline constexpr const char* kDrawingHeader = "Dessin";
inline constexpr const char* kBlockHeader = "Bloc";
inline constexpr const char* kHandleHeader = "Handle";

/// Writes a table as its file's name and --encoding say; a .csv has semicolons under a decimal comma. Raises
/// the file errors of basic/text_file.h.
void writeTable(const std::string& path, const Table& table, const Arguments& arguments,
                const basic::Regional& regional);

/// A handle as hexadecimal digits.
std::string handleText(drawing::Handle handle);

}  // namespace jobs
