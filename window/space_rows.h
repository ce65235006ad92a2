#pragma once
// The rows of `SpaceList`: one template per category (`InitMap`), the
// content of a row made from the model, and which column shows what.
#include <map>
#include <string>
#include <vector>

#include "space_data/cloud_space_detail_show.h"
#include "space_data/cloud_space_types.h"
#include "window/space_window_types.h"
#include "window/window_texts.h"

// One constant row: the category, the key of its name and its icon.
struct SpaceRowTemplate
{
    CloudSpaceType type;
    const wchar_t* nameKey;
    const wchar_t* picture; // relative to the skin folder
};

// The twelve templates in the order `InitMap` walks them.
const std::vector<SpaceRowTemplate>& SpaceRowTemplates();

// What `InitMap` stores: each template under its type, with its name looked
// up and every other text empty.
std::map<CloudSpaceType, SpaceInfo> BuildSpaceInfoMap(const WindowTexts& texts);

// A row's content: the template, the item's count with its unit (when the
// count is above 0), its size (when above 0), and from the detail record the
// first line, the second line unless hidden, and the button unless hidden.
SpaceInfo MakeRowInfo(const SpaceInfo& rowTemplate, const CloudSpaceItem& item,
                      const CloudSpaceDetailShow& detail, const WindowTexts& texts);

// What the two number columns of a row show. A row with a size shows its
// count in `itemRemark` (hidden when there is none); a row without one
// shows its count in the size column.
struct RowColumns
{
    bool remarkVisible = false;
    bool remarkTextSet = false; // a hidden remark keeps the text it had
    std::wstring remarkText;
    std::wstring sizeText;
};
RowColumns ColumnsOf(const SpaceInfo& info);
