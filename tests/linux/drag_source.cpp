// A window of another program from which a file can be dragged: drag_source FILE.

#include <QApplication>
#include <QDrag>
#include <QLabel>
#include <QMimeData>
#include <QUrl>

namespace {

class Source : public QLabel
{
public:
    using QLabel::QLabel;

protected:
    void mouseMoveEvent(QMouseEvent * /*event*/) override
    {
        auto *file = new QMimeData;
        file->setUrls({QUrl::fromLocalFile(QApplication::arguments().at(1))});
        auto *drag = new QDrag(this); // deletes itself
        drag->setMimeData(file);
        drag->exec(Qt::CopyAction | Qt::MoveAction, Qt::CopyAction);
    }
};

} // namespace

int main(int argc, char *argv[])
{
    using namespace Qt::StringLiterals;
    const QApplication application(argc, argv);
    Source source(u"A file"_s);
    source.resize(200, 60);
    source.show();
    return QApplication::exec();
}
