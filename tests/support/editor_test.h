#pragma once

#include "controls/combo_box.h"
#include "controls/message_box.h"
#include "editor.h"
#include "support/boxes.h"
#include "support/events.h"
#include "support/folder_test.h"
#include "support/mouse.h"

#include <QColor>
#include <QLabel>
#include <QTemporaryDir>
#include <QTest>

#include <gtest/gtest.h>

namespace tarvold::testing {

/// The background of the commentary line that receives tags.
inline const QColor kYellow(0xFF, 0xFF, 0x00);

/// The whole program, started on its main menu in an empty folder of its own.
class EditorTest : public ::testing::Test
{
public:
    EditorTest();
    ~EditorTest() override;

protected:
    Screen &screen(const char *name) { return editor.screens()[name]; }
    QWidget &control(const char *screen, const char *name);
    ComboBox &combo(const char *screen, const char *name);

    /// The text that the control shows now.
    QString text(const char *screen, const char *name);

    /// Clicks a control and fails the test unless every expected message box was shown.
    void press(const char *screen, const char *name);

    void type(const char *screen, const char *name, const QString &text);
    void choose(const char *screen, const char *name, const QString &item);

    /// Fails the test unless this screen is the only visible window but for records windows, which
    /// stand beside the screens.
    static void expectOnly(const char *screen);

    /// Fails the test unless the screen has a widget with this name and control() returns it.
    void expectOnItsScreen(ControlRef ref);

    /// The bytes of a file in the test's folder; a missing one fails the test.
    static QByteArray bytesOf(const QString &file) { return bytesIn(file); }

    static QString title() { return QLatin1StringView(messagebox::kTitle); }

    QTemporaryDir folder;
    Boxes boxes;
    Editor editor{&mouse::now};

private:
    QString m_oldFolder;
};

} // namespace tarvold::testing
