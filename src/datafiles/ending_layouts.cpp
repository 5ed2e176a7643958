#include "datafiles/record.h"

namespace tarvold {
namespace {

using enum Coding;

/// Joins groups of lines that records share.
RecordLayout joined(std::initializer_list<RecordLayout> groups)
{
    RecordLayout layout;
    for (const RecordLayout &group : groups) {
        layout.insert(layout.end(), group.begin(), group.end());
    }
    return layout;
}

RecordLayout criteria()
{
    return {
        {"Stipulation", {"Form4", "Text2"}, AsShown},
        {"Title On The Line?", {"Form4", "Combo1"}, AsShown},
        {"Title Changes Hands?", {"Form4", "Combo2"}, AsShown},
        {"Match Finish", {"Form4", "Combo4"}, AsShown},
        {"DQ Possible In This Match?", {"Form4", "Combo10"}, AsShown},
    };
}

RecordLayout attacker()
{
    return {
        {"Attacker(s) Name(s)", {"Form5", "Text2"}, AsShown},
        {"Attacker(s) Disposition", {"Form5", "Combo3"}, AsShown},
        {"Attacker(s) Ring Style", {"Form5", "Combo1"}, AsShown},
        {"Attacker(s) Gender", {"Form5", "Combo2"}, AsShown},
        {"Attacker Is The Title Holder?", {"Form5", "Combo4"}, AsShown},
        {"Attacker(s) Manager Name", {"Form5", "Text1"}, AsShown},
        {"Attacker(s) Manager's Gender", {"Form5", "Combo5"}, AsShown},
        {"Attacker(s) Manager - Worker?", {"Form5", "Combo6"}, AsShown},
        {"Attacker(s) Finisher Type", {"Form5", "Combo7"}, FinisherType},
        {"Attacker(s) Stable", {"Form5", "Text3"}, AsShown},
    };
}

RecordLayout receiver()
{
    return {
        {"Receiver Name", {"Form6", "Text2"}, AsShown},
        {"Receiver Disposition", {"Form6", "Combo3"}, AsShown},
        {"Receiver Ring Style", {"Form6", "Combo1"}, AsShown},
        {"Receiver Gender", {"Form6", "Combo2"}, AsShown},
        {"Receiver Is The Title Holder?", {"Form6", "Combo4"}, AsShown},
        {"Receiver Manager Name", {"Form6", "Text1"}, AsShown},
        {"Receiver Manager's Gender", {"Form6", "Combo5"}, AsShown},
        {"Receiver Manager - Worker?", {"Form6", "Combo6"}, AsShown},
        {"Receiver Finisher Type", {"Form6", "Combo7"}, FinisherType},
        {"Receiver Stable", {"Form6", "Text3"}, AsShown},
    };
}

RecordLayout feud()
{
    return {
        {"For Televised Shows?", {"Form8", "Combo5"}, AsShown},
        {"Type of Feud", {"Form8", "Combo3"}, AsShown},
        {"Feuding Wrestler(s)", {"Form8", "Text2"}, AsShown},
        {"Feuding Wrestler's Disposition", {"Form8", "Combo1"}, AsShown},
        {"Feud Wrestler's Ring Style", {"Form8", "Combo2"}, AsShown},
        {"Feuding Wrestler's Finisher Type", {"Form8", "Combo7"}, FinisherType},
        {"Feuding With", {"Form8", "Combo4"}, AsShown},
        {"Feud Heat Increase", {"Form8", "HScroll1"}, AsShown},
    };
}

/// A turn leaves out what its own dispositions replace, and managers and stables.
RecordLayout turningSides()
{
    return {
        {"Attacker(s) Name(s)", {"Form5", "Text2"}, AsShown},
        {"Attacker(s) Ring Style", {"Form5", "Combo1"}, AsShown},
        {"Attacker(s) Gender", {"Form5", "Combo2"}, AsShown},
        {"Attacker Is The Title Holder?", {"Form5", "Combo4"}, AsShown},
        {"Attacker(s) Finisher Type", {"Form5", "Combo7"}, FinisherType},
        {"Receiver Name", {"Form6", "Text2"}, AsShown},
        {"Receiver Ring Style", {"Form6", "Combo1"}, AsShown},
        {"Receiver Gender", {"Form6", "Combo2"}, AsShown},
        {"Receiver Is The Title Holder?", {"Form6", "Combo4"}, AsShown},
        {"Receiver Finisher Type", {"Form6", "Combo7"}, FinisherType},
    };
}

RecordLayout turn()
{
    return {
        {"Wrestler 1 Disposition", {"Form10", "Combo1"}, AsShown},
        {"Wrestler 2 Disposition", {"Form10", "Combo2"}, AsShown},
        {"Wrestler 3 Disposition", {"Form10", "Combo3"}, AsShown},
        {"Wrestler 4 Disposition", {"Form10", "Combo4"}, AsShown},
        {"Turning Wrestler(s) Are On", {"Form10", "Combo5"}, AsShown},
        {"Turning Wrestler is Attacker?", {"Form10", "Combo6"}, AsShown},
        {"Turning Wrestler is Receiver?", {"Form10", "Combo7"}, AsShown},
    };
}

} // namespace

RecordLayout commentaryLayout(const char *screen)
{
    return {
        {"Commentary line 1", {screen, "Text1"}, AsShown},
        {"Commentary line 2", {screen, "Text2"}, BlankIfEmpty},
        {"Commentary line 3", {screen, "Text3"}, BlankIfEmpty},
        {"Commentary line 4", {screen, "Text4"}, BlankIfEmpty},
        {"Commentary line 5", {screen, "Text5"}, BlankIfEmpty},
        {"Commentary line 6", {screen, "Text6"}, BlankIfEmpty},
        {"Commentary line 7", {screen, "Text7"}, BlankIfEmpty},
        {"Commentary line 8", {screen, "Text8"}, BlankIfEmpty},
        {"Commentary line 9", {screen, "Text9"}, BlankIfEmpty},
        {"Commentary line 10", {screen, "Text10"}, BlankIfEmpty},
    };
}

const RecordLayout &normalEndingLayout()
{
    static const RecordLayout layout = joined({{{"Match Type", {"Form4", "Combo3"}, AsShown}},
                                               criteria(),
                                               attacker(),
                                               receiver(),
                                               commentaryLayout("Form7")});
    return layout;
}

const RecordLayout &runInEndingLayout()
{
    static const RecordLayout layout = joined({{{"Match Type", {"Form4", "Combo12"}, AsShown}},
                                               criteria(),
                                               attacker(),
                                               receiver(),
                                               feud(),
                                               commentaryLayout("Form9")});
    return layout;
}

const RecordLayout &turnEndingLayout()
{
    static const RecordLayout layout = joined({{{"Match Type", {"Form4", "Combo12"}, AsShown}},
                                               criteria(),
                                               turningSides(),
                                               turn(),
                                               commentaryLayout("Form11")});
    return layout;
}

} // namespace tarvold
