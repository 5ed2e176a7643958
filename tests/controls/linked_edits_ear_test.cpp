#include "controls/linked_edits.h"
#include "controls/text_box.h"
#include "support/print.h"

#include <QAccessible>
#include <QTest>

#include <gtest/gtest.h>

/// What assistive technology hears of edits of several text boxes at once. Qt tells nothing without
/// an accessibility bus, so this needs one.
namespace tarvold::testing {

using namespace Qt::StringLiterals;

namespace {

/// What assistive technology is told of texts and cursors.
QStringList &heard()
{
    static QStringList all;
    return all;
}

void hear(QAccessibleEvent *event)
{
    switch (event->type()) {
    case QAccessible::TextUpdated: {
        const auto &update = static_cast<QAccessibleTextUpdateEvent &>(*event);
        heard() << update.textRemoved() + u'>' + update.textInserted();
        break;
    }
    case QAccessible::TextInserted:
        heard() << u'+' + static_cast<QAccessibleTextInsertEvent &>(*event).textInserted();
        break;
    case QAccessible::TextRemoved:
        heard() << u'-' + static_cast<QAccessibleTextRemoveEvent &>(*event).textRemoved();
        break;
    case QAccessible::TextCaretMoved:
        heard() << u"cursor"_s;
        break;
    default:
        break;
    }
}

TEST(LinkedEditsByEar, ScreenReadersHearOfEachChangeAsOneAndNothingOfTheMark)
{
    ASSERT_TRUE(QTest::qWaitFor([] { return QAccessible::isActive(); }, 30'000))
        << "is there an accessibility bus?";
    TextBox box;
    TextBox other;
    LinkedEdits edits;
    const auto fill = [&](const QString &text, const QString &otherText) {
        edits.make(LinkedEdits::Bond::Whole,
                   {{&box, 0, static_cast<int>(box.text().size()), text},
                    {&other, 0, static_cast<int>(other.text().size()), otherText}});
    };
    const auto before = QAccessible::installUpdateHandler(hear);
    heard().clear();
    fill(u"one"_s, u"two"_s);
    EXPECT_EQ(heard().join(u' '), u">one >two"_s);
    heard().clear();
    edits.undo(other);
    EXPECT_EQ(heard().join(u' '), u"one> two>"_s);
    heard().clear();
    edits.redo(box);
    EXPECT_EQ(heard().join(u' '), u">one >two"_s);
    heard().clear();
    QTest::keyClicks(&box, u"!"_s); // as ever
    EXPECT_TRUE(heard().contains(u"+!"_s)) << heard().join(u' ').toStdString();
    heard().clear();
    EXPECT_EQ(edits.undo(other).blocking, &box); // looks only
    EXPECT_EQ(heard().join(u' '), QString());
    EXPECT_EQ(QAccessible::installUpdateHandler(before), hear);
}

} // namespace
} // namespace tarvold::testing
