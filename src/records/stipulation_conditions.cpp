#include "datafiles/stipulation_format.h"
#include "records/conditions.h"

namespace tarvold::records {

using namespace Qt::StringLiterals;
using namespace stipulationfields;

namespace {

constexpr Phrase kRules[] = {
    {&kDqPossible, "Yes", "DQ possible"},
    {&kDqPossible, "No", "DQ not possible"},
    {&kRunIns, "Yes", "run-ins possible"},
    {&kRunIns, "No", "no run-ins"},
    {&kTitleNeeded, "Yes", "a title has to be on the line"},
    {&kTitleNeeded, "No", ""},
    {&kDefaultCommentary, "Yes", "default commentary also"},
    {&kDefaultCommentary, "No", "no default commentary"},
    {&kQuality, "Just Standard Ability", "match quality by standard ability only"},
    {&kQuality, "Just Hardcore Ability", "match quality by hardcore ability only"},
    {&kQuality, "50% Standard, 50% Hardcore",
     "match quality half by standard, half by hardcore ability"},
    {&kReserved, "No", ""},
    {&kPromotion, "No", ""},
    {&kDrawDecrease, "NA", ""},
    {&kEntDecrease, "NA", ""},
    {&kDrawIncrease, "NA", ""},
    {&kEntIncrease, "NA", ""},
};

/// A number of one of the two values that a stipulation has.
struct Number
{
    const RecordField *field;
    const char *text;
};
constexpr Number kDraw[] = {{&kDrawCurrent, "%1"},
                            {&kDrawMaximum, "at most %1"},
                            {&kDrawDecrease, "down %1 when used"},
                            {&kDrawIncrease, "up %1 daily"}};
constexpr Number kEntertainment[] = {{&kEntCurrent, "%1"},
                                     {&kEntMaximum, "at most %1"},
                                     {&kEntDecrease, "down %1 when used"},
                                     {&kEntIncrease, "up %1 daily"}};

/// Such as "draw value 70, at most 90"; nothing if no field has a number.
QStringList tellValue(Teller &teller, const QString &name, std::span<const Number> numbers)
{
    QStringList told;
    for (const Number &number : numbers) {
        if (const QString digits = teller.tellNumber(*number.field); !digits.isEmpty()) {
            told << QString::fromLatin1(number.text).arg(digits);
        }
    }
    return told.isEmpty() ? told : QStringList(name + u' ' + told.join(u", "_s));
}

} // namespace

Conditions stipulationConditions(Teller &teller)
{
    Conditions told;
    for (const RecordField *field : {&kMatchType, &kName}) {
        if (const QString text = teller.text(*field); !text.isEmpty()) {
            teller.markTold(*field);
            told.setting << text;
        }
    }
    const QString shownAs = teller.text(kShownAs);
    teller.markTold(kShownAs);
    if (!shownAs.isEmpty() && shownAs != teller.text(kName)) {
        told.more << u"shown as \"%1\""_s.arg(shownAs);
    }
    told.more += teller.tellAll(kRules);
    const QString promotion = teller.text(kPromotion);
    if (!promotion.isEmpty() && promotion != "No"_L1) {
        teller.markTold(kPromotion);
        told.more << u"only in the promotion "_s + promotion;
    }
    if (const QString risk = teller.tellNumber(kInjuryRisk); !risk.isEmpty()) {
        told.more << u"injury risk %1%"_s.arg(risk);
    }
    told.more += tellValue(teller, u"draw value"_s, kDraw);
    told.more += tellValue(teller, u"entertainment value"_s, kEntertainment);
    return told;
}

} // namespace tarvold::records
