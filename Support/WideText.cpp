#include "Support/WideText.h"

#include <algorithm>
#include <cwchar>

#include <QString>

namespace {

constexpr wchar_t kReplacement = L'\uFFFD';
constexpr size_t kMaxUtf8Length = 4;  // bytes of one code point

// ASCII without NUL, nearly all that an INI file holds, is the same in either form.
template <typename Char>
bool IsPlain(const Char *text, size_t length)
{
    bool plain = true;
    for (size_t i = 0; i < length; ++i)
        plain &= text[i] > 0 && text[i] < 0x80;
    return plain;
}

bool IsPlain(std::string_view text)
{
    return IsPlain(reinterpret_cast<const signed char *>(text.data()), text.size());
}

void Narrow(std::wstring_view plain, char *output)
{
    for (size_t i = 0; i < plain.size(); ++i)
        output[i] = static_cast<char>(plain[i]);
}

}  // namespace

std::wstring WideFromUtf8(std::string_view text)
{
    if (IsPlain(text))
        return {text.begin(), text.end()};
    std::wstring wide =
        QString::fromUtf8(text.data(), static_cast<int>(text.size())).toStdWString();
    std::replace(wide.begin(), wide.end(), L'\0', kReplacement);
    return wide;
}

std::string Utf8FromWide(std::wstring_view text)
{
    if (IsPlain(text.data(), text.size())) {
        std::string bytes(text.size(), '\0');
        Narrow(text, bytes.data());
        return bytes;
    }
    return QString::fromWCharArray(text.data(), static_cast<int>(text.size())).toStdString();
}

size_t CWideTextConverter::SizeFromStore(const char *, size_t inputLength)
{
    return inputLength;  // no code point, and no broken byte, gives more than one wide character
}

bool CWideTextConverter::ConvertFromStore(const char *input, size_t inputLength, wchar_t *output,
                                          size_t outputSize)
{
    if (inputLength <= outputSize && IsPlain({input, inputLength})) {
        std::copy(input, input + inputLength, output);
        return true;
    }
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
    const std::wstring_view text = input;
    if (text.size() < outputSize && IsPlain(text.data(), text.size())) {
        Narrow(text, output);
        output[text.size()] = '\0';
        return true;
    }
    const std::string bytes = Utf8FromWide(text);
    if (bytes.size() >= outputSize)
        return false;
    std::copy(bytes.begin(), bytes.end(), output);
    output[bytes.size()] = '\0';
    return true;
}
