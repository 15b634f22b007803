#include "replace/dialog_fields.h"

#include "replace/fm_att_set.h"

namespace replace {

const TranscriptionTable& DialogFields::transcriptionTable() const {
    auto& table = session_.form<fmAttSet>("fmAttSet");
    table.ensureLoaded();
    return table;
}

}  // namespace replace
