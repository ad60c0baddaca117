// What the tests of the calibration items share: a folder for INI files, loads and saves with their
// outcome as values, and records at the extremes of their types.
//
//   TEST_F(CCalTest, ...)
//   {
//       CMultiRatAptProfileV7 item(ERadioKind::Nr);
//       EXPECT_EQ(LoadText(item, "[NR n1 BW0 TPC]\nRoute = 1\n"), kDone);
//       EXPECT_EQ(Sections(SaveBytes(item)), QStringList("NR n1 BW0 TPC"));
//   }
#pragma once

#include <map>
#include <memory>
#include <random>
#include <string>
#include <vector>

#include <QStringList>

#include "Operations/calibration/MultiRatAptProfileV7.h"
#include "Operations/calibration/MultiRatPathLossV7.h"
#include "tests/operations/TargetFixture.h"
#include "tests/support/IniTestFolder.h"

constexpr char kBlockInfo[] = "VOND_MMRf_GetCalBlkInfoV7_r";
constexpr char kGetCalData[] = "VOND_MMRf_GetCalDataV7_r";
constexpr char kSetCalData[] = "VOND_MMRf_SetCalDataV7_r";

// Code and text of a move; what it threw stands behind "threw ".
struct SOutcome
{
    uint32_t code = 0;
    std::string text;

    bool operator==(const SOutcome &other) const
    {
        return code == other.code && text == other.text;
    }
};
std::ostream &operator<<(std::ostream &stream, const SOutcome &outcome);
const SOutcome kDone = {};

class CCalTest : public CTargetTest
{
protected:
    SOutcome LoadText(ICalItemByL1Operation &item, const QByteArray &text);
    // From and to a file of the folder.
    SOutcome LoadFile(ICalItemByL1Operation &item, const QString &name = "cal.ini");
    SOutcome SaveFile(ICalItemByL1Operation &item, const QString &name = "cal.ini");
    // The bytes of a save into a new file; null when it made none.
    QByteArray SaveBytes(ICalItemByL1Operation &item);

    CIniTestFolder m_folder;
};

// Headings of an INI file, in order.
QStringList Sections(const QByteArray &bytes);
// The lines of a section, without its heading; empty when there is none.
QStringList SectionLines(const QByteArray &bytes, const QString &section);
// Value of a key; a null text when it is absent.
QString IniValue(const QByteArray &bytes, const QString &section, const QString &key);

// The largest DUT with the handset's gain modes, of which a path loss record has room for all.
void PlugLargest();

// The blocks that the flash holds, by record, as an upload of both items brings them.
using FlashImage = std::map<std::string, std::vector<QByteArray>>;
FlashImage ReadFlash();
// Without the trailing blocks that have no frequency, of which a file may add one.
FlashImage WithoutEmptyBlocks(FlashImage image);

// A file with every section of a kind of route in the DUT's table and all keys that a load needs,
// without a value.
QByteArray BareFile(ECalRoute kind);

// A record whose numbers are the extremes of their types, 0, or anything, with a number of
// frequencies. Bytes without a meaning are 0.
SAptRouteBwRecord ExtremeApt(std::mt19937 &random, uint16_t band, uint16_t route, int frequencies);
// Losses of gain modes that the handset does not support are 0.
template <typename Record>
std::unique_ptr<Record> ExtremePathLoss(std::mt19937 &random, uint16_t band, uint16_t route,
                                        int frequencies);
// Blocks that a file's frequencies stand for.
uint32_t BlocksOfFile(int frequencies);
