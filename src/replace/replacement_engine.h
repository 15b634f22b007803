#pragma once

#include "replace/transcription.h"
#include "session/session.h"

#include <cstdint>
#include <string>

namespace replace {

using session::Session;

/// What a run reads from the dialog. Each is asked at the moment of use, so anew for each reference.
class ReplacementFields {
  public:
    virtual ~ReplacementFields() = default;

    /// The replacement block's name, not tested in any way.
    virtual const std::string& blockName() const = 0;
    // The text that overrides the old reference's value; null without an override.
    virtual const std::string* xScale() const = 0;
    virtual const std::string* yScale() const = 0;
    virtual const std::string* zScale() const = 0;
    /// In the host's unit, radians.
    virtual const std::string* rotation() const = 0;
    virtual bool overridesVisibility() const = 0;
    /// Entry of the visibility list: 0 visible, 1 not visible, 2 unchanged.
    virtual int visibilityIndex() const = 0;
    virtual bool transcribesAttributes() const = 0;
    /// The table of attributes. Asking for it may build it, which inserts in the drawing and may fail.
    virtual const TranscriptionTable& transcriptionTable() const = 0;
};

/// Replaces each reference of the session's selection set by a new reference of the replacement block in
/// model space, at the same point and with the same scales and rotation unless the fields override them, then
/// tells the success in a message box, also for an empty set.
///
/// The first failure comes out at its statement: references done stay replaced, of the one in hand both the
/// old and the new reference may be there, and nothing is undone. Raises kOverflow before the first reference
/// for a set of more than 32,767, and after the last one for exactly 32,767.
void ReplaceBlocks(const Session& session, const ReplacementFields& fields);

}  // namespace replace
