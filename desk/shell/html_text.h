#pragma once

#include <string>
#include <string_view>

namespace shell {

/// A help page as plain text for a terminal, wrapped to 78 columns. It knows the elements that the help pages
/// use (h1, h2, p, ul, ol, li, table, tr, th, td) and shows the text of any other as it stands; the head and
/// paragraphs of the class "nav" are left out. Entities: the named ones of markup itself, and numeric ones.
std::string htmlToText(std::string_view html);

}  // namespace shell
