// Events in, changes out.
#include "desktop/session.h"

#include <QApplication>
#include <QCryptographicHash>
#include <QDateTime>
#include <QDesktopServices>
#include <QDialogButtonBox>
#include <QEventLoop>
#include <QLabel>
#include <QMessageBox>
#include <QProcess>
#include <QPushButton>
#include <QStandardPaths>
#include <QTimer>
#include <QUrl>
#include <algorithm>
#include <utility>

#include "core/file_path.h"
#include "desktop/form_window.h"
#include "desktop/outside_programs.h"
#include "desktop/to_qt.h"
#include "shell/spoken_names.h"

namespace navarun::desktop {

namespace {

// One for each application folder, as the lock of the instance is.
QString private_folder(std::filesystem::path const& application_folder) {
    auto const hash = QCryptographicHash::hash(
        QByteArray::fromStdString(path_text(application_folder)), QCryptographicHash::Sha1);
    return QStandardPaths::writableLocation(QStandardPaths::CacheLocation) +
           QStringLiteral("/lectures-") + QString::fromLatin1(hash.toHex().left(12));
}

// The parts of a box that bear no words, for screen readers.
void name_parts(QMessageBox& box, QString const& kind) {
    if (auto* const icon = box.findChild<QLabel*>(QStringLiteral("qt_msgboxex_icon_label"))) {
        icon->setAccessibleName(kind);
    }
    if (auto* const answers = box.findChild<QDialogButtonBox*>()) {
        answers->setAccessibleName(QStringLiteral("Réponses"));
    }
}

}  // namespace

Session::Session(std::filesystem::path application_folder, std::function<void()> on_end)
    : m_program{*this, std::move(application_folder)}, m_on_end{std::move(on_end)} {}

Session::~Session() = default;

void Session::start() {
    try {
        m_program.start();
        // Not before: the texts of a run that goes on in this folder are open in their viewers.
        m_text_viewer.emplace(private_folder(m_program.application_folder));
    } catch (ProgramEnded const&) {
        end(0);
    } catch (FatalError const&) {
        end(1);
    }
    show_changes();
}

void Session::act(std::function<void(screen::User&)> const& event) {
    if (m_exit_status) return;
    try {
        m_program.event(event);
    } catch (screen::Refused const&) {
        // The control was hidden or disabled by what the same gesture did before.
    } catch (ProgramEnded const&) {
        end(0);
    } catch (FatalError const&) {
        end(1);
    }
    show_changes();
}

void Session::show_changes() {
    if (m_exit_status) return;
    follow_spoken_names(m_program.screen);
    for (auto* control : m_program.screen.take_changed()) {
        if (auto* const shown = window(control->form())) shown->show_control(*control);
    }
    show_new_windows();
    m_drag_mode.follow_model();
    if (auto* const focused = m_program.screen.focus()) {
        if (auto* const shown = window(focused->form())) shown->show_focus(*focused);
    }
}

// Most windows are never opened: each is made when it is first shown, from what then stands in
// its fields.
void Session::show_new_windows() {
    for (auto* form : m_program.screen.forms()) {
        if (!form->Visible || window(*form) != nullptr) continue;
        m_windows.push_back(std::make_unique<FormWindow>(*this, *form));
        m_windows.back()->show_control(*form);
    }
}

FormWindow* Session::window(screen::Form const& form) const {
    auto const found = std::ranges::find_if(
        m_windows, [&](auto const& shown) { return &shown->form() == &form; });
    return found == m_windows.end() ? nullptr : found->get();
}

screen::Control* Session::control_at(QPoint where) const {
    auto const* const widget = QApplication::widgetAt(where);
    return widget == nullptr ? nullptr : control_of(*widget);
}

screen::Control* Session::control_of(QWidget const& inner) const {
    for (QWidget const* widget = &inner; widget != nullptr; widget = widget->parentWidget()) {
        for (auto const& shown : m_windows) {
            if (auto* const control = shown->control_of(*widget)) return control;
        }
    }
    return nullptr;
}

void Session::end(int exit_status) {
    // What an inner event has ended, the waits round it only leave.
    if (m_exit_status) return;
    m_exit_status = exit_status;
    for (auto const& shown : m_windows) shown->hide();
    // The innermost wait is left first; it then throws the operation that waits out.
    if (m_waiting != nullptr) m_waiting->exit();
    m_on_end();
}

Date Session::today() {
    QDate const date = QDate::currentDate();
    return *date_of(date.day(), date.month(), date.year());
}

double Session::seconds_since_midnight() {
    return QTime::currentTime().msecsSinceStartOfDay() / 1000.0;
}

void Session::wait(double seconds, std::string_view) {
    show_changes();
    QEventLoop loop;
    QTimer timer;
    timer.setSingleShot(true);
    timer.setTimerType(Qt::PreciseTimer);
    QObject::connect(&timer, &QTimer::timeout, &loop, &QEventLoop::quit);
    timer.start(static_cast<int>(seconds * 1000));
    auto* const outer = std::exchange(m_waiting, &loop);
    loop.exec();
    m_waiting = outer;
    if (!m_exit_status) return;
    if (m_waiting != nullptr) m_waiting->exit();
    throw ProgramEnded{};
}

Answer Session::box(std::string_view title, std::string_view text, BoxButtons buttons) {
    show_changes();
    QMessageBox box{QApplication::activeWindow()};
    box.setWindowTitle(to_qt(title));
    box.setTextFormat(Qt::PlainText);
    box.setText(to_qt(text));
    bool const question = buttons == BoxButtons::ok_cancel;
    box.setIcon(question ? QMessageBox::Question : QMessageBox::Warning);
    box.setStandardButtons(question ? QMessageBox::Ok | QMessageBox::Cancel : QMessageBox::Ok);
    box.setDefaultButton(QMessageBox::Ok);
    // What went wrong is sent on to who can help. The keyboard begins on the answer all the
    // same.
    box.setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    box.button(QMessageBox::Ok)->setFocus();
    name_parts(box, question ? QStringLiteral("Question") : QStringLiteral("Avertissement"));
    bool const agreed = box.exec() == QMessageBox::Ok;
    return agreed || !question ? Answer::ok : Answer::cancel;
}

void Session::open(std::string_view target) {
    QDesktopServices::openUrl(QUrl::fromUserInput(to_qt(target)));
}

void Session::open_file(std::filesystem::path const& file, std::string_view) {
    QDesktopServices::openUrl(QUrl::fromLocalFile(QString::fromStdString(path_text(file))));
}

bool Session::has_program(OutsideProgram wanted) { return command_line_of(wanted).has_value(); }

void Session::start_program(OutsideProgram wanted) {
    if (auto const command = command_line_of(wanted)) {
        QProcess::startDetached(command->program, command->arguments);
    }
}

bool Session::has_text_viewer() { return TextViewer::is_installed(); }

void Session::view_text(std::filesystem::path const& file, std::string const&) {
    if (m_text_viewer) m_text_viewer->show(QString::fromStdString(path_text(file)));
}

PictureSize Session::picture_size(std::filesystem::path const& file) {
    QSize const size = m_pictures.file_size(QString::fromStdString(path_text(file)));
    if (size.isEmpty()) {
        throw FatalError{
            "L'image « " + path_text(file.filename()) + " » n'a pas pu être affichée.",
            "Ce fichier n'est pas une image que le programme sait lire."};
    }
    return {size.width(), size.height()};
}

Answer Session::printer_dialog() {
    show_changes();
    return m_printer.choose(QApplication::activeWindow()) ? Answer::ok : Answer::cancel;
}

void Session::print(std::vector<screen::Page> const& pages) {
    m_printer.print(pages, m_pictures);
}

bool Session::key_is_held(int code) { return m_program.user.key_held() == code; }

}  // namespace navarun::desktop
