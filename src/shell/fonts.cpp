#include "shell/fonts.h"

#include <QApplication>
#include <QFont>

namespace tarvold::fonts {

void apply()
{
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

} // namespace tarvold::fonts
