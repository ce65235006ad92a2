#pragma once
// The detail record of each category: the titles, lines and button of the
// panel beside the list, made from one row's `CloudSpaceItem`.
#include <memory>

#include "space_data/cloud_space_detail_show.h"
#include "space_data/cloud_space_types.h"
#include "window/window_texts.h"

// A new record of the category's own class, chosen by `item.sortType`, or
// null for a sort type that has no detail page (such as 7).
std::shared_ptr<CloudSpaceDetailShow> MakeDetailShow(const CloudSpaceItem& item, const WindowTexts& texts);

// State values of `itemInfo2State` and `buttonState`.
inline constexpr int32_t kDetailShown = 0;
inline constexpr int32_t kDetailHidden = 2;

// Button colour of the pages that delete everything.
inline constexpr const char* kDeleteAllButtonColor = "#FA2A2D";
