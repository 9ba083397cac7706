// Taking the values of the fields, and writing them again.
#include "benchmarks/ready_fields.h"

#include "core/cells.h"

namespace navarun {

ReadyState::ReadyState(Form1 const& form)
    : m_button{form.Command2.Picture.get()},
      m_tooltip{form.Command2.ToolTipText.get()},
      m_age_back{form.Label_age.BackColor.get()},
      m_can_print{form.MnuImprime.Enabled.get()} {}

void ReadyState::write(Form1& form) const {
    form.Command2.Picture = m_button;
    form.Command2.ToolTipText = m_tooltip;
    form.Mnuperiode.Enabled = m_can_print;
    form.MnuImprime.Enabled = m_can_print;
    form.MnuApercu_Impression.Enabled = m_can_print;
    form.Mnu_palaisdestin.Enabled = m_can_print;
    form.Label_age.BackColor = m_age_back;
}

ReadyAge::ReadyAge(Form1 const& form)
    : m_position{form.HScroll_age.Value.get()},
      m_tag{form.HScroll_age.Tag.get()},
      m_first_day{form.Label_anneedefile.Caption.get()},
      m_last_day{form.Label_anneedefile_Suite.Caption.get()},
      m_lord{form.Label_Lal_Kitab.Caption.get()},
      m_age{form.Label_age.Caption.get()} {}

void ReadyAge::write(Form1& form) const {
    form.HScroll_age.Value = m_position;
    form.Text_definition_palais.Visible = false;
    form.Picture2.Visible = false;
    form.Label_anneedefile.Caption = m_first_day;
    form.Label_anneedefile_Suite.Caption = m_last_day;
    form.Label_Lal_Kitab.Caption = m_lord;
    form.HScroll_age.Tag = m_tag;
    form.Label_age.Caption = m_age;
}

ReadyGrid::ReadyGrid(Program const& program)
    : m_sun_cell{program.consultation.palais_index},
      m_year_cell{cell_of_age(m_sun_cell, program.periods.age_scroll)},
      m_chart{program.form1.Picture_KUNDALI.Picture.get()},
      m_tag{program.form1.HScroll_age.Tag.get()},
      m_calendar{program.form1.Label_cal_julien.Caption.get()},
      m_calendar_fore{program.form1.Label_cal_julien.ForeColor.get()},
      m_julian{program.form1.Image_cal_Julien.Visible.get()},
      m_mansion{program.form1.Label_nomNakshatra.Caption.get()},
      m_lord{program.form1.Label_Nak.Caption.get()},
      m_lord_back{program.form1.Label_Nak.BackColor.get()},
      m_lord_fore{program.form1.Label_Nak.ForeColor.get()},
      m_zodiac{program.form1.Label_zodiac.Caption.get()},
      m_zodiac_reading{program.form1.Text_zodiac.Text.get()},
      m_age_lord{program.form1.Label_Lal_Kitab.Caption.get()} {
    auto const& form = program.form1;
    auto const name = [](screen::Label const& label) {
        return Name{label.Caption.get(), label.ForeColor.get(), label.FontBold.get()};
    };
    auto const date = [](screen::Label const& label) {
        return DateText{label.Caption.get(), label.ForeColor.get()};
    };
    for (int i = 1; i <= 12; ++i) {
        auto const& palace = form.Label_Solaire(i);
        m_cells[static_cast<std::size_t>(i - 1)] = {
            .year = form.Label_annee(i).Caption.get(),
            .period = name(form.Label_Dasha(i)),
            .period_date = date(form.Label_DashaDate(i)),
            .month = name(form.Label_mois(i)),
            .month_date = date(form.Label_MoisDate(i)),
            .palace = palace.Caption.get(),
            .palace_back = palace.BackColor.get(),
            .palace_tooltip = palace.ToolTipText.get(),
        };
    }
    auto mark = m_marks.begin();
    for (int const index : form.ImageTriDeva.indexes()) {
        auto const& image = form.ImageTriDeva(index);
        *mark++ = {index, image.Left.get(), image.Top.get(), image.Visible.get()};
    }
}

void ReadyGrid::write(Program& program) const {
    auto& form = program.form1;
    form.Picture_KUNDALI.Picture = m_chart;
    program.choix_age.Visible = false;
    form.HScroll_age.Tag = m_tag;
    form.Mnuperiode.Enabled = true;
    form.Label_cal_julien.Caption = m_calendar;
    form.Label_cal_julien.ForeColor = m_calendar_fore;
    form.Image_cal_Julien.Visible = m_julian;
    form.Label_nomNakshatra.Caption = m_mansion;
    form.Label_Nak.Caption = m_lord;
    form.Label_Nak.BackColor = m_lord_back;
    form.Label_Nak.ForeColor = m_lord_fore;
    form.Label_zodiac.Caption = m_zodiac;
    form.Text_zodiac.Text = m_zodiac_reading;
    form.Label_Lal_Kitab.Caption = m_age_lord;
    auto const write_name = [](screen::Label& label, Name const& name) {
        label.Caption = name.caption;
        label.ForeColor = name.fore;
        label.FontBold = name.bold;
    };
    auto const write_date = [](screen::Label& label, DateText const& date) {
        label.Caption = date.caption;
        label.ForeColor = date.fore;
    };
    for (int i = 1; i <= 12; ++i) {
        auto const& cell = m_cells[static_cast<std::size_t>(i - 1)];
        form.Label_annee(i).Caption = cell.year;
        write_name(form.Label_Dasha(i), cell.period);
        write_date(form.Label_DashaDate(i), cell.period_date);
        form.Label_mois(i).Visible = true;
        write_name(form.Label_mois(i), cell.month);
        write_date(form.Label_MoisDate(i), cell.month_date);
        auto& palace = form.Label_Solaire(i);
        palace.Visible = true;
        palace.Caption = cell.palace;
        palace.BackColor = cell.palace_back;
        palace.ToolTipText = cell.palace_tooltip;
    }
    form.Label_annee(m_year_cell).Visible = true;
    auto& sun = form.Label_Solaire(m_sun_cell);
    sun.Border = true;
    sun.Opaque = true;
    sun.Tag = "1";
    for (auto const& mark : m_marks) {
        auto& image = form.ImageTriDeva(mark.index);
        image.Visible = mark.visible;
        if (!mark.visible) continue;
        image.Left = mark.left;
        image.Top = mark.top;
    }
}

}  // namespace navarun
