// How the birth date follows its parts.
#include "core/consultation.h"

#include "core/text.h"

namespace navarun {

void BirthDate::set_jour_naissance(std::string_view text) {
    m_jour = text;
    rebuild_date_naissance();
    rebuild_jour_mois_anniv();
}

void BirthDate::set_mois_naissance(std::string_view text) {
    m_mois = text;
    rebuild_date_naissance();
    rebuild_jour_mois_anniv();
}

void BirthDate::set_siecle_naissance(std::string_view text) {
    m_siecle = text;
    rebuild_date_naissance();
}

void BirthDate::set_annee_naissance(std::string_view text) {
    m_annee = text;
    rebuild_date_naissance();
}

void BirthDate::set(Date date) {
    m_jour = text::padded(day_of(date), 2);
    m_mois = text::padded(month_of(date), 2);
    m_siecle = text::padded(year_of(date) / 100, 2);
    m_annee = text::padded(year_of(date) % 100, 2);
    rebuild_date_naissance();
    rebuild_jour_mois_anniv();
}

void BirthDate::rebuild_date_naissance() {
    m_date = m_jour;
    m_date.append("/").append(m_mois).append("/").append(m_siecle).append(m_annee);
}

void BirthDate::rebuild_jour_mois_anniv() {
    m_birthday = m_jour;
    m_birthday.append("/").append(m_mois);
}

int BirthDate::year() const { return text::number_of(m_siecle + m_annee); }

}  // namespace navarun
