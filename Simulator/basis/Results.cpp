#include "Simulator/basis/Results.h"

namespace {

struct SResultText
{
    EResult result;
    const char *text;
};

constexpr SResultText kResultTexts[] = {
    {EResult::Success, "Success"},
    {EResult::NotConnected, "Connection: no target is connected"},
    {EResult::TimedOut, "Connection: the target did not answer in time"},
    {EResult::NotOffered, "Target: function is not offered"},
    {EResult::InjectedFault, "Target: failure on demand"},
    {EResult::NullPointer, "Argument: null pointer"},
    {EResult::RecordSize, "Argument: record size does not fit"},
    {EResult::TestRunning, "Target: a test is running already"},
    {EResult::UnknownBand, "Target: unknown band"},
    {EResult::UnknownRoute, "Target: unknown route"},
    {EResult::RouteNotOnBand, "Target: route does not serve the band"},
    {EResult::RouteKind, "Target: route kind does not fit the route"},
    {EResult::RouteDirection, "Target: band does not support the direction"},
    {EResult::Frequency, "Target: frequency is out of limits"},
    {EResult::Path, "Target: path does not exist on the route"},
    {EResult::Bandwidth, "Target: unknown channel bandwidth"},
    {EResult::BandwidthRegion, "Target: route has no such bandwidth region"},
    {EResult::PowerMode, "Target: unknown power mode"},
    {EResult::Gain, "Target: gain is out of limits"},
    {EResult::GainMode, "Target: gain mode is not supported"},
    {EResult::TxPower, "Target: TX power is out of limits"},
    {EResult::Scs, "Target: unknown subcarrier spacing"},
    {EResult::ResourceBlocks, "Target: resource blocks do not fit the bandwidth"},
    {EResult::Modulation, "Target: unknown modulation"},
    {EResult::SlotFormat, "Target: unknown slot format"},
    {EResult::CarrierCount, "Target: carrier count is out of limits"},
    {EResult::Mimo, "Target: band does not support the MIMO mode"},
    {EResult::MeasureCount, "Target: measure count is out of limits"},
    {EResult::FrequencyCount, "Target: frequency count is out of limits"},
    {EResult::RadioKind, "Target: unknown radio kind"},
    {EResult::StopKind, "Target: unknown stop kind"},
    {EResult::PdKind, "Target: unknown power detector"},
    {EResult::NotTransmitting, "Target: nothing is being transmitted"},
    {EResult::Modem, "Connection: unknown modem"},
    {EResult::CellId, "Target: cell id is out of limits"},
    {EResult::Tone, "Target: tone setting is out of limits"},
    {EResult::Flag, "Target: flag is neither 0 nor 1"},
    {EResult::RoutePairing, "Target: TX route does not pair with the RX route"},
    {EResult::Internal, "Library: internal failure"},
};

}  // namespace

const char *ResultText(int32_t result)
{
    for (const SResultText &row : kResultTexts) {
        if (static_cast<int32_t>(row.result) == result)
            return row.text;
    }
    return "Unknown result";
}
