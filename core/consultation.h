// One consultation: one person, looked at, at one age. Opening another overwrites it in place.
#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <utility>

#include "core/calendar.h"
#include "files/record_format.h"

namespace navarun {

/// The birth date in its four parts. The whole date, and the birthday, follow the parts at
/// once; between two writes of a part either may be given a wording of its own.
class BirthDate {
  public:
    std::string const& jour_naissance() const { return m_jour; }       // "01".."31"
    std::string const& mois_naissance() const { return m_mois; }       // "01".."12"
    std::string const& siecle_naissance() const { return m_siecle; }   // first two of the year
    std::string const& annee_naissance() const { return m_annee; }     // last two of the year
    std::string const& date_naissance() const { return m_date; }       // dd/mm/yyyy
    std::string const& jour_mois_anniv() const { return m_birthday; }  // dd/mm

    void set_jour_naissance(std::string_view text);
    void set_mois_naissance(std::string_view text);
    void set_siecle_naissance(std::string_view text);
    void set_annee_naissance(std::string_view text);
    /// All four parts, each in two digits. REQUIRES a year of 0..9999.
    void set(Date date);

    /// Makes `date_naissance` anew from the parts.
    void rebuild_date_naissance();
    /// Makes `jour_mois_anniv` anew from its parts.
    void rebuild_jour_mois_anniv();
    /// Stands until a part is next written.
    void reword_date_naissance(std::string text) { m_date = std::move(text); }
    /// Stands until day or month is next written.
    void reword_jour_mois_anniv(std::string text) { m_birthday = std::move(text); }

    /// The year that the parts make, as a number; 0 where they make none.
    int year() const;

  private:
    std::string m_jour;
    std::string m_mois;
    std::string m_siecle;
    std::string m_annee;
    std::string m_date;
    std::string m_birthday;
};

/// The values that one generation leaves for the next step and for the next generation.
struct Consultation {
    BirthDate birth;
    int annee_calcul = 0;  // birth year as a number
    std::uint8_t julien_actif = 0;

    // The Gregorian date of a birth entered in the Julian calendar.
    std::string date_convertie;
    std::string jour_converti;
    std::string mois_converti;
    std::string annee_convertie;

    // Position in the sky.
    std::string annee_solaire;
    int signe_solaire = 0;  // 1..12
    int degre_solaire = 0;  // 0..29
    int palais_index = 0;   // 1..12, the sun's cell between two walks round the grid
    std::array<std::string_view, 12> categorie_palais{};  // by cell
    int numero_nakshatra = 0;                             // 1..27

    // Position in time.
    int age_courant = 1;
    int colonne_age = 0;      // 1..12
    int colonne_age_mod = 0;  // 0..12
    int colonne_dasha = 0;    // 1..12, the selected cell of the period
    int colonne_mois = 0;     // 1..12, the selected month
    std::string annee_defile;
    std::string date_annee_courante;
    std::optional<Date> fin_annee_defile;
    int seigneur_an = 0;  // 1..9

    // Numbers of the person.
    int numero_jour = 0;    // 1 for Sunday .. 7
    int seigneur_jour = 0;  // 1..9
    std::string texte_jour;
    int dinanka = 0;   // 1..9
    int purnanka = 0;  // 1..9
    std::string texte_dinanka;
    std::string texte_purnanka;
    std::string texte_nakshatra;

    PortraitName fichier_photo;
};

}  // namespace navarun
