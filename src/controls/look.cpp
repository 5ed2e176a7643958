#include "controls/look.h"

#include "controls/editor_style.h"

#include <QApplication>
#include <QFont>

namespace tarvold::look {

void apply()
{
    // The application owns the style, but the analyzer does not see into the toolkit.
    QApplication::setStyle(new EditorStyle); // NOLINT(clang-analyzer-cplusplus.NewDeleteLeaks)
    const QString labels = QStringLiteral("Arial");
    const QString buttons = QStringLiteral("MS Sans Serif");
    QFont::insertSubstitutions(labels, {QStringLiteral("Liberation Sans"), QStringLiteral("Arimo"),
                                        QStringLiteral("Helvetica")});
    QFont::insertSubstitutions(buttons, {QStringLiteral("Microsoft Sans Serif"), labels,
                                         QStringLiteral("Liberation Sans")});

    QFont font = QApplication::font();
    font.setFamilies({labels});
    QApplication::setFont(font);
    font.setFamilies({buttons});
    QApplication::setFont(font, "QPushButton");
}

} // namespace tarvold::look
