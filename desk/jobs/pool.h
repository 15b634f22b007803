#pragma once

#include "desk/jobs/result.h"

#include <atomic>
#include <cstddef>
#include <functional>

namespace jobs {

/// Does `count` pieces of work in worker processes, `workers` at once. Each process takes one piece after the
/// other: `work` gets the piece's number and the worker's, `done` gets the results, in the order of the
/// pieces, in this process. A worker that dies fails its piece alone, and another takes its place.
///
/// No piece is begun after `stop` has become true; those in work are finished. Returns the number of pieces
/// done.
std::size_t runPool(std::size_t count, std::size_t workers,
                    const std::function<Result(std::size_t piece, std::size_t worker)>& work,
                    const std::function<void(std::size_t piece, Result result)>& done,
                    const std::atomic<bool>& stop);

}  // namespace jobs
