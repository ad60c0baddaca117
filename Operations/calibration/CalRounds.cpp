#include "Operations/calibration/CalRounds.h"

#include <algorithm>
#include <utility>

#include "Support/Log.h"

CCalRounds::CCalRounds(std::vector<int> limits, const char *startWords, Send send)
    : m_startWords(startWords), m_send(std::move(send))
{
    for (int limit : limits)
        m_parts.push_back({limit, 0, 0});
}

uint32_t CCalRounds::MakeRoom(int part, uint16_t route, int blocks)
{
    const SPart &full = m_parts[part];
    qCDebug(lcCalibration).noquote().nospace()
        << "    current total blk num = " << full.blocks << ", to be added blk num = " << blocks;
    // Routes without a block take an entry alone, and of those there is a limit, too.
    if (full.blocks + blocks <= full.limit && full.entries < full.limit)
        return 0;
    qCDebug(lcCalibration).noquote().nospace()
        << "        over limitation:  switch route" << route << " to next round";
    return SendRound();
}

CCalRounds::SPlace CCalRounds::Add(int part, int blocks)
{
    SPart &open = m_parts[part];
    const SPlace place{open.entries, open.blocks};
    ++open.entries;
    open.blocks += blocks;
    return place;
}

uint32_t CCalRounds::SendRest()
{
    const bool empty = std::all_of(m_parts.begin(), m_parts.end(),
                                   [](const SPart &part) { return part.entries == 0; });
    return empty ? 0 : SendRound();
}

uint32_t CCalRounds::SendRound()
{
    int total = 0;
    for (SPart &part : m_parts) {
        total += part.blocks;
        part = {part.limit, 0, 0};
    }
    qCDebug(lcCalibration).noquote().nospace() << "-----> total blk num: " << total << m_startWords;
    return m_send(++m_sent);
}
