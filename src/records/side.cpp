#include "records/side.h"

#include "records/names.h"

#include <algorithm>
#include <array>

namespace tarvold::records {

using namespace Qt::StringLiterals;

namespace {

struct Noun
{
    const char *word; ///< as the screens show it
    const char *singular;
    const char *plural;
};

constexpr Noun kDispositions[] = {{"Face", "face", "faces"}, {"Heel", "heel", "heels"}};
constexpr Noun kGenders[] = {{"Male", "male", "male"}, {"Female", "female", "female"}};
constexpr Noun kRingStyles[] = {
    {"Basic Wrestler", "basic wrestler", "basic wrestlers"},
    {"Big Man", "big man", "big men"},
    {"Cruiserweight", "cruiserweight", "cruiserweights"},
    {"Hardcore", "hardcore wrestler", "hardcore wrestlers"},
    {"High Flyer", "high flyer", "high flyers"},
    {"Old Heavyweight", "old heavyweight", "old heavyweights"},
    {"Powerful", "powerful wrestler", "powerful wrestlers"},
    {"Technical", "technical wrestler", "technical wrestlers"},
    {"Non-Worker", "non-worker", "non-workers"},
};
constexpr Noun kFinishers[] = {{"Pin", "a pin", "a pin"},
                               {"Submission", "a submission", "a submission"},
                               {"Top Rope", "off the top rope", "off the top rope"}};

/// The noun for a field's word; empty, and the field untold, if there is none.
QString tellNoun(Teller &teller, const RecordField *field, std::span<const Noun> nouns,
                 bool isPlural)
{
    if (field == nullptr) {
        return {};
    }
    const QString word = teller.text(*field);
    const auto found = std::find_if(nouns.begin(), nouns.end(), [&word](const Noun &noun) {
        return word == QLatin1StringView(noun.word);
    });
    if (found == nouns.end()) {
        return {};
    }
    teller.markTold(*field);
    return QString::fromLatin1(isPlural ? found->plural : found->singular);
}

QString withArticle(const QString &noun)
{
    const bool isVowel = !noun.isEmpty() && u"aeiou"_s.contains(noun.front());
    return (isVowel ? u"an "_s : u"a "_s) + noun;
}

/// Such as "a female heel high flyer"; empty if nothing is said.
QString tellDescription(Teller &teller, const SideFields &fields, bool isPlural)
{
    const QString gender = tellNoun(teller, fields.gender, kGenders, isPlural);
    const QString style = tellNoun(teller, fields.ringStyle, kRingStyles, isPlural);
    // Before another noun it has no plural: "heel cruiserweights".
    const QString disposition =
        tellNoun(teller, fields.disposition, kDispositions, isPlural && style.isEmpty());
    QStringList words = {gender, disposition, style};
    words.removeAll(QString());
    if (words.isEmpty()) {
        return {};
    }
    if (disposition.isEmpty() && style.isEmpty()) {
        words << (isPlural ? u"wrestlers"_s : u"wrestler"_s);
    }
    const QString noun = words.join(u' ');
    return isPlural ? noun : withArticle(noun);
}

/// Such as "a female manager who is a worker"; empty if no manager is involved.
QString tellManager(Teller &teller, const SideFields &fields)
{
    if (fields.manager == nullptr) {
        return {};
    }
    const QString text = teller.text(*fields.manager);
    const QString name = teller.tellName(*fields.manager);
    if (text == "None"_L1) {
        teller.markTold(*fields.manager);
        return u"without a manager"_s;
    }
    if (name.isEmpty() && text != "Any"_L1) {
        return {};
    }
    teller.markTold(*fields.manager);
    const QString gender = tellNoun(teller, fields.managerGender, kGenders, false);
    const QString noun = gender.isEmpty() ? u"manager"_s : gender + u" manager"_s;
    const QString who = name.isEmpty() ? u"a %1"_s.arg(noun) : u"the %1 %2"_s.arg(noun, name);
    const Phrase works[] = {{fields.managerWorks, "Yes", " who is a worker"},
                            {fields.managerWorks, "No", " who is not a worker"}};
    return u"with "_s + who + teller.tell(*fields.managerWorks, works);
}

QString tellStable(Teller &teller, const SideFields &fields)
{
    if (fields.stable == nullptr) {
        return {};
    }
    const QString text = teller.text(*fields.stable);
    if (const QString name = teller.tellName(*fields.stable); !name.isEmpty()) {
        return u"with the stable "_s + name;
    }
    const Phrase words[] = {{fields.stable, "Any", "with a stable"},
                            {fields.stable, "None", "without a stable"}};
    return teller.tell(*fields.stable, words);
}

/// Such as "who holds the title".
QString tellWho(Teller &teller, const SideFields &fields, bool isPlural)
{
    QStringList clauses;
    if (fields.holdsTitle != nullptr) {
        const Phrase holds[] = {
            {fields.holdsTitle, "Yes", isPlural ? "who hold the title" : "who holds the title"},
            {fields.holdsTitle, "No",
             isPlural ? "who do not hold the title" : "who does not hold the title"}};
        clauses += teller.tellAll(holds);
    }
    if (const QString finisher = tellNoun(teller, fields.finisher, kFinishers, false);
        !finisher.isEmpty()) {
        clauses << u"whose finisher is "_s + finisher;
    }
    return names::joined(clauses);
}

} // namespace

QString Side::atEnd() const
{
    return text.endsWith(u',') ? text.chopped(1) : text;
}

QString Side::verb(const char *singular, const char *plural) const
{
    return QString::fromLatin1(isPlural ? plural : singular);
}

Side tellSide(Teller &teller, const SideFields &fields)
{
    const QStringList names = teller.tellNames(*fields.names);
    Side side{.text = names::joined(names), .isPlural = names.size() > 1, .isAnyone = true};
    const QString description = tellDescription(teller, fields, side.isPlural);
    const QString who = tellWho(teller, fields, side.isPlural);
    QStringList with = {tellManager(teller, fields), tellStable(teller, fields)};
    with.removeAll(QString());
    side.isAnyone = names.isEmpty() && description.isEmpty() && who.isEmpty() && with.isEmpty();
    // A name is only described, so commas enclose what follows; else it tells which wrestlers.
    QStringList added = {who, names::joined(with)};
    if (names.isEmpty()) {
        side.text = description.isEmpty() ? u"anyone"_s : description;
        if (!who.isEmpty()) {
            side.text += u' ' + added.takeFirst();
        } else if (!with.isEmpty()) {
            side.text += u' ' + added.takeLast();
        }
    } else {
        added.prepend(description);
    }
    added.removeAll(QString());
    for (const QString &part : std::as_const(added)) {
        side.text += u", "_s + part;
    }
    side.text += added.isEmpty() ? QString() : u","_s;
    return side;
}

} // namespace tarvold::records
