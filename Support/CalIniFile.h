// One INI file: calibration data or user settings, loaded on first need, saved on every write.
//
// Text at this interface is UTF-8. Section and key names that differ only in the case of ASCII
// letters are one. A name or value holds no line break (each becomes a blank) and loses blanks at
// its ends when the file is read again; a key holds no '=' and does not begin with '[', ';' or '#'.
//
// Reading. The file is loaded by the first operation that needs it and never again. Bytes that are
// no UTF-8 read as U+FFFD. Lines that are neither section, key nor comment are skipped, and so is a
// section whose heading lacks its ']', with its keys; all these are gone after the next save. Of a
// key that a section holds several times, the first counts.
//
// Writing. The value replaces all values that the key had, and the whole file is saved: UTF-8 with
// byte order mark, CRLF line ends, " = " between key and value. What else the file holds stays. A
// save is whole or not at all: after a full disk or a crash the old file is there as it was. A
// missing file is created, a missing folder is not.
//
// Whole sections. ReadSection and WriteSection give the same values and bytes as a read or a write
// of each key, and are faster. What ReadSection gives lives until the next write.
//
// Errors. std::runtime_error with one of the texts
//     Read <section> from <path> failed (load file failed)
//     Read <section>::<key> from <path> failed (load file failed)
//     Write <section>::<key> to <path> failed (create file failed)
// The constructor opens nothing and throws nothing of these. After a failed write the value stays
// in memory, is what reads return, and goes out with the next save that succeeds.
//
// No lock inside: one thread at a time.
//
//     CCalIniFile file(path.toStdWString().c_str());
//     CCalIniFile::CBatch batch(file);
//     file.WriteInt("NR n78 BW0 TPC", "Route", 7);
//     file.WriteDouble("NR n78 BW0 TPC", "Tx compensation power detector coupler loss 0", 0.5);
//     batch.Commit();
#pragma once

#include <memory>
#include <optional>
#include <set>
#include <string>
#include <vector>

#include "Support/IniLines.h"

class CIniSection;

class CCalIniFile
{
public:
    class CBatch;

    explicit CCalIniFile(const wchar_t *path);  // null: an empty path, which can't be read or saved
    CCalIniFile(const CCalIniFile &) = delete;
    CCalIniFile &operator=(const CCalIniFile &) = delete;
    ~CCalIniFile();

    bool Load();  // true when the file is loaded, now or before; throws nothing

    bool HasSection(const std::string &section);
    std::string ReadString(const std::string &section, const std::string &key,
                           const std::string &defaultValue);
    // Prescribed; see docs/decisions/0036-prescribed-surface.md
    // The leading decimal number of the value, held to the range of int; 0 when it has none.
    int ReadInt(const std::string &section, const std::string &key, int defaultValue);
    // Each key once, in the order of the file; empty for an unknown section.
    std::vector<std::string> ReadSectionKeys(const std::string &section);
    // All keys with their values; nothing for an unknown section.
    std::optional<CIniLines> ReadSection(const std::string &section);

    void WriteString(const std::string &section, const std::string &key, const std::string &value);
    // Prescribed; see docs/decisions/0036-prescribed-surface.md
    void WriteInt(const std::string &section, const std::string &key, int value);
    // As "%lf", six decimals, with a point in every locale of the process.
    void WriteDouble(const std::string &section, const std::string &key, double value);
    // Writes all keys at once. A failure text names the first key.
    void WriteSection(CIniSection section);

private:
    struct SIni;

    // New sections as text, to stand behind those of m_ini. No two have the same name.
    struct SNewSections
    {
        std::vector<std::string> texts;
        std::set<std::string> names;  // in lower case
    };

    bool ParseFile();
    void RequireLoaded(const std::string &section, const std::string &key = {});
    void PrepareWrite(const std::string &section, const std::string &key);
    void FinishWrite(const std::string &section, const std::string &key);
    void SetValue(const std::string &section, const std::string &key, const std::string &value);
    bool AppendSection(CIniSection &section);
    void TakeNewSections();
    void SaveUnsaved();
    bool SaveToDisk() const;
    std::string WriteFailure(const std::string &section, const std::string &key) const;

    std::unique_ptr<SIni> m_ini;
    SNewSections m_new;
    std::wstring m_path;
    bool m_loaded = false;
    int m_openBatches = 0;
    std::string m_unsavedFailure;  // failure text of the first unsaved write; empty: all is saved
};

// A run of writes with one save at its end. The file gets the same bytes as with a save for each.
//
// Commit ends the run and throws the text of its first write when the save fails. Destruction
// without Commit, on the way of an exception too, saves as well but is silent about a failure, so
// a writer who has to tell the user calls Commit. A batch inside another of the same file leaves
// the save to the outer one. A run without writes saves nothing. The file outlives its batches.
class CCalIniFile::CBatch
{
public:
    explicit CBatch(CCalIniFile &file);
    CBatch(const CBatch &) = delete;
    CBatch &operator=(const CBatch &) = delete;
    ~CBatch();

    void Commit();

private:
    CCalIniFile &m_file;
    bool m_open = true;
};
