// The cloud backup panel in the window: the device rows and the deletion of
// one device's backup, checked against spacemgm-cloud's account.
#include <gtest/gtest.h>

#include "space_window_session.h"
#include "window/backup_rows.h"
#include "window/size_texts.h"
#include "window/space_list_ui.h"
#include "window/toolkit_texts.h"

namespace {

using namespace window_ui;

constexpr long long kGiB = 1024LL * 1024 * 1024;

std::shared_ptr<CloudSpaceItem> BackupItem(SpaceWindowSession& session)
{
    for (const auto& item : session.viewModel().model->items) {
        if (item->type == CloudBackUp)
            return item;
    }
    return nullptr;
}

const SpaceInfo& BackupRowInfo(SpaceWindowSession& session)
{
    auto* list = session.Find<CListUI>(L"SpaceList");
    return dynamic_cast<CSpaceItemUI*>(list->GetItemAt(session.RowOf(CloudBackUp)))->GetSpaceInfo();
}

std::wstring BackupListText(SpaceWindowSession& session, int row, const wchar_t* part)
{
    auto* list = session.Find<CListUI>(L"BackupList");
    auto* container = dynamic_cast<CContainerUI*>(list->GetItemAt(row));
    CControlUI* control = container != nullptr ? container->FindSubControl(part) : nullptr;
    return control != nullptr ? control->GetText().str() : L"<none>";
}

int BackupRows(SpaceWindowSession& session)
{
    return session.Find<CListUI>(L"BackupList")->GetCount();
}

int AccountDevices(SpaceWindowSession& session)
{
    return static_cast<int>(session.cloud().Account()["backup"]["devices"].size());
}

// Deletes the device of backup row `row` through the confirmation box.
void DeleteDevice(SpaceWindowSession& session, int row, std::wstring* detail = nullptr)
{
    ModalDriver driver;
    driver.Add([detail] { return AnswerConfirmation(true, nullptr, detail); });
    ASSERT_TRUE(session.ClickBackupDelete(row));
    uitest::PumpPending();
    EXPECT_TRUE(driver.Done());
}

Json::Value Device(const std::string& id, const std::string& name, long long size)
{
    Json::Value device;
    device["device"]["deviceId"] = id;
    if (!name.empty())
        device["device"]["devDisplayName"] = name;
    device["backupDeviceId"] = "bk-" + id;
    Json::Value backup;
    backup["backupId"] = "b-" + id;
    backup["size"] = Json::Int64(size);
    device["backups"].append(backup);
    return device;
}

std::string OneDeviceAccount(bool withGallery)
{
    return MakeFixture(withGallery ? "one-device-and-gallery" : "one-device",
                       [withGallery](Json::Value& account) {
                           account["backup"]["devices"].append(Device("dev-0001", "Nuvo P60 Pro", 3 * kGiB));
                           if (withGallery)
                               account["gallery"]["bytes"] = Json::Int64(kGiB);
                       });
}

} // namespace

TEST(BackupPage, ShowsOneRowPerDeviceWithItsNameAndSizeText)
{
    SpaceWindowSession session;
    ASSERT_TRUE(session.OpenAndSettle()) << session.CreateError();
    const auto& backups = session.viewModel().model->backups;
    ASSERT_EQ(BackupRows(session), static_cast<int>(backups.size()));
    for (std::size_t i = 0; i < backups.size(); ++i) {
        EXPECT_EQ(BackupListText(session, static_cast<int>(i), L"itemName"),
                  WidenUtf8(backups[i].deviceName));
        EXPECT_EQ(BackupListText(session, static_cast<int>(i), L"itemSize"), WidenUtf8(backups[i].sizeText));
    }
    EXPECT_TRUE(session.Shown(L"backup_list_title"));
}

TEST(BackupPage, TwoDevicesOneDeletedLeavesOneRowAndTheSizeFallsByTheDeletedSize)
{
    SpaceWindowSession session;
    ASSERT_TRUE(session.OpenAndSettle()) << session.CreateError();
    ASSERT_EQ(BackupRows(session), 2);
    const BackUpModel first = session.viewModel().model->backups[0];
    const long long before = BackupItem(session)->space;
    const int devicesBefore = AccountDevices(session);
    std::wstring detail;
    DeleteDevice(session, 0, &detail);
    EXPECT_NE(detail.find(WidenUtf8(first.deviceName)), std::wstring::npos);
    EXPECT_EQ(BackupRows(session), 1);
    EXPECT_EQ(AccountDevices(session), devicesBefore - 1);
    EXPECT_EQ(BackupItem(session)->space, before - first.size);
    EXPECT_EQ(BackupItem(session)->count, "1");
    const SpaceInfo& row = BackupRowInfo(session);
    EXPECT_EQ(row.szRemark, L"1" + BareUnit(L"IDS_SPACEMANAGEMENT_NUMUNITS_ONE"));
    EXPECT_EQ(row.szItemSize, SizeDisplayText(static_cast<double>(before - first.size), L"en-US"));
    EXPECT_EQ(row.szInfo1, ToolkitText(L"IDS_SPACEMANAGEMENT_BACKUP_HEADER2") + L" " + row.szItemSize);
    const auto records = session.Records(222);
    ASSERT_EQ(records.size(), 1u);
    EXPECT_EQ(records[0].actionType, 0);
    EXPECT_EQ(records[0].values,
              (std::map<std::wstring, std::wstring>{{L"size", std::to_wstring(first.size)},
                                                    {L"device", WidenUtf8(first.deviceName)}}));
    const auto lines = session.LogLines("SpaceMgmWnd::DeleteBackupItem");
    EXPECT_EQ(lines, std::vector<std::string>{"delete cloud backup item success."});
}

TEST(BackupPage, ADeviceLargerThanTheCategoryLeavesZeroBytesShownAsZeroB)
{
    SpaceWindowSession session;
    ASSERT_TRUE(session.OpenAndSettle()) << session.CreateError();
    BackupItem(session)->space = 1024;
    DeleteDevice(session, 0);
    EXPECT_EQ(BackupItem(session)->space, 0);
    EXPECT_EQ(BackupRowInfo(session).szItemSize, L"0 B");
}

TEST(BackupPage, AnEmptyCountBecomesZero)
{
    SpaceWindowSession session;
    ASSERT_TRUE(session.OpenAndSettle()) << session.CreateError();
    BackupItem(session)->count.clear();
    DeleteDevice(session, 1);
    EXPECT_EQ(BackupItem(session)->count, "0");
    EXPECT_EQ(BackupRowInfo(session).szRemark, L"0" + BareUnit(L"IDS_SPACEMANAGEMENT_NUMUNITS_ONE"));
}

TEST(BackupPage, TheLastDeviceDeletedWithOtherCategoriesRemovesTheRowAndSelectsTheFirst)
{
    SessionOptions options;
    options.fixture = OneDeviceAccount(true);
    SpaceWindowSession session(options);
    ASSERT_TRUE(session.OpenAndSettle()) << session.CreateError();
    ASSERT_EQ(session.SpaceRowCount(), 2);
    const std::size_t galleryRecords = session.Records(210).size();
    DeleteDevice(session, 0);
    EXPECT_EQ(session.SpaceRowCount(), 1);
    EXPECT_EQ(session.RowOf(CloudBackUp), -1);
    EXPECT_EQ(session.Find<CListUI>(L"SpaceList")->GetCurSel(), 0);
    EXPECT_EQ(session.Records(210).size(), galleryRecords + 1);
    EXPECT_EQ(session.TabPage(L"tab_switch"), PageContent);
    EXPECT_EQ(AccountDevices(session), 0);
}

TEST(BackupPage, TheLastDeviceDeletedAndNoOtherCategoryShowsTheEmptyPage)
{
    SessionOptions options;
    options.fixture = OneDeviceAccount(false);
    SpaceWindowSession session(options);
    ASSERT_TRUE(session.OpenAndSettle()) << session.CreateError();
    ASSERT_EQ(session.SpaceRowCount(), 1);
    DeleteDevice(session, 0);
    EXPECT_EQ(session.SpaceRowCount(), 0);
    EXPECT_EQ(session.TabPage(L"tab_switch"), PageEmpty);
}

TEST(BackupPage, ADeviceWithoutANameIsShownAndConfirmedUnderTheAppText)
{
    SpaceWindowSession session;
    ASSERT_TRUE(session.OpenAndSettle()) << session.CreateError();
    session.viewModel().model->backups[1].deviceName.clear();
    // Selecting the row again rebuilds the device list from the model.
    ASSERT_TRUE(session.ClickRow(session.RowOf(Gallery)));
    ASSERT_TRUE(session.ClickRow(session.RowOf(CloudBackUp)));
    const std::wstring unnamed = ToolkitText(kUnnamedDeviceKey);
    EXPECT_EQ(BackupListText(session, 1, L"itemName"), unnamed);
    std::wstring detail;
    ModalDriver driver;
    driver.Add([&detail] { return AnswerConfirmation(false, nullptr, &detail); });
    ASSERT_TRUE(session.ClickBackupDelete(1));
    EXPECT_TRUE(driver.Done());
    EXPECT_NE(detail.find(unnamed), std::wstring::npos);
    EXPECT_EQ(BackupRows(session), 2);
}
