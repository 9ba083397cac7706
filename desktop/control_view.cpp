// The widgets of the kinds, and which one suits a control.
#include "desktop/control_view.h"

#include <QAbstractButton>
#include <QCheckBox>
#include <QComboBox>
#include <QKeyEvent>
#include <QPainter>
#include <QRadioButton>
#include <QScrollBar>
#include <algorithm>

#include "desktop/entry_views.h"
#include "desktop/label_widget.h"
#include "desktop/list_view.h"
#include "desktop/page_painter.h"
#include "desktop/placed_view.h"
#include "desktop/stand_in_keys.h"
#include "desktop/tab_walk.h"

namespace navarun::desktop {

namespace {

Reaction reaction_of(screen::PlacedControl const& control) {
    if (control.on_click) return Reaction::click;
    return control.on_double_click ? Reaction::double_click : Reaction::none;
}

class LabelView : public PlacedView<screen::Label, LabelWidget> {
  public:
    LabelView(Session& session, screen::Label& label, QWidget& parent)
        : PlacedView{session, label, new LabelWidget{&parent}} {
        tell_mouse(session, label, shown());
        if (is_stop_of_the_desktop(label)) tell_keys(session, label, shown());
        present(shown(), SpokenRole::text, reaction_of(label));
    }

  protected:
    QRect place() const override { return shown().grown(to_rect(control())); }
    void show_content() override { shown().set_look(look()); }

  private:
    LabelWidget::Look look() const {
        auto const& label = control();
        return {
            .text = to_qt(label.Caption.get()),
            .font = font_of(label),
            .fore = to_qt(label.ForeColor.get()),
            .back = to_qt(label.BackColor.get()),
            .opaque = label.Opaque,
            .border = label.Border,
            .centred = label.Align == screen::Alignment::centre,
        };
    }
};

// A ground and a picture; other controls may lie on it.
class SurfaceWidget : public QWidget {
  public:
    SurfaceWidget(Pictures& pictures, QWidget* parent)
        : QWidget{parent}, m_pictures{pictures} {}

    struct Look {
        std::string picture;
        QColor ground;  // invalid: none
        bool stretched = false;
        bool border = false;
        bool marks = false;                    // a frame that picks out what lies below it
        std::vector<screen::DrawnLine> lines;  // the persistent ones first
        std::optional<screen::PaintedFile> file;
        std::shared_ptr<screen::Page const> page;  // its width fills the widget
        bool operator==(Look const&) const = default;
    };
    void set_look(Look const& look) {
        if (look == m_look) return;
        m_look = look;
        update();
    }

  protected:
    void paintEvent(QPaintEvent*) override {
        QPainter painter{this};
        if (m_look.ground.isValid()) painter.fillRect(rect(), m_look.ground);
        QSize const size = m_look.stretched ? this->size() : picture_size();
        m_pictures.draw(painter, m_look.picture, QRectF{QPointF{0, 0}, QSizeF{size}});
        if (m_look.file) {
            m_pictures.draw_file(painter, *m_look.file, devicePixelRatioF());
        }
        if (m_look.page) {
            paint_page(painter, m_pictures, *m_look.page, m_look.page->ratio * pixels_per_inch,
                       PageDevice::screen);
        }
        draw_lines(painter);
        if (m_look.border) draw_border(painter, rect());
        if (m_look.marks) {
            // Seen on every ground: dark outside, light inside.
            painter.setPen(QPen{Qt::black, 2});
            painter.drawRect(rect().adjusted(1, 1, -1, -1));
            painter.setPen(QPen{Qt::white, 2});
            painter.drawRect(rect().adjusted(3, 3, -3, -3));
        }
    }

  private:
    void draw_lines(QPainter& painter) const {
        if (m_look.lines.empty()) return;
        painter.setRenderHint(QPainter::Antialiasing);
        for (auto const& line : m_look.lines) {
            painter.setPen(QPen{to_qt(line.colour), static_cast<double>(line.width),
                                Qt::SolidLine, Qt::RoundCap});
            painter.drawLine(QPointF{line.x1, line.y1} / twips_per_pixel,
                             QPointF{line.x2, line.y2} / twips_per_pixel);
        }
        painter.setRenderHint(QPainter::Antialiasing, false);
    }

    // At its nominal size, but never beyond the box by the pixel that rounding makes.
    QSize picture_size() const {
        QSize const natural = m_pictures.natural_size(m_look.picture);
        QSize const beyond = natural - size();
        bool const by_rounding = std::max(beyond.width(), beyond.height()) <= 1;
        return by_rounding ? natural.boundedTo(size()) : natural;
    }

    Pictures& m_pictures;
    Look m_look;
};

template <typename C>
class SurfaceView : public PlacedView<C, SurfaceWidget> {
  public:
    SurfaceView(Session& session, C& control, QWidget& parent)
        : PlacedView<C, SurfaceWidget>{session, control,
                                       new SurfaceWidget{session.pictures(), &parent}} {
        tell_mouse(session, control, this->shown());
        if (is_stop_of_the_desktop(control)) tell_keys(session, control, this->shown());
        present(this->shown(), role_of(control), reaction_of(control));
        if (control.on_file_drop) tell_file_drops(session, control, this->shown());
    }

  protected:
    void show_content() override { this->shown().set_look(look_of(this->control())); }

  private:
    static SpokenRole role_of(screen::PictureBox const&) { return SpokenRole::picture; }
    static SpokenRole role_of(screen::Frame const&) { return SpokenRole::group; }
    static SpokenRole role_of(screen::Shape const&) { return SpokenRole::decoration; }
    // A picture that nobody speaks of is there for the eye alone.
    static SpokenRole role_of(screen::Image const& image) {
        bool const named =
            image.speak ? !image.speak().empty() : !image.SpokenName.get().empty();
        return named ? SpokenRole::icon : SpokenRole::decoration;
    }

    static SurfaceWidget::Look look_of(screen::Image const& image) {
        return {.picture = image.Picture.get().name(),
                .ground = {},
                .stretched = image.Stretched,
                .lines = {},
                .file = {},
                .page = {}};
    }
    static SurfaceWidget::Look look_of(screen::PictureBox const& box) {
        auto lines = box.lines(screen::Layer::persistent);
        auto const& rubber = box.lines(screen::Layer::rubber);
        lines.insert(lines.end(), rubber.begin(), rubber.end());
        return {.picture = box.Picture.get().name(),
                .ground = to_qt(box.BackColor.get()),
                .border = box.Border,
                .lines = std::move(lines),
                .file = box.painted(),
                .page = box.page()};
    }
    static SurfaceWidget::Look look_of(screen::Frame const& frame) {
        return {.picture = {},
                .ground = to_qt(frame.BackColor.get()),
                .border = true,
                .lines = {},
                .file = {},
                .page = {}};
    }
    static SurfaceWidget::Look look_of(screen::Shape const& shape) {
        return {.picture = {},
                .ground = shape.Filled ? to_qt(shape.BackColor.get()) : QColor{},
                .border = shape.Border,
                .marks = shape.Border && !shape.Filled,
                .lines = {},
                .file = {},
                .page = {}};
    }
};

// A button that is all picture.
class PictureButton : public QAbstractButton {
  public:
    PictureButton(Pictures& pictures, QWidget* parent)
        : QAbstractButton{parent}, m_pictures{pictures} {
        setFocusPolicy(Qt::StrongFocus);
    }

    void set_ground(QColor const& ground) {
        if (ground == m_ground) return;
        m_ground = ground;
        update();
    }

    void set_picture(std::string const& name) {
        if (name == m_picture) return;
        m_picture = name;
        update();
    }

  protected:
    void paintEvent(QPaintEvent*) override {
        QPainter painter{this};
        painter.setRenderHint(QPainter::Antialiasing);
        QColor const ground = isDown()       ? m_ground.darker(112)
                              : underMouse() ? m_ground.darker(104)
                                             : m_ground;
        // Where the keyboard stands is told by the ring round it, as for all others.
        painter.setPen(QPen{QColor{0x9F, 0xB3, 0xC4}, 1});
        painter.setBrush(isEnabled() ? ground : QColor{0xEE, 0xEE, 0xEE});
        painter.drawRoundedRect(QRectF{rect()}.adjusted(0.5, 0.5, -0.5, -0.5), 3, 3);
        QSize const natural = m_pictures.natural_size(m_picture);
        QSize const room = size() - QSize{2, 2};
        QSize const drawn = natural.width() > room.width() || natural.height() > room.height()
                                ? natural.scaled(room, Qt::KeepAspectRatio)
                                : natural;
        QRect place{QPoint{0, 0}, drawn};
        place.moveCenter(rect().center());
        if (!isEnabled()) painter.setOpacity(0.4);
        m_pictures.draw(painter, m_picture, place);
        painter.setPen(Qt::black);
        if (!text().isEmpty()) painter.drawText(rect(), Qt::AlignCenter, text());
    }

    void keyPressEvent(QKeyEvent* event) override {
        bool const enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
        if (enter && !event->isAutoRepeat()) {
            click();
        } else {
            QAbstractButton::keyPressEvent(event);
        }
    }

    void enterEvent(QEnterEvent* event) override {
        QAbstractButton::enterEvent(event);
        update();
    }

    void leaveEvent(QEvent* event) override {
        QAbstractButton::leaveEvent(event);
        update();
    }

  private:
    Pictures& m_pictures;
    std::string m_picture;
    QColor m_ground{Qt::white};
};

class ButtonView : public PlacedView<screen::Button, PictureButton> {
  public:
    ButtonView(Session& session, screen::Button& button, QWidget& parent)
        : PlacedView{session, button, new PictureButton{session.pictures(), &parent}} {
        tell_focus(session, button, shown());
        QObject::connect(&shown(), &QAbstractButton::clicked, &shown(), [this] {
            this->session().act([this](screen::User& user) { user.click(this->control()); });
        });
    }

  protected:
    void show_content() override {
        shown().setFont(font_of(control()));
        shown().setText(to_qt(control().Caption.get()));
        shown().set_ground(to_qt(control().BackColor.get()));
        shown().set_picture(control().Picture.get().name());
    }
};

// Enter on a control that edits nothing is told as a key.
class EnterFilter : public QObject {
  public:
    EnterFilter(Session& session, screen::Control& control, QWidget& widget)
        : QObject{&widget}, m_session{session}, m_control{control} {
        widget.installEventFilter(this);
    }

    bool eventFilter(QObject*, QEvent* event) override {
        if (event->type() != QEvent::KeyPress) return false;
        auto const key = static_cast<QKeyEvent*>(event)->key();
        if (key != Qt::Key_Return && key != Qt::Key_Enter) return false;
        m_session.act([this](screen::User& user) { user.key(m_control, key::enter); });
        return true;
    }

  private:
    Session& m_session;
    screen::Control& m_control;
};

class ScrollBarView : public PlacedView<screen::ScrollBar, QScrollBar> {
  public:
    ScrollBarView(Session& session, screen::ScrollBar& bar, QWidget& parent)
        : PlacedView{session, bar, new QScrollBar{Qt::Horizontal, &parent}} {
        shown().setFocusPolicy(Qt::StrongFocus);
        shown().setSingleStep(1);
        shown().setPageStep(10);
        shown().setInvertedControls(false);  // Right and Up go to the greater age
        shown().setContextMenuPolicy(Qt::NoContextMenu);
        new EnterFilter{session, bar, shown()};
        tell_focus(session, bar, shown());
        QObject::connect(&shown(), &QScrollBar::valueChanged, &shown(), [this](int value) {
            bool const dragged = shown().isSliderDown();
            this->session().act([&](screen::User& user) {
                if (dragged) {
                    user.drag(this->control(), value);
                } else {
                    user.set_position(this->control(), value);
                }
            });
        });
    }

  protected:
    void show_content() override {
        QSignalBlocker const silent{shown()};
        shown().setRange(control().Minimum, control().Maximum);
        shown().setValue(control().Value);
    }
};

// A switch that answers on the whole of its place, not on its words alone.
template <typename Switch>
class WideSwitch : public Switch {
  public:
    using Switch::Switch;

  protected:
    bool hitButton(QPoint const& where) const override { return this->rect().contains(where); }
};

// A check box or an option button.
template <typename C, typename Toggle>
class SwitchView : public PlacedView<C, WideSwitch<Toggle>> {
  public:
    SwitchView(Session& session, C& control, QWidget& parent)
        : PlacedView<C, WideSwitch<Toggle>>{session, control, new WideSwitch<Toggle>{&parent}} {
        auto& toggle = this->shown();
        // The model keeps to one choice in a group.
        toggle.setAutoExclusive(false);
        toggle.setBackgroundRole(QPalette::Window);
        toggle.setForegroundRole(QPalette::WindowText);
        toggle.setAutoFillBackground(true);
        tell_focus(session, control, toggle);
        QObject::connect(&toggle, &Toggle::clicked, &toggle, [this] {
            this->session().act([this](screen::User& user) { user.click(this->control()); });
            show_content();  // the toolkit may have moved the mark by itself
        });
    }

  protected:
    void show_content() override {
        auto& toggle = this->shown();
        auto const& control = this->control();
        toggle.setFont(font_of(control));
        toggle.setText(to_qt(control.Caption.get()));
        set_colour(toggle, QPalette::Window, to_qt(control.BackColor.get()));
        set_colour(toggle, QPalette::WindowText, to_qt(control.ForeColor.get()));
        toggle.setChecked(static_cast<bool>(control.Value.get()));
    }
};

class DropDownView : public PlacedView<screen::DropDown, QComboBox> {
  public:
    DropDownView(Session& session, screen::DropDown& list, QWidget& parent)
        : PlacedView{session, list, new QComboBox{&parent}}, m_model{list} {
        shown().setModel(&m_model);
        shown().setMaxVisibleItems(16);
        tell_focus(session, list, shown());
        QObject::connect(&shown(), &QComboBox::activated, &shown(), [this](int entry) {
            this->session().act(
                [&](screen::User& user) { user.choose(this->control(), entry); });
        });
    }

  protected:
    void show_content() override {
        QSignalBlocker const silent{shown()};
        shown().setFont(font_of(control()));
        set_colour(shown(), QPalette::Base, to_qt(control().BackColor.get()));
        m_model.follow();
        shown().setCurrentIndex(control().ListIndex);
    }

  private:
    EntriesModel m_model;
};

}  // namespace

std::unique_ptr<ControlView> make_view(Session& session, screen::PlacedControl& control,
                                       QWidget& parent) {
    // The kind tells the type of the control.
    auto const make = [&]<typename View, typename C>() -> std::unique_ptr<ControlView> {
        return std::make_unique<View>(session, static_cast<C&>(control), parent);
    };
    switch (control.kind()) {
        case screen::Kind::label:
            return make.operator()<LabelView, screen::Label>();
        case screen::Kind::text_field:
            return make.operator()<TextFieldView, screen::TextField>();
        case screen::Kind::text_area:
            return make.operator()<TextAreaView, screen::TextArea>();
        case screen::Kind::combo:
            return make.operator()<ComboView, screen::Combo>();
        case screen::Kind::list:
            return make.operator()<ListView, screen::List>();
        case screen::Kind::button:
            return make.operator()<ButtonView, screen::Button>();
        case screen::Kind::image:
            return make.operator()<SurfaceView<screen::Image>, screen::Image>();
        case screen::Kind::picture_box:
            return make.operator()<SurfaceView<screen::PictureBox>, screen::PictureBox>();
        case screen::Kind::frame:
            return make.operator()<SurfaceView<screen::Frame>, screen::Frame>();
        case screen::Kind::check_box:
            return make.operator()<SwitchView<screen::CheckBox, QCheckBox>, screen::CheckBox>();
        case screen::Kind::drop_down:
            return make.operator()<DropDownView, screen::DropDown>();
        case screen::Kind::option_button:
            return make.
            operator()<SwitchView<screen::OptionButton, QRadioButton>, screen::OptionButton>();
        case screen::Kind::shape:
            return make.operator()<SurfaceView<screen::Shape>, screen::Shape>();
        case screen::Kind::scroll_bar:
            return make.operator()<ScrollBarView, screen::ScrollBar>();
        case screen::Kind::form:
        case screen::Kind::timer:
        case screen::Kind::menu_entry:
        case screen::Kind::menu_separator:
            break;
    }
    throw std::logic_error{"no widget for " + control.full_name()};
}

}  // namespace navarun::desktop
