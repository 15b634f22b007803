#include "desk/drawing/work_watch.h"

#include <algorithm>
#include <utility>

namespace drawing {

thread_local WorkWatch* WorkWatch::current_ = nullptr;

WorkWatch::WorkWatch(std::function<void(double)> tell)
    : tell_(std::move(tell)), before_(std::exchange(current_, this)) {}

WorkWatch::~WorkWatch() { current_ = before_; }

void WorkWatch::stage(double from, double to) {
    if (current_ == nullptr) return;
    current_->from_ = from;
    current_->to_ = to;
}

void WorkWatch::pass(double share) const { tell_(from_ + (to_ - from_) * std::clamp(share, 0.0, 1.0)); }

}  // namespace drawing
