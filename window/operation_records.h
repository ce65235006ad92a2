#pragma once
// What the window reports to the host: the operation records of a
// selection, a jump and a deletion, the action of `opr_btn` per category,
// and the jump and exit codes left for the host when the window closes.
#include <cstdint>
#include <map>
#include <string>

#include "platform/win32.h"
#include "window/space_window_types.h"

// Arguments of Logger::OutputOperationLog. The event numbers are the host
// logger's own values and are sent as they stand.
inline constexpr int kOperationTypeSpace = 1;
inline constexpr int kActionDelete = 0;
inline constexpr int kActionJump = 1;
inline constexpr int kActionSelect = 3;
inline constexpr int kEventOtherPage = 221;
inline constexpr int kEventDeleteBackup = 222;
inline constexpr int kEventDeleteAll = 223;
inline constexpr int kEventGoToModule = 224;

// `m_jumpMessage` codes and the exit codes of the window.
inline constexpr int32_t kJumpUpgrade = 3037;
inline constexpr int32_t kJumpModule = 3222;
inline constexpr UINT kExitJump = 0;
inline constexpr UINT kExitClosed = 1;
inline constexpr UINT kExitToast = 2; // the error toast closes itself with it

// The event of selecting a row of `type` (209 to 220), 221 for any other.
int SelectionEvent(int32_t type);
// The record of a selection: "size", the size text or else the count text.
std::map<std::wstring, std::wstring> SelectionValues(const SpaceInfo& info);

// What `opr_btn` does for a category.
struct PanelAction
{
    enum class Kind
    {
        None,
        Jump,
        DeleteAll,
    };
    Kind kind = Kind::None;
    const char* logText = ""; // the jump's line, or the deletion's line on success
    int64_t jumpParam = 0;
};
PanelAction PanelActionFor(int32_t type);

// The record of a jump: "module", the category in digits.
std::map<std::wstring, std::wstring> JumpValues(int32_t type);
// The record of a deletion of all records: "size" and "module".
std::map<std::wstring, std::wstring> DeleteAllValues(const SpaceInfo& info);
