#pragma once

#include <cstddef>
#include <functional>

namespace drawing {

/// Who waits for long work on a drawing, on the thread of the watch: reading a file, preparing its picture or
/// what a pick looks at tell it now and then how far they have come. As long as it lives it is the thread's
/// watch, in place of the one before.
class WorkWatch {
  public:
    /// `tell` gets the share done, 0 to 1. What it raises ends the work; the drawing is then of no use.
    explicit WorkWatch(std::function<void(double share)> tell);
    ~WorkWatch();
    WorkWatch(const WorkWatch&) = delete;
    WorkWatch& operator=(const WorkWatch&) = delete;

    /// What follows on this thread is a part of the whole, from one share to another.
    static void stage(double from, double to);
    /// To be called by the work, for some hundred steps at a time. Without a watch nothing happens.
    static void tell(double share) {
        if (current_ != nullptr) current_->pass(share);
    }

  private:
    void pass(double share) const;

    static thread_local WorkWatch* current_;
    std::function<void(double)> tell_;
    WorkWatch* before_;
    double from_ = 0;
    double to_ = 1;
};

/// Steps of one piece of work, of which only some tell.
class WorkSteps {
  public:
    /// A step at `place` of all places from 0 to `end`.
    void step(std::size_t place, std::size_t end) {
        if (++count_ % kBetween == 0) WorkWatch::tell(static_cast<double>(place) / static_cast<double>(end));
    }

  private:
    static constexpr unsigned kBetween = 256;
    unsigned count_ = 0;
};

}  // namespace drawing
