#include "desk/drawing/drawing.h"
#include "desk/drawing/save_plan.h"
#include "desk/dxf/file.h"

namespace drawing {

dxf::Saved Drawing::save(const std::string& path, const std::string& backupFolder) {
    const SavePlan plan(*this);
    const dxf::Saved saved = dxf::saveAtomically(path, plan.pieces(), backupFolder);
    path_ = path;
    savedState_ = state_;
    return saved;
}

std::string Drawing::savedBytes() const {
    std::string bytes;
    const SavePlan plan(*this);
    for (std::string_view piece : plan.pieces()) bytes += piece;
    return bytes;
}

}  // namespace drawing
