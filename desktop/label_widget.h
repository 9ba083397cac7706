// A label: one text in a box, with or without ground and border.
#pragma once

#include <QPainter>
#include <QWidget>
#include <optional>

namespace navarun::desktop {

/// The single line round a box, inside it. It ends where the ground of the box ends, also where
/// the screen has one pixel and a half to the pixel.
void draw_border(QPainter& painter, QRect const& box);

class LabelWidget : public QWidget {
  public:
    explicit LabelWidget(QWidget* parent);

    struct Look {
        QString text;
        QFont font;
        QColor fore;
        QColor back;
        bool opaque = false;
        bool border = false;
        bool centred = false;
        bool operator==(Look const&) const = default;
    };
    void set_look(Look look);
    Look const& look() const { return m_look; }

    /// The place that the text needs: a centred text without ground that is wider than its box
    /// grows to both sides from the box's centre. A text on a ground keeps to its box.
    QRect grown(QRect const& box) const;

    /// By how much a text that does not fit is drawn narrower: 1 for a text that fits.
    double narrowing() const;

  protected:
    void paintEvent(QPaintEvent* event) override;
    /// Offers the text for copying.
    void contextMenuEvent(QContextMenuEvent* event) override;

  private:
    int indent() const;
    double room() const;  // pixels for one line
    double text_width() const;

    Look m_look;
    // Laying letters side by side is most of the work of a label: once for each text.
    mutable std::optional<double> m_text_width;
};

}  // namespace navarun::desktop
