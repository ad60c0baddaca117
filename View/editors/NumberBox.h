// One piece of code for the two number editors, QSpinBox and QDoubleSpinBox.
//
// Limits come from a value or valuePair entry of the document ("min", "max"); a value outside them
// starts at their middle. The tool tip shows the limits as "min~max". GUI thread.
//
//   const auto limits = ReadLimits<QSpinBox>(entry);
//   ApplyLimits(box, limits);
//   box->setValue(limits.Fit(SNumber<QSpinBox>::FromText(text)));
#pragma once

#include <QDoubleSpinBox>
#include <QJsonObject>
#include <QSpinBox>
#include <QString>

template <typename Box>
struct SNumber;

template <>
struct SNumber<QSpinBox>
{
    using Value = int;
    static Value FromJson(const QJsonValue &value) { return value.toInt(); }
    static Value FromText(const QString &text) { return text.toInt(nullptr, 10); }
    static QString ToText(Value value) { return QString::number(value); }
    // Truncated toward zero.
    static Value Middle(Value min, Value max)
    {
        return static_cast<Value>((static_cast<qint64>(min) + max) / 2);
    }
};

template <>
struct SNumber<QDoubleSpinBox>
{
    using Value = double;
    static Value FromJson(const QJsonValue &value) { return value.toDouble(); }
    static Value FromText(const QString &text) { return text.toDouble(); }
    static QString ToText(Value value) { return QString::number(value, 'g', 6); }
    static Value Middle(Value min, Value max) { return (max + min) * 0.5; }
};

template <typename Box>
struct SLimits
{
    using Value = typename SNumber<Box>::Value;

    Value min = 0;
    Value max = 0;

    Value Middle() const { return SNumber<Box>::Middle(min, max); }
    Value Fit(Value value) const { return value > max || value < min ? Middle() : value; }
    QString Text() const
    {
        return SNumber<Box>::ToText(min) + QLatin1Char('~') + SNumber<Box>::ToText(max);
    }
};

template <typename Box>
SLimits<Box> ReadLimits(const QJsonObject &entry)
{
    return {SNumber<Box>::FromJson(entry.value(QLatin1String("min"))),
            SNumber<Box>::FromJson(entry.value(QLatin1String("max")))};
}

// Maximum first: Qt pulls the other limit along when the two cross.
template <typename Box>
void ApplyLimits(Box *box, const SLimits<Box> &limits)
{
    box->setMaximum(limits.max);
    box->setMinimum(limits.min);
    box->setToolTip(limits.Text());
}
