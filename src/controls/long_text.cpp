#include "controls/long_text.h"

#include <QRegularExpression>

namespace tarvold::longtext {

using namespace Qt::StringLiterals;

QString quoted(const QString &text, qsizetype most)
{
    return text.size() <= most ? text : text.left(most / 2) + u" [...] "_s + text.right(most / 2);
}

QString breakable(QString text)
{
    static const QRegularExpression longWord(u"(\\S{40})(?=\\S)"_s);
    return text.replace(longWord, u"\\1\u200B"_s);
}

QString toolTip(const QString &text)
{
    constexpr qsizetype kMostShown = 2000;
    return u"<p style=\"white-space: pre-wrap\">"_s +
           breakable(quoted(text, kMostShown)).toHtmlEscaped() + u"</p>"_s;
}

} // namespace tarvold::longtext
