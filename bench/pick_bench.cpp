#include "bench/big_drawing.h"
#include "bench/sizes.h"
#include "desk/drawing/drawing.h"
#include "desk/shapes/pick.h"

namespace {

std::vector<drawing::EntityId> entitiesOf(const drawing::Drawing& drawing) {
    std::vector<drawing::EntityId> all;
    drawing.forEachEntity(drawing.modelSpace(), [&](drawing::EntityId id) {
        all.push_back(id);
        return true;
    });
    return all;
}

void atPickSizes(benchmark::internal::Benchmark* benchmark) {
    benchmark->Arg(10'000)->Arg(100'000)->Unit(benchmark::kMicrosecond);
}

/// A pick of a drawing that was just opened: all entities are read once.
void firstPick(benchmark::State& state) {
    const std::string bytes = bench::BigDrawing::make(static_cast<int>(state.range(0)));
    for (auto _ : state) {
        state.PauseTiming();
        auto drawing = drawing::Drawing::parse(bytes, "big.dxf");
        state.ResumeTiming();
        if (!shapes::pickEntity(*drawing, {20.5, 20, 0}, 1)) state.SkipWithError("nothing found");
        state.PauseTiming();
        drawing.reset();
        state.ResumeTiming();
    }
}
BENCHMARK(firstPick)->Apply(atPickSizes);

/// A pick by point after one reference was moved, the move not counted.
void pickAfterAChange(benchmark::State& state) {
    const auto drawing =
        drawing::Drawing::parse(bench::BigDrawing::make(static_cast<int>(state.range(0))), "big.dxf");
    const std::vector<drawing::EntityId> all = entitiesOf(*drawing);
    shapes::pickEntity(*drawing, {20.5, 20, 0}, 1);
    std::size_t next = 0;
    for (auto _ : state) {
        state.PauseTiming();
        next = (next + 7919) % all.size();
        const geometry::Point3 place =
            drawing->placement(all[next]).insertion + geometry::Vector3{0.001, 0, 0};
        drawing->setInsertionPoint(all[next], place);
        state.ResumeTiming();
        if (!shapes::pickEntity(*drawing, place + geometry::Vector3{0.5, 0, 0}, 1))
            state.SkipWithError("nothing found");
    }
}
BENCHMARK(pickAfterAChange)->Apply(atPickSizes);

/// What lies under a cursor that moves over the drawing.
void hover(benchmark::State& state) {
    const auto drawing =
        drawing::Drawing::parse(bench::BigDrawing::make(static_cast<int>(state.range(0))), "big.dxf");
    shapes::pickEntity(*drawing, {20.5, 20, 0}, 1);
    double x = 0;
    for (auto _ : state) {
        x = x > 3900 ? 0 : x + 7;
        benchmark::DoNotOptimize(shapes::entitiesAt(*drawing, drawing->modelSpace(), {x, 100, 0}, 1));
    }
}
BENCHMARK(hover)->Apply(atPickSizes);

}  // namespace
