#include "support/boxes.h"

#include "support/events.h"

#include <QApplication>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>
#include <QTest>

#include <gtest/gtest.h>

namespace tarvold::testing {

using namespace Qt::StringLiterals;

namespace {

constexpr char kElsewhere[] = "Save To Another File...";

QString captionOf(const QAbstractButton &button)
{
    return button.text().remove(u'&');
}

QStringList captionsOf(const QMessageBox &box)
{
    QStringList captions;
    for (const QAbstractButton *button : box.buttons()) {
        captions << captionOf(*button);
    }
    captions.sort();
    return captions;
}

void clickCaption(const QMessageBox &box, const char *caption)
{
    for (QAbstractButton *button : box.buttons()) {
        if (captionOf(*button) == QLatin1StringView(caption)) {
            QTest::mouseClick(button, Qt::LeftButton);
            return;
        }
    }
}

void answer(QMessageBox &box, Answer answer)
{
    switch (answer) {
    case Answer::Ok:
        QTest::mouseClick(box.button(QMessageBox::Ok), Qt::LeftButton);
        break;
    case Answer::Yes:
        QTest::mouseClick(box.button(QMessageBox::Yes), Qt::LeftButton);
        break;
    case Answer::No:
        QTest::mouseClick(box.button(QMessageBox::No), Qt::LeftButton);
        break;
    case Answer::Save:
        QTest::mouseClick(box.button(QMessageBox::Save), Qt::LeftButton);
        break;
    case Answer::Discard:
        clickCaption(box, "Discard");
        break;
    case Answer::Cancel:
        QTest::mouseClick(box.button(QMessageBox::Cancel), Qt::LeftButton);
        break;
    case Answer::Elsewhere:
        clickCaption(box, kElsewhere);
        break;
    case Answer::Enter:
        QTest::keyClick(&box, Qt::Key_Return);
        break;
    case Answer::Escape:
        QTest::keyClick(&box, Qt::Key_Escape);
        break;
    case Answer::Close:
        box.close();
        break;
    }
}

/// Removes the zero-width spaces that a message box adds to long words so that they can wrap.
QString withoutBreaks(QString text)
{
    return text.remove(QChar(0x200B));
}

} // namespace

Boxes::Boxes()
{
    connect(&m_timer, &QTimer::timeout, this, &Boxes::look);
    m_timer.start(1);
}

void Boxes::expectNotice(const QString &title, const QString &text, Answer answer)
{
    m_awaited.push_back({{title, text, {u"OK"_s}, answer}});
}

void Boxes::expectQuestion(const QString &title, const QString &text, Answer answer)
{
    m_awaited.push_back({{title, text, {u"No"_s, u"Yes"_s}, answer}});
}

void Boxes::expectFailedSave(const QString &title, const QString &text, Answer answer)
{
    m_awaited.push_back({{title, text, {u"OK"_s, QLatin1StringView(kElsewhere)}, answer}});
}

void Boxes::expectUnsaved(const QString &title, const QString &text, Answer answer)
{
    m_awaited.push_back({{title, text, {u"Cancel"_s, u"Discard"_s, u"Save"_s}, answer}});
}

void Boxes::expectSave(const QString &title, const QString &text, Answer answer)
{
    m_awaited.push_back({{title, text, {u"Cancel"_s, u"Save"_s}, answer}});
}

void Boxes::catchFailedSave(const QString &title, QString *text, Answer answer)
{
    m_awaited.push_back({{title, {}, {u"OK"_s, QLatin1StringView(kElsewhere)}, answer}, text});
}

void Boxes::catchNotice(const QString &title, QString *text)
{
    m_awaited.push_back({{title, {}, {u"OK"_s}, Answer::Ok}, text});
}

void Boxes::catchQuestion(const QString &title, QString *text, Answer answer)
{
    m_awaited.push_back({{title, {}, {u"No"_s, u"Yes"_s}, answer}, text});
}

void Boxes::beforeItsAnswer(const std::function<void(QMessageBox &)> &action)
{
    m_awaited.back().before = action;
}

void Boxes::checkAllCame()
{
    for (const Awaited &awaited : m_awaited) {
        ADD_FAILURE() << "the message box was not shown: " << awaited.title.toStdString() << ": "
                      << awaited.text.toStdString();
    }
    m_awaited.clear();
}

void Boxes::look()
{
    auto *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
    if (box == nullptr || !box->isVisible()) {
        return;
    }
    if (m_awaited.empty()) {
        ADD_FAILURE() << "unexpected message box: " << box->windowTitle().toStdString() << ": "
                      << box->text().toStdString();
        box->reject();
        return;
    }
    const Awaited awaited = m_awaited.front();
    m_awaited.pop_front();
    check(*box, awaited);
    if (awaited.before) {
        m_timer.stop(); // the action may process events
        awaited.before(*box);
        m_timer.start(1);
    }
    answer(*box, awaited.answer);
    if (box->isVisible()) {
        ADD_FAILURE() << "the message box stayed open after it was answered";
        box->reject();
    }
}

void Boxes::check(const QMessageBox &box, const Awaited &awaited)
{
    EXPECT_EQ(box.windowTitle(), awaited.title);
    EXPECT_EQ(captionsOf(box), awaited.buttons);
    EXPECT_EQ(box.icon(), QMessageBox::NoIcon);
    EXPECT_EQ(box.textFormat(), Qt::PlainText);
    EXPECT_TRUE(box.informativeText().isEmpty());
    EXPECT_NE(box.parentWidget(), nullptr);
    EXPECT_TRUE(box.isModal());
    const auto *label = box.findChild<QLabel *>(u"qt_msgbox_label"_s);
    ASSERT_NE(label, nullptr);
    EXPECT_EQ(label->text(), box.text());
    EXPECT_EQ(label->textFormat(), Qt::PlainText);
    const QString text = withoutBreaks(box.text());
    if (awaited.caught != nullptr) {
        *awaited.caught = text;
    } else {
        EXPECT_EQ(text, awaited.text);
    }
}

} // namespace tarvold::testing
