#include "Trace/lines/LoadedLibrary.h"

#include <cstdint>
#include <cstring>
#include <span>

#include <elf.h>
#include <link.h>

#include "Trace/lines/LineBuffer.h"

namespace {

constexpr char kGnu[] = "GNU";  // owner of the note with the build id

// Notes stand one behind the other: head, name and description, each padded to four bytes.
std::string BuildIdOf(std::span<const uint8_t> notes)
{
    const auto padded = [](std::size_t size) { return (size + 3) & ~std::size_t{3}; };
    ElfW(Nhdr) head = {};
    while (notes.size() >= sizeof(head)) {
        std::memcpy(&head, notes.data(), sizeof(head));
        const std::size_t from = sizeof(head) + padded(head.n_namesz);
        const std::size_t size = from + padded(head.n_descsz);
        if (size > notes.size() || from < head.n_namesz)
            break;
        if (head.n_type == NT_GNU_BUILD_ID && head.n_namesz == sizeof(kGnu) &&
            std::memcmp(notes.data() + sizeof(head), kGnu, sizeof(kGnu)) == 0) {
            CLineBuffer hex;
            return std::string(hex.AppendHex(notes.subspan(from, head.n_descsz)).Text());
        }
        notes = notes.subspan(size);
    }
    return {};
}

std::string BuildIdOf(const dl_phdr_info &library)
{
    for (const ElfW(Phdr) & part : std::span(library.dlpi_phdr, library.dlpi_phnum)) {
        if (part.p_type != PT_NOTE)
            continue;
        const auto *const notes =
            reinterpret_cast<const uint8_t *>(library.dlpi_addr + part.p_vaddr);
        std::string id = BuildIdOf(std::span(notes, part.p_memsz));
        if (!id.empty())
            return id;
    }
    return {};
}

struct SLibrarySearch
{
    std::string_view name;
    SLoadedLibrary found;
};

int Look(dl_phdr_info *library, std::size_t, void *search)
{
    auto &[name, found] = *static_cast<SLibrarySearch *>(search);
    const std::string_view path = library->dlpi_name != nullptr ? library->dlpi_name : "";
    const std::string_view file = path.substr(path.rfind('/') + 1);
    if (!file.starts_with(name) || (file.size() > name.size() && file[name.size()] != '.'))
        return 0;
    found = {std::string(path), std::string(file), BuildIdOf(*library)};
    return 1;
}

}  // namespace

SLoadedLibrary FindLoadedLibrary(std::string_view name)
{
    SLibrarySearch search = {name, {}};
    dl_iterate_phdr(&Look, &search);
    return search.found;
}
