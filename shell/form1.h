// Form1, the main window: the table of its controls with their design-time values.
//
// The order of the members is the stacking order, the lowest first. Places are twips in the
// container's own coordinates. What a control does stands with the subsystem that answers it.
#pragma once

#include "shell/screen/choice.h"
#include "shell/screen/control.h"
#include "shell/screen/control_array.h"
#include "shell/screen/entry.h"
#include "shell/screen/form.h"
#include "shell/screen/list.h"
#include "shell/screen/picture_box.h"

namespace navarun {

class Form1 : public screen::Form {
  public:
    explicit Form1(screen::Screen& screen);

    // The sky behind everything.
    screen::Image Image2;
    screen::Image Image_Titre;
    screen::Image Image1;

    // The chart and the twelve cells on it; index n is column n of the grid.
    screen::PictureBox Picture_KUNDALI;
    screen::ControlArray<screen::Image>
        ImageTriDeva;  // 1, 2, 4, 5: the gap parts the two kinds
    screen::ControlArray<screen::Label> Label_Dasha;
    screen::ControlArray<screen::Label> Label_DashaDate;
    screen::ControlArray<screen::Label> Label_annee;
    screen::ControlArray<screen::Label> Label_mois;
    screen::ControlArray<screen::Label> Label_MoisDate;
    screen::ControlArray<screen::Label> Label_Solaire;
    screen::TextArea Text_definition_palais;

    // Who, and when.
    screen::Label Label4;
    screen::TextField Text_prenom;
    screen::TextField Text_nom;
    screen::Image Image_cal_Julien;
    screen::Label Label_cal_julien;
    screen::Combo Combo_jourNaiss;
    screen::Combo Combo_moisNaiss;
    screen::Combo Combo_AnNaiss1;
    screen::Combo Combo_AnNaiss2;

    // Portrait and sign.
    screen::PictureBox Picture_PHOTO;
    screen::Label Label_zodiac;
    screen::TextArea Text_zodiac;
    screen::Label Label_nomNakshatra;
    screen::Label Label_Nak;
    screen::Button Bouton_Internet;
    screen::Button Bouton_Image;
    screen::ControlArray<screen::Button> Charge;  // 1 and 2
    screen::Button Command_reset;
    screen::Button Command_Disk_Vert;

    // Weekday, numbers, notes and lists.
    screen::Label Label_jourdeSemaine;
    screen::Label Label_divinite;
    screen::Label Label_dinanka_Purnanka;
    screen::TextArea Text_jourdeSemaine;
    screen::TextArea Text_Note;
    screen::Frame Frame_FileFichier;
    screen::List File_Fichier;
    screen::TextField Text_Cherche;
    screen::Label Label_Nbr_Fiche;
    screen::Label Label_deplace;
    screen::Frame Frame_Internet;
    screen::List List_Internet;
    screen::TextField Text_New_URL;

    // The bottom strip: the age and what to do with it.
    screen::Label Label_Lal_Kitab;
    screen::Shape Shape_defile_an;
    screen::Label Label_anneedefile;
    screen::Label Label_anneedefile_Suite;
    screen::Label Label_age;
    screen::ScrollBar HScroll_age;
    screen::Button Command2;
    screen::Button Command_DateNow;
    screen::Button Command_categorie;
    screen::Button Btn_cycle_partiel;
    screen::Button Bouton_seigneurjour;

    // Overlays, hidden until needed.
    screen::PictureBox Picture2;
    screen::Frame frame_messageSauve;
    screen::Shape Shape_message;
    screen::Label Label_message;

    // The menu bar.
    screen::MenuEntry MnuBouton_Menu;
    screen::MenuEntry MnuDevant;
    screen::MenuEntry MnuNavarun;
    screen::MenuEntry MnuPersonalite;
    screen::MenuEntry Mnucelebrites;
    screen::MenuSeparator separation1;
    screen::MenuEntry MnuAide;
    screen::MenuEntry MnuPropos;
    screen::MenuEntry MnuQuitter;
    screen::MenuEntry MnuBouton_impression;
    screen::MenuEntry MnuImprime;
    screen::MenuEntry MnuApercu_Impression;
    screen::MenuEntry MnuBouton_Outil;
    screen::MenuEntry Mnu_Julien;
    screen::MenuEntry MnuFleche;
    screen::MenuEntry MnuCalendrier;
    screen::MenuSeparator separation;
    screen::MenuEntry MnuCalculatrice;
    screen::MenuEntry MnuBlocNotes;
    screen::MenuEntry Mnu_afficher;
    screen::MenuEntry Mnu_palaisdestin;
    screen::MenuEntry Mnuperiode;
    screen::MenuEntry MnuBouton_Apparence;
    screen::MenuEntry MnuCouleur_Navarun;
    screen::MenuEntry MnuAzur_cycle;
    screen::MenuEntry MnuAzur_Aum;
    screen::MenuEntry MnuMauve_cycle;
    screen::MenuEntry MnuMauve_Aum;
    screen::MenuSeparator separation_apparence;
    screen::MenuEntry Mnu_abrege;
};

}  // namespace navarun
