#include <gtest/gtest.h>

#include "app/display_text.h"

TEST(EscapeForTerminal, PlainTextInAnyScriptStaysAsItIs)
{
    EXPECT_EQ(app::EscapeForTerminal("Nuvo P60 Pro"), "Nuvo P60 Pro");
    EXPECT_EQ(app::EscapeForTerminal("华为手机 · Телефон · โทรศัพท์"), "华为手机 · Телефон · โทรศัพท์");
}

TEST(EscapeForTerminal, ControlCharactersAreEscaped)
{
    EXPECT_EQ(app::EscapeForTerminal("a\x1B[31mred\x1B[0m"), "a\\x1B[31mred\\x1B[0m");
    EXPECT_EQ(app::EscapeForTerminal("line\nnext\r\t\x7F"), "line\\x0Anext\\x0D\\x09\\x7F");
    EXPECT_EQ(app::EscapeForTerminal(std::string("nul\0x", 5)), "nul\\x00x");
    EXPECT_EQ(app::EscapeForTerminal("c1\xC2\x9B"
                                     "31m"),
              "c1\\u009B31m");
}

TEST(EscapeForTerminal, BidirectionalControlsAreEscaped)
{
    // U+202E RIGHT-TO-LEFT OVERRIDE makes "gpj.exe" read as "exe.jpg".
    EXPECT_EQ(app::EscapeForTerminal("photo\xE2\x80\xAEgpj.exe"), "photo\\u202Egpj.exe");
    EXPECT_EQ(app::EscapeForTerminal("\xE2\x81\xA6x\xE2\x81\xA9"), "\\u2066x\\u2069");
    EXPECT_EQ(app::EscapeForTerminal("\xE2\x80\x8F\xD8\x9C"), "\\u200F\\u061C");
    EXPECT_EQ(app::EscapeForTerminal("a\xE2\x80\xA8"
                                     "b"),
              "a\\u2028b");
}

TEST(EscapeForTerminal, BytesThatAreNotUtf8AreEscapedOneByOne)
{
    EXPECT_EQ(app::EscapeForTerminal("a\xFF"
                                     "b"),
              "a\\xFFb");
    EXPECT_EQ(app::EscapeForTerminal("\xC0\xAF"), "\\xC0\\xAF");          // overlong "/"
    EXPECT_EQ(app::EscapeForTerminal("\xED\xA0\x80"), "\\xED\\xA0\\x80"); // a surrogate
    EXPECT_EQ(app::EscapeForTerminal("cut \xE4\xB8"), "cut \\xE4\\xB8");
}

TEST(EscapeForTerminal, ABackslashIsDoubledSoThatEscapesStayUnambiguous)
{
    EXPECT_EQ(app::EscapeForTerminal("a\\x1B"), "a\\\\x1B");
}
