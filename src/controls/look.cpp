#include "controls/look.h"

#include "controls/editor_style.h"

#include <QApplication>
#include <QFont>

namespace tarvold::look {

using namespace Qt::StringLiterals;

void apply()
{
    // QApplication takes ownership of the style, but the analyzer does not see into Qt.
    QApplication::setStyle(new EditorStyle);
    const QString labels = u"Arial"_s; // the leak is reported on this line
    // NOLINTEND(clang-analyzer-cplusplus.NewDeleteLeaks)
    const QString buttons = u"MS Sans Serif"_s;
    QFont::insertSubstitutions(labels, {u"Liberation Sans"_s, u"Arimo"_s, u"Helvetica"_s});
    QFont::insertSubstitutions(buttons, {u"Microsoft Sans Serif"_s, labels, u"Liberation Sans"_s});

    QFont font = QApplication::font();
    font.setFamilies({labels});
    QApplication::setFont(font);
    font.setFamilies({buttons});
    QApplication::setFont(font, "QPushButton");
}

} // namespace tarvold::look
