#include "Support/WideText.h"

#include <gtest/gtest.h>

TEST(WideText, AsciiTextStaysAsItIs)
{
    EXPECT_EQ(WideFromUtf8("NR n78 BW0 TPC"), L"NR n78 BW0 TPC");
    EXPECT_EQ(Utf8FromWide(L"NR n78 BW0 TPC"), "NR n78 BW0 TPC");
}

TEST(WideText, EmptyTextStaysEmpty)
{
    EXPECT_EQ(WideFromUtf8(""), L"");
    EXPECT_EQ(Utf8FromWide(L""), "");
}

TEST(WideText, EveryLengthOfCodePointComesBack)
{
    const std::string text = "a\xC2\xB1\xE4\xB8\xAD\xF0\x9F\x93\xA1";  // 1, 2, 3 and 4 bytes
    const std::wstring wide = WideFromUtf8(text);
    EXPECT_EQ(wide, L"a\u00B1\u4E2D\U0001F4E1");
    EXPECT_EQ(Utf8FromWide(wide), text);
}

TEST(WideText, BrokenBytesBecomeReplacementCharacters)
{
    EXPECT_EQ(WideFromUtf8("a\xFF"
                           "b"),
              L"a\uFFFD"
              L"b");
    EXPECT_EQ(WideFromUtf8("a\x80"
                           "b"),
              L"a\uFFFD"
              L"b");
    EXPECT_EQ(WideFromUtf8("a\xC0\xAF"), L"a\uFFFD\uFFFD");  // overlong
}

TEST(WideText, TextCutWithinACodePointKeepsWhatIsBefore)
{
    const std::wstring wide = WideFromUtf8("ab\xE4\xB8");
    EXPECT_EQ(wide.substr(0, 3), L"ab\uFFFD");
}

TEST(WideText, NulDoesNotEndTheText)
{
    EXPECT_EQ(WideFromUtf8(std::string_view("a\0b", 3)), L"a\uFFFD"
                                                         L"b");
}

TEST(WideText, WideCharactersThatAreNoCodePointGiveValidUtf8)
{
    const wchar_t lone[] = {L'a', wchar_t(0xD800), L'b'};
    const std::string bytes = Utf8FromWide({lone, 3});
    EXPECT_EQ(bytes.front(), 'a');
    EXPECT_EQ(bytes.back(), 'b');
    EXPECT_EQ(Utf8FromWide(WideFromUtf8(bytes)), bytes);
    const wchar_t beyond[] = {wchar_t(0x7FFFFFFF), wchar_t(0x110000)};
    const std::string replaced = Utf8FromWide({beyond, 2});
    EXPECT_EQ(Utf8FromWide(WideFromUtf8(replaced)), replaced);
}

TEST(WideTextConverter, ConvertsIntoABufferOfTheSizeItAskedFor)
{
    CWideTextConverter converter(true);
    const std::string bytes = "n78 \xC2\xB1 \xFF";
    std::wstring wide(converter.SizeFromStore(bytes.data(), bytes.size()), L'\0');
    ASSERT_TRUE(converter.ConvertFromStore(bytes.data(), bytes.size(), wide.data(), wide.size()));
    EXPECT_STREQ(wide.c_str(), L"n78 \u00B1 \uFFFD");

    std::string stored(converter.SizeToStore(wide.c_str()), 'x');
    ASSERT_TRUE(converter.ConvertToStore(wide.c_str(), stored.data(), stored.size()));
    EXPECT_STREQ(stored.c_str(), "n78 \xC2\xB1 \xEF\xBF\xBD");
}

TEST(WideTextConverter, RefusesABufferThatIsTooSmall)
{
    CWideTextConverter converter(true);
    wchar_t wide[3] = {};
    EXPECT_FALSE(converter.ConvertFromStore("abcd", 4, wide, 3));
    char stored[4] = {};
    EXPECT_FALSE(converter.ConvertToStore(L"abcd", stored, 4));  // no room for the closing NUL
}
