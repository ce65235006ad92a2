#include "toolkit/paint/notify_pump.h"

#include "toolkit/controls/control.h"

namespace DuiLib {

const DUI_MSGMAP_ENTRY CNotifyPump::_messageEntries[] = {{nullptr, nullptr, nullptr}};
const DUI_MSGMAP CNotifyPump::messageMap = {nullptr, &CNotifyPump::_messageEntries[0]};

const DUI_MSGMAP* CNotifyPump::GetMessageMap() const
{
    return &CNotifyPump::messageMap;
}

bool CNotifyPump::AddVirtualWnd(CDuiString strName, CNotifyPump* pObject)
{
    if (pObject == nullptr || m_VirtualWndMap.count(strName) != 0)
        return false;
    m_VirtualWndMap[strName] = pObject;
    return true;
}

bool CNotifyPump::RemoveVirtualWnd(CDuiString strName)
{
    return m_VirtualWndMap.erase(strName) != 0;
}

void CNotifyPump::NotifyPump(TNotifyUI& msg)
{
    if (!msg.sVirtualWnd.IsEmpty()) {
        const auto found = m_VirtualWndMap.find(msg.sVirtualWnd);
        if (found != m_VirtualWndMap.end()) {
            found->second->LoopDispatch(msg);
            return;
        }
    }
    LoopDispatch(msg);
}

bool CNotifyPump::LoopDispatch(TNotifyUI& msg)
{
    const CDuiString senderName = msg.pSender != nullptr ? msg.pSender->GetName() : CDuiString();
    for (const DUI_MSGMAP* map = GetMessageMap(); map != nullptr; map = map->pBaseMap) {
        for (const DUI_MSGMAP_ENTRY* entry = map->lpEntries; entry != nullptr && entry->pfn != nullptr;
             ++entry) {
            if (msg.sType != entry->sMsgType)
                continue;
            const bool anySender = entry->sCtrlName == nullptr || entry->sCtrlName[0] == 0;
            if (!anySender && senderName != entry->sCtrlName)
                continue;
            entry->pfn(this, msg);
            return true;
        }
    }
    return false;
}

} // namespace DuiLib
