#include "Support/CalIniFile.h"

#include <algorithm>
#include <charconv>
#include <climits>
#include <cstdlib>
#include <cwchar>
#include <exception>
#include <new>
#include <numeric>
#include <stdexcept>

#include <QFileInfo>
#include <QSaveFile>

// The library with our own converter: its package lacks the library's.
#define SI_NO_CONVERSION
// The package's header hides the function bodies, which an instantiation of our own needs.
#define SI_IMPLEMENTATION
#include <SimpleIni.h>

#include "Support/IniSection.h"
#include "Support/WholeFile.h"
#include "Support/WideText.h"

struct CCalIniFile::SIni : CSimpleIniTempl<wchar_t, SI_NoCase<wchar_t>, CWideTextConverter>
{
    using CSimpleIniTempl::CSimpleIniTempl;
};

namespace {

constexpr bool kUtf8 = true;
constexpr bool kMultiKey = true;
constexpr bool kMultiLine = false;
constexpr bool kByteOrderMark = true;
constexpr bool kReplaceAll = true;

// No INI file of this tool comes near this size. A larger file is something else.
constexpr qint64 kMaxFileBytes = 256 * 1024 * 1024;
// Sign, the 309 digits of the greatest double, point and six decimals.
constexpr size_t kMaxDoubleText = 320;
constexpr int kDecimals = 6;
constexpr size_t kBlockBytes = 64 * 1024;  // of a write to the disk, at least
constexpr char kBetweenSections[] = "\r\n\r\n";

// A name or value as the single-line format can hold it.
std::wstring ToLine(const std::string &text)
{
    std::wstring line = WideFromUtf8(text);
    std::replace_if(
        line.begin(), line.end(), [](wchar_t c) { return c == L'\n' || c == L'\r'; }, L' ');
    return line;
}

// The library ends lines with "\n" on this platform. A line end that is CRLF already stays.
void AppendWithCrLf(std::string &result, std::string_view text)
{
    while (!text.empty()) {
        const size_t length = text.find('\n');
        result += text.substr(0, length);
        if (length == std::string_view::npos)
            return;
        if (result.empty() || result.back() != '\r')
            result += '\r';
        result += '\n';
        text.remove_prefix(length + 1);
    }
}

bool Write(QSaveFile &file, const std::string &text)
{
    const qint64 size = static_cast<qint64>(text.size());
    return file.write(text.data(), size) == size;
}

std::string InLowerCase(std::string text)
{
    std::transform(text.begin(), text.end(), text.begin(), &LowerAscii);
    return text;
}

}  // namespace

CCalIniFile::CCalIniFile(const wchar_t *path)
    : m_ini(std::make_unique<SIni>(kUtf8, kMultiKey, kMultiLine)), m_path(path ? path : L"")
{
}

CCalIniFile::~CCalIniFile() = default;

bool CCalIniFile::Load()
{
    if (m_loaded)
        return true;
    try {
        m_loaded = ParseFile();
    } catch (const std::exception &) {
        m_loaded = false;
    }
    if (!m_loaded)
        m_ini->Reset();  // a later try must not add to half a load
    return m_loaded;
}

bool CCalIniFile::ParseFile()
{
    const QString path = QString::fromStdWString(m_path);
    QByteArray bytes;
    if (!ReadWhole(path, kMaxFileBytes, bytes).isEmpty())
        return false;
    if (m_ini->LoadData(bytes.constData(), static_cast<size_t>(bytes.size())) < 0)
        return false;

    // A heading without ']' leaves a section whose name runs on over the next lines and would grow
    // with every save.
    SIni::TNamesDepend sections;
    m_ini->GetAllSections(sections);
    for (const SIni::Entry &section : sections) {
        if (std::wcspbrk(section.pItem, L"\r\n"))
            m_ini->Delete(section.pItem, nullptr);
    }
    return true;
}

void CCalIniFile::RequireLoaded(const std::string &section, const std::string &key)
{
    if (!Load())
        throw std::runtime_error("Read " + section + (key.empty() ? "" : "::" + key) + " from " +
                                 Utf8FromWide(m_path) + " failed (load file failed)");
    TakeNewSections();
}

bool CCalIniFile::HasSection(const std::string &section)
{
    RequireLoaded(section);
    return m_ini->GetSection(ToLine(section).c_str()) != nullptr;
}

std::string CCalIniFile::ReadString(const std::string &section, const std::string &key,
                                    const std::string &defaultValue)
{
    RequireLoaded(section, key);
    const wchar_t *value = m_ini->GetValue(ToLine(section).c_str(), ToLine(key).c_str(), nullptr);
    return value ? Utf8FromWide(value) : defaultValue;
}

int CCalIniFile::ReadInt(const std::string &section, const std::string &key, int defaultValue)
{
    const std::string text = ReadString(section, key, std::to_string(defaultValue));
    const long value = std::strtol(text.c_str(), nullptr, 10);
    return static_cast<int>(std::clamp<long>(value, INT_MIN, INT_MAX));
}

std::vector<std::string> CCalIniFile::ReadSectionKeys(const std::string &section)
{
    RequireLoaded(section);
    SIni::TNamesDepend names;
    m_ini->GetAllKeys(ToLine(section).c_str(), names);
    names.sort(SIni::Entry::LoadOrder());
    std::vector<std::string> keys;
    keys.reserve(names.size());
    for (const SIni::Entry &name : names)
        keys.push_back(Utf8FromWide(name.pItem));
    return keys;
}

std::optional<CIniLines> CCalIniFile::ReadSection(const std::string &section)
{
    RequireLoaded(section);
    const SIni::TKeyVal *keys = m_ini->GetSection(ToLine(section).c_str());
    if (!keys)
        return {};
    std::vector<CIniLines::SLine> lines;
    lines.reserve(keys->size());
    for (const auto &[key, value] : *keys)
        lines.push_back({key.pItem, value, key.nOrder});
    return CIniLines(section, std::move(lines));
}

void CCalIniFile::WriteString(const std::string &section, const std::string &key,
                              const std::string &value)
{
    PrepareWrite(section, key);
    SetValue(section, key, value);
    FinishWrite(section, key);
}

void CCalIniFile::WriteSection(CIniSection section)
{
    if (section.IsEmpty())
        return;
    const std::string name = section.Name();
    const std::string firstKey(section.Line(0).key);
    PrepareWrite(name, firstKey);
    if (!AppendSection(section)) {
        for (const CIniSection::SLine &line : section.Lines())
            SetValue(name, std::string(line.key), std::string(line.value));
    }
    FinishWrite(name, firstKey);
}

void CCalIniFile::WriteInt(const std::string &section, const std::string &key, int value)
{
    WriteString(section, key, std::to_string(value));
}

void CCalIniFile::WriteDouble(const std::string &section, const std::string &key, double value)
{
    char text[kMaxDoubleText];  // not printf, whose point follows the locale
    const std::to_chars_result end =
        std::to_chars(text, text + kMaxDoubleText, value, std::chars_format::fixed, kDecimals);
    WriteString(section, key, std::string(text, end.ptr));
}

// What the file holds is loaded first, so that a save keeps it. A missing file starts empty; one
// that is there but can't be read must not be overwritten.
void CCalIniFile::PrepareWrite(const std::string &section, const std::string &key)
{
    if (Load())
        return;
    if (m_path.empty() || QFileInfo::exists(QString::fromStdWString(m_path)))
        throw std::runtime_error(WriteFailure(section, key));
    m_loaded = true;
}

void CCalIniFile::FinishWrite(const std::string &section, const std::string &key)
{
    if (m_unsavedFailure.empty())
        m_unsavedFailure = WriteFailure(section, key);
    if (m_openBatches == 0)
        SaveUnsaved();
}

void CCalIniFile::SetValue(const std::string &section, const std::string &key,
                           const std::string &value)
{
    TakeNewSections();
    const SI_Error result = m_ini->SetValue(ToLine(section).c_str(), ToLine(key).c_str(),
                                            ToLine(value).c_str(), nullptr, kReplaceAll);
    if (result < 0)
        throw std::runtime_error(WriteFailure(section, key));
}

// A new section goes to the end of the file, without the library.
// False for one that is there, and for text that a file may hold in another form.
bool CCalIniFile::AppendSection(CIniSection &section)
{
    if (section.Name().empty() || !section.IsPlain() ||
        m_ini->GetSection(ToLine(section.Name()).c_str()))
        return false;
    if (!m_new.names.insert(InLowerCase(section.Name())).second)
        return false;
    if (!m_new.texts.empty())
        m_new.texts.back() += kBetweenSections;
    m_new.texts.push_back(section.TakeText());
    return true;
}

// Hands the new sections to the library, before anything that looks at values or changes them.
void CCalIniFile::TakeNewSections()
{
    if (m_new.texts.empty())
        return;
    const std::string text = std::accumulate(m_new.texts.begin(), m_new.texts.end(), std::string());
    if (m_ini->LoadData(text.data(), text.size()) < 0)
        throw std::bad_alloc();
    m_new = {};
}

void CCalIniFile::SaveUnsaved()
{
    if (m_unsavedFailure.empty())
        return;
    const std::string failureText = std::move(m_unsavedFailure);
    m_unsavedFailure.clear();
    if (!SaveToDisk())
        throw std::runtime_error(failureText);
}

bool CCalIniFile::SaveToDisk() const
{
    struct SWriter : SIni::OutputWriter
    {
        std::string text;

        void Write(const char *part) override { AppendWithCrLf(text, part); }
    } writer;
    if (m_ini->Save(writer, kByteOrderMark) < 0)
        return false;
    std::string &block = writer.text;
    if (!m_new.texts.empty() && block != SI_UTF8_SIGNATURE)
        block += kBetweenSections;
    QSaveFile file(QString::fromStdWString(m_path));
    if (!file.open(QIODevice::WriteOnly | QIODevice::Unbuffered))
        return false;
    for (const std::string &text : m_new.texts) {
        block += text;
        if (block.size() < kBlockBytes)
            continue;
        if (!Write(file, block))
            return false;
        block.clear();
    }
    if (!Write(file, block))
        return false;
    return CommitWhole(file).isEmpty();
}

std::string CCalIniFile::WriteFailure(const std::string &section, const std::string &key) const
{
    return "Write " + section + "::" + key + " to " + Utf8FromWide(m_path) +
           " failed (create file failed)";
}

CCalIniFile::CBatch::CBatch(CCalIniFile &file) : m_file(file)
{
    ++m_file.m_openBatches;
}

CCalIniFile::CBatch::~CBatch()
{
    try {
        Commit();
    } catch (const std::exception &) {
        // By contract nobody is told: a destructor can't.
    }
}

void CCalIniFile::CBatch::Commit()
{
    if (!m_open)
        return;
    m_open = false;
    if (--m_file.m_openBatches == 0)
        m_file.SaveUnsaved();
}
