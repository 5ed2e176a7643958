// The baseline for startup time: a plain window with as many plain controls as the main menu.

#include <QApplication>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

using namespace Qt::StringLiterals;

int main(int argc, char *argv[])
{
    const QApplication application(argc, argv);
    QWidget window;
    auto *grid = new QGridLayout(&window);
    grid->addWidget(new QLabel(u"A heading"_s), 0, 0);
    grid->addWidget(new QLabel(u"A second label"_s), 1, 0);
    for (int row = 2; row < 10; ++row) {
        grid->addWidget(new QPushButton(u"A button"_s), row, 0);
    }
    for (int row = 2; row < 8; ++row) {
        grid->addWidget(new QLabel(u"To File:"_s), row, 1);
        grid->addWidget(new QLineEdit(u"file.tvd"_s), row, 2);
    }
    window.resize(700, 534);
    window.show();
    return QApplication::exec();
}
