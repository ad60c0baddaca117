// Turns at something that one thread may use at a time.
//
// Lock waits behind all earlier callers. A place goes in front of them. It is reserved at once, on
// any thread, without a wait; Take then gets the next turn behind the one that runs. As long as a
// place is reserved, nobody else gets a turn. So take it soon, on a thread that is free for it.
// Whoever has a turn for long calls GiveWay now and then.
//
// The thread that has the turn may lock again; the turn ends with the last Unlock. Nothing here
// waits with a time limit.
//
//   CTurns turns;
//   auto place = std::make_shared<CTurns::CPlace>(turns);      // never waits
//   StartOnPoolAtOnce([place] { place->Take(); SendFirst(); });  // the turn ends with the place
#pragma once

#include <condition_variable>
#include <cstdint>
#include <deque>
#include <mutex>
#include <thread>

#include "Support/Lock.h"

class CTurns : public CLockableObject
{
public:
    void Lock() override;
    void Unlock() override;
    bool TryLock() override;

    // Called by the thread that has the turn. Lets all places have theirs, then goes on in front of
    // all other callers. Returns at once when there is no place.
    void GiveWay();

    class CPlace
    {
    public:
        explicit CPlace(CTurns &turns);
        // Ends the turn, on the thread that took the place. A place that nobody took is given back.
        ~CPlace();
        CPlace(const CPlace &) = delete;
        CPlace &operator=(const CPlace &) = delete;

        // Once. Waits for the end of the turn under way.
        void Take();

    private:
        CTurns &m_turns;
        bool m_isTaken = false;
    };

private:
    bool IsFree() const { return m_depth == 0; }
    bool IsOwn() const { return m_depth > 0 && m_owner == std::this_thread::get_id(); }
    void Begin(int depth);

    std::mutex m_mutex;
    std::condition_variable m_changed;
    std::thread::id m_owner;
    int m_depth = 0;               // locks of the owner
    int m_places = 0;              // reserved, and taken ones
    bool m_isOwnerComing = false;  // who gave way waits to go on
    std::deque<uint64_t> m_line;   // who waits
    uint64_t m_last = 0;
};
