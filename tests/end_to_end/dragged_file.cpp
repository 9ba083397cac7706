// dragged_file FILE: a small window from which a file is dragged, as from a file manager.
#include <QApplication>
#include <QDrag>
#include <QLabel>
#include <QMimeData>
#include <QMouseEvent>
#include <QUrl>

namespace {

class Source : public QLabel {
  public:
    explicit Source(QString const& file) : QLabel{file}, m_file{file} {
        setWindowTitle(QStringLiteral("Fichiers"));
        setFixedSize(160, 60);
    }

  protected:
    void mouseMoveEvent(QMouseEvent* event) override {
        if (!event->buttons().testFlag(Qt::LeftButton)) return;
        auto* const drag = new QDrag{this};  // owned by this window
        auto* const carried = new QMimeData;
        carried->setUrls({QUrl::fromLocalFile(m_file)});
        drag->setMimeData(carried);
        drag->exec(Qt::CopyAction);
    }

  private:
    QString m_file;
};

}  // namespace

int main(int argc, char** argv) {
    QApplication application{argc, argv};
    if (argc != 2) return 2;
    Source source{QString::fromLocal8Bit(argv[1])};
    source.show();
    return QApplication::exec();
}
