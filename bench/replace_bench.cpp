#include "bench/big_drawing.h"
#include "bench/sizes.h"
#include "desk/model/document.h"
#include "host/document.h"
#include "replace/block_list.h"
#include "tests/fakes/fake_platform.h"
#include "tests/fakes/recording_screen.h"
#include "tests/fakes/replacement_fields.h"
#include "tests/fakes/scripted_prompter.h"

namespace {

enum class Timed { Replacement, Undo };

/// All references of LAMP become references of SPOT, each of the three attributes taking its value from the
/// old one: what a click on BtnReplace does, through the automation objects. With `turned` each reference has
/// a rotation of its own.
void replaceWithThreeAttributes(benchmark::State& state, bool turned, Timed timed) {
    const std::string bytes = bench::BigDrawing::make(static_cast<int>(state.range(0)), turned);
    fakes::ScriptedPrompter prompter;
    fakes::FakePlatform platform;
    fakes::RecordingScreen screen;
    fakes::ReplacementFields fields;
    fields.name = "SPOT";
    fields.destinations = {"CODE", "PLACE", "WATT"};
    for (auto _ : state) {
        state.PauseTiming();
        model::Environment environment;
        environment.prompter = &prompter;
        environment.regional = basic::Regional::english();
        auto application = std::make_shared<model::Application>(std::move(environment));
        auto document = application->open(drawing::Drawing::parse(bytes, "big.dxf"));
        session::Session session(platform, screen);
        session.CurLng = {"English", VORLANE_ROOT "/resources/languages/English.LNG"};
        session.AcadDoc = document;
        session.ReplaceSelectionSet =
            host::asObject(host::asObject(document->get("SelectionSets"))->invoke("Add", {"SS1"}));
        if (timed == Timed::Replacement) state.ResumeTiming();

        session.ReplaceSelectionSet->invoke(
            "Select", {host::kSelectAll, basic::Missing{}, basic::Missing{}, basic::Shorts{100, 2},
                       basic::Array{"AcDbEntity", "LAMP"}});
        {
            const drawing::UndoStep step(document->drawing());
            replace::ReplaceBlocks(session, fields);
        }

        if (timed == Timed::Replacement) state.PauseTiming();
        if (document->drawing().select({{2, std::string("LAMP")}}).size() != 0)
            state.SkipWithError("not all done");
        if (timed == Timed::Undo) {
            state.ResumeTiming();
            document->drawing().undo();
            state.PauseTiming();
        }
        session.ReplaceSelectionSet.reset();
        session.AcadDoc.reset();
        document.reset();
        application.reset();
        state.ResumeTiming();
    }
    countReferences(state);
}
BENCHMARK_CAPTURE(replaceWithThreeAttributes, straight, false, Timed::Replacement)->Apply(atAllSizes);
BENCHMARK_CAPTURE(replaceWithThreeAttributes, turned, true, Timed::Replacement)->Apply(atAllSizes);
BENCHMARK_CAPTURE(replaceWithThreeAttributes, undone, true, Timed::Undo)->Apply(atAllSizes);

/// The list of the dialog's blocks, whose names come in no order.
void listManyBlocks(benchmark::State& state) {
    const auto count = static_cast<std::size_t>(state.range(0));
    blocks::BlockNames names;
    for (std::size_t i = 0; i < count; ++i) names.Add("BLOCK_" + std::to_string(i * 7919 % count));
    for (auto _ : state) {
        forms::Form form("fmReplace", "", "");
        forms::ListBox list(form, "lstDestination");
        replace::AddItemSorted(list, names);
        if (list.listCount() != names.Count()) state.SkipWithError("blocks are missing");
    }
    state.SetComplexityN(state.range(0));
}
BENCHMARK(listManyBlocks)->Arg(1000)->Arg(10'000)->Arg(30'000)->Unit(benchmark::kMillisecond)->Complexity();

}  // namespace
