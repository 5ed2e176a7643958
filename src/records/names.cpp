#include "records/names.h"

#include "datafiles/record_fields.h"

namespace tarvold::records::names {

using namespace Qt::StringLiterals;

namespace {

/// The last word of a name that is not added to it: "Vance" of "Rocco Vance, Jr.".
QString lastWord(const QString &name)
{
    static const QStringList added = {u"jr"_s, u"sr"_s, u"ii"_s, u"iii"_s, u"iv"_s};
    QStringList words = name.split(u' ', Qt::SkipEmptyParts);
    const auto isAdded = [](QString word) {
        return added.contains(word.remove(u'.').remove(u',').toLower());
    };
    while (words.size() > 1 && isAdded(words.back())) {
        words.removeLast();
    }
    const QString word = words.value(words.size() - 1);
    return word.endsWith(u',') ? word.chopped(1) : word;
}

} // namespace

bool isNoName(const QString &text)
{
    return text.isEmpty() || text == "Any"_L1 || text == "N/A"_L1 || text == "None"_L1;
}

bool mayBeSeveral(const RecordField &field)
{
    return &field != &fields::kReceiverName && &field != &fields::kGuest1Name &&
           &field != &fields::kGuest2Name && &field != &fields::kHost;
}

QStringList only(const QString &text)
{
    const QString name = text.trimmed();
    return QStringList(isNoName(name) ? QString() : name);
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
