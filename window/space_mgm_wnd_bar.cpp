// The usage bar, its legend and the quota line.
#include <algorithm>
#include <cstdlib>

#include "foundation/utilities.h"
#include "platform/global_param_wrapper.h"
#include "window/display_handover.h"
#include "window/size_texts.h"
#include "window/space_mgm_wnd.h"
#include "window/toolkit_texts.h"
#include "window/usage_bar.h"
#include "window/window_log.h"

using namespace DuiLib;

namespace {

constexpr const wchar_t* kThaiLanguage = L"th-TH";

template <class Map> typename Map::mapped_type ValueOr0(const Map& map, const std::string& key)
{
    const auto found = map.find(key);
    return found != map.end() ? found->second : typename Map::mapped_type{};
}

// A missing segment is passed over, one of width 0 is only hidden; true for
// a segment to size and show.
bool ShowsSegment(CProgressUI* ctrl, int width)
{
    if (ctrl == nullptr)
        return false;
    if (width == 0) {
        ctrl->SetVisible(false);
        return false;
    }
    return true;
}

} // namespace

long long SpaceMgmWnd::OnShowCloudSpace(unsigned long long, long long lParam, int&)
{
    std::unique_ptr<SpaceDisplayData> data =
        DisplayHandover::Instance().Take(reinterpret_cast<SpaceDisplayData*>(lParam));
    if (!data)
        return 0;
    m_colorInfo = data->colorInfo;
    m_lengthOfItems = data->lengthOfItems;
    m_storageOfType = data->storageOfType;
    m_used = data->used;
    m_total = data->total;
    if (ToolkitLanguage() == kThaiLanguage) {
        m_used = WithoutBlanks(m_used);
        m_total = WithoutBlanks(m_total);
    }
    WindowLog(Logger::_INFO, __LINE__, "SpaceMgmWnd::OnShowCloudSpace",
              "m_used = " + m_used + ", m_total = " + m_total);
    data.reset();

    // Ascending keys: backup, bkcolor, drive, family, full, other, photos.
    for (const auto& entry : m_colorInfo) {
        const unsigned long color = static_cast<unsigned long>(entry.second);
        if (entry.first == kFullKey) {
            ApplyFullSegment(color);
        } else if (const BarSegment* segment = FindBarSegment(entry.first)) {
            ApplyGroupSegment(static_cast<std::size_t>(segment - BarSegments().data()), color);
        }
    }
    if (m_blockDisplay != nullptr && m_blockDisplay->IsVisible())
        UpdateLegendRows();
    SetSpaceInfoText();
    if (StartsAnimation(m_lengthOfItems, m_animating))
        m_barTimerSet = ::SetTimer(m_hWnd, SPACE_BAR_TIMER, kSpaceBarTimerPeriodMs, nullptr) != 0;
    return 0;
}

void SpaceMgmWnd::ApplyFullSegment(unsigned long color)
{
    m_fullLength = static_cast<int>(ValueOr0(m_lengthOfItems, kFullKey));
    SetProgressColor(m_fullBar, SegmentWidth(m_fullLength, m_scale), color);
    if (m_fullBar != nullptr)
        m_fullBar->SetBorderRound(m_round);
    SetUIVisiable(m_fullLength > 0, m_spaceFullTips);
    SetUIVisiable(m_fullLength < 1, m_blockDisplay);
}

void SpaceMgmWnd::ApplyGroupSegment(std::size_t index, unsigned long color)
{
    const BarSegment& segment = BarSegments()[index];
    SegmentControls& controls = m_segments[index];
    int& length = LengthOf(index);
    length = static_cast<int>(ValueOr0(m_lengthOfItems, segment.key));
    if (IsFirstSegment(segment.key, length, m_scale, m_firstSegmentSet))
        SetFirstProgress(controls.bar, length);
    const int width = SegmentWidth(length, m_scale);
    SetProgressColor(controls.bar, width, color);
    SetUIVisiable(width != 0, controls.swatch);
    if (controls.swatch != nullptr)
        controls.swatch->SetBkColor(color);
}

void SpaceMgmWnd::UpdateLegendRows()
{
    const auto& segments = BarSegments();
    for (std::size_t i = 0; i < segments.size(); ++i) {
        const unsigned long long bytes = ValueOr0(m_storageOfType, segments[i].key);
        SetUIVisiable(LegendRowVisible(bytes), m_segments[i].legendRow);
        WindowLog(Logger::_INFO, __LINE__, "SpaceMgmWnd::OnShowCloudSpace",
                  std::string(segments[i].key) + " = " + std::to_string(bytes));
    }
}

int& SpaceMgmWnd::LengthOf(std::size_t segmentIndex)
{
    int* lengths[] = {&m_backupLength, &m_driveLength, &m_photosLength, &m_otherLength, &m_familyLength};
    return *lengths[segmentIndex];
}

void SpaceMgmWnd::SetFirstProgress(CProgressUI* ctrl, int& length)
{
    if (ctrl != nullptr)
        ctrl->SetRoundRectDirection(1);
    length = ApplyFirstSegment(length, m_minWidth, m_roundLimit, m_round);
    if (ctrl != nullptr)
        ctrl->SetBorderRound(m_round);
    m_firstSegmentSet = true;
}

void SpaceMgmWnd::SetProgressColor(CProgressUI* ctrl, int width, unsigned long color)
{
    if (!ShowsSegment(ctrl, width))
        return;
    ctrl->SetFixedWidth(width);
    ctrl->SetMinValue(0);
    ctrl->SetMaxValue(width);
    ctrl->SetValue(width);
    ctrl->SetForeColor(static_cast<DWORD>(color));
    ctrl->SetVisible(true);
}

void SpaceMgmWnd::SetProgress(CProgressUI* ctrl, int value, int width)
{
    if (!ShowsSegment(ctrl, width))
        return;
    ctrl->SetFixedWidth(width);
    ctrl->SetMaxValue(width);
    ctrl->SetValue(std::min(value, width));
    ctrl->SetVisible(true);
}

void SpaceMgmWnd::SetUIVisiable(const int& show, CControlUI* ctrl)
{
    if (ctrl != nullptr)
        ctrl->SetVisible(show != 0);
}

long long SpaceMgmWnd::OnTimer(unsigned int, unsigned long long wParam, long long, int& bHandled)
{
    bHandled = 0;
    if (wParam != SPACE_BAR_TIMER)
        return 0;
    m_animating = true;
    AnimateBar(BarAnimationFrame().load());
    if (AdvanceBarFrame()) {
        ::KillTimer(m_hWnd, SPACE_BAR_TIMER);
        m_barTimerSet = false;
        m_animating = false;
    }
    return 0;
}

void SpaceMgmWnd::AnimateBar(int frame)
{
    if (m_fullLength > 0) {
        SetProgress(m_fullBar, AnimationValue(m_fullLength, m_scale, frame),
                    SegmentWidth(m_fullLength, m_scale));
        return;
    }
    for (std::size_t i = 0; i < m_segments.size(); ++i) {
        const int length = LengthOf(i);
        SetProgress(m_segments[i].bar, AnimationValue(length, m_scale, frame), SegmentWidth(length, m_scale));
    }
}

void SpaceMgmWnd::SetSpaceInfoText()
{
    std::wstring line = QuotaLineText(ToolkitText(L"IDS_MAIN_PAGE_PanCapacity_HasUsed"), WidenUtf8(m_used),
                                      WidenUtf8(m_total));
    if (GlobalParamWrapper::IsReplaceCommaCountry())
        line = GlobalParamWrapper::ReplaceComma(line);
    if (m_spaceInfoLabel != nullptr)
        m_spaceInfoLabel->SetText(line.c_str());
}

void SpaceMgmWnd::AdjustTypeInfo()
{
    CLabelUI* firstLabel = m_segments[0].legendText;
    HFONT font = m_pm.GetFont(firstLabel != nullptr ? firstLabel->GetFont() : -1);
    // The context is not released: it lives as long as the thread.
    HDC hdc = ::GetDC(m_hWnd);
    HGDIOBJ oldFont = ::SelectObject(hdc, font);
    int base = (m_typeImage != nullptr ? m_typeImage->GetFixedWidth() : 0) +
               (m_typeOffset != nullptr ? m_typeOffset->GetFixedWidth() : 0);
    const std::wstring offset = ToolkitText(L"IDS_SPACEMANAGEMENT_TYPEINFO_OFFSET");
    if (!offset.empty())
        base += std::atoi(WideToNarrowCopy(offset, kCodePageSystem).c_str());
    const int scaled = CResourceManagerEx::Scale(base);
    // The old font goes back inside the loop, so only the first label is
    // measured in its own font and the other four in the context's default.
    for (const SegmentControls& controls : m_segments) {
        if (controls.legendText == nullptr || controls.legendRow == nullptr)
            continue;
        const CDuiString text = controls.legendText->GetText();
        SIZE extent{0, 0};
        ::GetTextExtentPoint32W(hdc, text.GetData(), text.GetLength(), &extent);
        ::SelectObject(hdc, oldFont);
        controls.legendRow->SetFixedWidth(scaled + CResourceManagerEx::RestoreScale(extent.cx));
    }
}
