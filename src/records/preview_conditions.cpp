#include "records/conditions.h"
#include "records/preview.h"

#include <algorithm>

namespace tarvold::records {

using namespace Qt::StringLiterals;

namespace {

struct Kind
{
    DataFileKind kind;
    Conditions (*tell)(Teller &);
    const char *any; ///< a record without any condition
};

constexpr Kind kKinds[] = {
    {DataFileKind::NormalEndings, endingConditions, "Any match."},
    {DataFileKind::RunInEndings, endingConditions, "Any match."},
    {DataFileKind::TurnEndings, endingConditions, "Any match."},
    {DataFileKind::Interviews, interviewConditions, "Any interview."},
    {DataFileKind::TalkShows, talkShowConditions, "Any talk show."},
    {DataFileKind::Stipulations, stipulationConditions, "Nothing is said."},
};

const Kind &rowOfKind(DataFileKind kind)
{
    return *std::find_if(std::begin(kKinds), std::end(kKinds),
                         [kind](const Kind &row) { return row.kind == kind; });
}

QString asSentence(const Conditions &told)
{
    QStringList clauses = told.more;
    if (!told.main.isEmpty()) {
        clauses.prepend(told.main);
    }
    QStringList halves = {told.setting.join(u", "_s), clauses.join(u"; "_s)};
    halves.removeAll(QString());
    QString sentence = halves.join(u": "_s);
    if (!sentence.isEmpty()) {
        sentence.front() = sentence.front().toUpper();
        sentence += u'.';
    }
    return sentence;
}

} // namespace

QString conditionsOf(const Record &record)
{
    const Kind &kind = rowOfKind(record.catalog().kind());
    Teller teller(record);
    QStringList sentences = {asSentence(kind.tell(teller))};
    sentences += teller.rest();
    sentences.removeAll(QString());
    return sentences.isEmpty() ? QString::fromLatin1(kind.any) : sentences.join(u' ');
}

} // namespace tarvold::records
