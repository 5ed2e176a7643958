#include "support/flow_test.h"
#include "support/folder_test.h"

#include <QDir>
#include <QLineEdit>

/// File names are not limited to the code page: any character valid in a file name is allowed.
namespace tarvold::testing {

using namespace Qt::StringLiterals;

namespace {

class NameCharacters : public FlowTest
{
protected:
    void pasteOver(const char *screen, const char *box, const QString &text)
    {
        screenBox(screen, box).setFocus(Qt::TabFocusReason);
        QTest::keySequence(screenBox(screen, box).window()->windowHandle(),
                           QKeySequence::SelectAll);
        paste(screenBox(screen, box), text);
        EXPECT_EQ(text.size(), this->text(screen, box).size());
    }

    QLineEdit &screenBox(const char *screen, const char *box)
    {
        return this->screen(screen).control<QLineEdit>(box);
    }

    /// Opens the import of interviews and selects the first file.
    void goToImport(const QString &target)
    {
        press("Form1", "Command8");
        press("Form2", "Command6");
        QTest::keyClick(screen("Form2").windowHandle(), Qt::Key_Down);
        pasteOver("Form2", "Text1", target);
    }

    void saveInterview()
    {
        goToCommentary(kInterviewPath);
        type("Form13", "Text1", u"The end."_s);
        save(kInterviewPath);
    }

    void expectRefused(const QString &message)
    {
        EXPECT_TRUE(
            message.contains(u"The file name holds a character that no file name can have."_s))
            << message.toStdString();
    }
};

TEST_F(NameCharacters, AnyAreAllowedForASaveAndAnImport)
{
    const QString saved = QString::fromUtf8("\u65E5\u672C \U0001F93C \u202E.tvd");
    const QString imported = QString::fromUtf8("e\u0301 \u0142\u200B&<b>%1.tvd");
    pasteOver("Form1", "Text6", saved);
    saveInterview();
    goToImport(imported);
    boxes.expectNotice(u"Import"_s, u"Import Complete."_s);
    press("Form2", "Command8");
    QStringList names = {saved, imported};
    names.sort();
    EXPECT_EQ(folderEntries(), names);
    EXPECT_EQ(bytesOf(imported), bytesOf(saved));
}

TEST_F(NameCharacters, InvalidOnesAreRefusedAndNothingIsWritten)
{
    saveInterview();
    const QStringList before = folderEntries();
    const QStringList odds = {u"nul"_s + QChar(0) + u".tvd"_s,
                              u"half"_s + QChar(0xD83E) + u".tvd"_s};
    for (const QString &odd : odds) {
        QString message;
        pasteOver("Form1", "Text1", odd);
        boxes.catchNotice(u"Stipulations Editor"_s, &message);
        press("Form1", "Command1");
        expectRefused(message);

        pasteOver("Form1", "Text6", odd);
        goToCommentary(kInterviewPath);
        type("Form13", "Text1", u"The end."_s);
        boxes.expectQuestion(title(), QLatin1StringView(kInterviewPath.question), Answer::Yes);
        boxes.catchFailedSave(title(), &message);
        press("Form13", "Command1");
        expectRefused(message);
        goBack(kInterviewPath);

        goToImport(odd);
        boxes.catchNotice(u"Import"_s, &message);
        press("Form2", "Command8");
        expectRefused(message);
        press("Form2", "Command9");
        press("Form2", "Command1");
        EXPECT_EQ(folderEntries(), before);
    }
}

} // namespace
} // namespace tarvold::testing
