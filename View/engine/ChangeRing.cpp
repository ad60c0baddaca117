#include "View/engine/ChangeRing.h"

#include <utility>

namespace {

// A change that is taken back has made no older one go.
constexpr int kSpare = 256;

size_t SlotOf(qint64 number)
{
    return static_cast<size_t>(number % (CChangeRing::kMost + kSpare));
}

}  // namespace

qint64 CChangeRing::Add(SChange change)
{
    const size_t slot = SlotOf(m_end);
    if (slot == m_changes.size())
        m_changes.push_back(std::move(change));
    else
        m_changes[slot] = std::move(change);
    return m_end++;
}

void CChangeRing::RemoveNewest()
{
    if (m_end > 0)
        m_changes[SlotOf(--m_end)] = {};
}

const SChange *CChangeRing::Find(qint64 number) const
{
    return number >= Begin() && number < m_end ? &m_changes[SlotOf(number)] : nullptr;
}

SChange *CChangeRing::Find(qint64 number)
{
    return const_cast<SChange *>(std::as_const(*this).Find(number));
}
