#include "segments/opening_details.h"

#include "datafiles/record_fields.h"
#include "screens/lists.h"

namespace tarvold {
namespace {

constexpr const char *kMatchTypes[] = {"Singles", "Any"};
constexpr const char *kPowerFigures[] = {"Any",    "None",   "Face and Heel", "2 Face",
                                         "2 Heel", "1 Face", "1 Heel"};

constexpr Field kOpeningFields[] = {
    {.control = "Combo4",
     .label = "Label12",
     .caption = "Main Event Match Type",
     .items = kMatchTypes,
     .help = "Main Event Match Type ~ If you want your opening segment to be based on the main "
             "event, choose Singles (only Singles matches can be involved in the opening "
             "segments). If the opening segment doesn't involve the main event, choose Any."},
    {.control = "Text2",
     .label = "Label4",
     .caption = "Main Event Stipulation",
     .designText = "Any",
     .help = "Main Event Stipulation ~ If you want your opening segment to be based on the main "
             "event, you can specify this segment to a certain stipulation - eg. if the main "
             "event is a Ladder Match, you can set up that match in your opening segment."},
    {.control = "Combo1",
     .label = "Label2",
     .caption = fields::kTitleOnTheLine.name,
     .items = lists::kYesNoNa,
     .help = "Title On The Line ~ Here you can specify if the main event is a title match or "
             "not. If it doesn't matter whether a title is on the line, choose N/A."},
    {.control = "Combo5",
     .label = "Label9",
     .caption = fields::kTelevised.name,
     .items = lists::kYesNoNa,
     .help = "Televised ~ You can choose to use this segment only if the show is televised, or "
             "only if the show isn't televised. If it doesn't matter, choose N/A."},
    {.control = "Combo6",
     .label = "Label3",
     .caption = "Title Holder In The Match?",
     .items = lists::kYesNoNa,
     .help = "Title Holder In The Match ~ If the main event is a singles title match, and the "
             "title holder is in the match, choose Yes. If the match is for a title and the "
             "holder is not in the match (eg. the title is vacant), choose No. If the main "
             "event isn't a singles match for a title, choose N/A."},
    {.control = "Combo7",
     .label = "Label10",
     .caption = "Power Figures",
     .items = kPowerFigures,
     .help = "Power Figures ~ If you need power figures involved in the opening segment, "
             "specify here which ones are needed. Note: If 1 Face and 1 Heel, Power Figure 1 "
             "will be the Face and Power Figure 2 will be the Heel."},
    {.control = "Text1",
     .label = "Label6",
     .caption = "Power Figure 1 Name",
     .designText = "N/A",
     .help = "Power Figure 1 Name ~ If this segment involves power figures, and you want to "
             "write it for a specific person eg. Victor Hale, type the name of the person here. "
             "If the segment involves power figures and is not specific to one person, type "
             "Any. Otherwise, type N/A. Note: If 1 Face and 1 Heel Power Figure, Power Figure 1 "
             "will be the Face."},
    {.control = "Text3",
     .label = "Label7",
     .caption = "Power Figure 2 Name",
     .designText = "N/A",
     .help = "Power Figure 2 Name ~ If this segment involves power figures, and you want to "
             "write it for a specific person eg. Victor Hale, type the name of the person here. "
             "If the segment involves power figures and is not specific to one person, type "
             "Any. Otherwise, type N/A. Note: If 1 Face and 1 Heel Power Figure, Power Figure 2 "
             "will be the Heel."},
    {.control = "Text4",
     .label = "Label8",
     .caption = "Wrestler 1 Name",
     .designText = "Any",
     .help = "Wrestler 1 Name ~ If the opening segment is based on the main event singles "
             "match, and you want to write the segment for a specific wrestler, type their name "
             "here. If it isn't for a specific person, type Any. Otherwise, type N/A. Note: If "
             "the main event is a singles title match, and the holder is in the match, they "
             "will be wrestler 1."},
    {.control = "Combo2",
     .label = "Label5",
     .caption = fields::kWrestler1Disposition.name,
     .items = lists::kFaceHeelAny},
    {.control = "Text5",
     .label = "Label14",
     .caption = "Wrestler 2 Name",
     .designText = "Any",
     .help = "Wrestler 2 Name ~ If the opening segment is based on the main event singles "
             "match, and you want to write the segment for a specific wrestler, type their name "
             "here. If it isn't for a specific person, type Any. Otherwise, type N/A. Note: If "
             "the main event is a singles title match, and the holder is in the match, they "
             "will be wrestler 1."},
    {.control = "Combo3",
     .label = "Label11",
     .caption = fields::kWrestler2Disposition.name,
     .items = lists::kFaceHeelAny},
};

} // namespace

Form17::Form17(Screens & /*screens*/)
    : DetailsScreen({.name = kName,
                     .heading = "OPENING SEGMENT DETAILS",
                     .fields = kOpeningFields,
                     .helpLabel = "Label13"})
{
}

} // namespace tarvold
