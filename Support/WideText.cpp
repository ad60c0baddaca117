#include "Support/WideText.h"

#include <algorithm>
#include <cwchar>
#include <type_traits>

#include <QString>

namespace {

constexpr wchar_t kReplacement = L'\uFFFD';
constexpr size_t kMaxUtf8Length = 4;  // bytes of one code point

// ASCII, nearly all that an INI file holds, is the same in either form.
template <typename Char>
bool IsAscii(std::basic_string_view<Char> text)
{
    std::make_unsigned_t<Char> bits = 0;  // gathered without a branch, so that the loop is quick
    for (Char c : text)
        bits |= static_cast<std::make_unsigned_t<Char>>(c);
    return bits < 0x80;
}

void Narrow(std::wstring_view plain, char *output)
{
    for (size_t i = 0; i < plain.size(); ++i)
        output[i] = static_cast<char>(plain[i]);
}

}  // namespace

std::wstring WideFromUtf8(std::string_view text)
{
    if (IsAscii(text) && text.find('\0') == std::string_view::npos)
        return {text.begin(), text.end()};
    std::wstring wide =
        QString::fromUtf8(text.data(), static_cast<int>(text.size())).toStdWString();
    std::replace(wide.begin(), wide.end(), L'\0', kReplacement);
    return wide;
}

std::string Utf8FromWide(std::wstring_view text)
{
    if (!IsAscii(text))
        return QString::fromWCharArray(text.data(), static_cast<int>(text.size())).toStdString();
    std::string bytes(text.size(), '\0');
    Narrow(text, bytes.data());
    return bytes;
}

size_t CWideTextConverter::SizeFromStore(const char *, size_t inputLength)
{
    return inputLength;  // no code point, and no broken byte, gives more than one wide character
}

bool CWideTextConverter::ConvertFromStore(const char *input, size_t inputLength, wchar_t *output,
                                          size_t outputSize)
{
    const std::string_view text(input, inputLength);
    if (inputLength <= outputSize && IsAscii(text) && text.find('\0') == std::string_view::npos) {
        std::copy(text.begin(), text.end(), output);
        return true;
    }
    const std::wstring wide = WideFromUtf8(text);
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
    if (text.size() < outputSize && IsAscii(text)) {
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
