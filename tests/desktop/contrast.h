// How well two colours are told apart, by the eye's own measure of their light.
#pragma once

#include <QColor>
#include <algorithm>
#include <cmath>

namespace navarun::test {

/// The light that a colour gives: 0 for black, 1 for white.
inline double luminance(QColor const& colour) {
    auto const linear = [](double part) {
        return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF()) +
           0.0722 * linear(colour.blueF());
}

/// From 1, the same light, to 21, black on white; whichever comes first.
inline double contrast(QColor const& one, QColor const& other) {
    double const a = luminance(one) + 0.05;
    double const b = luminance(other) + 0.05;
    return std::max(a, b) / std::min(a, b);
}

/// From here on a text is easily read.
inline constexpr double readable = 4.5;

}  // namespace navarun::test
