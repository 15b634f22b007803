#pragma once

#include "desk/jobs/options.h"
#include "desk/jobs/result.h"

#include <chrono>
#include <cstddef>
#include <iosfwd>
#include <string>
#include <vector>

namespace jobs {

/// Tells what was done, and alone knows words and exit code. Failures go to the error stream as they happen,
/// all else to the output.
class Report {
  public:
    Report(const Arguments& arguments, std::size_t drawings, std::ostream& output, std::ostream& errors);

    void add(const Result& result);
    /// The summary, or the whole report as JSON. `done` is less than the number of drawings after Ctrl-C.
    void finish(std::size_t done, double seconds);

    /// Rewrites the line of progress of a terminal: drawings done, rate, time left.
    void progress();
    void showProgress(bool show) { shows_ = show; }

    bool anyFailed() const { return failed_ > 0; }

  private:
    void tell(const Result& result);
    void tellTable(const Result& result);
    void clearProgress();
    std::string state(const Result& result) const;
    std::string summary(std::size_t done, double seconds) const;
    void writeJson(std::size_t done, double seconds);

    const Arguments& arguments_;
    std::size_t drawings_;
    std::ostream& output_;
    std::ostream& errors_;
    std::vector<Result> results_;  ///< for JSON alone
    std::vector<std::pair<std::string, std::int64_t>> totals_;
    std::size_t done_ = 0, unchanged_ = 0, failed_ = 0;
    std::chrono::steady_clock::time_point start_ = std::chrono::steady_clock::now();
    std::chrono::steady_clock::time_point lastProgress_;
    bool shows_ = false;
    bool progressUp_ = false;
};

/// A text as a JSON string with its quotes; bytes that are no UTF-8 become U+FFFD.
std::string jsonString(std::string_view text);

}  // namespace jobs
