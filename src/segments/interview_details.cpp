#include "segments/interview_details.h"

#include "datafiles/record_fields.h"
#include "screens/lists.h"

namespace tarvold {
namespace {

constexpr Field kInterviewFields[] = {
    {.control = "Combo3",
     .label = "Label2",
     .field = &fields::kFeudType,
     .items = lists::kFeudTypes,
     .help = "Type Of Feud ~ Specify whether this segment involves 2 feuding wrestlers, or 2 "
             "feuding tag teams."},
    {.control = "Combo1",
     .label = "Label3",
     .field = &fields::kInterviewer,
     .items = lists::kYesNoNa,
     .help = "Interviewer ~ If you involve an interviewer in this segment, choose Yes. If you "
             "require there not to be an interviewer, choose No. If it doesn't matter, choose "
             "N/A."},
    {.control = "Combo2",
     .label = "Label4",
     .field = &fields::kTelevised,
     .items = lists::kYesNoNa,
     .help = "Televised ~ If you only want this to happen on a televised show, choose Yes (eg. "
             "for backstage interviews - fans at non-televised shows wouldn't see). If it "
             "doesn't matter, choose N/A."},
    {.control = "Combo7",
     .label = "Label5",
     .field = &fields::kSide1Disposition,
     .items = lists::kFaceHeelAny,
     .help = "Disposition of Side 1 ~ Side 1 of the feud will be the wrestler/tag team who is "
             "being interviewed. If you are writing for a face or heel specifically, you can "
             "choose that option here. If not, choose Any."},
    {.control = "Combo6",
     .label = "Label6",
     .field = &fields::kSide2Disposition,
     .items = lists::kFaceHeelAny,
     .help = "Disposition of Side 2 ~ Side 2 of the feud will be the wrestler/tag team who "
             "interupts the interview in some way. They may not even be involved. If you are "
             "writing for a face or heel specifically, you can choose that option here. If not, "
             "choose Any."},
    {.control = "Text2",
     .label = "Label7",
     .field = &fields::kSide1Names,
     .designText = "Any",
     .help = "Side 1 Wrestler Name(s) ~ Here you can specify a certain wrestler this should be "
             "used for. If Singles, type the wrestler's name. If a specific tag team, type both "
             "wrestler's names separated by a comma (eg. Dex Vance,Rocco Vance). If this isn't "
             "specific to a wrestler or team, choose Any."},
    {.control = "Text1",
     .label = "Label9",
     .field = &fields::kSide2Names,
     .designText = "Any",
     .help = "Side 2 Wrestler Name(s) ~ Here you can specify a certain wrestler this should be "
             "used for. If Singles, type the wrestler's name. If a specific tag team, type both "
             "wrestler's names separated by a comma (eg. Dex Vance,Rocco Vance). If this isn't "
             "specific to a wrestler or team, choose Any."},
    {.control = "Combo4",
     .label = "Label10",
     .field = &fields::kFeudingGender,
     .items = lists::kMaleFemaleAny,
     .help = "Gender of Feuding Wrestlers ~ You can specify this interview to only be used with "
             "male wrestlers, or only with female wrestlers. If the gender doesn't matter, "
             "choose 'Any'."},
    {.control = "HScroll1",
     .label = "Label11",
     .field = &fields::kHeatIncrease,
     .bar = &lists::kFeudHeat,
     .help = "Feud Heat Increase ~ This is how much the feud bar will increase when this "
             "interview segment happens."},
};

const Fill kInterviewFills[] = {{"Text1", "Any"}, {"Text2", "Any"}};

} // namespace

std::span<const Field> Form12::fields()
{
    return kInterviewFields;
}

Form12::Form12(Screens & /*screens*/)
    : DetailsScreen({.name = kName,
                     .heading = "INTERVIEW SEGMENT DETAILS",
                     .fields = kInterviewFields,
                     .helpLabel = "Label13",
                     .fills = kInterviewFills})
{
}

} // namespace tarvold
