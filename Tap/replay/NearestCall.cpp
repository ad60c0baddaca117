#include "Tap/replay/NearestCall.h"

#include <algorithm>
#include <limits>

#include "Trace/dictionary/Decode.h"
#include "Trace/dictionary/FieldDifference.h"

namespace {

std::span<const uint8_t> BytesOf(const RequestView &request)
{
    if (!request)
        return {};
    return {reinterpret_cast<const uint8_t *>(request->data()), request->size()};
}

std::string SizeText(const RequestView &request)
{
    return request ? std::to_string(request->size()) + " bytes" : "a null pointer";
}

// A field of what is asked.
struct SPlace
{
    std::size_t offset;
    std::size_t size;
};

std::vector<SPlace> PlacesOf(const SFunction &function, const RequestView &request)
{
    std::vector<SPlace> places;
    DecodeRequest(function, BytesOf(request), [&](const SFieldValue &value) {
        places.push_back({value.offset, value.bytes.size()});
    });
    return places;
}

std::size_t CountDifferent(const std::vector<SPlace> &places, const RequestView &one,
                           const RequestView &other)
{
    const std::span<const uint8_t> a = BytesOf(one);
    const std::span<const uint8_t> b = BytesOf(other);
    const auto isDifferent = [&](const SPlace &place) {
        return place.offset + place.size > b.size() ||
               !std::ranges::equal(a.subspan(place.offset, place.size),
                                   b.subspan(place.offset, place.size));
    };
    const auto count = std::count_if(places.begin(), places.end(), isDifferent);
    return static_cast<std::size_t>(count) + (a.size() != b.size() ? 1 : 0);
}

}  // namespace

std::string Differences(const SFunction &function, const RequestView &asked, const STraceCall &call)
{
    const RequestView recorded = RequestOf(call);
    if (asked.has_value() != recorded.has_value())
        return SizeText(recorded) + " in place of " + SizeText(asked);
    const auto fields = RequestDifferences(function, BytesOf(recorded), BytesOf(asked));
    std::string line;
    for (std::size_t i = 0; i < std::min(fields.size(), kMostNamedFields); ++i)
        line += (i > 0 ? ", " : "") + fields[i].name + ' ' + fields[i].one + " in place of " +
                fields[i].other;
    if (fields.size() > kMostNamedFields)
        line += " and " + std::to_string(fields.size() - kMostNamedFields) + " more";
    return line;
}

std::string NearestCall(const SFunction &function, const RequestView &asked,
                        const std::vector<const STraceCall *> &calls)
{
    const std::vector<SPlace> places = PlacesOf(function, asked);
    const STraceCall *nearest = nullptr;
    std::size_t fewest = std::numeric_limits<std::size_t>::max();
    for (const STraceCall *call : calls) {
        const std::size_t count = CountDifferent(places, asked, RequestOf(*call));
        if (count < fewest) {
            fewest = count;
            nearest = call;
        }
    }
    if (nearest == nullptr)
        return "it has no call of that function";
    return "the nearest, call " + std::to_string(nearest->index) + ", has " +
           Differences(function, asked, *nearest);
}
