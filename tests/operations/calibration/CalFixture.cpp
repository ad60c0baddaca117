#include "tests/operations/calibration/CalFixture.h"

#include <functional>
#include <limits>
#include <set>
#include <type_traits>

#include "Operations/calibration/PathLossGains.h"
#include "Support/CalIniFile.h"
#include "tests/common/CalProfile.h"

namespace {

SOutcome OutcomeOf(ICalItemByL1Operation &item, const std::function<uint32_t()> &move)
{
    try {
        const uint32_t code = move();
        return {code, item.GetErrorMessage().toStdString()};
    } catch (const std::runtime_error &failure) {
        return {0, std::string("threw ") + failure.what()};
    }
}

template <typename T>
void Fill(std::mt19937 &random, T &number)
{
    using Limits = std::numeric_limits<T>;
    const T choices[] = {Limits::min(), Limits::max(), T(0), static_cast<T>(random())};
    number = choices[random() % std::size(choices)];
}
template <typename T, size_t count>
void Fill(std::mt19937 &random, T (&numbers)[count])
{
    for (T &number : numbers)
        Fill(random, number);
}

void FillFrequencies(std::mt19937 &random, uint32_t (&freq)[kVondCalMaxSubbands], int count)
{
    Fill(random, freq);
    for (int i = 0; i < kVondCalMaxSubbands; ++i)
        freq[i] = i < count ? std::max(freq[i], 1u) : 0;
}

// The pairs and halves that the handset's gain modes stand for.
template <typename Record>
std::vector<SGainKey> GainKeys()
{
    constexpr bool type1 = std::is_same_v<Record, SMMType1PathlossByRouteV7>;
    const CTargetCapability target;
    std::vector<SGainKey> keys;
    for (EPowerMode mode : {EPowerMode::Hpm, EPowerMode::Lpm}) {
        const auto *gains =
            target.GetSupportRxGainInfoV7(ERadioKind::Nr, static_cast<uint32_t>(mode));
        EXPECT_TRUE((type1 ? AppendType1Keys : AppendType2Keys)(*gains, mode, keys));
    }
    return keys;
}

template <typename Record>
QByteArray BarePathLoss(CCalStore<Record> &store, const std::vector<SCalPlace> &places)
{
    QByteArray bytes;
    const CPathLossSections<Record> sections(store);
    for (const SCalPlace &place : places) {
        for (const std::string &name : sections.SectionsOf(ERadioKind::Nr, place)) {
            bytes += "[" + QByteArray::fromStdString(name) + "]\n";
            for (const SGainKey &key : GainKeys<Record>())
                bytes += QByteArray::fromStdString(key.key) + " =\n";
        }
    }
    return bytes;
}

template <typename Block>
const Block *AddBlocks(FlashImage &image, const std::string &key, const Block *block, int count)
{
    std::vector<QByteArray> &blocks = image[key];
    for (int i = 0; i < count; ++i)
        blocks.push_back(BytesOf(*block++));
    return block;
}

}  // namespace

std::ostream &operator<<(std::ostream &stream, const SOutcome &outcome)
{
    return stream << outcome.code << " \"" << outcome.text << '"';
}

SOutcome CCalTest::LoadText(ICalItemByL1Operation &item, const QByteArray &text)
{
    m_folder.Put(text, "text.ini");
    return LoadFile(item, "text.ini");
}

SOutcome CCalTest::LoadFile(ICalItemByL1Operation &item, const QString &name)
{
    CCalIniFile file(m_folder.WidePath(name).c_str());
    return OutcomeOf(item, [&] { return item.LoadFromFile(&file); });
}

SOutcome CCalTest::SaveFile(ICalItemByL1Operation &item, const QString &name)
{
    CCalIniFile file(m_folder.WidePath(name).c_str());
    return OutcomeOf(item, [&] { return item.SaveToFile(&file); });
}

QByteArray CCalTest::SaveBytes(ICalItemByL1Operation &item)
{
    QFile::remove(QString::fromStdString(m_folder.Path("saved.ini")));
    EXPECT_EQ(SaveFile(item, "saved.ini"), kDone);
    return m_folder.Bytes("saved.ini");
}

void PlugLargest()
{
    ASSERT_EQ(VondSim_SetProfileText(kLargestCalProfile), 0);
    CTargetCapability::Reset();
    VondSim_ClearJournal();
}

FlashImage ReadFlash()
{
    VondSim_ClearJournal();
    EXPECT_EQ(CMultiRatAptProfileV7(ERadioKind::Nr).UploadFromFlash(), 0u);
    EXPECT_EQ(CMultiRatPathLossV7(ERadioKind::Nr).UploadFromFlash(), 0u);
    FlashImage image;
    for (const SJournalCall &call : JournalOf(kGetCalData)) {
        const auto answer = RecordOf<SMMGetCalDataCnfV7>(call.answer);
        const SMMType1PathlossBlockV7 *type1 = answer.type1Block;
        for (int i = 0; i < answer.type1Count; ++i)
            type1 = AddBlocks(image, "T1 " + std::to_string(answer.type1[i].route), type1,
                              answer.type1[i].blockCount);
        const SMMType2PathlossBlockV7 *type2 = answer.type2Block;
        for (int i = 0; i < answer.type2Count; ++i)
            type2 = AddBlocks(image, "T2 " + std::to_string(answer.type2Route[i]), type2,
                              answer.type2BlockCount[i]);
        const SAptBlock *tx = answer.txBlock;
        for (int i = 0; i < answer.txCount; ++i)
            tx = AddBlocks(image,
                           "TX " + std::to_string(answer.tx[i].route) + " " +
                               std::to_string(answer.tx[i].bandwidth),
                           tx, answer.tx[i].blockCount);
    }
    VondSim_ClearJournal();
    return image;
}

FlashImage WithoutEmptyBlocks(FlashImage image)
{
    for (auto &[key, blocks] : image) {
        const int at = key[1] == 'X' ? 92 : 4;
        while (!blocks.empty() && blocks.back().mid(at, 64) == QByteArray(64, '\0'))
            blocks.pop_back();
    }
    return image;
}

QStringList Sections(const QByteArray &bytes)
{
    QStringList names;
    for (const QString &line : QString::fromUtf8(bytes).split("\r\n")) {
        const int start = line.indexOf('[');
        if (start >= 0 && start <= 1)  // behind the byte order mark
            names.append(line.mid(start + 1, line.size() - start - 2));
    }
    return names;
}

QStringList SectionLines(const QByteArray &bytes, const QString &section)
{
    const QString text = QString::fromUtf8(bytes);
    const QString heading = "[" + section + "]\r\n";
    const int start = text.indexOf(heading);
    if (start < 0)
        return {};
    const int end = text.indexOf("\r\n\r\n", start);
    return text.mid(start + heading.size(), end < 0 ? -1 : end - start - heading.size())
        .split("\r\n", Qt::SkipEmptyParts);
}

QString IniValue(const QByteArray &bytes, const QString &section, const QString &key)
{
    for (const QString &line : SectionLines(bytes, section)) {
        if (line.startsWith(key + " = "))
            return line.mid(key.size() + 3);
    }
    return {};
}

QByteArray BareFile(ECalRoute kind)
{
    const std::vector<SCalPlace> places = WalkRoutes(*CTargetCapability().GetRouteTableNr(), kind);
    if (kind == ECalRoute::Type1) {
        CCalStore<SMMType1PathlossByRouteV7> store;
        return BarePathLoss(store, places);
    }
    if (kind == ECalRoute::Type2) {
        CCalStore<SMMType2PathlossByRouteV7> store;
        return BarePathLoss(store, places);
    }
    QByteArray bytes;
    CCalStore<SAptRouteBwRecord> store(kVondMaxBwRegions);
    const CAptSections sections(store);
    for (const SCalPlace &place : places) {
        for (const std::string &name : sections.SectionsOf(ERadioKind::Nr, place))
            bytes += "[" + QByteArray::fromStdString(name) + "]\nRoute = 1\n";
    }
    return bytes;
}

SAptRouteBwRecord ExtremeApt(std::mt19937 &random, uint16_t band, uint16_t route, int frequencies)
{
    SAptRouteBwRecord record = {};
    record.band = band;
    record.route = route;
    Fill(random, record.normalTempIndex);
    Fill(random, record.paControlLevel);
    Fill(random, record.paModeCount);
    for (SAptLevel &level : record.level) {
        Fill(random, level.paMode);
        Fill(random, level.dc2dcLevel);
        Fill(random, level.usage256Qam);
        Fill(random, level.prf);
        Fill(random, level.paGain);
    }
    Fill(random, record.paGainTempOffset);
    Fill(random, record.powerDetectorTempOffset);
    Fill(random, record.prfIndex);
    Fill(random, record.couplerLoss);
    FillFrequencies(random, record.freq, frequencies);
    Fill(random, record.paGain);
    Fill(random, record.powerDetector);
    record.blockCount = BlocksOfFile(frequencies);
    return record;
}

template <typename Record>
std::unique_ptr<Record> ExtremePathLoss(std::mt19937 &random, uint16_t band, uint16_t route,
                                        int frequencies)
{
    auto record = std::make_unique<Record>();
    record->band = band;
    record->route = route;
    FillFrequencies(random, record->freq, frequencies);
    Fill(random, record->plOffset);
    for (const SGainKey &key : GainKeys<Record>()) {
        for (auto &loss : record->loss) {
            for (int pair : key.pair)
                Fill(random, key.mode == EPowerMode::Hpm ? loss[pair].hpm : loss[pair].lpm);
        }
    }
    record->blockCount = BlocksOfFile(frequencies);
    return record;
}

template std::unique_ptr<SMMType1PathlossByRouteV7> ExtremePathLoss(std::mt19937 &, uint16_t,
                                                                    uint16_t, int);
template std::unique_ptr<SMMType2PathlossByRouteV7> ExtremePathLoss(std::mt19937 &, uint16_t,
                                                                    uint16_t, int);

uint32_t BlocksOfFile(int frequencies)
{
    return static_cast<uint32_t>((std::min(frequencies, 63) + 1 + 15) / 16);
}
