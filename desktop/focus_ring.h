// The ring round whatever has the keyboard: one for all kinds of controls, dark on a light
// edge, so that it is seen on every ground of the four schemes.
#pragma once

#include <QFocusFrame>
#include <QPointer>
#include <optional>

namespace navarun::desktop {

// Of this class so that screen readers know it for what it is and pass it by.
class FocusRing : public QFocusFrame {
  public:
    /// @param canvas  holds all that can get the keyboard; the ring never leaves it.
    explicit FocusRing(QWidget& canvas);

    /// Goes round `target`; null takes the ring away.
    void go_round(QWidget* target);
    QWidget* target() const { return m_target; }
    /// The deep tone of the line work.
    void set_tone(QColor const& tone);
    /// Shows a cross at a point of the target: where the keys would press. Gone with the
    /// target.
    void show_point(std::optional<QPointF> point);

    bool eventFilter(QObject* watched, QEvent* event) override;

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    void place();
    bool target_is_covered() const;

    QWidget& m_canvas;
    QPointer<QWidget> m_target;
    QColor m_tone;
    std::optional<QPointF> m_point;
};

}  // namespace navarun::desktop
