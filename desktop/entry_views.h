// The controls in which the user writes.
#pragma once

#include <QComboBox>
#include <QLineEdit>
#include <QPlainTextEdit>

#include "desktop/placed_view.h"

namespace navarun::desktop {

class TextFieldView : public PlacedView<screen::TextField, QLineEdit> {
  public:
    TextFieldView(Session& session, screen::TextField& field, QWidget& parent);

  protected:
    void show_content() override;
};

class TextAreaView : public PlacedView<screen::TextArea, QPlainTextEdit> {
  public:
    TextAreaView(Session& session, screen::TextArea& area, QWidget& parent);

  protected:
    void show_content() override;
};

class ComboView : public PlacedView<screen::Combo, QComboBox> {
  public:
    ComboView(Session& session, screen::Combo& combo, QWidget& parent);

  protected:
    void show_content() override;
};

}  // namespace navarun::desktop
