// A drawing brought in as a block: into a drawing of ours, and a block of ours into it.
#include "desk/drawing/drawing.h"
#include "fuzz/document.h"
#include "fuzz/fuzz_input.h"

namespace {

/// Brings a file in, saves, opens what was saved, takes it back.
void bringIn(const fuzz::Document& document, const std::string& file) {
    const std::string before = document->drawing().savedBytes();
    {
        const drawing::UndoStep step(document->drawing());
        fuzz::attempt([&] {
            host::asObject(document->modelSpace())
                ->invoke("InsertBlock", {basic::Doubles{0, 0, 0}, file, 1.0, 1.0, 1.0, 0.0});
        });
    }
    const std::string after = document->drawing().savedBytes();
    if (after == before) return;
    fuzz::readEverything(document, 50);
    drawing::Drawing::parse(after, "saved.dxf");
    document->undo();
    fuzz::require(document->drawing().savedBytes() == before);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static const fuzz::Folder folder;
    static const std::string sample = fuzz::readSample("template.dxf");
    static const std::string ours = folder.write("ours.dxf", sample);
    const std::string theirs = folder.write("theirs.dxf", fuzz::text(data, size));
    bringIn(fuzz::Document(drawing::Drawing::parse(sample, "ours.dxf")), theirs);
    std::unique_ptr<drawing::Drawing> opened;
    try {
        opened = drawing::Drawing::parse(fuzz::text(data, size), "theirs.dxf");
    } catch (const basic::Error&) {
        return 0;
    }
    bringIn(fuzz::Document(std::move(opened)), ours);
    return 0;
}
