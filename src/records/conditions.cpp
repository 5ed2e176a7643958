#include "records/conditions.h"

#include "datafiles/record_fields.h"
#include "records/names.h"
#include "records/preview.h"
#include "records/side.h"

namespace tarvold::records {

using namespace Qt::StringLiterals;
using namespace fields;

namespace {

constexpr SideFields kAttacker = {.names = &kAttackerNames,
                                  .disposition = &kAttackerDisposition,
                                  .ringStyle = &kAttackerRingStyle,
                                  .gender = &kAttackerGender,
                                  .holdsTitle = &kAttackerHoldsTitle,
                                  .manager = &kAttackerManager,
                                  .managerGender = &kAttackerManagerGender,
                                  .managerWorks = &kAttackerManagerWorks,
                                  .finisher = &kAttackerFinisher,
                                  .stable = &kAttackerStable};
constexpr SideFields kReceiver = {.names = &kReceiverName,
                                  .disposition = &kReceiverDisposition,
                                  .ringStyle = &kReceiverRingStyle,
                                  .gender = &kReceiverGender,
                                  .holdsTitle = &kReceiverHoldsTitle,
                                  .manager = &kReceiverManager,
                                  .managerGender = &kReceiverManagerGender,
                                  .managerWorks = &kReceiverManagerWorks,
                                  .finisher = &kReceiverFinisher,
                                  .stable = &kReceiverStable};
constexpr SideFields kFeuding = {.names = &kFeudingNames,
                                 .disposition = &kFeudingDisposition,
                                 .ringStyle = &kFeudingRingStyle,
                                 .finisher = &kFeudingFinisher};
constexpr SideFields kInterviewed = {.names = &kSide1Names, .disposition = &kSide1Disposition};
constexpr SideFields kInterrupting = {.names = &kSide2Names, .disposition = &kSide2Disposition};
constexpr SideFields kShowHost = {.names = &kHost, .disposition = &kHostDisposition};
constexpr SideFields kGuest1 = {.names = &kGuest1Name, .disposition = &kGuest1Disposition};
constexpr SideFields kGuest2 = {.names = &kGuest2Name, .disposition = &kGuest2Disposition};

constexpr Phrase kMatchSetting[] = {
    {&kTitleOnTheLine, "Yes", "title on the line"},
    {&kTitleOnTheLine, "No", "no title on the line"},
    {&kTitleChangesHands, "Yes", "title changes hands"},
    {&kTitleChangesHands, "No", "title does not change hands"},
    {&kDqPossible, "Yes", "DQ possible"},
    {&kDqPossible, "No", "DQ not possible"},
    {&kForTelevisedShows, "Yes", "televised"},
};
constexpr Phrase kInterviewSetting[] = {
    {&kFeudType, "Singles", "Singles feud"},
    {&kFeudType, "Tag Team", "Tag Team feud"},
    {&kFeudingGender, "Male", "male wrestlers"},
    {&kFeudingGender, "Female", "female wrestlers"},
    {&kInterviewer, "Yes", "with an interviewer"},
    {&kInterviewer, "No", "without an interviewer"},
    {&kTelevised, "Yes", "televised"},
    {&kTelevised, "No", "not televised"},
};
constexpr Phrase kFinish[] = {{&kMatchFinish, "Normal", ""},
                              {&kMatchFinish, "DQ", " by disqualification"}};
constexpr Phrase kWinning[] = {{&kAttackerFinisher, "Pin", " by a pin"},
                               {&kAttackerFinisher, "Submission", " by submission"},
                               {&kAttackerFinisher, "Top Rope", " off the top rope"}};
constexpr Phrase kFeudKind[] = {{&kFeudType, "Singles", "a Singles feud"},
                                {&kFeudType, "Tag Team", "a Tag Team feud"}};
constexpr Phrase kFeudOpponent[] = {{&kFeudingWith, "Winners", " with the winners"},
                                    {&kFeudingWith, "Losers", " with the losers"}};
constexpr Phrase kTurningDispositions[] = {
    {nullptr, "Face", "is a face"},
    {nullptr, "Heel", "is a heel"},
    {nullptr, "Turning Face", "turns face"},
    {nullptr, "Turning Heel", "turns heel"},
};
constexpr const RecordField *kTurnDispositions[] = {&kWrestler1Disposition, &kWrestler2Disposition,
                                                    &kWrestler3Disposition, &kWrestler4Disposition};
constexpr Phrase kTurn[] = {
    {&kTurningSide, "Winning Side", "is on the winning side"},
    {&kTurningSide, "Losing Side", "is on the losing side"},
    {&kAttackerTurns, "Yes", "is the attacker"},
    {&kAttackerTurns, "No", "is not the attacker"},
    {&kReceiverTurns, "Yes", "is the receiver"},
    {&kReceiverTurns, "No", "is not the receiver"},
};
constexpr Phrase kGuests[] = {{&kGuestGender, "Male", "the guests are male"},
                              {&kGuestGender, "Female", "the guests are female"}};

void addIfAny(QStringList &list, const QString &text)
{
    if (!text.isEmpty()) {
        list << text;
    }
}

QString heatOf(Teller &teller)
{
    const QString heat = teller.tellNumber(kHeatIncrease);
    return heat.isEmpty() ? QString() : u"the feud heat rises by %1%"_s.arg(heat);
}

/// Who wins how against whom; empty if that is left open.
QString tellWin(Teller &teller)
{
    QString how = teller.tell(kMatchFinish, kFinish);
    SideFields attacker = kAttacker;
    const bool isDq = !how.isEmpty();
    if (!isDq) { // else the finisher is not how the match was won
        how = teller.tell(kAttackerFinisher, kWinning);
        attacker.finisher = nullptr;
    }
    const Side winner = tellSide(teller, attacker);
    const Side loser = tellSide(teller, kReceiver);
    if (winner.isAnyone && loser.isAnyone && how.isEmpty()) {
        return {};
    }
    const QString against = loser.isAnyone ? QString() : u" against "_s + loser.atEnd();
    return winner.text + u' ' + winner.verb("wins", "win") + how + against;
}

void tellRunIn(Teller &teller, Conditions &told)
{
    QString kind = teller.tell(kFeudType, kFeudKind);
    kind =
        u"in "_s + (kind.isEmpty() ? u"a feud"_s : kind) + teller.tell(kFeudingWith, kFeudOpponent);
    const Side who = tellSide(teller, kFeuding);
    addIfAny(told.more, u"%1, %2 %3 in"_s.arg(kind, who.text, who.verb("runs", "run")));
    addIfAny(told.more, heatOf(teller));
}

void tellTurn(Teller &teller, Conditions &told)
{
    int number = 0;
    for (const RecordField *field : kTurnDispositions) {
        ++number;
        for (Phrase phrase : kTurningDispositions) {
            phrase.field = field;
            const QString said = teller.tell(*field, std::span(&phrase, 1));
            addIfAny(told.more, said.isEmpty() ? said : u"wrestler %1 %2"_s.arg(number).arg(said));
        }
    }
    const QStringList turn = teller.tellAll(kTurn);
    addIfAny(told.more, turn.isEmpty() ? QString() : u"whoever turns "_s + names::joined(turn));
}

} // namespace

Conditions endingConditions(Teller &teller)
{
    Conditions told;
    const DataFileKind kind = teller.record().catalog().kind();
    const bool isNormal = kind == DataFileKind::NormalEndings;
    addIfAny(told.setting, teller.tellName(isNormal ? kMatchType : kBasicMatchType));
    addIfAny(told.setting, teller.tellName(kStipulation));
    told.setting += teller.tellAll(kMatchSetting);
    told.main = tellWin(teller);
    if (kind == DataFileKind::RunInEndings) {
        tellRunIn(teller, told);
    } else if (kind == DataFileKind::TurnEndings) {
        tellTurn(teller, told);
    }
    return told;
}

Conditions interviewConditions(Teller &teller)
{
    Conditions told;
    told.setting = teller.tellAll(kInterviewSetting);
    const Side side1 = tellSide(teller, kInterviewed);
    const Side side2 = tellSide(teller, kInterrupting);
    if (!side1.isAnyone || !side2.isAnyone) {
        told.main = side1.text + side1.verb(" is interviewed", " are interviewed");
        told.main += side2.isAnyone ? QString() : u" in a feud with "_s + side2.atEnd();
    }
    addIfAny(told.more, heatOf(teller));
    return told;
}

Conditions talkShowConditions(Teller &teller)
{
    Conditions told;
    const QString name = teller.tellName(kTalkShowName);
    QString show = name.isEmpty() ? u"any talk show"_s : u"the talk show \"%1\""_s.arg(name);
    if (const Side host = tellSide(teller, kShowHost); !host.isAnyone) {
        show += u" hosted by "_s + host.atEnd();
    }
    told.main = show;
    for (const SideFields &guest : {kGuest1, kGuest2}) {
        if (const Side side = tellSide(teller, guest); !side.isAnyone) {
            told.more
                << u"guest %1 is %2"_s.arg(guest.names == &kGuest1Name ? 1 : 2).arg(side.atEnd());
        }
    }
    told.more += teller.tellAll(kGuests);
    addIfAny(told.more, heatOf(teller));
    return told;
}

} // namespace tarvold::records
