// The control dump: the JSON of a small skin, and the file a live window
// keeps rewriting.

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <filesystem>
#include <fstream>
#include <sstream>

#include "harness/ui_harness.h"

using namespace uitest;

namespace {

constexpr const wchar_t* kSkin = LR"(<Window size="300,200">
  <VerticalLayout name="root" bkcolor="#FFFFFFFF" inset="10,10,10,10">
    <Label name="title" height="30" text="Cloud space" />
    <HorizontalLayout name="body">
      <List name="list" width="100" />
      <TabLayout name="pages" selectedid="1">
        <Control name="page0" />
        <VerticalLayout name="page1">
          <Progress name="bar" height="10" min="0" max="530" value="212" forecolor="#FF0A59F7" bkcolor="#FFE9EBEF" />
          <Button name="hidden_btn" height="20" text="Hidden" visible="false" />
        </VerticalLayout>
      </TabLayout>
    </HorizontalLayout>
  </VerticalLayout></Window>)";

constexpr const wchar_t* kRow =
    LR"(<ListContainerElement height="30"><Label name="itemName" /></ListContainerElement>)";

Json::Value Parse(const std::string& text)
{
    Json::Value value;
    EXPECT_TRUE(ParseControlDump(text, value)) << text;
    return value;
}

std::string ReadFile(const std::string& path)
{
    std::ifstream in(path);
    std::stringstream content;
    content << in.rdbuf();
    return content.str();
}

void ExpectBox(const Json::Value& node, int x, int y, int width, int height)
{
    EXPECT_EQ(node["x"].asInt(), x) << node["name"].asString();
    EXPECT_EQ(node["y"].asInt(), y) << node["name"].asString();
    EXPECT_EQ(node["width"].asInt(), width) << node["name"].asString();
    EXPECT_EQ(node["height"].asInt(), height) << node["name"].asString();
}

class DumpTest : public ::testing::Test
{
protected:
    void SetUp() override { UseOffscreenToolkit(); }

    void AddRows(SkinWindow& w, int count)
    {
        auto* list = Find<CListUI>(w.pm(), L"list");
        for (int i = 0; i < count; ++i) {
            CDialogBuilder builder;
            CControlUI* row = builder.Create(kRow, nullptr, nullptr, &w.pm());
            ASSERT_NE(row, nullptr);
            w.pm().FindSubControlByName(row, L"itemName")->SetText((L"Row " + std::to_wstring(i)).c_str());
            list->Add(row);
        }
    }
};

} // namespace

TEST_F(DumpTest, SmallSkinDumpsEveryControlInTreeOrder)
{
    SkinWindow w(kSkin);
    ASSERT_TRUE(Open(w));
    const Json::Value dump = Parse(ControlTreeText(w.pm()));
    EXPECT_EQ(dump["window"].asString(), "SkinWindow");
    const Json::Value& root = dump["controls"];
    EXPECT_EQ(root["name"].asString(), "root");
    EXPECT_EQ(root["class"].asString(), "VerticalLayoutUI");
    EXPECT_EQ(root["bkColor"].asString(), "#FFFFFFFF");
    EXPECT_FALSE(root.isMember("foreColor"));
    ExpectBox(root, 0, 0, 300, 200);
    ASSERT_EQ(root["children"].size(), 2u);
    const Json::Value& title = root["children"][0];
    EXPECT_EQ(title["name"].asString(), "title");
    EXPECT_EQ(title["class"].asString(), "LabelUI");
    EXPECT_EQ(title["text"].asString(), "Cloud space");
    EXPECT_TRUE(title["visible"].asBool());
    EXPECT_TRUE(title["shown"].asBool());
    EXPECT_EQ(title["children"].size(), 0u);
    EXPECT_FALSE(title.isMember("selected"));
    ExpectBox(title, 10, 10, 280, 30);
    const Json::Value& body = root["children"][1];
    EXPECT_EQ(body["name"].asString(), "body");
    ASSERT_EQ(body["children"].size(), 2u);
    EXPECT_EQ(body["children"][0]["name"].asString(), "list");
    EXPECT_EQ(body["children"][0]["selected"].asInt(), -1);
    const Json::Value& pages = body["children"][1];
    EXPECT_EQ(pages["class"].asString(), "TabLayoutUI");
    EXPECT_EQ(pages["selected"].asInt(), 1);
    ExpectBox(pages, 110, 40, 180, 150);
    const Json::Value* bar = FindInControlDump(root, "bar");
    ASSERT_NE(bar, nullptr);
    EXPECT_EQ((*bar)["class"].asString(), "ProgressUI");
    EXPECT_EQ((*bar)["value"].asInt(), 212);
    EXPECT_EQ((*bar)["min"].asInt(), 0);
    EXPECT_EQ((*bar)["max"].asInt(), 530);
    EXPECT_EQ((*bar)["foreColor"].asString(), "#FF0A59F7");
    EXPECT_EQ((*bar)["bkColor"].asString(), "#FFE9EBEF");
    w.Close(0);
    Pump(10);
}

TEST_F(DumpTest, EachControlIsOneLineWithItsMembersInTheDocumentedOrder)
{
    SkinWindow w(kSkin);
    ASSERT_TRUE(Open(w));
    const std::string text = ControlTreeText(w.pm());
    std::istringstream lines(text);
    std::string line;
    std::string barLine;
    int controls = 0;
    while (std::getline(lines, line)) {
        EXPECT_NE(line.back(), ' ') << line;
        if (line.find("{\"name\": ") != std::string::npos)
            ++controls;
        if (line.find("\"name\": \"bar\"") != std::string::npos)
            barLine = line;
    }
    EXPECT_EQ(controls, 9);
    const char* order[] = {"\"name\"", "\"class\"", "\"text\"",      "\"visible\"", "\"shown\"",
                           "\"x\"",    "\"y\"",     "\"width\"",     "\"height\"",  "\"value\"",
                           "\"min\"",  "\"max\"",   "\"foreColor\"", "\"bkColor\"", "\"children\""};
    std::size_t last = 0;
    for (const char* key : order) {
        const std::size_t at = barLine.find(key);
        ASSERT_NE(at, std::string::npos) << key;
        EXPECT_GT(at, last) << key;
        last = at;
    }
    w.Close(0);
    Pump(10);
}

TEST_F(DumpTest, VisibleIsTheOwnFlagAndShownLooksAtEveryParent)
{
    SkinWindow w(kSkin);
    ASSERT_TRUE(Open(w));
    Json::Value dump = Parse(ControlTreeText(w.pm()));
    const Json::Value* page0 = FindInControlDump(dump["controls"], "page0");
    const Json::Value* hidden = FindInControlDump(dump["controls"], "hidden_btn");
    ASSERT_TRUE(page0 && hidden);
    EXPECT_FALSE((*page0)["visible"].asBool());
    EXPECT_FALSE((*hidden)["visible"].asBool());
    EXPECT_EQ((*hidden)["text"].asString(), "Hidden");
    Find<CTabLayoutUI>(w.pm(), L"pages")->SelectItem(0);
    w.pm().FindControl(L"hidden_btn")->SetVisible(true);
    dump = Parse(ControlTreeText(w.pm()));
    hidden = FindInControlDump(dump["controls"], "hidden_btn");
    EXPECT_TRUE((*hidden)["visible"].asBool());
    EXPECT_FALSE((*hidden)["shown"].asBool());
    EXPECT_TRUE((*FindInControlDump(dump["controls"], "page0"))["shown"].asBool());
    w.Close(0);
    Pump(10);
}

TEST_F(DumpTest, ListRowsAreChildrenInRowOrderWithTheSelection)
{
    SkinWindow w(kSkin);
    ASSERT_TRUE(Open(w));
    AddRows(w, 3);
    Find<CListUI>(w.pm(), L"list")->SelectItem(2);
    const Json::Value dump = Parse(ControlTreeText(w.pm()));
    const Json::Value* list = FindInControlDump(dump["controls"], "list");
    ASSERT_NE(list, nullptr);
    EXPECT_EQ((*list)["class"].asString(), "ListUI");
    EXPECT_EQ((*list)["selected"].asInt(), 2);
    ASSERT_EQ((*list)["children"].size(), 3u);
    for (int i = 0; i < 3; ++i) {
        const Json::Value& row = (*list)["children"][i];
        EXPECT_EQ(row["class"].asString(), "ListContainerElementUI");
        EXPECT_EQ(row["children"][0]["text"].asString(), "Row " + std::to_string(i));
        ExpectBox(row, 10, 40 + 30 * i, 100, 30);
    }
    w.Close(0);
    Pump(10);
}

TEST_F(DumpTest, PositionsAreWindowPixelsAtTheScaleInUse)
{
    CDPI::SetProcessDPI(144);
    SkinWindow w(kSkin);
    const bool opened = Open(w);
    CDPI::SetProcessDPI(96);
    ASSERT_TRUE(opened);
    const Json::Value dump = Parse(ControlTreeText(w.pm()));
    ExpectBox(dump["controls"], 0, 0, 450, 300);
    ExpectBox(*FindInControlDump(dump["controls"], "title"), 15, 15, 420, 45);
    ExpectBox(*FindInControlDump(dump["controls"], "pages"), 165, 60, 270, 225);
    w.Close(0);
    Pump(10);
}

TEST_F(DumpTest, TextIsUtf8AndEscaped)
{
    SkinWindow w(LR"(<Window size="100,40"><Label name="l" text="Облако &quot;云&quot; ข้อมูล" /></Window>)");
    ASSERT_TRUE(Open(w));
    const std::string text = ControlTreeText(w.pm());
    EXPECT_NE(text.find("Облако"), std::string::npos);
    EXPECT_EQ(Parse(text)["controls"]["text"].asString(), "Облако \"云\" ข้อมูล");
    w.Close(0);
    Pump(10);
}

TEST_F(DumpTest, LiveFileIsWrittenAfterAFrameAndRewrittenWhenSomethingChanged)
{
    const std::string path = OutputPath("live_dump.json");
    std::filesystem::remove(path);
    SkinWindow w(kSkin);
    ASSERT_TRUE(Open(w));
    w.pm().SetControlDumpPath(attr::Widen(path).c_str());
    EXPECT_EQ(attr::Narrow(w.pm().GetControlDumpPath().str()), path);
    ASSERT_TRUE(PumpUntil([&path] { return std::filesystem::exists(path); }, 2000));
    EXPECT_EQ(Parse(ReadFile(path))["controls"]["children"][0]["text"].asString(), "Cloud space");
    struct stat before
    {
    };
    ASSERT_EQ(::stat(path.c_str(), &before), 0);

    // A frame whose dump is the same leaves the file alone.
    w.pm().Invalidate();
    Pump(30);
    struct stat same
    {
    };
    ASSERT_EQ(::stat(path.c_str(), &same), 0);
    EXPECT_EQ(same.st_ino, before.st_ino);

    w.pm().FindControl(L"title")->SetText(L"Used 12 GB of 50 GB");
    Find<CProgressUI>(w.pm(), L"bar")->SetValue(300);
    ASSERT_TRUE(PumpUntil(
        [&path] {
            const Json::Value dump = Parse(ReadFile(path));
            return dump["controls"]["children"][0]["text"].asString() == "Used 12 GB of 50 GB";
        },
        2000));
    EXPECT_EQ((*FindInControlDump(Parse(ReadFile(path))["controls"], "bar"))["value"].asInt(), 300);
    EXPECT_FALSE(std::filesystem::exists(path + ".part"));
    w.Close(0);
    Pump(10);
}

TEST_F(DumpTest, AnUnwritableDumpPathIsReportedOnce)
{
    SkinWindow w(kSkin);
    ASSERT_TRUE(Open(w));
    testing::internal::CaptureStderr();
    w.pm().SetControlDumpPath(L"/nonexistent-folder/dump.json");
    Pump(30);
    w.pm().FindControl(L"title")->SetText(L"changed");
    Pump(30);
    const std::string errors = testing::internal::GetCapturedStderr();
    EXPECT_NE(errors.find("/nonexistent-folder/dump.json.part"), std::string::npos) << errors;
    EXPECT_EQ(errors.find("control dump"), errors.rfind("control dump")) << errors;
    w.Close(0);
    Pump(10);
}
