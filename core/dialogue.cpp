// Boxes, waits and messages.
#include "core/dialogue.h"

#include <cstdint>

#include "core/text.h"
#include "shell/program.h"

namespace navarun {

namespace {

void wait(Program& program, float seconds, std::string_view shown_message) {
    auto const timer = [&] {
        return static_cast<float>(program.platform.seconds_since_midnight());
    };
    float const start = timer();
    program.platform.wait(seconds, shown_message);
    if (timer() < start) {
        throw FatalError{"Minuit est passé pendant une attente du programme.",
                         "Dépassement de capacité."};
    }
}

}  // namespace

void boiteDialogue(Program& program) {
    auto& dialogue = program.dialogue;
    Answer const answer = program.platform.box(dialogue.titre_dialogue, dialogue.texte_dialogue,
                                               BoxButtons::ok_cancel);
    dialogue.reponse_dialogue = static_cast<std::uint8_t>(answer);
}

bool agrees_to_erase(Program& program, std::string_view entry) {
    auto& dialogue = program.dialogue;
    dialogue.titre_dialogue = "EFFACER";
    dialogue.texte_dialogue = "VOULEZ-VOUS EFFACER: ";
    dialogue.texte_dialogue.append(text::line_break).append(text::upper(entry)).append(" ?");
    boiteDialogue(program);
    return dialogue.reponse_dialogue == 1;
}

void Pause(Program& program, float seconds) { wait(program, seconds, {}); }

void transient_message(Program& program, std::string_view text, float seconds) {
    auto& form = program.form1;
    form.Label_message.Caption = text;
    form.frame_messageSauve.Visible = true;
    wait(program, seconds, text);
    form.frame_messageSauve.Visible = false;
}

}  // namespace navarun
