#include "segments/talk_show_details.h"

#include "datafiles/record_fields.h"
#include "screens/lists.h"

namespace tarvold {
namespace {

constexpr Field kTalkShowFields[] = {
    {.control = "Text3",
     .label = "Label2",
     .field = &fields::kHost,
     .designText = "Any",
     .help = "Host of Talk Show ~ By typing a name here, this segment will only be used when "
             "the person whose name you typed is the host of the talk show segment. If it "
             "doesn't matter who the host is, put 'Any'."},
    {.control = "Combo1",
     .label = "Label3",
     .field = &fields::kHostDisposition,
     .items = lists::kFaceHeelAny,
     .help = "Disposition of Host ~ Here you can specify this segment for a heel host or a face "
             "host. If it can be used for either, choose 'Any'."},
    {.control = "Text4",
     .label = "Label4",
     .field = &fields::kTalkShowName,
     .designText = "Any",
     .help = "Name of Talk Show ~ You can specify this segment so it only get used for a Talk "
             "Show with this name. If you don't want to specify this to a certain Talk Show, "
             "choose Any."},
    {.control = "Text5",
     .label = "Label5",
     .field = &fields::kGuest1Name,
     .designText = "Any",
     .help = "Name of Guest # 1 ~ If you want to specify this segment for a certain guest, type "
             "their name here. Otherwise, type 'Any'."},
    {.control = "Combo7",
     .label = "Label6",
     .field = &fields::kGuest1Disposition,
     .items = lists::kFaceHeelAny,
     .help = "Disposition of Guest # 1 ~ You can specify whether this segment is only used when "
             "the guest is a heel, or only when the guest is a face. Otherwise, choose 'Any'."},
    {.control = "Text1",
     .label = "Label7",
     .field = &fields::kGuest2Name,
     .designText = "Any",
     .help = "Name of Guest # 2 ~ Guest 2 is the wrestler feuding with Guest 1. They don't "
             "necessarily have to be a guest on the show, they could come down to interupt. To "
             "specify this segment for a certain wrestler as Guest 2, type their name here. "
             "Otherwise, type 'Any'."},
    {.control = "Combo2",
     .label = "Label9",
     .field = &fields::kGuest2Disposition,
     .items = lists::kFaceHeelAny,
     .help = "Disposition of Guest # 2 ~ You can specify whether this segment is only used when "
             "Guest 2 is a heel, or only when Guest 2 is a face. Otherwise, choose 'Any'."},
    {.control = "Combo3",
     .label = "Label10",
     .field = &fields::kGuestGender,
     .items = lists::kMaleFemaleAny,
     .help = "Gender of Guests ~ Both the guests will be the same gender. Here you can specify "
             "to only use this segment with male guests, or female guests, or if it doesn't "
             "matter, choose 'Any'."},
    {.control = "HScroll1",
     .label = "Label11",
     .field = &fields::kHeatIncrease,
     .bar = &lists::kFeudHeat,
     .help = "Feud Heat Increase ~ This is how much the feud bar for the 2 guests will increase "
             "when this talk show segment happens."},
};

const Fill kTalkShowFills[] = {
    {"Text3", "Any"}, {"Text4", "Any"}, {"Text5", "Any"}, {"Text1", "Any"}};

} // namespace

std::span<const Field> Form14::fields()
{
    return kTalkShowFields;
}

Form14::Form14(Screens & /*screens*/)
    : DetailsScreen({.name = kName,
                     .heading = "TALK SHOW SEGMENT DETAILS",
                     .fields = kTalkShowFields,
                     .helpLabel = "Label13",
                     .fills = kTalkShowFills})
{
}

} // namespace tarvold
