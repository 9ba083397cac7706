// Placing the marks.
#include "periods/tri_deva.h"

#include <algorithm>
#include <array>

#include "periods/tri_deva_rule.h"
#include "shell/program.h"

namespace navarun {

namespace {

// The first member of the marks of a kind; the second follows it.
constexpr int first_mark_of_kind_c = 1;
constexpr int first_mark_of_kind_t = 4;

}  // namespace

void triDeva(Program& program) {
    auto& form = program.form1;
    auto& periods = program.periods;
    for (int const member : form.ImageTriDeva.indexes()) {
        form.ImageTriDeva(member).Visible = false;
    }
    std::array<std::string_view, 12> months;
    for (int cell = 1; cell <= 12; ++cell) {
        months[static_cast<std::size_t>(cell - 1)] = form.Label_mois(cell).Caption.get();
    }
    auto const found =
        find_tri_deva(form.Label_Dasha(1).Caption.get(),
                      form.Label_annee(program.consultation.colonne_age).Caption.get(), months);

    periods.genre_trideva = found.kind;
    periods.cellules_tridevas = {};
    // The month lords run through nine names in twelve months: none stands more than twice.
    periods.nombre_tridevas =
        static_cast<int>(std::min(found.cells.size(), periods.cellules_tridevas.size()));
    std::ranges::copy_n(found.cells.begin(), periods.nombre_tridevas,
                        periods.cellules_tridevas.begin());
    if (found.kind.empty()) return;
    int member = found.kind == "C" ? first_mark_of_kind_c : first_mark_of_kind_t;
    for (int i = 0; i < periods.nombre_tridevas; ++i) {
        int const cell = periods.cellules_tridevas[static_cast<std::size_t>(i)];
        auto const& place = mark_places[static_cast<std::size_t>(cell - 1)];
        auto& mark = form.ImageTriDeva(member++);
        mark.Left = place.left;
        mark.Top = place.top;
        mark.Visible = true;
    }
}

}  // namespace navarun
