#include "controls/editor_style.h"

#include <QDialogButtonBox>
#include <QPalette>
#include <QPushButton>

#include <gtest/gtest.h>

namespace tarvold::testing {

TEST(EditorStyle, SelectionLooksTheSameInAnInactiveList)
{
    QPalette palette;
    palette.setColor(QPalette::Active, QPalette::Highlight, QColor(0, 0x54, 0x90));
    palette.setColor(QPalette::Active, QPalette::HighlightedText, Qt::white);
    palette.setColor(QPalette::Inactive, QPalette::Highlight, QColor(0xF0, 0xF0, 0xF0));
    palette.setColor(QPalette::Inactive, QPalette::HighlightedText, Qt::black);

    EditorStyle().polish(palette);

    for (const auto role : {QPalette::Highlight, QPalette::HighlightedText}) {
        EXPECT_EQ(palette.color(QPalette::Inactive, role), palette.color(QPalette::Active, role));
    }
    EXPECT_EQ(palette.color(QPalette::Active, QPalette::Highlight), QColor(0, 0x54, 0x90));
}

namespace {

/// A desktop style that shows icons on dialog buttons.
class StyleWithIcons : public QProxyStyle
{
public:
    int styleHint(StyleHint hint, const QStyleOption *option, const QWidget *widget,
                  QStyleHintReturn *returned) const override
    {
        return hint == SH_DialogButtonBox_ButtonsHaveIcons
                   ? 1
                   : QProxyStyle::styleHint(hint, option, widget, returned);
    }
};

} // namespace

TEST(EditorStyle, DialogButtonsHaveNoIcons)
{
    EditorStyle style;
    style.setBaseStyle(new StyleWithIcons);
    QDialogButtonBox box;
    box.setStyle(&style);
    for (const auto button : {QDialogButtonBox::Ok, QDialogButtonBox::Save}) {
        EXPECT_TRUE(box.addButton(button)->icon().isNull());
    }
}

} // namespace tarvold::testing
