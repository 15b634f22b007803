#include "bench/big_drawing.h"
#include "bench/sizes.h"
#include "desk/drawing/drawing.h"
#include "tests/fakes/temp_folder.h"

namespace {

std::string bigDrawing(const benchmark::State& state) {
    return bench::BigDrawing::make(static_cast<int>(state.range(0)));
}

void openDrawing(benchmark::State& state) {
    const fakes::TempFolder folder;
    const std::string path = folder.write("big.dxf", bigDrawing(state));
    for (auto _ : state) {
        auto drawing = drawing::Drawing::open(path);
        benchmark::DoNotOptimize(drawing->blocks().size());
        // Giving the memory back isn't part of the user's wait.
        state.PauseTiming();
        drawing.reset();
        state.ResumeTiming();
    }
    countReferences(state);
    state.SetBytesProcessed(state.iterations() * static_cast<std::int64_t>(bigDrawing(state).size()));
}
BENCHMARK(openDrawing)->Apply(atAllSizes);

void saveUnchanged(benchmark::State& state) {
    const fakes::TempFolder folder;
    const std::string bytes = bigDrawing(state);
    const auto drawing = drawing::Drawing::parse(bytes, "big.dxf");
    for (auto _ : state) drawing->save(folder.file("saved.dxf"));
    if (folder.read("saved.dxf") != bytes) state.SkipWithError("the saved file differs");
    countReferences(state);
}
BENCHMARK(saveUnchanged)->Apply(atAllSizes);

/// The block is found among as many references of another one.
void selectByName(benchmark::State& state) {
    const auto drawing = drawing::Drawing::parse(bigDrawing(state), "big.dxf");
    const drawing::Filter filter{{100, std::string("AcDbEntity")}, {2, std::string("LAMP")}};
    const drawing::Filter rare{{100, std::string("AcDbEntity")}, {2, std::string("SPOT")}};
    for (auto _ : state) {
        const std::size_t found = drawing->select(filter).size() + drawing->select(rare).size();
        if (found != static_cast<std::size_t>(state.range(0)) + 1) state.SkipWithError("not all found");
    }
    countReferences(state);
}
BENCHMARK(selectByName)->Apply(atAllSizes);

}  // namespace
