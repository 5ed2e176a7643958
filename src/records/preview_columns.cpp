#include "datafiles/record_fields.h"
#include "datafiles/stipulation_format.h"
#include "records/preview.h"

#include <span>

namespace tarvold::records {

using namespace Qt::StringLiterals;

namespace {

struct Column
{
    const char *caption; ///< shorter than the field's own, as several stand side by side
    const RecordField *field;
};

constexpr Column kFirstLine = {"First Line", fields::kCommentary.data()};
constexpr Column kStipulation = {"Stipulation", &fields::kStipulation};
constexpr Column kAttackerColumn = {"Attacker", &fields::kAttackerNames};
constexpr Column kReceiverColumn = {"Receiver", &fields::kReceiverName};
constexpr Column kBasicMatch = {"Match Type", &fields::kBasicMatchType};

constexpr Column kNormalColumns[] = {{"Match Type", &fields::kMatchType},
                                     kStipulation,
                                     kAttackerColumn,
                                     kReceiverColumn,
                                     kFirstLine};
constexpr Column kRunInColumns[] = {kBasicMatch,
                                    kStipulation,
                                    kAttackerColumn,
                                    kReceiverColumn,
                                    {"Run-In By", &fields::kFeudingNames},
                                    kFirstLine};
constexpr Column kTurnColumns[] = {kBasicMatch, kStipulation, kAttackerColumn, kReceiverColumn,
                                   kFirstLine};
constexpr Column kInterviewColumns[] = {{"Feud", &fields::kFeudType},
                                        {"Side 1", &fields::kSide1Names},
                                        {"Side 2", &fields::kSide2Names},
                                        kFirstLine};
constexpr Column kTalkShowColumns[] = {{"Host", &fields::kHost},
                                       {"Talk Show", &fields::kTalkShowName},
                                       {"Guest 1", &fields::kGuest1Name},
                                       {"Guest 2", &fields::kGuest2Name},
                                       kFirstLine};
constexpr Column kStipulationColumns[] = {{"Match Type", &stipulationfields::kMatchType},
                                          {"Name", &stipulationfields::kName},
                                          {"Shown As", &stipulationfields::kShownAs}};

std::span<const Column> tableOf(DataFileKind kind)
{
    switch (kind) {
    case DataFileKind::NormalEndings:
        return kNormalColumns;
    case DataFileKind::RunInEndings:
        return kRunInColumns;
    case DataFileKind::TurnEndings:
        return kTurnColumns;
    case DataFileKind::Interviews:
        return kInterviewColumns;
    case DataFileKind::TalkShows:
        return kTalkShowColumns;
    case DataFileKind::Stipulations:
        break;
    }
    return kStipulationColumns;
}

} // namespace

QStringList columnsOf(DataFileKind kind)
{
    QStringList captions;
    for (const Column &column : tableOf(kind)) {
        captions << QLatin1StringView(column.caption);
    }
    return captions;
}

QStringList columnTexts(const Record &record)
{
    QStringList texts;
    for (const Column &column : tableOf(record.catalog().kind())) {
        texts << record.shownText(*column.field);
    }
    return texts;
}

} // namespace tarvold::records
