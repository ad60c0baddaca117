#include "View/engine/RangeCheck.h"

#include "Support/Log.h"
#include "View/editors/NumberBox.h"

namespace {

constexpr char kIsRangeChecked[] = "quorlinRangeChecked";

template <typename Box>
struct SToken
{
    using Number = SNumber<Box>;
    using Value = typename Number::Value;

    Value Fallback() const { return isRange ? Number::Middle(low, high) : low; }

    bool isRange;
    Value low;
    Value high;
};

template <typename Box>
SToken<Box> ReadToken(const QString &token)
{
    using Number = SNumber<Box>;
    const int tilde = token.indexOf(QLatin1Char('~'));
    const bool isRange = tilde >= 0;
    const auto low = Number::FromText(isRange ? token.left(tilde) : token);
    return {isRange, low, isRange ? Number::FromText(token.mid(tilde + 1)) : low};
}

// A token without "~" allows the text of a QSpinBox as it stands, and the number of a
// QDoubleSpinBox.
bool IsSame(const QSpinBox *, const QString &token, const QString &text)
{
    return token == text;
}

bool IsSame(const QDoubleSpinBox *, const QString &token, const QString &text)
{
    return token.toDouble() == text.toDouble();
}

QStringList TokensOf(const QWidget *box)
{
    return box->toolTip().split(QLatin1Char(','), Qt::KeepEmptyParts);
}

template <typename Box>
bool Allows(const Box *box, const QStringList &tokens, const QString &text)
{
    const auto entered = SNumber<Box>::FromText(text);
    for (const QString &token : tokens) {
        const SToken<Box> range = ReadToken<Box>(token);
        if (range.isRange ? range.low <= entered && entered <= range.high
                          : IsSame(box, token, text))
            return true;
    }
    return false;
}

template <typename Box>
void Check(Box *box, const char *title)
{
    const QStringList tokens = TokensOf(box);
    qCDebug(lcEngine) << title << tokens;
    if (Allows(box, tokens, box->text()))
        qCDebug(lcEngine) << "find return";
    else
        box->setValue(ReadToken<Box>(tokens.first()).Fallback());
}

template <typename Box>
std::vector<double> Limits(const Box *box)
{
    std::vector<double> limits;
    for (const QString &token : TokensOf(box)) {
        const SToken<Box> range = ReadToken<Box>(token);
        limits.push_back(range.low);
        limits.push_back(range.high);
    }
    return limits;
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

void SetRangeChecked(QWidget *editor)
{
    editor->setProperty(kIsRangeChecked, true);
}

bool IsRangeChecked(const QWidget *editor)
{
    return editor->property(kIsRangeChecked).toBool();
}

bool IsInRanges(const QSpinBox *box, const QString &text)
{
    return Allows(box, TokensOf(box), text);
}

bool IsInRanges(const QDoubleSpinBox *box, const QString &text)
{
    return Allows(box, TokensOf(box), text);
}

std::vector<double> LimitsOfRanges(const QSpinBox *box)
{
    return Limits(box);
}

std::vector<double> LimitsOfRanges(const QDoubleSpinBox *box)
{
    return Limits(box);
}
