#include "support/editor_test.h"

#include <QApplication>
#include <QDir>

namespace tarvold::testing {

EditorTest::EditorTest() : m_oldFolder(QDir::currentPath())
{
    QDir::setCurrent(folder.path());
    editor.start();
}

EditorTest::~EditorTest()
{
    boxes.checkAllCame();
    QDir::setCurrent(m_oldFolder);
}

QWidget &EditorTest::control(const char *screen, const char *name)
{
    return this->screen(screen).control(name);
}

ComboBox &EditorTest::combo(const char *screen, const char *name)
{
    return this->screen(screen).control<ComboBox>(name);
}

QString EditorTest::text(const char *screen, const char *name)
{
    return this->screen(screen).text(name);
}

void EditorTest::press(const char *screen, const char *name)
{
    click(control(screen, name));
    boxes.checkAllCame();
}

void EditorTest::type(const char *screen, const char *name, const QString &text)
{
    typeOver(control(screen, name), text);
}

void EditorTest::choose(const char *screen, const char *name, const QString &item)
{
    pick(combo(screen, name), item);
    boxes.checkAllCame();
}

void EditorTest::expectOnly(const char *screen)
{
    QStringList visible;
    for (const QWidget *window : QApplication::topLevelWidgets()) {
        const bool isBeside = window->objectName() == u"records";
        if (window->isVisible() && !isBeside) {
            visible << window->objectName();
        }
    }
    EXPECT_EQ(visible, QStringList{QLatin1StringView(screen)});
}

void EditorTest::expectOnItsScreen(ControlRef ref)
{
    const Screen &screen = this->screen(ref.screen);
    const auto *found = screen.findChild<QWidget *>(QLatin1StringView(ref.control));
    ASSERT_NE(found, nullptr) << ref.screen << ' ' << ref.control;
    EXPECT_EQ(found, &screen.control(ref.control));
}

} // namespace tarvold::testing
