#include "Controller/core/RunningTests.h"

#include <algorithm>

CRunningTests::CRunningTests(OnAny onAny, OnNewest onNewest)
    : m_onAny(std::move(onAny)), m_onNewest(std::move(onNewest))
{
}

uint64_t CRunningTests::Moment() const
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    return m_callOffs;
}

bool CRunningTests::CallOff()
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    ++m_callOffs;
    return !m_tests.empty();
}

bool CRunningTests::IsCalledOff(uint64_t asked) const
{
    return asked != Moment();
}

bool CRunningTests::Begin(const SRunningTest &test, uint64_t asked)
{
    bool isFirst = false;
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        if (asked != m_callOffs)
            return false;
        m_tests.erase(std::remove_if(m_tests.begin(), m_tests.end(),
                                     [&](const SRunningTest &other) {
                                         return other.page == test.page && other.stop == test.stop;
                                     }),
                      m_tests.end());
        m_tests.push_back(test);
        isFirst = m_tests.size() == 1;
    }
    if (isFirst)
        m_onAny(true);
    m_onNewest(test.info);
    return true;
}

void CRunningTests::End(const STargetStop &stop)
{
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        const auto left =
            std::remove_if(m_tests.begin(), m_tests.end(),
                           [&](const SRunningTest &test) { return test.stop == stop; });
        if (left == m_tests.end())
            return;
        m_tests.erase(left, m_tests.end());
    }
    if (!IsAny())
        m_onAny(false);
    m_onNewest(Newest());
}

SRunningTestInfo CRunningTests::Newest() const
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    return m_tests.empty() ? SRunningTestInfo() : m_tests.back().info;
}

bool CRunningTests::IsAny() const
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    return !m_tests.empty();
}

std::optional<uint32_t> CRunningTests::HandleOf(EStop kind, std::optional<EPageId> page) const
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    const auto found = std::find_if(m_tests.rbegin(), m_tests.rend(), [&](const auto &test) {
        return test.stop.kind == kind && (!page || test.page == *page);
    });
    return found == m_tests.rend() ? std::nullopt : std::optional(found->stop.handle);
}

std::vector<STargetStop> CRunningTests::Stops() const
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    std::vector<STargetStop> stops;
    for (const SRunningTest &test : m_tests) {
        if (std::find(stops.begin(), stops.end(), test.stop) == stops.end())
            stops.push_back(test.stop);
    }
    return stops;
}
