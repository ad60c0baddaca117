// Makes libFuzzer's mutations for targets with a mutator: most keep the format's shape, the rest
// alter bytes.
#include <cstring>

#include "tests/fuzz/common/FuzzTarget.h"

extern "C" size_t LLVMFuzzerMutate(uint8_t *data, size_t size, size_t maxSize);

extern "C" size_t LLVMFuzzerCustomMutator(uint8_t *data, size_t size, size_t maxSize,
                                          unsigned int seed)
{
    std::mt19937 random(seed);
    if (random() % 5 == 0)
        return LLVMFuzzerMutate(data, size, maxSize);
    QByteArray input(reinterpret_cast<const char *>(data), static_cast<int>(size));
    for (unsigned changes = 1 + random() % 3; changes > 0; --changes)
        input = MutateFuzzInput(input, random);
    const size_t newSize = static_cast<size_t>(input.size());
    if (newSize == 0 || newSize > maxSize)
        return LLVMFuzzerMutate(data, size, maxSize);
    std::memcpy(data, input.constData(), newSize);
    return newSize;
}
