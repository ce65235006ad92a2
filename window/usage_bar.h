#pragma once
// The arithmetic of the usage bar: which controls a quota group owns, the
// width of a segment, the rounding of the first segment, the frames of the
// animation, the legend test and the quota line. SpaceMgmWnd applies the
// results to its controls.
#include <atomic>
#include <map>
#include <string>
#include <vector>

#include "platform/win32.h"

// One quota group: its key in the three maps and its controls.
struct BarSegment
{
    const char* key;
    const wchar_t* bar;        // a CProgressUI in `pro_space_layout`
    const wchar_t* swatch;     // the coloured square of its legend row
    const wchar_t* legendRow;  // the legend row
    const wchar_t* legendText; // the legend label, its text from the skin
};

// The five groups in the order of the legend and of the animation: backup,
// drive, photos, other, family.
const std::vector<BarSegment>& BarSegments();
// The segment of `key`, or null for "full", "bkcolor" and unknown keys.
const BarSegment* FindBarSegment(const std::string& key);

inline constexpr const char* kFullKey = "full";
inline constexpr const char* kBackupKey = "backup";
inline constexpr const wchar_t* kFullBar = L"pro_space_full";

// A length of the bar in pixels: (int)(length * scale).
int SegmentWidth(long length, float scale);

// Whether `key`'s segment is (again) the first one: "backup" always, the
// others only while no first segment was chosen; and only with a width
// above 0. The keys are walked in ascending order, so with no backup and no
// drive "family" is first even where the photos segment stands left of it.
bool IsFirstSegment(const std::string& key, long length, float scale, bool firstSegmentSet);

// `SetFirstProgress` without the control: the round of the first segment
// (a width below `minWidth` rounds by minWidth, one strictly between
// minWidth and `roundLimit` by itself, any other leaves `round` as it was)
// and the width it is widened to, at least minWidth.
int ApplyFirstSegment(int width, int minWidth, int roundLimit, SIZE& round);

// The animation: frames 0 to 30, one per tick; a segment of width w shows
// (int)(w / 30.0f * frame), computed in single precision, so the last frame
// can stop a pixel short (lengths 63 and 125).
inline constexpr float kBarFrames = 30.0f;
int AnimationValue(long length, float scale, int frame);
// The frame counter is process-wide: a window closed mid-animation leaves it
// where it stood, and the next window starts there.
std::atomic<int>& BarAnimationFrame();
// Counts one tick; true when the animation has ended, which sets the
// counter back to 0.
bool AdvanceBarFrame();

// A legend row is shown when the low 32 bits of its group's bytes are not
// zero: a group of exactly a multiple of 4 GiB reads as empty.
bool LegendRowVisible(unsigned long long bytes);

// Whether a load starts the animation: some length, "bkcolor" included, is
// above 0 and none is running.
bool StartsAnimation(const std::map<std::string, long>& lengths, bool animating);

// "th-TH" writes sizes with no blank.
std::string WithoutBlanks(std::string text);

// `Str2Clr`: one leading "#" skipped, the rest read as hexadecimal.
unsigned long ColorFromText(const wchar_t* text);

// The quota line: every "1$" and then every "2$" deleted from the template
// (positional placeholders become plain ones, so the order is used, total),
// then the two texts put in its "%s" places. At most 259 characters.
std::wstring QuotaLineText(std::wstring pattern, const std::wstring& used, const std::wstring& total);
