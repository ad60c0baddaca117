// What must hold when a calibration item loads a file, whatever the file holds.
//
// - The load answers with one of its codes, or throws the std::runtime_error of an unreadable file;
//   on an item that holds data already it answers alike.
// - A record is taken over whole or not at all: one that is not valid afterwards is as it was, and
//   one that is does not hang on what was there before.
// - Without a section (51), with that of another chip (200), or unreadable, nothing changes.
// - What was loaded can be saved, into a new file and over the one that was loaded; either loads to
//   the same records.
// A rule that is broken ends the process (Require). One thread.
//
//   CLoadRules<CMultiRatAptProfileV7> rules(folder, {0, 51, 53, 200});
//   rules.Check("cal.ini");   // a file of the folder
#pragma once

#include <set>
#include <string>
#include <vector>

#include <QByteArray>

#include "tests/fuzz/ini/CalPlaces.h"
#include "tests/support/IniTestFolder.h"

template <typename Item>
class CLoadRules
{
public:
    // Reads the target's flash, so that the item which holds data has it all.
    CLoadRules(const CIniTestFolder &folder, std::set<uint32_t> codes);

    void Check(const QString &name);
    // All records in a file of the folder, as an export writes them.
    void Export(const QString &name);

private:
    using Image = std::vector<QByteArray>;  // by place

    struct SOutcome
    {
        bool threw = false;
        uint32_t code = 0;
        QString text;

        bool operator==(const SOutcome &other) const
        {
            return threw == other.threw && code == other.code && text == other.text;
        }
    };

    SOutcome Load(Item &item, const QString &name) const;
    // False when nothing is valid, and so no file was made.
    bool Save(Item &item, const QString &name) const;
    Image ImageOf(const Item &item) const;
    void CheckAnswer(const Item &fresh, const SOutcome &outcome) const;
    void CheckRecords(const Image &fresh, const std::vector<bool> &valid, const Image &full) const;
    void CheckReload(const QString &name, const Image &image) const;

    const CIniTestFolder &m_folder;
    std::set<uint32_t> m_codes;
    Item m_full{ERadioKind::Nr};  // every record is valid; its records are those of m_before
    std::vector<SRecordPlace> m_places;
    Image m_before;
    Image m_kept;  // see KeptBytes
};

extern template class CLoadRules<CMultiRatAptProfileV7>;
extern template class CLoadRules<CMultiRatPathLossV7>;
