#include "Trace/lines/LineBuffers.h"

namespace {

constexpr std::size_t kMostKept = 4 * 1024 * 1024;  // characters of a buffer

}  // namespace

CLineBuffers::~CLineBuffers()
{
    for (std::atomic<CLineBuffer *> &place : m_free)
        delete place.exchange(nullptr);
}

std::unique_ptr<CLineBuffer> CLineBuffers::Take()
{
    for (std::atomic<CLineBuffer *> &place : m_free) {
        if (CLineBuffer *const buffer = place.exchange(nullptr)) {
            buffer->Clear();
            return std::unique_ptr<CLineBuffer>(buffer);
        }
    }
    return std::make_unique<CLineBuffer>();
}

void CLineBuffers::GiveBack(std::unique_ptr<CLineBuffer> buffer)
{
    if (buffer == nullptr || buffer->Capacity() > kMostKept)
        return;
    for (std::atomic<CLineBuffer *> &place : m_free) {
        CLineBuffer *none = nullptr;
        if (place.compare_exchange_strong(none, buffer.get())) {
            static_cast<void>(buffer.release());
            return;
        }
    }
}
