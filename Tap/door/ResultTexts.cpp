#include "Tap/door/ResultTexts.h"

#include "Tap/door/NextFunctions.h"
#include "Vond/VondCore.h"

CResultTexts::~CResultTexts()
{
    for (std::atomic<SText *> &place : m_texts)
        delete place.load();
}

void CResultTexts::Asked(int32_t result)
{
    m_asked.store(result, std::memory_order_relaxed);
}

std::string CResultTexts::Ask(void *source, int32_t result) const
{
    auto *const ask = reinterpret_cast<decltype(&VOND_GetErrorString)>(source);
    const char *const text = ask(result);
    std::string copy = text != nullptr ? text : "";
    const int64_t asked = m_asked.load(std::memory_order_relaxed);
    if (asked != INT64_MAX)
        ask(static_cast<int32_t>(asked));
    return copy;
}

std::string CResultTexts::Of(int32_t result)
{
    void *const source = NextFunction(EFunction::GetErrorString);
    if (source == nullptr)
        return {};
    std::size_t free = 0;
    for (; free < m_texts.size(); ++free) {
        const SText *const known = m_texts[free].load(std::memory_order_acquire);
        if (known == nullptr)
            break;
        if (known->result == result && known->source == source)
            return known->text;
    }
    auto made = std::make_unique<SText>(SText{source, result, Ask(source, result)});
    std::string copy = made->text;
    for (SText *none = nullptr; free < m_texts.size(); ++free, none = nullptr) {
        if (m_texts[free].compare_exchange_strong(none, made.get())) {
            static_cast<void>(made.release());
            break;
        }
    }
    return copy;
}
