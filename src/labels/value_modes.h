#pragma once

#include <array>
#include <string_view>

namespace labels {

/// Where an attribute's value comes from: the index in the list of modes.
enum ValueMode : int {
    kManual,  ///< typed in the list
    kPointX,  ///< coordinates of a picked point
    kPointY,
    kPointZ,
    kObjectLength,     ///< length of an object picked by one click
    kPolygonLength,    ///< length of a clicked open polygon
    kObjectPerimeter,  ///< the same reading as the length
    kPolygonPerimeter,
    kObjectArea,
    kPolygonArea,
    kCounter,  ///< a counter kept for each attribute
    kObjectLayer,
    kObjectColor,
};

/// The texts of the list of modes. They are data, not captions: the insertion finds a row's mode again by its
/// text, so they are the same in every language.
inline constexpr std::array<std::string_view, 13> kModeTexts{
    "Saisie manuel",
    "Abscisse X Auto",
    "Ordonnée Y Auto",
    "Cote Z Auto",
    "Longueur Auto Monoclic",
    "Longueur Auto Polyclic",
    "Périmètre Auto Monoclic",
    "Périmètre Auto Polyclic",
    "Aire Auto Monoclic",
    "Aire Auto Polyclic",
    "Incrément Auto",
    "Nom du Calque",
    "Couleur",
};

/// Whether the values of a mode go through the numeric picture.
constexpr bool isNumericMode(int mode) { return mode >= kPointX && mode <= kPolygonArea; }
/// Whether a mode measures a polygon that the user clicks.
constexpr bool isPolygonMode(int mode) {
    return mode == kPolygonLength || mode == kPolygonPerimeter || mode == kPolygonArea;
}

/// The list of decimals: an entry's index is its number of decimals, and only that is ever stored.
inline constexpr std::array<std::string_view, 10> kDecimalMasks{
    "0", "0.0", "0.00", "0.000", "0.0000", "0.00000", "0.000000", "0.0000000", "0.00000000", "0.000000000",
};

}  // namespace labels
