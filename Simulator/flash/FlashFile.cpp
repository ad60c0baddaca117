#include "Simulator/flash/FlashFile.h"

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <cstring>
#include <fstream>
#include <sstream>
#include <utility>

#include <sys/stat.h>
#include <unistd.h>

namespace {

constexpr char kMagic[16] = {'V', 'o', 'n', 'd', 'S', 'i', 'm', ' ',
                             'f', 'l', 'a', 's', 'h', ' ', '1', '\n'};

constexpr off_t kLargestFlash = 64 * 1024 * 1024;  // bytes; the largest DUT has 12 MB

constexpr char kOtherDut[] = "is the flash of another DUT";

struct SHead
{
    char magic[sizeof(kMagic)];
    uint64_t checksum;  // of everything behind the head
};
VOND_SIZE(SHead, 24);

constexpr uint32_t kTorn = 0x100;

struct SRecordHead
{
    uint32_t kind;  // SCalKind::kId; with kTorn, what follows may be anything
    uint32_t route;
    uint32_t bandwidth;  // kHz
    uint32_t blockCount;
};
VOND_SIZE(SRecordHead, 16);

// FNV-1a.
uint64_t Checksum(const std::string &bytes, std::size_t from)
{
    uint64_t sum = 0xcbf29ce484222325u;
    for (std::size_t i = from; i < bytes.size(); ++i)
        sum = (sum ^ static_cast<uint8_t>(bytes[i])) * 0x100000001b3u;
    return sum;
}

template <class Record>
void Append(std::string &bytes, const Record &record)
{
    bytes.append(reinterpret_cast<const char *>(&record), sizeof(record));
}

template <class Block>
void AppendTable(std::string &bytes, const SFlashImage &image)
{
    for (const auto &[key, blocks] : image.Table<Block>()) {
        const uint32_t kind = SCalKind<Block>::kId;
        const bool isTorn = image.torn.count({kind, key}) != 0;
        Append(bytes, SRecordHead{isTorn ? kind | kTorn : kind, key.route, key.bandwidth,
                                  static_cast<uint32_t>(blocks.size())});
        for (const Block &block : blocks)
            Append(bytes, block);
    }
}

// Takes records off the front of a file's bytes.
class CReader
{
public:
    CReader(const std::string &bytes, std::size_t from) : m_bytes(bytes), m_at(from) {}

    bool AtEnd() const { return m_at == m_bytes.size(); }

    template <class Record>
    Record Take()
    {
        if (m_bytes.size() - m_at < sizeof(Record))
            throw std::runtime_error("ends too early");
        Record record;
        std::memcpy(&record, m_bytes.data() + m_at, sizeof(record));
        m_at += sizeof(record);
        return record;
    }

private:
    const std::string &m_bytes;
    std::size_t m_at;
};

// The table in the file has the records of this one, in the same order.
template <class Block>
void ReadTable(CReader &reader, const SProfile &profile, SFlashImage &image)
{
    for (auto &[key, blocks] : image.Table<Block>()) {
        const auto head = reader.Take<SRecordHead>();
        if ((head.kind & ~kTorn) != SCalKind<Block>::kId || head.route != key.route ||
            head.bandwidth != key.bandwidth ||
            head.blockCount > static_cast<uint32_t>(SCalKind<Block>::kBlocksOfRecord))
            throw CForeignFile(kOtherDut);
        blocks.clear();
        for (uint32_t i = 0; i < head.blockCount; ++i)
            blocks.push_back(reader.Take<Block>());
        if ((head.kind & kTorn) != 0) {
            image.torn.insert({SCalKind<Block>::kId, key});
            continue;
        }
        const std::string reason =
            CheckCalRecord(profile, key, blocks.data(), static_cast<int>(blocks.size()));
        if (!reason.empty())
            throw CForeignFile(std::string(kOtherDut) + " (" + reason + ")");
    }
}

// Empty: no such file.
std::string ReadWhole(const std::string &path)
{
    struct stat status;
    if (stat(path.c_str(), &status) != 0) {
        if (errno == ENOENT)
            return {};
        throw CForeignFile(std::strerror(errno));
    }
    if (!S_ISREG(status.st_mode))
        throw CForeignFile("is no file");
    std::ifstream file(path, std::ios::binary);
    char magic[sizeof(kMagic)] = {};
    file.read(magic, sizeof(magic));
    if (!file.is_open() || file.bad())
        throw CForeignFile("cannot be read");
    if (status.st_size == 0)
        return {};
    if (file.gcount() != sizeof(magic) || std::memcmp(magic, kMagic, sizeof(magic)) != 0)
        throw CForeignFile("is no flash of a simulated DUT");
    if (status.st_size > kLargestFlash)
        throw CForeignFile("is larger than any flash of a simulated DUT");
    std::ostringstream bytes;
    file.seekg(0);
    bytes << file.rdbuf();
    if (!file || !bytes)
        throw CForeignFile("cannot be read");
    return bytes.str();
}

void WriteWhole(const std::string &path, const std::string &bytes)
{
    std::ofstream file(path, std::ios::binary | std::ios::trunc);
    file.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    file.close();
    if (!file)
        throw std::runtime_error("cannot be written");
}

}  // namespace

void LoadFlash(const std::string &path, const SProfile &profile, SFlashImage &image)
{
    const std::string bytes = ReadWhole(path);
    if (bytes.empty())
        return;
    CReader reader(bytes, 0);
    if (reader.Take<SHead>().checksum != Checksum(bytes, sizeof(SHead)))
        throw std::runtime_error("is damaged");
    SFlashImage read = image;
    ReadTable<SMMType1PathlossBlockV7>(reader, profile, read);
    ReadTable<SMMType2PathlossBlockV7>(reader, profile, read);
    ReadTable<SAptBlock>(reader, profile, read);
    if (!reader.AtEnd())
        throw CForeignFile(kOtherDut);
    image = std::move(read);
}

void SaveFlash(const std::string &path, const SFlashImage &image)
{
    std::string bytes(sizeof(SHead), '\0');
    AppendTable<SMMType1PathlossBlockV7>(bytes, image);
    AppendTable<SMMType2PathlossBlockV7>(bytes, image);
    AppendTable<SAptBlock>(bytes, image);
    SHead head = {};
    std::copy(std::begin(kMagic), std::end(kMagic), head.magic);
    head.checksum = Checksum(bytes, sizeof(SHead));
    std::memcpy(bytes.data(), &head, sizeof(head));

    const std::string fresh = path + "." + std::to_string(getpid()) + ".new";
    try {
        WriteWhole(fresh, bytes);
        if (std::rename(fresh.c_str(), path.c_str()) != 0)
            throw std::runtime_error("cannot be replaced");
    } catch (...) {
        std::remove(fresh.c_str());
        throw;
    }
}
