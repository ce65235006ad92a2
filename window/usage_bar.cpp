#include "window/usage_bar.h"

#include <cstdint>
#include <cwchar>

namespace {

void EraseAll(std::wstring& text, const std::wstring& part)
{
    for (std::size_t at = text.find(part); at != std::wstring::npos; at = text.find(part, at))
        text.erase(at, part.size());
}

// The length of a string conversion at `at` ("%s", "%ls", "%S"); 0 if there
// is none there.
std::size_t StringConversionAt(const std::wstring& text, std::size_t at)
{
    if (text.compare(at, 2, L"%s") == 0 || text.compare(at, 2, L"%S") == 0)
        return 2;
    if (text.compare(at, 3, L"%ls") == 0)
        return 3;
    return 0;
}

// The quota buffer holds 260 wide characters with the terminator.
constexpr std::size_t kQuotaLineLimit = 259;

} // namespace

const std::vector<BarSegment>& BarSegments()
{
    static const std::vector<BarSegment> segments = {
        {"backup", L"pro_space_cloud_backup", L"control_cloud_backup", L"hor_backup", L"text_cloud_backup"},
        {"drive", L"pro_space_cloud_disk", L"control_cloud_disk", L"hor_disk", L"text_cloud_disk"},
        {"photos", L"pro_space_gallery", L"control_gallery", L"hor_gallery", L"text_gallery"},
        {"other", L"pro_space_app_data", L"control_app_data", L"hor_app", L"text_app_data"},
        {"family", L"pro_space_home", L"control_home", L"hor_home", L"text_home"},
    };
    return segments;
}

const BarSegment* FindBarSegment(const std::string& key)
{
    for (const BarSegment& segment : BarSegments()) {
        if (key == segment.key)
            return &segment;
    }
    return nullptr;
}

int SegmentWidth(long length, float scale)
{
    return static_cast<int>(static_cast<float>(length) * scale);
}

bool IsFirstSegment(const std::string& key, long length, float scale, bool firstSegmentSet)
{
    if (key != kBackupKey && firstSegmentSet)
        return false;
    return SegmentWidth(length, scale) > 0;
}

int ApplyFirstSegment(int width, int minWidth, int roundLimit, SIZE& round)
{
    if (width < minWidth) {
        round.cx = minWidth;
    } else if (width > minWidth && width < roundLimit) {
        round.cx = width;
    }
    return width > minWidth ? width : minWidth;
}

int AnimationValue(long length, float scale, int frame)
{
    const float scaled = static_cast<float>(length) * scale;
    return static_cast<int>(scaled / kBarFrames * static_cast<float>(frame));
}

std::atomic<int>& BarAnimationFrame()
{
    static std::atomic<int> frame{0};
    return frame;
}

bool AdvanceBarFrame()
{
    std::atomic<int>& frame = BarAnimationFrame();
    if (frame.fetch_add(1) + 1 > static_cast<int>(kBarFrames)) {
        frame.store(0);
        return true;
    }
    return false;
}

bool LegendRowVisible(unsigned long long bytes)
{
    return static_cast<uint32_t>(bytes) != 0;
}

bool StartsAnimation(const std::map<std::string, long>& lengths, bool animating)
{
    if (animating)
        return false;
    for (const auto& entry : lengths) {
        if (entry.second > 0)
            return true;
    }
    return false;
}

std::string WithoutBlanks(std::string text)
{
    std::string kept;
    for (char c : text) {
        if (c != ' ')
            kept += c;
    }
    return kept;
}

unsigned long ColorFromText(const wchar_t* text)
{
    if (text == nullptr)
        return 0;
    if (*text == L'#')
        ++text;
    return std::wcstoul(text, nullptr, 16);
}

std::wstring QuotaLineText(std::wstring pattern, const std::wstring& used, const std::wstring& total)
{
    EraseAll(pattern, L"1$");
    EraseAll(pattern, L"2$");
    const std::wstring* arguments[] = {&used, &total};
    std::size_t next = 0;
    std::wstring line;
    for (std::size_t at = 0; at < pattern.size();) {
        if (pattern.compare(at, 2, L"%%") == 0) {
            line += L'%';
            at += 2;
            continue;
        }
        const std::size_t conversion = StringConversionAt(pattern, at);
        if (conversion != 0 && next < 2) {
            line += *arguments[next++];
            at += conversion;
            continue;
        }
        line += pattern[at++];
    }
    if (line.size() > kQuotaLineLimit)
        line.resize(kQuotaLineLimit);
    return line;
}
