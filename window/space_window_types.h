#pragma once
// The plain values of the space window: one row of the category list, the
// pages of `tab_switch`, the window's private messages and timer, and the
// records a load thread hands to the window.
#include <cstdint>
#include <map>
#include <memory>
#include <string>

#include "platform/win32.h"
#include "space_data/cloud_space_types.h"

class CloudSpaceManagementViewModel;

// The content of one row of `SpaceList` and of the panel beside it.
struct SpaceInfo
{
    CloudSpaceType type = Contact;
    std::wstring szItemName;
    std::wstring szItemPic;
    std::wstring szRemark;   // count text of the row: a number with its unit
    std::wstring szItemSize; // size text of the row
    std::wstring szInfo1;    // first line of the panel
    std::wstring szInfo2;    // second line of the panel
    std::wstring szBtnText;  // caption of `opr_btn`; empty hides the button
    std::wstring szBtnColor; // text colour of `opr_btn`, "#RRGGBB"
};

// The value is the page index in `tab_switch`.
enum PageType : int32_t
{
    PageLoading = 0,
    PageContent = 1,
    PageEmpty = 2,
    PageFailed = 3,
};

// Posted by a load thread to the window itself.
constexpr UINT WM_SPACE_LOAD_END = 1124;   // after GetCloudInfo
constexpr UINT WM_SPACE_LOAD_BEGIN = 1125; // at the start of a load
constexpr UINT WM_SPACE_SHOW_CLOUD = 1224; // lParam: a SpaceDisplayData* the window then owns

// The bar animation's timer: one tick every 10 ms.
constexpr UINT_PTR SPACE_BAR_TIMER = 102;
constexpr UINT kSpaceBarTimerPeriodMs = 10;

// What a load thread is started with; the thread frees it.
struct SpaceLoadParam
{
    HWND hWnd = nullptr;
    std::shared_ptr<CloudSpaceManagementViewModel> viewModel;
};

// The bar's numbers, carried from a load thread to the window thread.
struct SpaceDisplayData
{
    std::map<std::string, unsigned long long> colorInfo;
    std::map<std::string, long> lengthOfItems;
    std::map<std::string, unsigned long long> storageOfType;
    std::string used;  // UTF-8
    std::string total; // UTF-8
    // Made and destroyed empty; nothing fills it.
    std::map<std::string, std::string> reserved;
};
