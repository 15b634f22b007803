#include "blocks/block_file.h"

#include "basic/error_state.h"
#include "blocks/trial_insertion.h"
#include "platform/platform.h"

namespace blocks {
namespace {

// The same in every language.
constexpr const char* kBlockFileFilter = "Dessin bloc AutoCAD (*.dwg)|*.dwg";
/// Hides the read-only box of the file dialog.
constexpr int kHideReadOnly = 4;

}  // namespace

std::string BrowseBlockFile(const Session& session, forms::FileDialog& dialog, basic::Variant& attributes,
                            const std::string& initialDirectory, const std::string& title) {
    basic::ErrorState errors;  // errors are ignored throughout
    errors.skip([&] { dialog.setFileName(""); });
    errors.skip([&] { dialog.setFilter(kBlockFileFilter); });
    errors.skip([&] { dialog.setFlags(kHideReadOnly); });
    errors.skip([&] { dialog.setInitDir(initialDirectory); });
    errors.skip([&] { dialog.setDialogTitle(title); });
    errors.skip([&] { dialog.showOpen(session.screen()); });
    if (dialog.fileName().empty()) return "";

    std::string baseName;
    errors.skip([&] { baseName = session.platform().baseName(dialog.fileName()); });
    host::BlockReference reference;
    errors.skip([&] { reference = insertTrial(session, dialog.fileName()); });
    // A question that fails counts as a yes; then the array can't be had either and stays as it was.
    if (errors.test([&] { return reference.hasAttributes(); }))
        errors.skip([&] { attributes = reference.GetAttributes().variant(); });
    errors.skip([&] { reference.Delete(); });
    return baseName;
}

}  // namespace blocks
