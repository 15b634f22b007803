#pragma once

#include <benchmark/benchmark.h>

/// The sizes of a benchmark in references of three attributes, with the time's growth over them. The largest
/// stays below the 32,767 references that one replacement can do.
inline void atAllSizes(benchmark::internal::Benchmark* benchmark) {
    benchmark->Arg(1000)->Arg(10'000)->Arg(32'000)->Complexity(benchmark::oN);
    benchmark->Unit(benchmark::kMillisecond);
}

/// Tells how many references a benchmark went through.
inline void countReferences(benchmark::State& state) {
    state.SetComplexityN(state.range(0));
    state.SetItemsProcessed(state.iterations() * state.range(0));
}
