// Prints one document of the real program by the system's own printer dialog, and tells what
// was meant to stand on it: for the tests with a real printer.
//
//   print_job report|listing TOLD [--printer NAME | --file PDF | --cancel]
//             [--while-open COMMAND]
//
// TOLD becomes {"choices":[…],"paper":[w,h],"boxes":[…],"pages":[…]}: the entries of the
// dialog, the paper in inches, the texts of the boxes that were shown, the operations of the
// pages. The command runs while the dialog is open. Ends with 0 where the program ran on to the
// end.
#include <QAction>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QImage>
#include <QLineEdit>
#include <QMessageBox>
#include <QPainter>
#include <QPrintDialog>
#include <QProcess>
#include <QPushButton>
#include <QTest>
#include <QTimer>
#include <fstream>
#include <iostream>

#include "desktop/application.h"
#include "desktop/form_window.h"
#include "desktop/session.h"
#include "desktop/to_qt.h"
#include "tests/support/visit.h"
#include "tools/pilote/page_json.h"

namespace navarun::test {
namespace {

struct Order {
    std::string document;
    std::string told;
    std::string printer;
    std::string file;
    std::string while_open;
    bool cancel = false;
};

/// The program as it is, and what it prints.
class WitnessedSession : public desktop::Session {
  public:
    using Session::Session;
    void print(std::vector<screen::Page> const& pages) override {
        for (auto const& page : pages) {
            printed.push_back(pilot::page_as_json("printer", page));
        }
        Session::print(pages);
    }
    Json printed = Json::array();
};

/// Answers the dialog and whatever box opens, as a user in front of the screen.
class Operator {
  public:
    explicit Operator(Order const& order) : m_order{order} {
        QObject::connect(&m_watch, &QTimer::timeout, [this] { look(); });
        m_watch.start(20);
    }
    Json boxes = Json::array();
    Json choices = Json::array();

  private:
    void look() {
        auto* const window = QApplication::activeModalWidget();
        if (auto* const box = qobject_cast<QMessageBox*>(window)) {
            boxes.push_back(box->text().toStdString());
            auto* const yes = box->button(QMessageBox::Yes);
            if (yes != nullptr) return yes->click();
            box->accept();
        } else if (auto* const dialog = qobject_cast<QPrintDialog*>(window)) {
            // A dialog that does not take the answer is left.
            if (m_looks++ == 0) answer(*dialog);
            if (m_looks > 100) dialog->reject();
        }
    }
    void answer(QPrintDialog& dialog) {
        auto* const printers = dialog.findChild<QComboBox*>(QStringLiteral("printers"));
        if (printers == nullptr) {
            boxes.push_back("the dialog offers no printers");
            return dialog.reject();
        }
        for (int i = 0; i < printers->count(); ++i) {
            choices.push_back(printers->itemText(i).toStdString());
        }
        if (!m_order.printer.empty()) {
            printers->setCurrentText(desktop::to_qt(m_order.printer));
        }
        if (!m_order.file.empty()) {
            printers->setCurrentIndex(printers->count() - 1);
            dialog.findChild<QLineEdit*>(QStringLiteral("filename"))
                ->setText(desktop::to_qt(m_order.file));
        }
        if (!m_order.while_open.empty()) {
            QProcess::execute(QStringLiteral("/bin/sh"),
                              {QStringLiteral("-c"), desktop::to_qt(m_order.while_open)});
        }
        auto* const buttons = dialog.findChild<QDialogButtonBox*>();
        auto const wanted = m_order.cancel ? QDialogButtonBox::Cancel : QDialogButtonBox::Ok;
        // A box of the dialog's own is answered by this very watch: it must not wait in it.
        QTimer::singleShot(0, &dialog, [buttons, wanted] { buttons->button(wanted)->click(); });
    }

    Order const& m_order;
    QTimer m_watch;
    int m_looks = 0;
};

// Two colours, so that a renderer shows it.
void write_portrait(std::filesystem::path const& path) {
    QImage image{260, 360, QImage::Format_RGB32};
    image.fill(QColor{40, 60, 160});
    QPainter{&image}.fillRect(60, 60, 140, 200, QColor{230, 190, 150});
    image.save(QString::fromStdString(path.string()), "JPG", 90);
}

void show_a_person(desktop::Session& session, std::filesystem::path const& folder) {
    auto& form = session.program().form1;
    auto const act = [&](auto const& one_act) { session.act(one_act); };
    act([&](screen::User& user) { user.type(form.Combo_jourNaiss, "17051962"); });
    act([&](screen::User& user) { user.set_text(form.Text_prenom, "Marie-claire"); });
    act([&](screen::User& user) { user.set_text(form.Text_nom, "Dupont"); });
    std::string note;
    while (note.size() < 600) note += "Revient à l'été, contente ; à suivre. ";
    act([&](screen::User& user) { user.set_text(form.Text_Note, note); });
    auto const portrait = folder / "zoe.jpg";
    write_portrait(portrait);
    act([&](screen::User& user) { user.drop_file(form.Picture_PHOTO, portrait.string()); });
    act([&](screen::User& user) { user.set_position(form.HScroll_age, 20); });
    act([&](screen::User& user) { user.click(form.Command2); });
}

// The very gestures of the user: the menu entry, the button.
void print(desktop::Session& session, std::string const& document) {
    auto& program = session.program();
    if (document == "report") {
        auto* const window = session.window(program.form1);
        auto* const entry =
            window->findChild<QAction*>(desktop::to_qt(program.form1.MnuImprime.name()));
        entry->trigger();
        return;
    }
    session.act([&](screen::User& user) { user.click(program.form1.Bouton_seigneurjour); });
    auto& lords = program.frm_seigneur_jour;
    QTest::mouseClick(session.window(lords)->widget(lords.Btn_Imprime), Qt::LeftButton);
}

int run(Order const& order) {
    TemporaryFolder const folder;
    WitnessedSession session{folder.path(), [] {}};
    session.start();
    Operator const user{order};
    show_a_person(session, folder.path());
    print(session, order.document);
    // The program runs on: another age, another grid.
    auto& form = session.program().form1;
    session.act([&](screen::User& person) { person.set_position(form.HScroll_age, 21); });
    session.act([&](screen::User& person) { person.click(form.Command2); });
    QTest::qWait(100);
    bool const runs_on = !session.exit_status() && form.Label_age.Caption.get() == "21";
    auto const paper = session.printer_page();
    Json const told{{"choices", user.choices},
                    {"paper", {paper.width, paper.height}},
                    {"boxes", user.boxes},
                    {"pages", session.printed}};
    std::ofstream{order.told} << told << "\n";
    return runs_on ? 0 : 1;
}

}  // namespace
}  // namespace navarun::test

int main(int argc, char** argv) {
    QApplication application{argc, argv};
    QApplication::setQuitOnLastWindowClosed(false);
    navarun::desktop::set_up(application);
    std::vector<std::string> const words(argv + 1, argv + argc);
    if (words.size() < 2) return 2;
    navarun::test::Order order;
    order.document = words[0];
    order.told = words[1];
    for (std::size_t i = 2; i < words.size(); ++i) {
        if (words[i] == "--cancel") order.cancel = true;
        if (i + 1 == words.size()) break;
        if (words[i] == "--printer") order.printer = words[i + 1];
        if (words[i] == "--file") order.file = words[i + 1];
        if (words[i] == "--while-open") order.while_open = words[i + 1];
    }
    return navarun::test::run(order);
}
