#pragma once
// The record behind a row's detail page. The window fills it per category;
// the twelve names below only say which category a page belongs to.
#include <cstdint>
#include <string>

#include "space_data/cloud_space_types.h"

struct CloudSpaceDetailShow
{
    std::wstring itemName;
    std::wstring remarkTitle;
    std::wstring itemInfo1;
    std::wstring itemInfo2;
    std::wstring buttonText;    // empty: no operation button
    int32_t itemInfo2State = 0; // 0 shows the second line, 2 hides it
    int32_t buttonState = 0;    // 0 shows the button, 2 hides it
    int32_t buttonKind = 2;
    CloudSpaceType type = Contact;
    std::string buttonColor = "#226BFF"; // the delete-all pages use "#FA2A2D"
};

struct BrowserDetailShow : CloudSpaceDetailShow
{
};
struct CalendarDetailShow : CloudSpaceDetailShow
{
};
struct CloudBackUpDetailShow : CloudSpaceDetailShow
{
};
struct CloudDiskDetailShow : CloudSpaceDetailShow
{
};
struct ContactDetailShow : CloudSpaceDetailShow
{
};
struct GalleryDetailShow : CloudSpaceDetailShow
{
};
struct HarassmentInterceptionDetailShow : CloudSpaceDetailShow
{
};
struct MessageDetailShow : CloudSpaceDetailShow
{
};
struct NotepadDetailShow : CloudSpaceDetailShow
{
};
struct PhoneDetailShow : CloudSpaceDetailShow
{
};
struct RecorderDetailShow : CloudSpaceDetailShow
{
};
struct WlanDetailShow : CloudSpaceDetailShow
{
};
