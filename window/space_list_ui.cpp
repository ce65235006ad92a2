#include "window/space_list_ui.h"

#include "window/space_rows.h"

using namespace DuiLib;

CSpaceItemUI::~CSpaceItemUI() = default;

LPCTSTR CSpaceItemUI::GetClass() const
{
    return L"CustomListItemUI";
}

void CSpaceItemUI::SetSpaceInfo(const SpaceInfo& info)
{
    m_spaceInfo = info;
    if (CControlUI* name = FindSubControl(L"itemName"))
        name->SetText(m_spaceInfo.szItemName.c_str());
    if (CControlUI* picture = FindSubControl(L"itemPic"))
        picture->SetBkImage(m_spaceInfo.szItemPic.c_str());
    CControlUI* remark = FindSubControl(L"itemRemark");
    CControlUI* size = FindSubControl(L"itemSize");
    if (remark == nullptr || size == nullptr)
        return;
    const RowColumns columns = ColumnsOf(m_spaceInfo);
    size->SetText(columns.sizeText.c_str());
    if (columns.remarkTextSet)
        remark->SetText(columns.remarkText.c_str());
    remark->SetVisible(columns.remarkVisible);
}

CSpaceListViewUI::~CSpaceListViewUI() = default;

LPCTSTR CSpaceListViewUI::GetClass() const
{
    return L"CustomListViewUI";
}

LPVOID CSpaceListViewUI::GetInterface(LPCTSTR pstrName)
{
    if (CompareNoCase(pstrName, kSpaceListClass) == 0)
        return this;
    return CListUI::GetInterface(pstrName);
}

CControlUI* CSpaceListViewUI::CreateControl(LPCTSTR pstrClass)
{
    if (CompareNoCase(pstrClass, kSpaceItemClass) == 0)
        return new CSpaceItemUI;
    return nullptr;
}
