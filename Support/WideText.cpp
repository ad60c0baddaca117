#include "Support/WideText.h"

#include <algorithm>
#include <cwchar>

#include <QString>

namespace {

constexpr wchar_t kReplacement = L'\uFFFD';
constexpr size_t kMaxUtf8Length = 4;  // bytes of one code point

}  // namespace

std::wstring WideFromUtf8(std::string_view text)
{
    std::wstring wide =
        QString::fromUtf8(text.data(), static_cast<int>(text.size())).toStdWString();
    std::replace(wide.begin(), wide.end(), L'\0', kReplacement);
    return wide;
}

std::string Utf8FromWide(std::wstring_view text)
{
    return QString::fromWCharArray(text.data(), static_cast<int>(text.size())).toStdString();
}

size_t CWideTextConverter::SizeFromStore(const char *, size_t inputLength)
{
    return inputLength;  // no code point, and no broken byte, gives more than one wide character
}

bool CWideTextConverter::ConvertFromStore(const char *input, size_t inputLength, wchar_t *output,
                                          size_t outputSize)
{
    const std::wstring wide = WideFromUtf8({input, inputLength});
    if (wide.size() > outputSize)
        return false;
    std::copy(wide.begin(), wide.end(), output);
    return true;
}

size_t CWideTextConverter::SizeToStore(const wchar_t *input)
{
    return std::wcslen(input) * kMaxUtf8Length + 1;
}

bool CWideTextConverter::ConvertToStore(const wchar_t *input, char *output, size_t outputSize)
{
    const std::string bytes = Utf8FromWide(input);
    if (bytes.size() >= outputSize)
        return false;
    std::copy(bytes.begin(), bytes.end(), output);
    output[bytes.size()] = '\0';
    return true;
}
