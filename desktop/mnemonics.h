// The letters by which the entries of a menu are reached from the keyboard.
#pragma once

#include <QStringList>

namespace navarun::desktop {

/// The captions of one menu with a letter of each marked by "&", no letter twice.
///
/// The first letter of a caption is preferred, then the first ones of its other words, then any
/// other; letters without an accent come first, they are on every keyboard. A caption that has
/// a mark of its own keeps it. One for which no letter is left stays without.
QStringList with_mnemonics(QStringList const& captions);

}  // namespace navarun::desktop
