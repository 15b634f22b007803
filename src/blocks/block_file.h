#pragma once

#include "basic/variant.h"
#include "forms/file_dialog.h"
#include "session/session.h"

#include <string>

namespace blocks {

using session::Session;

/// Lets the user choose a drawing file and brings it into the drawing as a block by inserting and deleting a
/// reference; the block's definition stays. Returns the file's base name, the block's name from then on, or
/// the empty text when the user cancels. An empty `title` leaves the file dialog its own.
///
/// `attributes` gets the reference's `GetAttributes` if it has any; the reference is deleted by then, so they
/// can't be read any more. Raises nothing: a file that the host refuses shows when its name is used.
std::string BrowseBlockFile(const Session& session, forms::FileDialog& dialog, basic::Variant& attributes,
                            const std::string& initialDirectory, const std::string& title = "");

}  // namespace blocks
