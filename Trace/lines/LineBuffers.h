// Line buffers that are not in use. Takes and gives back without a lock, so that a fork in the middle
// of either leaves nothing locked.
//
//   CLineBuffers buffers;
//   std::unique_ptr<CLineBuffer> line = buffers.Take();   // empty, with room if it was used before
//   buffers.GiveBack(std::move(line));
#pragma once

#include <array>
#include <atomic>
#include <memory>

#include "Trace/lines/LineBuffer.h"

class CLineBuffers
{
public:
    CLineBuffers() = default;
    ~CLineBuffers();
    CLineBuffers(const CLineBuffers &) = delete;
    CLineBuffers &operator=(const CLineBuffers &) = delete;

    std::unique_ptr<CLineBuffer> Take();
    // Beyond a few, and of very long lines, buffers are freed.
    void GiveBack(std::unique_ptr<CLineBuffer> buffer);

private:
    std::array<std::atomic<CLineBuffer *>, 8> m_free = {};
};
