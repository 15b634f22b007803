// A drawing, ASCII or binary: opened leniently, looked at, changed; an undo gives the bytes of before, and
// what is saved can be opened again without new repairs.
#include "desk/drawing/drawing.h"

#include "fuzz/document.h"
#include "fuzz/fuzz_input.h"

namespace {

/// Places a reference of the first block that takes one, and erases the first entity.
void edit(const fuzz::Document& document) {
    const drawing::UndoStep step(document->drawing());
    const host::ObjectPtr space = host::asObject(document->modelSpace());
    fuzz::attempt([&] {
        host::asObject(document->blocks())->enumerate([&](const basic::Variant& element) {
            bool placed = false;
            fuzz::attempt([&] {
                const basic::Variant name = host::asObject(element)->get("Name");
                space->invoke("InsertBlock", {basic::Doubles{1, 2, 3}, name, 1.0, 2.0, 1.0, 0.5});
                placed = true;
            });
            return !placed;
        });
    });
    fuzz::attempt([&] { space->invoke("AddLine", {basic::Doubles{0, 0, 0}, basic::Doubles{1, 1, 0}}); });
    fuzz::attempt([&] { host::asObject(space->invoke("Item", {0}))->invoke("Delete"); });
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    std::unique_ptr<drawing::Drawing> opened;
    try {
        opened = drawing::Drawing::parse(fuzz::text(data, size), "input.dxf");
    } catch (const basic::Error&) {
        return 0;
    }
    const fuzz::Document document(std::move(opened));
    fuzz::readEverything(document);
    const std::string before = document->drawing().savedBytes();
    edit(document);
    const std::string after = document->drawing().savedBytes();
    document->undo();
    if (after != before) fuzz::require(document->drawing().savedBytes() == before);
    try {
        const fuzz::Document again(drawing::Drawing::parse(after, "saved.dxf"));
        fuzz::readEverything(again, 50);
        fuzz::require(again->drawing().savedBytes() == after);
    } catch (const basic::Error&) {
        fuzz::require(after == before);  // what we changed must be readable
    }
    return 0;
}
