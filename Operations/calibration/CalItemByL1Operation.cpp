#include "Operations/calibration/CalItemByL1Operation.h"

#include <algorithm>
#include <map>
#include <set>
#include <utility>

#include "Operations/link/TargetLink.h"
#include "Support/Log.h"
#include "Vond/VondCore.h"

ICalItemByL1Operation::ICalItemByL1Operation(ERadioKind kind, SWords words,
                                             std::vector<SPart> parts)
    : m_kind(kind), m_words(words), m_parts(std::move(parts))
{
}

bool ICalItemByL1Operation::HasData() const
{
    return std::any_of(m_parts.begin(), m_parts.end(),
                       [](const SPart &part) { return part.area->HasValid(); });
}

SCalImage ICalItemByL1Operation::Image() const
{
    SCalImage image;
    const SMMRfRouteTableV7 *table = FindRouteTable();
    if (!table)
        return image;
    for (const SPart &part : m_parts) {
        const ECalRoute kind = part.area->Kind();
        std::set<std::pair<uint16_t, int>> seen;  // a route stands in the table once a band
        for (const SCalPlace &place : WalkRoutes(*table, kind)) {
            if (part.area->IsValid(place) && seen.emplace(place.route, place.region).second)
                image.records.push_back({kind, place, part.area->Bytes(place)});
        }
    }
    return image;
}

int ICalItemByL1Operation::TakeRecords(const SCalImage &image)
{
    const SMMRfRouteTableV7 *table = FindRouteTable();
    int taken = 0;
    for (const SPart &part : m_parts) {
        std::map<std::pair<uint16_t, int>, SCalPlace> places;
        for (const SCalPlace &place :
             table ? WalkRoutes(*table, part.area->Kind()) : std::vector<SCalPlace>())
            places.emplace(std::pair(place.route, place.region), place);
        for (const SCalImageRecord &record : image.records) {
            const auto found = places.find({record.place.route, record.place.region});
            if (record.kind == part.area->Kind() && found != places.end() &&
                part.area->TakeBytes(found->second, record.bytes))
                ++taken;
        }
    }
    return static_cast<int>(image.records.size()) - taken;
}

int ICalItemByL1Operation::TakeImage(const SCalImage &image)
{
    for (const SPart &part : m_parts)
        part.area->Forget();
    return TakeRecords(image);
}

bool ICalItemByL1Operation::IsInFile(CCalIniFile &file) const
{
    const SMMRfRouteTableV7 *table = FindRouteTable();
    std::vector<SCalFilePart> parts;
    for (const SPart &part : m_parts)
        parts.push_back({part.sections, &file});
    return table && HasCalSections(parts, *table, m_kind);
}

uint32_t ICalItemByL1Operation::Load(const std::vector<CCalIniFile *> &files)
{
    return MoveFile(LoadCalSections, files);
}

uint32_t ICalItemByL1Operation::Save(const std::vector<CCalIniFile *> &files)
{
    const uint32_t code = MoveFile(SaveCalSections, files);
    if (const SMMRfRouteTableV7 *table = FindRouteTable())
        NotePassedOver(*table);
    return code;
}

uint32_t ICalItemByL1Operation::MoveFile(FileMove move, const std::vector<CCalIniFile *> &files)
{
    BeginMove();
    if (std::find(files.begin(), files.end(), nullptr) != files.end())
        return Fail({kCalNoFile, QString::fromLatin1(m_words.noFile)});
    const std::string chip = ChipName().toStdString();
    const SMMRfRouteTableV7 *table = RouteTable();
    if (!table)
        return kCalGeneralError;

    std::vector<SCalFilePart> parts;
    int routesInAll = 0;
    for (size_t i = 0; i < m_parts.size(); ++i) {
        parts.push_back({m_parts[i].sections, files[i]});
        routesInAll += RouteRows(*table, m_parts[i].sections->Kind());
    }
    constexpr int kNoRound = 0;
    CCalValueWatch watch(m_limits, m_remarks);
    const SCalFileContext context{
        *table,
        m_target,
        m_kind,
        chip,
        [&](int routesDone) { TellProgress(kNoRound, routesDone, routesInAll); },
        watch,
        m_remarks};
    const SCalFault fault = move(parts, context);
    if (fault)
        return Fail(fault);
    TellProgress(kNoRound, routesInAll, routesInAll);
    return kCalSuccess;
}

const SMMRfRouteTableV7 *ICalItemByL1Operation::FindRouteTable() const
{
    return m_kind == ERadioKind::Lte ? m_target.GetRouteTableLte() : m_target.GetRouteTableNr();
}

const SMMRfRouteTableV7 *ICalItemByL1Operation::RouteTable()
{
    const SMMRfRouteTableV7 *table = FindRouteTable();
    if (!table)
        m_errorMessage = QString::fromLatin1(kNoRouteInfo);
    return table;
}

// Without blanks at its ends.
QString ICalItemByL1Operation::ChipName() const
{
    const char *name = m_kind == ERadioKind::Lte ? VOND_ERf_GetChipIdName(m_target.GetRfChipIdLte())
                                                 : VOND_NRf_GetChipIdName(m_target.GetRfChipIdNr());
    return QString::fromUtf8(name).trimmed();
}

uint32_t ICalItemByL1Operation::Fail(const SCalFault &fault)
{
    m_errorMessage = fault.text;
    qCDebug(lcCalibration) << "calibration move failed," << fault.code << fault.text;
    return fault.code;
}

void ICalItemByL1Operation::BeginMove()
{
    m_errorMessage.clear();
    m_remarks = {};
    for (const SPart &part : m_parts)
        part.area->ForgetArrivals();
}

void ICalItemByL1Operation::NotePassedOver(const SMMRfRouteTableV7 &table)
{
    for (const SPart &part : m_parts) {
        const ECalRoute kind = part.area->Kind();
        std::set<std::pair<int, int>> walked;
        for (const SCalPlace &place : WalkRoutes(table, kind)) {
            if (part.area->IsEdited(place) && walked.insert({place.route, place.region}).second)
                m_remarks.leftOut.push_back({kind, place, ECalLeftOut::NeverFilled});
        }
    }
}

void ICalItemByL1Operation::TellProgress(int round, int routesDone, int routesInAll) const
{
    if (m_progress)
        m_progress(round, routesDone, routesInAll);
}
