#pragma once

#include <QString>
#include <functional>

namespace window {

class BusyBar;
class StatusLine;

/// Runs a function on a worker thread and keeps the window alive meanwhile: beyond 0.2 s with busy cursor and
/// bar, beyond 1 s with `text`, the share that the function tells drawing::WorkWatch, and a button that gives
/// up. The function touches nothing that it doesn't own. Gives false when the user gave up: the function ends
/// when it tells its share the next time, and what it makes goes nowhere. What it raises comes out here.
bool workAside(BusyBar& bar, StatusLine& status, const QString& text, std::function<void()> function);

}  // namespace window
