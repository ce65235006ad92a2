#include "window/backup_list_ui.h"

using namespace DuiLib;

CBackupItemUI::~CBackupItemUI() = default;

LPCTSTR CBackupItemUI::GetClass() const
{
    return L"CustomListItemUI";
}

CBackupListViewUI::~CBackupListViewUI() = default;

LPCTSTR CBackupListViewUI::GetClass() const
{
    return L"CustomListViewUI";
}

LPVOID CBackupListViewUI::GetInterface(LPCTSTR pstrName)
{
    if (CompareNoCase(pstrName, kBackupListClass) == 0)
        return this;
    return CListUI::GetInterface(pstrName);
}

CControlUI* CBackupListViewUI::CreateControl(LPCTSTR pstrClass)
{
    if (CompareNoCase(pstrClass, kBackupItemClass) == 0)
        return new CBackupItemUI;
    return nullptr;
}
