// The measure for the editor's start-up: a plain window with as many plain controls as its main
// menu.

#include <QApplication>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

int main(int argc, char *argv[])
{
    const QApplication application(argc, argv);
    QWidget window;
    auto *grid = new QGridLayout(&window);
    grid->addWidget(new QLabel(QStringLiteral("A heading")), 0, 0);
    grid->addWidget(new QLabel(QStringLiteral("A second label")), 1, 0);
    for (int row = 2; row < 10; ++row) {
        grid->addWidget(new QPushButton(QStringLiteral("A button")), row, 0);
    }
    for (int row = 2; row < 8; ++row) {
        grid->addWidget(new QLabel(QStringLiteral("To File:")), row, 1);
        grid->addWidget(new QLineEdit(QStringLiteral("file.tvd")), row, 2);
    }
    window.resize(700, 534);
    window.show();
    return QApplication::exec();
}
