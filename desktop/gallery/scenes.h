// The pictures of the gallery: what is done before each is taken.
#pragma once

#include <QPixmap>
#include <span>

namespace navarun::gallery {

class Stage;

struct Scene {
    char const* name;  // of the picture, without ending
    /// Plays on a program freshly started and returns the picture.
    QPixmap (*play)(Stage& stage);
};

std::span<Scene const> scenes();

}  // namespace navarun::gallery
