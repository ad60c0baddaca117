#include "View/engine/CellNumber.h"

#include <algorithm>
#include <cmath>
#include <vector>

#include <QDoubleSpinBox>
#include <QSpinBox>

#include "View/editors/UnsignedSpinBox.h"
#include "View/engine/CellText.h"
#include "View/engine/RangeCheck.h"

namespace {

constexpr double kMostInteger = 1e15;  // beyond the limits of every editor of integers

QString IntegerText(double number, int base)
{
    const auto value =
        static_cast<qint64>(std::clamp(std::round(number), -kMostInteger, kMostInteger));
    const QString digits = QString::number(std::abs(value), base);
    return value < 0 ? QLatin1Char('-') + digits : digits;
}

// Without a sign in front of 0.
QString DecimalText(double number, int decimals)
{
    const QString text = QString::number(number, 'f', decimals);
    return text.toDouble() == 0.0 ? QString::number(0.0, 'f', decimals) : text;
}

template <typename Box>
std::optional<QString> NearestOf(const Box *box)
{
    std::vector<double> numbers = {static_cast<double>(box->minimum()),
                                   static_cast<double>(box->maximum())};
    if (IsRangeChecked(box))
        numbers = LimitsOfRanges(box);
    std::stable_sort(numbers.begin(), numbers.end(),
                     [](double a, double b) { return std::abs(a) < std::abs(b); });
    numbers.insert(numbers.begin(), 0.0);
    for (const double number : numbers) {
        if (auto text = TakenText(box, TextOfNumber(box, number)))
            return text;
    }
    return {};
}

}  // namespace

std::optional<double> NumberOf(const QWidget *editor)
{
    if (const auto *box = qobject_cast<const QSpinBox *>(editor))
        return box->value();
    if (const auto *box = qobject_cast<const QDoubleSpinBox *>(editor))
        return box->value();
    const auto *line = qobject_cast<const CUnsignedSpinBox *>(editor);
    bool isNumber = false;
    const unsigned int value = line ? line->text().toUInt(&isNumber, line->m_base) : 0;
    return isNumber ? std::optional<double>(value) : std::nullopt;
}

QString TextOfNumber(const QWidget *editor, double number)
{
    if (const auto *box = qobject_cast<const QSpinBox *>(editor))
        return IntegerText(number, box->displayIntegerBase());
    if (const auto *box = qobject_cast<const QDoubleSpinBox *>(editor))
        return DecimalText(number, box->decimals());
    if (const auto *line = qobject_cast<const CUnsignedSpinBox *>(editor))
        return IntegerText(number, line->m_base);
    return {};
}

std::optional<QString> TextNearestToZero(const QWidget *editor)
{
    if (const auto *box = qobject_cast<const QSpinBox *>(editor))
        return NearestOf(box);
    if (const auto *box = qobject_cast<const QDoubleSpinBox *>(editor))
        return NearestOf(box);
    if (const auto *line = qobject_cast<const CUnsignedSpinBox *>(editor))
        return TakenText(line, CUnsignedSpinBox::ToText(line->m_minimum, line->m_base));
    return {};
}
