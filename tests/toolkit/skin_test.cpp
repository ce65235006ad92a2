#include <gtest/gtest.h>

#include <fstream>

#include "harness/ui_harness.h"

using namespace uitest;

namespace {

class SkinTest : public ::testing::Test
{
protected:
    void SetUp() override { UseOffscreenToolkit(); }

    std::optional<SkinError> ErrorOf(const wchar_t* xml)
    {
        CDialogBuilder builder;
        CPaintManagerUI pm;
        std::unique_ptr<CControlUI> root(builder.Create(xml, nullptr, nullptr, &pm));
        EXPECT_EQ(root, nullptr);
        return builder.GetError();
    }
};

class RowCallback : public IDialogBuilderCallback
{
public:
    CControlUI* CreateControl(LPCTSTR name) override
    {
        if (CompareNoCase(name, L"ListItemS") == 0)
            return new CListContainerElementUI;
        return nullptr;
    }
};

} // namespace

TEST_F(SkinTest, UnknownElementNamesFileLineAndElement)
{
    const auto error = ErrorOf(
        L"<Window size=\"10,10\">\n<VerticalLayout>\n  <Slider name=\"s\" />\n</VerticalLayout></Window>");
    ASSERT_TRUE(error.has_value());
    EXPECT_EQ(error->file, "<string>");
    EXPECT_EQ(error->line, 3);
    EXPECT_EQ(error->name, L"Slider");
    EXPECT_NE(error->message.find("unknown element 'Slider'"), std::string::npos);
}

TEST_F(SkinTest, BadColourValueNamesTheAttribute)
{
    const auto error = ErrorOf(L"<Window>\n\n<Label bkcolor=\"#GG0000\" />\n</Window>");
    ASSERT_TRUE(error.has_value());
    EXPECT_EQ(error->line, 3);
    EXPECT_EQ(error->name, L"bkcolor");
    EXPECT_NE(error->message.find("bad value '#GG0000'"), std::string::npos);
}

TEST_F(SkinTest, UnknownAttributeIsAnError)
{
    const auto error = ErrorOf(L"<Window><Button name=\"b\" colour=\"red\" /></Window>");
    ASSERT_TRUE(error.has_value());
    EXPECT_EQ(error->name, L"colour");
    EXPECT_EQ(error->line, 1);
}

TEST_F(SkinTest, MalformedSizeAndBoolAreErrors)
{
    EXPECT_EQ(ErrorOf(L"<Window size=\"10\"><Control /></Window>")->name, L"size");
    EXPECT_EQ(ErrorOf(L"<Window><Control visible=\"yes\" /></Window>")->name, L"visible");
    EXPECT_EQ(ErrorOf(L"<Window><Control padding=\"1,2,3\" /></Window>")->name, L"padding");
    EXPECT_EQ(ErrorOf(L"<Window><Control width=\"12px\" /></Window>")->name, L"width");
}

TEST_F(SkinTest, BrokenXmlReportsTheLine)
{
    const auto error = ErrorOf(L"<Window>\n<Control>\n</Window>");
    ASSERT_TRUE(error.has_value());
    EXPECT_GE(error->line, 2);
    EXPECT_NE(error->message.find("XML"), std::string::npos);
}

TEST_F(SkinTest, MissingFileIsAnErrorNamingThePath)
{
    CDialogBuilder builder;
    EXPECT_EQ(builder.Create(L"Gallery/Toolkit/no_such_skin.xml"), nullptr);
    ASSERT_TRUE(builder.GetError().has_value());
    EXPECT_NE(builder.GetError()->file.find("no_such_skin.xml"), std::string::npos);
}

TEST_F(SkinTest, ErrorInAFileNamesTheFile)
{
    const std::string path = OutputPath("broken_skin.xml");
    std::ofstream(path)
        << "<Window>\n<VerticalLayout>\n<Label textcolor=\"blue\" />\n</VerticalLayout>\n</Window>\n";
    CDialogBuilder builder;
    EXPECT_EQ(builder.Create(attr::Widen(path).c_str()), nullptr);
    ASSERT_TRUE(builder.GetError().has_value());
    EXPECT_EQ(builder.GetError()->file, path);
    EXPECT_EQ(builder.GetError()->line, 3);
    EXPECT_EQ(builder.GetError()->ToString().rfind(path + ":3: ", 0), 0u);
}

TEST_F(SkinTest, WindowWithAFailingSkinIsNotCreated)
{
    SkinWindow w(L"<Window><Nonsense /></Window>");
    EXPECT_EQ(w.Create(nullptr, L"bad", 0, 0, 0, 0, 0, 0), nullptr);
    ASSERT_TRUE(w.GetSkinError().has_value());
    EXPECT_EQ(w.GetSkinError()->name, L"Nonsense");
}

TEST_F(SkinTest, FontsDefaultsAndWindowAttributesAreApplied)
{
    CDialogBuilder builder;
    CPaintManagerUI pm;
    std::unique_ptr<CControlUI> root(
        builder.Create(LR"(<Window size="640,480" roundcorner="8,8" mininfo="320,200">
        <Font id="3" name="DejaVu Sans" size="20" bold="true" />
        <Default name="Button" value="bkcolor=&quot;#FF010203&quot; height=&quot;30&quot;" />
        <VerticalLayout><Button name="b" /></VerticalLayout></Window>)",
                       nullptr, nullptr, &pm));
    ASSERT_NE(root, nullptr) << builder.GetError()->ToString();
    EXPECT_EQ(pm.GetInitSize().cx, 640);
    EXPECT_EQ(pm.GetRoundCorner().cx, 8);
    EXPECT_EQ(pm.GetMinInfo().cy, 200);
    HFONT font = pm.GetFont(3);
    ASSERT_NE(font, nullptr);
    EXPECT_NE(font, pm.GetFont(-1));
    EXPECT_EQ(pm.GetFont(99), pm.GetFont(-1));
    auto* button = dynamic_cast<CButtonUI*>(pm.FindSubControlByName(root.get(), L"b"));
    ASSERT_NE(button, nullptr);
    EXPECT_EQ(button->GetBkColor(), 0xFF010203u);
    EXPECT_EQ(button->GetFixedHeight(), 30);
}

TEST_F(SkinTest, BadDefaultValueIsReportedAtTheDefaultElement)
{
    const auto error = ErrorOf(
        L"<Window>\n<Default name=\"Label\" value=\"textcolor=&quot;x&quot;\" />\n<Label /></Window>");
    ASSERT_TRUE(error.has_value());
    EXPECT_EQ(error->line, 2);
    EXPECT_EQ(error->name, L"textcolor");
}

TEST_F(SkinTest, CustomClassesComeFromTheCallback)
{
    RowCallback callback;
    CDialogBuilder builder;
    CPaintManagerUI pm;
    std::unique_ptr<CControlUI> row(builder.Create(
        L"<ListItemS height=\"40\" virtualwnd=\"BackupPage\"><Label name=\"itemName\" /></ListItemS>",
        nullptr, &callback, &pm));
    ASSERT_NE(row, nullptr);
    EXPECT_NE(row->GetInterface(L"ListItem"), nullptr);
    EXPECT_EQ(row->GetFixedHeight(), 40);
    EXPECT_EQ(row->GetVirtualWnd(), L"BackupPage");
    ASSERT_NE(pm.FindSubControlByName(row.get(), L"itemName"), nullptr);
    EXPECT_EQ(pm.FindSubControlByName(row.get(), L"itemName")->GetVirtualWnd(), L"BackupPage");
}

TEST_F(SkinTest, ALeafControlCannotHoldChildren)
{
    const auto error = ErrorOf(L"<Window><Label><Control /></Label></Window>");
    ASSERT_TRUE(error.has_value());
    EXPECT_EQ(error->name, L"Control");
}

TEST_F(SkinTest, TheGallerySkinBuilds)
{
    CDialogBuilder builder;
    CPaintManagerUI pm;
    std::unique_ptr<CControlUI> root(builder.Create(L"Gallery/Toolkit/Gallery.xml", nullptr, nullptr, &pm));
    ASSERT_NE(root, nullptr) << builder.GetError()->ToString();
    EXPECT_NE(pm.FindSubControlByName(root.get(), L"gallery_list"), nullptr);
}
