// The twelve cells of the grid, and the ways round it.
#pragma once

namespace navarun {

/// The cell in which an age stands.
/// @param sun_cell  1..12, the cell of age 1
/// @param age       >= 1
/// @return 1..12
constexpr int cell_of_age(int sun_cell, int age) {
    int const cell = (sun_cell + age - 1) % 12;
    return cell == 0 ? 12 : cell;
}

/// The cell of a column that is reckoned modulo twelve, as `colonne_age_mod` is where a
/// person's sequence has no case for the age.
/// @param column  0..12
/// @return 1..12
constexpr int cell_of_column(int column) { return column == 0 ? 12 : column; }

/// The cell before `cell` round the grid.
/// @param cell  1..12
constexpr int cell_before(int cell) { return cell == 1 ? 12 : cell - 1; }
/// The cell after `cell` round the grid.
/// @param cell  1..12
constexpr int cell_after(int cell) { return cell == 12 ? 1 : cell + 1; }

}  // namespace navarun
