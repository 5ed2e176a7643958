#include "segments/segment_flow.h"

#include "screens/main_menu.h"
#include "screens/screens.h"
#include "segments/interview_details.h"
#include "segments/opening_details.h"
#include "segments/segment_commentary.h"
#include "segments/talk_show_details.h"

namespace tarvold::segmentflow {
namespace {

constexpr Preset kInterview[] = {
    {{"Form12", "Combo3"}, "Singles"},
    {{"Form12", "Combo1"}, "N/A"},
    {{"Form12", "Combo2"}, "N/A"},
    {{"Form12", "Combo7"}, "Any"},
    {{"Form12", "Combo6"}, "Any"},
    {{"Form12", "Combo4"}, "Any"},
    {{"Form12", "Text2"}, "Any"},
    {{"Form12", "Text1"}, "Any"},
    {{"Form12", "HScroll1"}, "10"},
    {{"Form12", "Label8"}, "10%"},
    {{"Form13", "Combo1"}, "Wrestler 1 Long Name"},
};

constexpr Preset kTalkShow[] = {
    {{"Form14", "Text3"}, "Any"},        {{"Form14", "Combo1"}, "Any"},
    {{"Form14", "Text4"}, "Any"},        {{"Form14", "Text5"}, "Any"},
    {{"Form14", "Combo7"}, "Any"},       {{"Form14", "Text1"}, "Any"},
    {{"Form14", "Combo2"}, "Any"},       {{"Form14", "Combo3"}, "Any"},
    {{"Form14", "HScroll1"}, "10"},      {{"Form14", "Label8"}, "10%"},
    {{"Form15", "Combo1"}, "Host Name"},
};

} // namespace

std::span<const FlowStep> chain()
{
    static const FlowStep steps[] = {
        {"Form12", "Form1", {{nullptr, "Form13"}}},
        {"Form13", "Form12"},
        {"Form14", "Form1", {{nullptr, "Form15"}}},
        {"Form15", "Form14"},
    };
    return steps;
}

std::span<const Preset> interviewValues()
{
    return kInterview;
}

std::span<const Preset> talkShowValues()
{
    return kTalkShow;
}

void declare(Screens &screens)
{
    screens.declare<Form12>();
    screens.declare<Form13>();
    screens.declare<Form14>();
    screens.declare<Form15>();
    screens.declare<Form17>();
}

void enterInterview(Screens &screens)
{
    screens.apply(kInterview);
    screens.get<Form13>().startAfresh();
    screens.get<Form12>().replace(screens.get<Form1>());
}

void enterTalkShow(Screens &screens)
{
    screens.apply(kTalkShow);
    screens.get<Form15>().startAfresh();
    screens.get<Form14>().replace(screens.get<Form1>());
}

} // namespace tarvold::segmentflow
