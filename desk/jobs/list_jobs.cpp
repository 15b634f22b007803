#include "desk/drawing/drawing.h"
#include "desk/dxf/findings.h"
#include "desk/jobs/job.h"
#include "desk/jobs/references.h"
#include "desk/model/listing.h"

namespace jobs {

void listBlocks(Job& job) {
    const drawing::Drawing& drawing = job.drawing();
    if (job.arguments.has("--block")) {
        const std::string block = blockNamed(drawing, job.arguments.value("--block"));
        if (block.empty()) {
            job.result.state = Result::State::Unchanged;
            job.result.reason = "no block " + job.arguments.value("--block");
            return;
        }
        job.result.table.headers = {"handle", "layout", "layer", "x", "y", "z", "attributes"};
        for (const model::ReferenceLine& line : model::listReferences(drawing, block))
            job.result.table.rows.push_back(
                {line.handle, line.layout, line.layer, line.x, line.y, line.z, line.attributes});
        job.result.count("references", job.result.table.rows.size());
        return;
    }
    job.result.table.headers = {"references", "block", "kind"};
    const model::BlockListing listing = model::listBlocks(drawing);
    for (const model::BlockLine& line : listing.lines)
        job.result.table.rows.push_back(
            {std::to_string(line.references), line.name, line.isXRef ? "external reference" : "block"});
    job.result.count("blocks", job.result.table.rows.size());
    if (listing.anonymous > 0) job.result.count("withoutNameOrReferences", listing.anonymous);
}

void checkDrawing(Job& job) {
    const std::vector<dxf::Finding>& findings = job.drawing().findings();
    job.result.count("findings", findings.size());
    for (const dxf::Finding& finding : findings) job.result.notes.push_back(dxf::toText(finding));
    if (findings.empty()) return;
    job.result.state = Result::State::Failed;
    job.result.reason = std::to_string(findings.size()) + (findings.size() == 1 ? " finding" : " findings");
}

}  // namespace jobs
