// The fields of a command record as rows of a table: which member of a packaged group fills which
// field, by which conversion. A builder function fills in its tables, and adds what no table can
// say.
//
// Rows are filled in their order. A member that is missing reads as an empty text, which each
// conversion takes as 0 or as its default. Pure, any thread.
//
//   constexpr SCommandField<SNrDlFreqCmdV7> kCarrier[] = {
//       Field<&SNrDlFreqCmdV7::band, AsBand>("band"),
//       Field<&SNrDlFreqCmdV7::ulFrequency, AsNumber>("ulFrequency"),
//   };
//   FillFields(kCarrier, CPackagedGroup(document, "cmdIf.request.group1"), command);
#pragma once

#include <cstddef>

#include <QJsonArray>
#include <QJsonObject>

#include "Controller/fields/CommandConversions.h"
#include "Model/JsonPath.h"

// The packaged values of one group; no value is there when the group was never packaged.
class CPackagedGroup
{
public:
    CPackagedGroup(const QJsonObject &document, const char *group)
        : m_values(GetJsonValueConst(document, QLatin1String(group) + QLatin1String(".memberValue"))
                       .toObject())
    {
    }

    QString Text(const char *member) const
    {
        return m_values.value(QLatin1String(member)).toString();
    }
    // The texts of a column table's member.
    QJsonArray Texts(const char *member) const
    {
        return m_values.value(QLatin1String(member)).toArray();
    }

private:
    QJsonObject m_values;
};

// Conversions of a row; Int is the type of the field.
struct AsNumber
{
    template <typename Int>
    static Int To(const QString &text)
    {
        return DecimalInt<Int>(text);
    }
};

template <auto Convert>
struct AsConverted
{
    template <typename Int>
    static Int To(const QString &text)
    {
        return Convert(text);
    }
};
using AsBand = AsConverted<BandNumber>;
using AsFlag = AsConverted<BoolFlag>;
using AsGainMode = AsConverted<GainModeNumber>;
using AsMcs = AsConverted<GetMcsMode>;
using AsScs = AsConverted<GetScs>;
using AsUpperBoundKhz = AsConverted<UpperBoundKhz>;

// dBm in 1/256 dB.
struct AsPower
{
    template <typename Int>
    static Int To(const QString &text)
    {
        return FixedPoint(text, kPowerScale);
    }
};

template <typename Record>
struct SCommandField
{
    const char *member;
    void (*fill)(Record &record, const QString &text);
};

template <typename Pointer>
struct SPointedField;
template <typename RecordType, typename IntType>
struct SPointedField<IntType RecordType::*>
{
    using Record = RecordType;
    using Int = IntType;
};

template <auto FieldOf, typename Conversion>
constexpr auto Field(const char *member)
{
    using Pointed = SPointedField<decltype(FieldOf)>;
    using Record = typename Pointed::Record;
    return SCommandField<Record>{member, [](Record &record, const QString &text) {
                                     record.*FieldOf =
                                         Conversion::template To<typename Pointed::Int>(text);
                                 }};
}

// A bandwidth in RBs depends on the SCS of the same record, so its row stands behind the SCS row.
template <auto BandwidthOf, auto ScsOf>
constexpr auto BandwidthField(const char *member)
{
    using Record = typename SPointedField<decltype(BandwidthOf)>::Record;
    return SCommandField<Record>{member, [](Record &record, const QString &text) {
                                     record.*BandwidthOf = GetRbBandwidth(record.*ScsOf, text);
                                 }};
}

template <typename Record, std::size_t Count>
void FillFields(const SCommandField<Record> (&fields)[Count], const CPackagedGroup &group,
                Record &record)
{
    for (const SCommandField<Record> &field : fields)
        field.fill(record, group.Text(field.member));
}
