// The texts that the pair has for its results. The pair is asked once for each, behind the call that
// came back with it. It may keep its texts in one buffer: then the buffer is left with what the host
// asked for last, as the host may still read it.
//
//   texts.Of(5)   // "Argument: null pointer"; empty where the pair has none
#pragma once

#include <array>
#include <atomic>
#include <cstdint>
#include <memory>
#include <string>

class CResultTexts
{
public:
    CResultTexts() = default;
    ~CResultTexts();
    CResultTexts(const CResultTexts &) = delete;
    CResultTexts &operator=(const CResultTexts &) = delete;

    std::string Of(int32_t result);
    // The host asked for that text itself.
    void Asked(int32_t result);

private:
    struct SText
    {
        void *source;  // the function that gave it: another pair may word it another way
        int32_t result;
        std::string text;
    };

    std::string Ask(void *source, int32_t result) const;

    std::atomic<int64_t> m_asked = INT64_MAX;  // by the host, last; of no result: not yet
    // Filled from the front; no lock, so that a fork leaves nothing locked.
    std::array<std::atomic<SText *>, 128> m_texts = {};
};
