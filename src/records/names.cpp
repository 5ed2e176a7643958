#include "records/names.h"

namespace tarvold::records::names {

using namespace Qt::StringLiterals;

bool isNoName(const QString &text)
{
    return text.isEmpty() || text == "Any"_L1 || text == "N/A"_L1 || text == "None"_L1;
}

QStringList in(const QString &text)
{
    QStringList names;
    for (const QString &part : text.split(u',')) {
        const QString name = part.trimmed();
        names << (isNoName(name) ? QString() : name);
    }
    return names;
}

QString shortOf(const QStringList &names, qsizetype which)
{
    const auto lastWord = [](const QString &name) { return name.section(u' ', -1); };
    const QString name = names.value(which);
    for (qsizetype other = 0; other < names.size(); ++other) {
        if (other != which && lastWord(names[other]) == lastWord(name)) {
            return name.section(u' ', 0, 0);
        }
    }
    return lastWord(name);
}

QString joined(const QStringList &words)
{
    if (words.size() < 2) {
        return words.value(0);
    }
    return words.first(words.size() - 1).join(u", "_s) + u" and "_s + words.back();
}

} // namespace tarvold::records::names
