#include "tests/fuzz/ini/LoadRules.h"

#include <stdexcept>

#include "Support/CalIniFile.h"
#include "tests/fuzz/common/FuzzTarget.h"

namespace {

constexpr char kFiller = 0x5A;  // shows what a load leaves as it was
constexpr int kBandBytes = 2;   // at the head of every record

const QString kSaved = QStringLiteral("saved.ini");

// A record that was loaded over another is the one that was loaded anew, but for what a load may
// leave.
bool IsMerged(const QByteArray &full, const QByteArray &fresh, const QByteArray &before,
              const QByteArray &kept)
{
    const char *const now = full.constData();
    const char *const anew = fresh.constData();
    const char *const then = before.constData();
    const char *const mayKeep = kept.constData();
    for (int i = 0; i < full.size(); ++i) {
        if (now[i] != anew[i] && (mayKeep[i] == 0 || anew[i] != 0 || now[i] != then[i]))
            return false;
    }
    return true;
}

}  // namespace

template <typename Item>
CLoadRules<Item>::CLoadRules(const CIniTestFolder &folder, std::set<uint32_t> codes)
    : m_folder(folder), m_codes(std::move(codes)), m_places(PlacesOf(m_full))
{
    Require(m_full.UploadFromFlash() == kCalSuccess, "the flash of the target can be read");
    for (const SRecordPlace &place : m_places) {
        QByteArray bytes = RecordBytes(m_full, place);
        for (int i = 0; i < bytes.size(); ++i) {
            if (bytes.at(i) == 0 && !IsHead(place, i))
                bytes[i] = kFiller;
        }
        m_kept.push_back(KeptBytes(place));
        PutRecord(m_full, place, bytes);
    }
    m_before = ImageOf(m_full);
}

template <typename Item>
void CLoadRules<Item>::Check(const QString &name)
{
    Item fresh(ERadioKind::Nr);
    const Image empty = ImageOf(fresh);
    const SOutcome outcome = Load(fresh, name);
    CheckAnswer(fresh, outcome);
    const Image image = ImageOf(fresh);

    std::vector<bool> valid(m_places.size(), false);
    const bool isSaved = Save(fresh, kSaved);
    const QByteArray bytes = isSaved ? m_folder.Bytes(kSaved) : QByteArray();
    for (size_t i = 0; i < m_places.size(); ++i)
        valid[i] = bytes.contains("[" + QByteArray::fromStdString(m_places[i].section) + "]\r\n");
    for (size_t i = 0; i < m_places.size(); ++i)
        Require(valid[i] || image[i] == empty[i], "a record that is not loaded stays empty");

    Require(Load(m_full, name) == outcome, "the answer hangs on the file alone");
    CheckRecords(image, valid, ImageOf(m_full));
    for (size_t i = 0; i < m_places.size(); ++i)
        PutRecord(m_full, m_places[i], m_before[i]);

    if (!isSaved)
        return;
    CheckReload(kSaved, image);
    if (outcome.threw || outcome.code != kCalSuccess)
        return;  // the section that could not be loaded would stay in the file
    Save(fresh, name);
    CheckReload(name, image);
}

template <typename Item>
void CLoadRules<Item>::Export(const QString &name)
{
    Save(m_full, name);
}

template <typename Item>
typename CLoadRules<Item>::SOutcome CLoadRules<Item>::Load(Item &item, const QString &name) const
{
    CCalIniFile file(m_folder.WidePath(name).c_str());
    try {
        const uint32_t code = item.LoadFromFile(&file);
        return {false, code, item.GetErrorMessage()};
    } catch (const std::runtime_error &failure) {
        return {true, 0, QString::fromUtf8(failure.what())};
    }
}

template <typename Item>
bool CLoadRules<Item>::Save(Item &item, const QString &name) const
{
    if (!item.HasData())
        return false;
    if (name == kSaved)
        QFile::remove(QString::fromStdString(m_folder.Path(name)));
    CCalIniFile file(m_folder.WidePath(name).c_str());
    Require(item.SaveToFile(&file) == kCalSuccess, "what was loaded can be saved");
    Require(item.GetErrorMessage().isEmpty(), "a save that is done has no text");
    return true;
}

template <typename Item>
typename CLoadRules<Item>::Image CLoadRules<Item>::ImageOf(const Item &item) const
{
    Image image;
    for (const SRecordPlace &place : m_places)
        image.push_back(RecordBytes(item, place));
    return image;
}

template <typename Item>
void CLoadRules<Item>::CheckAnswer(const Item &fresh, const SOutcome &outcome) const
{
    if (outcome.threw) {
        Require(!fresh.HasData(), "an unreadable file loads nothing");
        return;
    }
    Require(m_codes.count(outcome.code) == 1, "a load answers with one of its codes");
    Require(outcome.code != kCalSuccess || outcome.text.isEmpty(),
            "a load that is done has no text");
    Require(outcome.code != kCalSuccess || fresh.HasData(), "a load that is done loads a record");
    Require((outcome.code != kCalNoData && outcome.code != kCalChipMismatch) || !fresh.HasData(),
            "no section, or one of another chip, loads nothing");
}

template <typename Item>
void CLoadRules<Item>::CheckRecords(const Image &fresh, const std::vector<bool> &valid,
                                    const Image &full) const
{
    for (size_t i = 0; i < m_places.size(); ++i) {
        if (valid[i])
            Require(IsMerged(full[i], fresh[i], m_before[i], m_kept[i]),
                    "a loaded record does not hang on what was there");
        else
            Require(full[i] == m_before[i], "a record that is not loaded stays as it was");
    }
}

// A route on several bands is saved under each of them. The record then loads with the first band,
// even if the file that it came from had it under another.
template <typename Item>
void CLoadRules<Item>::CheckReload(const QString &name, const Image &image) const
{
    Item item(ERadioKind::Nr);
    Require(Load(item, name) == SOutcome(), "what was saved can be loaded");
    const Image again = ImageOf(item);
    for (size_t i = 0; i < m_places.size(); ++i)
        Require(again[i].mid(kBandBytes) == image[i].mid(kBandBytes),
                "what was saved loads to the same record");
}

template class CLoadRules<CMultiRatAptProfileV7>;
template class CLoadRules<CMultiRatPathLossV7>;
