#pragma once

namespace forms {

/// The dialogs' length unit: a twentieth of a point, 1440 to the inch.
using Twips = float;

/// Place and size relative to the container.
struct Bounds {
    Twips left = 0;
    Twips top = 0;
    Twips width = 0;
    Twips height = 0;
    bool operator==(const Bounds&) const = default;
};

}  // namespace forms
