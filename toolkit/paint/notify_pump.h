#pragma once
// CNotifyPump: routes notifications to member functions through a message
// map, and to "virtual windows": other pumps registered under a name, which
// receive the notifications of controls whose `virtualwnd` is that name.
//
//   class CPage : public CNotifyPump {
//       DUI_DECLARE_MESSAGE_MAP()
//       virtual void OnClick(TNotifyUI& msg);
//   };
//   DUI_BEGIN_MESSAGE_MAP(CPage)
//   DUI_ON_MSGTYPE(DUI_MSGTYPE_CLICK, OnClick)
//   DUI_END_MESSAGE_MAP()

#include <map>

#include "toolkit/core/ui_base.h"

namespace DuiLib {

class CNotifyPump;
// A map entry calls its handler through a small function made for the
// handler's own class, so no member pointer is ever converted between
// classes.
using DUI_PMSG = void (*)(CNotifyPump* pump, TNotifyUI& msg);

template <class T> struct NotifyHandlerClass;
template <class C> struct NotifyHandlerClass<void (C::*)(TNotifyUI&)>
{
    using type = C;
};

template <auto Handler> void CallNotifyHandler(CNotifyPump* pump, TNotifyUI& msg)
{
    using Class = typename NotifyHandlerClass<decltype(Handler)>::type;
    (static_cast<Class*>(pump)->*Handler)(msg);
}

struct DUI_MSGMAP_ENTRY
{
    LPCTSTR sMsgType;  // notification type
    LPCTSTR sCtrlName; // sender's name; empty matches every sender
    DUI_PMSG pfn;
};

struct DUI_MSGMAP
{
    const DUI_MSGMAP* pBaseMap;
    const DUI_MSGMAP_ENTRY* lpEntries; // ends with an entry whose pfn is null
};

class CNotifyPump
{
public:
    virtual ~CNotifyPump() = default;
    bool AddVirtualWnd(CDuiString strName, CNotifyPump* pObject);
    bool RemoveVirtualWnd(CDuiString strName);
    // Routes by msg.sVirtualWnd: to the virtual window of that name if one
    // is registered, otherwise through this pump's own map.
    void NotifyPump(TNotifyUI& msg);
    // Runs the first entry of the map (or its bases) that matches the type
    // and the sender; true when one ran.
    bool LoopDispatch(TNotifyUI& msg);

protected:
    virtual const DUI_MSGMAP* GetMessageMap() const;
    static const DUI_MSGMAP messageMap;
    static const DUI_MSGMAP_ENTRY _messageEntries[];

private:
    std::map<CDuiString, CNotifyPump*> m_VirtualWndMap;
};

#define DUI_DECLARE_MESSAGE_MAP()                                                                            \
private:                                                                                                     \
    static const ::DuiLib::DUI_MSGMAP_ENTRY _messageEntries[];                                               \
                                                                                                             \
protected:                                                                                                   \
    static const ::DuiLib::DUI_MSGMAP messageMap;                                                            \
    const ::DuiLib::DUI_MSGMAP* GetMessageMap() const override;

#define DUI_BEGIN_MESSAGE_MAP(theClass)                                                                      \
    const ::DuiLib::DUI_MSGMAP* theClass::GetMessageMap() const                                              \
    {                                                                                                        \
        return &theClass::messageMap;                                                                        \
    }                                                                                                        \
    const ::DuiLib::DUI_MSGMAP theClass::messageMap = {&::DuiLib::CNotifyPump::messageMap,                   \
                                                       &theClass::_messageEntries[0]};                       \
    const ::DuiLib::DUI_MSGMAP_ENTRY theClass::_messageEntries[] = {

#define DUI_BEGIN_MESSAGE_MAP_BASE(theClass, baseClass)                                                      \
    const ::DuiLib::DUI_MSGMAP* theClass::GetMessageMap() const                                              \
    {                                                                                                        \
        return &theClass::messageMap;                                                                        \
    }                                                                                                        \
    const ::DuiLib::DUI_MSGMAP theClass::messageMap = {&baseClass::messageMap,                               \
                                                       &theClass::_messageEntries[0]};                       \
    const ::DuiLib::DUI_MSGMAP_ENTRY theClass::_messageEntries[] = {

#define DUI_END_MESSAGE_MAP()                                                                                \
    {                                                                                                        \
        nullptr, nullptr, nullptr                                                                            \
    }                                                                                                        \
    }                                                                                                        \
    ;

#define DUI_ON_MSGTYPE(msgtype, memberFxn) {msgtype, L"", &::DuiLib::CallNotifyHandler<&memberFxn>},

#define DUI_ON_MSGTYPE_CTRNAME(msgtype, ctrname, memberFxn)                                                  \
    {msgtype, ctrname, &::DuiLib::CallNotifyHandler<&memberFxn>},

#define DUI_ON_CLICK_CTRNAME(ctrname, memberFxn)                                                             \
    {DUI_MSGTYPE_CLICK, ctrname, &::DuiLib::CallNotifyHandler<&memberFxn>},

} // namespace DuiLib
