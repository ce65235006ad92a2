#include "window/operation_records.h"

int SelectionEvent(int32_t type)
{
    // In the order of the space management pages of the event catalogue.
    static const std::map<int32_t, int> events = {
        {CloudBackUp, 209}, {Gallery, 210},  {CloudDisk, 211},
        {Notepad, 212},     {Recorder, 213}, {HarassmentInterception, 214},
        {Contact, 215},     {Wlan, 216},     {Browser, 217},
        {Calendar, 218},    {Message, 219},  {Phone, 220},
    };
    const auto found = events.find(type);
    return found != events.end() ? found->second : kEventOtherPage;
}

std::map<std::wstring, std::wstring> SelectionValues(const SpaceInfo& info)
{
    return {{L"size", !info.szItemSize.empty() ? info.szItemSize : info.szRemark}};
}

PanelAction PanelActionFor(int32_t type)
{
    using Kind = PanelAction::Kind;
    static const std::map<int32_t, PanelAction> actions = {
        {Contact, {Kind::Jump, "go to contacts.", 1}},
        {Notepad, {Kind::Jump, "go to notepad.", 3}},
        {Gallery, {Kind::Jump, "go to photo.", 2}},
        {CloudDisk, {Kind::Jump, "go to drive.", 4}},
        {Recorder, {Kind::Jump, "go to recorder.", 5}},
        {HarassmentInterception, {Kind::DeleteAll, "delete all harassments success.", 0}},
        {Message, {Kind::DeleteAll, "delete all messages success.", 0}},
        {Phone, {Kind::DeleteAll, "delete all call records success.", 0}},
    };
    const auto found = actions.find(type);
    return found != actions.end() ? found->second : PanelAction{};
}

std::map<std::wstring, std::wstring> JumpValues(int32_t type)
{
    return {{L"module", std::to_wstring(type)}};
}

std::map<std::wstring, std::wstring> DeleteAllValues(const SpaceInfo& info)
{
    return {{L"size", info.szItemSize}, {L"module", std::to_wstring(info.type)}};
}
