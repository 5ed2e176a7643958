#include "controls/long_text.h"

#include <QRegularExpression>

namespace tarvold::longtext {

QString quoted(const QString &text, qsizetype most)
{
    return text.size() <= most
               ? text
               : text.left(most / 2) + QStringLiteral(" [...] ") + text.right(most / 2);
}

QString breakable(QString text)
{
    static const QRegularExpression longWord(QStringLiteral("(\\S{40})(?=\\S)"));
    return text.replace(longWord, QStringLiteral("\\1\u200B"));
}

} // namespace tarvold::longtext
