#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace extract {

/// The fields of a line, from 0; never empty.
using Fields = std::vector<std::string>;

/// Splits `text` at each `delimiter`: n delimiters always give n + 1 fields, the empty text one empty field.
/// A delimiter of more than one character, or of none, never matches. Raises kOverflow for a text of more
/// than 32,767 characters or fields.
Fields SplitFields(std::string_view delimiter, std::string_view text);

/// The same into `fields`, which a failure leaves as it was.
void splitFieldsInto(Fields& fields, std::string_view delimiter, std::string_view text);

}  // namespace extract
