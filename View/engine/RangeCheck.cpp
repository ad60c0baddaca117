#include "View/engine/RangeCheck.h"

#include "Support/Log.h"
#include "View/editors/NumberBox.h"

namespace {

// A token without "~" allows the text of a QSpinBox as it stands, and the number of a
// QDoubleSpinBox.
bool IsSame(const QSpinBox *box, const QString &token)
{
    return token == box->text();
}

bool IsSame(const QDoubleSpinBox *box, const QString &token)
{
    return token.toDouble() == box->text().toDouble();
}

template <typename Box>
void Check(Box *box, const char *title)
{
    using Number = SNumber<Box>;
    const QStringList tokens = box->toolTip().split(QLatin1Char(','), Qt::KeepEmptyParts);
    qCDebug(lcEngine) << title << tokens;
    const auto entered = Number::FromText(box->text());
    typename Number::Value fallback = 0;
    bool hasFallback = false;
    for (const QString &token : tokens) {
        const int tilde = token.indexOf(QLatin1Char('~'));
        const bool isRange = tilde >= 0;
        const auto low = Number::FromText(isRange ? token.left(tilde) : token);
        const auto high = isRange ? Number::FromText(token.mid(tilde + 1)) : low;
        if (isRange ? low <= entered && entered <= high : IsSame(box, token)) {
            qCDebug(lcEngine) << "find return";
            return;
        }
        if (!hasFallback) {
            fallback = isRange ? Number::Middle(low, high) : low;
            hasFallback = true;
        }
    }
    box->setValue(fallback);
}

}  // namespace

void CheckRange(QSpinBox *box)
{
    Check(box, "---> Slot_RangeCheck <--- ");
}

void CheckRange(QDoubleSpinBox *box)
{
    Check(box, "---> Slot_PointRangeCheck <--- ");
}
