// UTF-8 text to wide text and back, for the INI files, whose library works on wchar_t.
//
// Every input gives a result; nothing here fails or throws but for want of memory. A byte that is
// no UTF-8 becomes U+FFFD, and so does a NUL: wide text goes to functions that end at a NUL, and
// the text behind it would be lost without a word. A leading byte order mark is dropped. A wide
// character that is no code point becomes a replacement character on the way back.
//
// No state, any thread.
//
//     WideFromUtf8("n78 \xC2\xB1") == L"n78 \u00B1"
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

std::wstring WideFromUtf8(std::string_view text);
std::string Utf8FromWide(std::wstring_view text);

// The converter parameter of CSimpleIniTempl; its functions and their meaning are set by that
// template. The store is UTF-8 whatever the flag says. Sizes to the store count the closing NUL.
class CWideTextConverter
{
public:
    explicit CWideTextConverter(bool storeIsUtf8) { (void)storeIsUtf8; }

    size_t SizeFromStore(const char *input, size_t inputLength);
    bool ConvertFromStore(const char *input, size_t inputLength, wchar_t *output,
                          size_t outputSize);
    size_t SizeToStore(const wchar_t *input);
    bool ConvertToStore(const wchar_t *input, char *output, size_t outputSize);
};
