#include "Controller/capability/TextTable.h"

#include <algorithm>

#include <QJsonDocument>

namespace {

bool IsAscii(std::string_view text)
{
    return std::all_of(text.begin(), text.end(), [](char c) { return c >= 0; });
}

// JSON has it as it is.
bool IsPlain(char c)
{
    return (c < 0 || c >= ' ') && c != '"' && c != '\\';
}

// The first characters of a key, the first of them foremost.
uint64_t Head(std::string_view key)
{
    uint64_t head = 0;
    for (std::size_t i = 0; i < sizeof head; ++i)
        head = head << 8 | (i < key.size() ? static_cast<unsigned char>(key[i]) : 0);
    return head;
}

}  // namespace

void CTextTable::BeginEntry(const QString &key)
{
    m_sorted.clear();
    BeginPart();
    AppendQuoted(key);
    m_json += ':';
}

void CTextTable::Add(std::string_view latin1)
{
    BeginPart();
    if (IsAscii(latin1))
        AppendQuoted(latin1);
    else
        AppendQuoted(QString::fromLatin1(latin1.data(), static_cast<int>(latin1.size())));
}

void CTextTable::Add(const QString &text)
{
    BeginPart();
    AppendQuoted(text);
}

void CTextTable::Add(const QStringList &texts)
{
    BeginPart();
    m_json += '[';
    for (const QString &text : texts) {
        AppendQuoted(text);
        m_json += ',';
    }
    if (!texts.isEmpty())
        m_json.pop_back();
    m_json += ']';
}

void CTextTable::AppendQuoted(const QString &text)
{
    const QByteArray utf8 = text.toUtf8();
    AppendQuoted(std::string_view(utf8.constData(), static_cast<std::size_t>(utf8.size())));
}

void CTextTable::AppendQuoted(std::string_view utf8)
{
    m_json += '"';
    while (!utf8.empty()) {
        const auto end = std::find_if_not(utf8.begin(), utf8.end(), IsPlain);
        const auto plain = static_cast<std::size_t>(end - utf8.begin());
        m_json += utf8.substr(0, plain);
        utf8.remove_prefix(plain);
        if (utf8.empty())
            break;
        constexpr char kHex[] = "0123456789abcdef";
        const char special[] = {'\\', 'u', '0', '0', kHex[utf8[0] / 16], kHex[utf8[0] % 16]};
        m_json.append(special, sizeof special);
        utf8.remove_prefix(1);
    }
    m_json += '"';
}

std::string_view CTextTable::Part(std::size_t entry, std::size_t part) const
{
    const std::size_t index = entry * (m_columns + 1) + part;
    const std::size_t end = index + 1 < m_bounds.size() ? m_bounds[index + 1] : m_json.size();
    return std::string_view(m_json).substr(m_bounds[index], end - m_bounds[index]);
}

void CTextTable::Sort()
{
    const auto entries = static_cast<uint32_t>(m_bounds.size() / (m_columns + 1));
    m_sorted.reserve(entries);
    for (uint32_t entry = 0; entry < entries; ++entry)
        m_sorted.push_back({Head(Part(entry, 0).substr(1)), entry});  // behind the quote
    std::sort(m_sorted.begin(), m_sorted.end(), [this](const SPlace &a, const SPlace &b) {
        if (a.head != b.head)
            return a.head < b.head;
        const int order = Part(a.entry, 0).compare(Part(b.entry, 0));
        return order != 0 ? order < 0 : a.entry > b.entry;
    });
    const auto isSameKey = [this](const SPlace &a, const SPlace &b) {
        return a.head == b.head && Part(a.entry, 0) == Part(b.entry, 0);
    };
    m_sorted.erase(std::unique(m_sorted.begin(), m_sorted.end(), isSameKey), m_sorted.end());
}

QJsonObject CTextTable::ToObject(std::size_t column)
{
    if (m_sorted.empty())
        Sort();
    std::size_t size = 2;  // the braces
    for (const SPlace &place : m_sorted)
        size += Part(place.entry, 0).size() + Part(place.entry, column + 1).size() + 1;
    std::string text;
    text.reserve(size);
    for (const SPlace &place : m_sorted) {
        text += text.empty() ? '{' : ',';
        text += Part(place.entry, 0);
        text += Part(place.entry, column + 1);
    }
    text += text.empty() ? "{}" : "}";
    const auto bytes = QByteArray::fromRawData(text.data(), static_cast<int>(text.size()));
    return QJsonDocument::fromJson(bytes).object();
}
