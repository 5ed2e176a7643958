#include "datafiles/record.h"

namespace tarvold {
namespace {

using enum Coding;

RecordLayout withCommentary(RecordLayout layout, const char *screen)
{
    const RecordLayout commentary = commentaryLayout(screen);
    layout.insert(layout.end(), commentary.begin(), commentary.end());
    return layout;
}

} // namespace

const RecordLayout &interviewLayout()
{
    // Side 1 comes first, although its controls bear the higher numbers.
    static const RecordLayout layout =
        withCommentary({{"Type of Feud", {"Form12", "Combo3"}, AsShown},
                        {"Interviewer?", {"Form12", "Combo1"}, AsShown},
                        {"Televised?", {"Form12", "Combo2"}, AsShown},
                        {"Disposition Of Side 1", {"Form12", "Combo7"}, AsShown},
                        {"Disposition Of Side 2", {"Form12", "Combo6"}, AsShown},
                        {"Side 1 Wrestler Name(s)", {"Form12", "Text2"}, AsShown},
                        {"Side 2 Wrestler Name(s)", {"Form12", "Text1"}, AsShown},
                        {"Gender of Feuding Wrestlers", {"Form12", "Combo4"}, AsShown},
                        {"Feud Heat Increase", {"Form12", "HScroll1"}, AsShown}},
                       "Form13");
    return layout;
}

const RecordLayout &talkShowLayout()
{
    static const RecordLayout layout =
        withCommentary({{"Host of Talk Show", {"Form14", "Text3"}, AsShown},
                        {"Disposition Of Host", {"Form14", "Combo1"}, AsShown},
                        {"Name of Talk Show", {"Form14", "Text4"}, AsShown},
                        {"Name of Guest # 1", {"Form14", "Text5"}, AsShown},
                        {"Disposition Of Guest # 1", {"Form14", "Combo7"}, AsShown},
                        {"Name of Guest # 2", {"Form14", "Text1"}, AsShown},
                        {"Disposition Of Guest # 2", {"Form14", "Combo2"}, AsShown},
                        {"Gender of Guests", {"Form14", "Combo3"}, AsShown},
                        {"Feud Heat Increase", {"Form14", "HScroll1"}, AsShown}},
                       "Form15");
    return layout;
}

} // namespace tarvold
