// Packs the blocks of routes into rounds, the transfers that the target takes.
//
// A transfer record has an area for each kind of route, its parts here, with room for a number of
// blocks and for as many entries. Routes come in order; one that has no room left in its part makes
// the round go out and starts the next one, with all parts empty. So a route is never split, and no
// packing that keeps the order needs fewer rounds. A route that has more blocks than its part holds
// must not come.
//
//   CCalRounds rounds({55, 3}, " start download....", [&] { return SendAndClear(request); });
//   for (route of type 1) {
//       if (uint32_t code = rounds.MakeRoom(0, route.number, route.blocks))
//           return code;
//       const CCalRounds::SPlace place = rounds.Add(0, route.blocks);
//       ... write entry place.entry and the blocks from place.block
//   }
//   return rounds.SendRest();
#pragma once

#include <cstdint>
#include <functional>
#include <vector>

class CCalRounds
{
public:
    struct SPlace
    {
        int entry = 0;  // index of the route's entry in its part
        int block = 0;  // index of its first block
    };
    // Sends the round of the given number, from 1 on, and empties the record. The result is a code,
    // 0 for success.
    using Send = std::function<uint32_t(int number)>;

    // limits: blocks of each part. startWords end the log line of a round.
    CCalRounds(std::vector<int> limits, const char *startWords, Send send);

    // Sends the round in hand when a route has no room in it. The code of that round, else 0.
    uint32_t MakeRoom(int part, uint16_t route, int blocks);
    SPlace Add(int part, int blocks);
    // Sends what is left; nothing when there is none.
    uint32_t SendRest();

    int Sent() const { return m_sent; }  // rounds that went out

private:
    struct SPart
    {
        int limit = 0;
        int entries = 0;
        int blocks = 0;
    };

    uint32_t SendRound();

    std::vector<SPart> m_parts;
    const char *m_startWords;
    Send m_send;
    int m_sent = 0;
};
