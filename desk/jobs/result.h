#pragma once

#include "desk/jobs/table.h"

#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace jobs {

/// What a job did with one drawing. It travels from a worker process as bytes.
struct Result {
    enum class State {
        Done,
        Unchanged,  ///< there was nothing to do; the reason says why
        Failed,     ///< nothing was written
    };
    std::string drawing;  ///< the file as it was named
    State state = State::Done;
    std::string reason;
    std::string output;  ///< the file that was written; empty for none
    /// What was counted, under the names of the JSON report, in the order of telling.
    std::vector<std::pair<std::string, std::int64_t>> counts;
    std::vector<std::string> notes;  ///< a line each
    Table table;                     ///< of list and of an extraction that goes into one file with others
    double seconds = 0;

    void count(std::string name, std::size_t number) {
        counts.emplace_back(std::move(name), static_cast<std::int64_t>(number));
    }
};

std::string encode(const Result& result);
Result decode(std::string_view bytes);

}  // namespace jobs
