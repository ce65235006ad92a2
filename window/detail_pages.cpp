#include "window/detail_pages.h"

#include <cstdlib>
#include <functional>
#include <map>
#include <string>

#include "window/size_texts.h"

namespace {

// What a category's page is made of, before its texts are looked up.
// The `type` the call records' page carries: 1, the value of Notepad. Like
// the 5 of the gallery and drive pages it is the system's own value, and
// nothing reads it.
constexpr CloudSpaceType kCallRecordPageType = Notepad;

struct PageRule
{
    CloudSpaceType recordType; // the record's `type`
    const wchar_t* titleKey;   // T1; null for none
    const wchar_t* remarkKey;  // T2; null for none
    const wchar_t* buttonKey;  // null for none
};

struct PageInput
{
    const CloudSpaceItem& item;
    const WindowTexts& texts;
    std::wstring title;  // T1
    std::wstring remark; // T2

    int Count() const { return std::atoi(item.count.c_str()); }
    std::wstring CountText() const { return WidenUtf8(item.count); }
    std::wstring Size(int64_t bytes) const
    {
        return SizeDisplayText(static_cast<double>(bytes), texts.language);
    }
    // One blank between a title and its value.
    static std::wstring Line(const std::wstring& title, const std::wstring& value)
    {
        return title + L" " + value;
    }
};

using Filler = std::function<void(const PageInput&, CloudSpaceDetailShow&)>;

template <class Record> std::shared_ptr<CloudSpaceDetailShow> Make()
{
    return std::make_shared<Record>();
}

struct PageKind
{
    std::shared_ptr<CloudSpaceDetailShow> (*make)();
    PageRule rule;
    Filler fill;
};

void SizeAndBin(const PageInput& in, CloudSpaceDetailShow& d)
{
    d.itemInfo1 = PageInput::Line(in.title, in.Size(in.item.space));
    d.itemInfo2 = PageInput::Line(in.remark, in.Size(in.item.recycle));
}

void CountOnly(const PageInput& in, CloudSpaceDetailShow& d)
{
    d.itemInfo1 = PageInput::Line(in.title, in.CountText() + StripesUnit(in.texts, in.Count()));
    d.itemInfo2State = kDetailHidden;
}

void SizeOnly(const PageInput& in, CloudSpaceDetailShow& d)
{
    d.itemInfo1 = PageInput::Line(in.title, in.Size(in.item.space));
    d.itemInfo2State = kDetailHidden;
}

const std::map<int32_t, PageKind>& PageKinds()
{
    static const std::map<int32_t, PageKind> kinds = {
        {Contact,
         {Make<ContactDetailShow>,
          {Contact, L"IDS_MAIN_PAGE_Plugin_Contacts", L"IDS_GALLERY_ALBUM_DELETE",
           L"IDS_SPACEMANAGEMENT_CONTACTBUTTONTEXT"},
          [](const PageInput& in, CloudSpaceDetailShow& d) {
              d.itemInfo1 = PageInput::Line(in.title, in.CountText());
              d.itemInfo2 = PageInput::Line(in.remark, std::to_wstring(in.item.recycle));
              if (in.item.recycle < 1)
                  d.itemInfo2State = kDetailHidden;
          }}},
        {Notepad,
         {Make<NotepadDetailShow>,
          {Notepad, L"IDS_SPACEMANAGEMENT_BACKUP_HEADER2", L"IDS_GALLERY_ALBUM_DELETE",
           L"IDS_SPACEMANAGEMENT_NOTEPADBUTTONTEXT"},
          [](const PageInput& in, CloudSpaceDetailShow& d) {
              d.itemInfo1 = PageInput::Line(in.title, in.CountText());
              d.itemInfo2 = PageInput::Line(in.remark, std::to_wstring(in.item.recycle));
          }}},
        {Gallery,
         {Make<GalleryDetailShow>,
          {CloudBackUp, L"IDS_SPACEMANAGEMENT_BACKUP_HEADER2", L"IDS_GALLERY_ALBUM_DELETE",
           L"IDS_SPACEMANAGEMENT_GalleryButtonText"},
          SizeAndBin}},
        {CloudDisk,
         {Make<CloudDiskDetailShow>,
          {CloudBackUp, L"IDS_SPACEMANAGEMENT_BACKUP_HEADER2", L"IDS_GALLERY_ALBUM_DELETE",
           L"IDS_SPACEMANAGEMENT_COLLECTIONBUTTONTEXT"},
          SizeAndBin}},
        {Recorder,
         {Make<RecorderDetailShow>,
          {Recorder, L"IDS_SPACEMANAGEMENT_BACKUP_HEADER2", L"IDS_SPACEMANAGEMENT_RECORDERSECTITLE",
           L"IDS_SPACEMANAGEMENT_RECORDERBUUTONTEXT"},
          [](const PageInput& in, CloudSpaceDetailShow& d) {
              d.itemInfo1 = PageInput::Line(in.title, in.Size(in.item.space));
              d.itemInfo2 =
                  PageInput::Line(in.remark, in.CountText() + ItemUnit(in.texts, in.item.type, in.Count()));
          }}},
        {CloudBackUp,
         {Make<CloudBackUpDetailShow>,
          {CloudBackUp, L"IDS_SPACEMANAGEMENT_BACKUP_HEADER2", nullptr, nullptr},
          [](const PageInput& in, CloudSpaceDetailShow& d) {
              SizeOnly(in, d);
              d.buttonState = kDetailHidden;
          }}},
        {Browser,
         {Make<BrowserDetailShow>,
          {Browser, L"IDS_SPACEMANAGEMENT_BROWSERFIRTITLE", L"IDS_SPACEMANAGEMENT_BROWSERSECTITLE", nullptr},
          [](const PageInput& in, CloudSpaceDetailShow& d) {
              const int bookmarks = in.item.bookmarkCount;
              const int infoflows = in.item.infoflowCount;
              d.itemInfo1 =
                  PageInput::Line(in.title, std::to_wstring(bookmarks) + StripesUnit(in.texts, bookmarks));
              d.itemInfo2 =
                  PageInput::Line(in.remark, std::to_wstring(infoflows) + StripesUnit(in.texts, infoflows));
              d.buttonState = kDetailHidden;
          }}},
        {HarassmentInterception,
         {Make<HarassmentInterceptionDetailShow>,
          {HarassmentInterception, L"IDS_SPACEMANAGEMENT_BACKUP_HEADER2", nullptr,
           L"IDS_SPACEMANAGEMENT_DELETEALL_TITLE"},
          SizeOnly}},
        {Message,
         {Make<MessageDetailShow>,
          {Message, L"IDS_SPACEMANAGEMENT_MESSAGEFIRTITLE", nullptr, L"IDS_SPACEMANAGEMENT_DELETEALL_TITLE"},
          CountOnly}},
        {Phone,
         {Make<PhoneDetailShow>,
          {kCallRecordPageType, L"IDS_SPACEMANAGEMENT_PHONE", nullptr,
           L"IDS_SPACEMANAGEMENT_DELETEALL_TITLE"},
          CountOnly}},
        {Wlan,
         {Make<WlanDetailShow>,
          {Wlan, L"IDS_SPACEMANAGEMENT_Wlan", nullptr, nullptr},
          [](const PageInput& in, CloudSpaceDetailShow& d) {
              CountOnly(in, d);
              d.buttonState = kDetailHidden;
          }}},
        {Calendar,
         {Make<CalendarDetailShow>,
          {Calendar, L"IDS_SPACEMANAGEMENT_CALENDARFIRTITLE", nullptr, nullptr},
          [](const PageInput& in, CloudSpaceDetailShow& d) {
              CountOnly(in, d);
              d.buttonState = kDetailHidden;
          }}},
    };
    return kinds;
}

std::wstring TextOrEmpty(const WindowTexts& texts, const wchar_t* key)
{
    return key != nullptr ? texts.Text(key) : std::wstring();
}

bool DeletesEverything(int32_t sortType)
{
    return sortType == HarassmentInterception || sortType == Message || sortType == Phone;
}

} // namespace

std::shared_ptr<CloudSpaceDetailShow> MakeDetailShow(const CloudSpaceItem& item, const WindowTexts& texts)
{
    const auto found = PageKinds().find(item.sortType);
    if (found == PageKinds().end())
        return nullptr;
    const PageKind& kind = found->second;
    std::shared_ptr<CloudSpaceDetailShow> detail = kind.make();
    detail->type = kind.rule.recordType;
    detail->itemName = TextOrEmpty(texts, kind.rule.titleKey);
    detail->remarkTitle = TextOrEmpty(texts, kind.rule.remarkKey);
    detail->buttonText = TextOrEmpty(texts, kind.rule.buttonKey);
    if (DeletesEverything(item.sortType))
        detail->buttonColor = kDeleteAllButtonColor;
    const PageInput input{item, texts, detail->itemName, detail->remarkTitle};
    kind.fill(input, *detail);
    return detail;
}
