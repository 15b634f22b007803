#include "bench/big_drawing.h"
#include "bench/sizes.h"
#include "desk/model/document.h"
#include "host/document.h"
#include "tests/fakes/fake_platform.h"
#include "tests/fakes/recording_screen.h"
#include "tests/fakes/replacement_fields.h"
#include "tests/fakes/scripted_prompter.h"

namespace {

/// All references of LAMP become references of SPOT, each of the three attributes taking its value from the
/// old one: what a click on BtnReplace does, through the automation objects.
void replaceWithThreeAttributes(benchmark::State& state) {
    const std::string bytes = bench::BigDrawing::make(static_cast<int>(state.range(0)));
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
        state.ResumeTiming();

        session.ReplaceSelectionSet->invoke(
            "Select", {host::kSelectAll, basic::Missing{}, basic::Missing{}, basic::Shorts{100, 2},
                       basic::Array{"AcDbEntity", "LAMP"}});
        {
            const drawing::UndoStep step(document->drawing());
            replace::ReplaceBlocks(session, fields);
        }

        state.PauseTiming();
        if (document->drawing().select({{2, std::string("LAMP")}}).size() != 0)
            state.SkipWithError("not all done");
        session.ReplaceSelectionSet.reset();
        session.AcadDoc.reset();
        document.reset();
        application.reset();
        state.ResumeTiming();
    }
    countReferences(state);
}
BENCHMARK(replaceWithThreeAttributes)->Apply(atAllSizes);

}  // namespace
