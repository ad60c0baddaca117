// The simulated DUT's flash file, as records: what tests of the way to the flash compare.
//
// Layout as of Simulator/flash/FlashFile.cpp: a head with a checksum of all behind it, then each
// record with its blocks as on the wire.
//
//   CFlashFile before(path);
//   ... edit, Write ...
//   QCOMPARE(before.ChangesTo(CFlashFile(path)), (QStringList{FlashWord({1, 1, 0}, 0, 72, 16)}));
#pragma once

#include <cstring>

#include <QByteArray>
#include <QFile>
#include <QStringList>
#include <QVector>

#include "Vond/VondCalBlocks.h"

enum EFlashKind : uint32_t
{
    eFlashType1 = 1,
    eFlashType2 = 2,
    eFlashApt = 3,
};

struct SFlashPlace
{
    uint32_t kind;
    uint32_t route;
    uint32_t bandwidth;  // kHz; 0 for path loss
};

// A 16-bit word of a block, at its offset, and what it is after a write.
inline QString FlashWord(const SFlashPlace &place, int block, int offset, int16_t after)
{
    return QString("kind %1, route %2, %3 kHz, block %4, byte %5: %6")
        .arg(place.kind)
        .arg(place.route)
        .arg(place.bandwidth)
        .arg(block)
        .arg(offset)
        .arg(after);
}

class CFlashFile
{
public:
    struct SRecord
    {
        SFlashPlace place;
        QVector<QByteArray> blocks;
        bool isTorn = false;  // its last download was cut
    };

    // No records when the file is missing or damaged.
    explicit CFlashFile(const QString &path)
    {
        QFile file(path);
        if (!file.open(QIODevice::ReadOnly))
            return;
        const QByteArray bytes = file.readAll();
        m_magic = bytes.left(kMagicSize);
        int at = kMagicSize + int(sizeof(uint64_t));
        while (at + int(sizeof(SRecordHead)) <= bytes.size()) {
            SRecordHead head;
            std::memcpy(&head, bytes.constData() + at, sizeof head);
            at += int(sizeof head);
            const bool isTorn = (head.place.kind & kTorn) != 0;
            head.place.kind &= ~kTorn;
            SRecord record{head.place, {}, isTorn};
            const int size = BlockSize(head.place.kind);
            for (uint32_t i = 0; i < head.blockCount; ++i, at += size)
                record.blocks.append(bytes.mid(at, size));
            records.append(record);
        }
        if (at != bytes.size())
            records.clear();
    }

    bool Save(const QString &path) const
    {
        QByteArray body;
        for (const SRecord &record : records) {
            SRecordHead head{record.place, uint32_t(record.blocks.size())};
            head.place.kind |= record.isTorn ? kTorn : 0;
            body.append(reinterpret_cast<const char *>(&head), sizeof head);
            for (const QByteArray &block : record.blocks)
                body.append(block);
        }
        uint64_t sum = 0xcbf29ce484222325u;  // FNV-1a
        for (const char byte : body)
            sum = (sum ^ static_cast<uint8_t>(byte)) * 0x100000001b3u;
        QFile file(path);
        return file.open(QIODevice::WriteOnly) && file.write(m_magic) == m_magic.size() &&
               file.write(reinterpret_cast<const char *>(&sum), sizeof sum) == sizeof sum &&
               file.write(body) == body.size();
    }

    // The words that differ, in the order of the file.
    QStringList ChangesTo(const CFlashFile &after) const
    {
        if (records.isEmpty() || after.records.size() != records.size())
            return {"other records"};
        QStringList changes;
        for (int r = 0; r < records.size(); ++r) {
            const SRecord &was = records[r];
            const SRecord &is = after.records[r];
            if (was.blocks.size() != is.blocks.size())
                changes.append(QString("route %1: other blocks").arg(was.place.route));
            for (int b = 0; b < qMin(was.blocks.size(), is.blocks.size()); ++b) {
                for (int at = 0; at + 1 < was.blocks[b].size(); at += 2) {
                    if (Word(was.blocks[b], at) != Word(is.blocks[b], at))
                        changes.append(FlashWord(was.place, b, at, Word(is.blocks[b], at)));
                }
            }
        }
        return changes;
    }

    int BlocksOf(const SFlashPlace &place) const
    {
        for (const SRecord &record : records) {
            if (std::memcmp(&record.place, &place, sizeof place) == 0)
                return record.blocks.size();
        }
        return 0;
    }

    QVector<SRecord> records;

private:
    struct SRecordHead
    {
        SFlashPlace place;
        uint32_t blockCount;
    };
    static_assert(sizeof(SRecordHead) == 16, "as in the file");
    static constexpr int kMagicSize = 16;
    static constexpr uint32_t kTorn = 0x100;

    static int BlockSize(uint32_t kind)
    {
        switch (kind) {
        case eFlashType1:
            return sizeof(SMMType1PathlossBlockV7);
        case eFlashType2:
            return sizeof(SMMType2PathlossBlockV7);
        default:
            return sizeof(SAptBlock);
        }
    }
    static int16_t Word(const QByteArray &block, int at)
    {
        int16_t word;
        std::memcpy(&word, block.constData() + at, sizeof word);
        return word;
    }

    QByteArray m_magic;
};
