#pragma once

#include "basic/text_file.h"
#include "extract/split_fields.h"
#include "forms/list_view.h"

#include <optional>
#include <string>
#include <string_view>

namespace extract {

// The block data file, the one link between extraction and re-insertion: tab-separated text in the
// single-byte code page without any quoting. A title line, a line of column headers, then a line for each row
// of the table. Its own texts are French in every language, its numbers are text under the regional settings
// of whoever made it.

/// The file dialogs' filter, the same in every language.
inline constexpr std::string_view kBlockDataFilter = "Fichier texte séparateur tabulation (*.txt)|*.txt";
/// Flags of the file dialogs: the read-only box is hidden. Neither the question before an overwrite nor the
/// test that the file exists is asked for.
inline constexpr int kHideReadOnly = 4;

/// Writes the table of the block `blockName`; an existing file is emptied first. Errors are ignored: what
/// can't be opened or written is left out without a word.
void writeBlockData(const std::string& path, const std::string& blockName, const forms::ListView& table);

/// Reads a block data file line by line with errors ignored. A file that can't be opened has no lines.
class BlockDataReader {
  public:
    explicit BlockDataReader(const std::string& path);

    /// Goes to the next line; false at the end. A line too long to be split has the fields of the line
    /// before.
    bool next();
    /// The fields of the line in hand; none before the first line, or where that one was too long.
    const Fields& fields() const { return fields_; }

  private:
    std::optional<basic::TextReader> file_;
    Fields fields_;
};

}  // namespace extract
