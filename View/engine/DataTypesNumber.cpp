// Data types that are numbers within limits: range, pointRange, unsignedRange.
#include "View/editors/DbStep.h"
#include "View/editors/NumberBox.h"
#include "View/editors/UnsignedSpinBox.h"
#include "View/engine/DataTypeRows.h"

namespace {

const QLatin1String kRangeCheck("rangeCheck");
const QLatin1String kDisplayBase("displayBase");
const QLatin1String kDecimals("decimals");
const QLatin1String kValue("value");
constexpr int kCellDecimals = 5;          // of a cell whose entry names none
constexpr int kUnsignedColumnWidth = 75;  // pixels that ten digits need

bool Has(const QJsonObject &object, QLatin1String key)
{
    return IsJsonValueValid(object.value(key));
}

// range and pointRange

void InitRange(QWidget *widget, const QJsonObject &member, const QJsonValue &entryValue)
{
    auto *box = As<QSpinBox>(widget);
    const QJsonObject entry = entryValue.toObject();
    if (Has(entry, kDisplayBase)) {
        qCDebug(lcEngine) << "---> [Init][type1] It has displayBase <---";
        box->setDisplayIntegerBase(entry.value(kDisplayBase).toInt());
    }
    const auto limits = ReadLimits<QSpinBox>(entry);
    ApplyLimits(box, limits);
    box->setValue(limits.Fit(SNumber<QSpinBox>::FromText(LoggedDefault(member))));
    if (Has(entry, kRangeCheck))
        box->setToolTip(entry.value(kRangeCheck).toString());
}

void InitPointRange(QWidget *widget, const QJsonObject &member, const QJsonValue &entryValue)
{
    auto *box = As<QDoubleSpinBox>(widget);
    const QJsonObject entry = entryValue.toObject();
    const auto limits = ReadLimits<QDoubleSpinBox>(entry);
    ApplyLimits(box, limits);
    if (Has(entry, kDecimals)) {
        qCDebug(lcEngine) << "---> [Init][type1] == Has the decimals setting <--- ";
        box->setDecimals(entry.value(kDecimals).toInt());
    }
    SetDbStep(box);
    box->setValue(limits.Fit(SNumber<QDoubleSpinBox>::FromText(LoggedDefault(member))));
}

template <typename Box>
void ShowNumber(QWidget *widget, const QJsonObject &, const QString &text)
{
    As<Box>(widget)->setValue(SNumber<Box>::FromText(text));
}

// New limits; a test page starts in their middle, a calibration page at its default if that fits.
template <typename Box>
void FollowLimits(Box *box, const SRelation &relation)
{
    const auto limits = ReadLimits<Box>(relation.entry.toObject());
    ApplyLimits(box, limits);
    box->setValue(relation.isTestPage ? limits.Middle()
                                      : limits.Fit(SNumber<Box>::FromText(relation.defaultText)));
}

void RelateRange(QWidget *widget, const SRelation &relation)
{
    auto *box = As<QSpinBox>(widget);
    FollowLimits(box, relation);
    const QJsonObject entry = relation.entry.toObject();
    if (Has(entry, kRangeCheck)) {
        qCDebug(lcEngine) << "---> [Value Relevance][type1] Has the range check <---";
        box->setToolTip(entry.value(kRangeCheck).toString());
    }
    if (Has(entry, kValue) && relation.isTestPage) {
        qCDebug(lcEngine) << "---> [Value Relevance][type1] Has the value in valuePair <---";
        ShowNumber<QSpinBox>(box, {}, entry.value(kValue).toString());
    }
    qCDebug(lcEngine) << "---> [Value Relevance][type1] Final Value <---" << box->value();
}

void RelatePointRange(QWidget *widget, const SRelation &relation)
{
    auto *box = As<QDoubleSpinBox>(widget);
    FollowLimits(box, relation);
    qCDebug(lcEngine) << "---> [Value Relevance][type1] Final Value <---" << box->value();
}

template <typename Box>
void RelateNumberCell(QWidget *cell, const SRelation &relation)
{
    auto *box = As<Box>(cell);
    FollowLimits(box, relation);
    qCDebug(lcEngine) << "---> [Value Relevance][type3] Final value <--- index[" << relation.column
                      << "] " << box->value();
    const QJsonObject entry = relation.entry.toObject();
    if (!Has(entry, kRangeCheck))
        return;
    if (Has(entry, kValue) && relation.isTestPage)
        ShowNumber<Box>(box, {}, entry.value(kValue).toString());
    box->setToolTip(entry.value(kRangeCheck).toString());
}

void SetCellDecimals(QSpinBox *, const QJsonObject &) {}

void SetCellDecimals(QDoubleSpinBox *box, const QJsonObject &entry)
{
    box->setDecimals(entry.value(kDecimals).toInt(kCellDecimals));
    SetDbStep(box);
}

template <typename Box>
void StartNumberCell(QWidget *cell, const SCellWish &wish)
{
    const auto value = SNumber<Box>::FromText(wish.value.toString());
    const bool asItCame = wish.use == ECellUse::RowAppend;
    As<Box>(cell)->setValue(asItCame ? value : ReadLimits<Box>(wish.entry).Fit(value));
}

template <typename Box>
QWidget *MakeNumberCell(const SCellWish &wish)
{
    const bool asItCame = wish.use == ECellUse::RowAppend;
    auto *box = new Box(wish.parent);
    box->setLocale(QLocale::c());  // also of a cell that no page has taken in
    ApplyLimits(box, ReadLimits<Box>(wish.entry));
    if (asItCame)
        box->setToolTip(QString());
    SetCellDecimals(box, wish.entry);
    StartNumberCell<Box>(box, wish);
    SetCellFont(box);
    if (!asItCame)
        box->setButtonSymbols(QAbstractSpinBox::NoButtons);
    return box;
}

// In decimal, whatever base the box shows.
QString RangeText(const QWidget *widget)
{
    const auto *box = As<QSpinBox>(widget);
    bool ok = false;
    const int value = box->text().toInt(&ok, box->displayIntegerBase());
    return QString::number(ok ? value : box->value());
}

QString PointRangeText(const QWidget *widget)
{
    return As<QDoubleSpinBox>(widget)->text();
}

// unsignedRange

// The accepted text too: the next one that is not accepted gives way to it.
void RecallUnsigned(QWidget *cell, const QString &text)
{
    auto *box = As<CUnsignedSpinBox>(cell);
    box->m_lastValidText = text;
    box->setText(text);
}

void StartUnsignedCell(QWidget *cell, const SCellWish &wish)
{
    auto *box = As<CUnsignedSpinBox>(cell);
    RecallUnsigned(box, QString());
    unsigned int value = wish.value.toString().toUInt(nullptr, 10);
    if (value > box->m_maximum || value < box->m_minimum)
        value = (box->m_minimum + box->m_maximum) / 2;
    box->setText(CUnsignedSpinBox::ToText(value, box->m_base));
}

QWidget *MakeUnsignedCell(const SCellWish &wish)
{
    const auto limit = [&wish](const char *key) {
        return wish.entry.value(QLatin1String(key)).toString().toUInt(nullptr, 10);
    };
    auto *box = new CUnsignedSpinBox(wish.parent, wish.entry.value(kDisplayBase).toInt(10));
    box->m_maximum = limit("max");
    box->m_minimum = limit("min");
    box->setToolTip(QString::number(box->m_minimum) + QLatin1Char('~') +
                    QString::number(box->m_maximum));
    StartUnsignedCell(box, wish);
    SetCellFont(box);
    return box;
}

// The radix is that of "value", also for a member that has a table of entries.
void ShowUnsigned(QWidget *widget, const QJsonObject &member, const QString &text)
{
    const QJsonValue base = member.value(QLatin1String("trait"))
                                .toObject()
                                .value(kValue)
                                .toObject()
                                .value(kDisplayBase);
    if (base.isDouble())
        qCDebug(lcEngine) << "---> [Update][type3]UnsignedRange: It has displayBase <--- ";
    As<CUnsignedSpinBox>(widget)->setText(
        CUnsignedSpinBox::ToText(text.toUInt(nullptr, 10), base.toInt(10)));
}

QString UnsignedText(const QWidget *widget)
{
    return As<CUnsignedSpinBox>(widget)->text();
}

// A spin box says nothing of the height of its text; the text stands in the middle.
Qt::Alignment NumberAlignment(const QWidget *cell)
{
    return (As<QAbstractSpinBox>(cell)->alignment() & Qt::AlignHorizontal_Mask) | Qt::AlignVCenter;
}

// A spin box that is enabled or disabled publishes nothing: documents rely on that.
SDataType RangeType()
{
    return {
        .name = "range",
        .className = "QSpinBox",
        .initLog = "---> [Init][type1] Init Spin Box  <---",
        .readsEntry = true,
        .init = InitRange,
        .show = ShowNumber<QSpinBox>,
        .text = RangeText,
        .relateLog = "---> [Value Relevance][type1] Spin Box <---",
        .relate = RelateRange,
        .keyText = [](const QWidget *widget) { return As<QSpinBox>(widget)->text(); },
        .statusSignal = SIGNAL(valueChanged(QString)),
        .statusSlot = SLOT(Slot_EnableStatusChange(QString)),
        .checkSlot = SLOT(Slot_RangeCheck()),
        .cellCheckSlot = SLOT(Slot_RangeCheck()),
        .makeCell = MakeNumberCell<QSpinBox>,
        .takesStatus = true,
        .inRowTable = true,
        .alignment = NumberAlignment,
        .cellReadsEntry = true,
        .startCell = StartNumberCell<QSpinBox>,
        .updatesCell = true,
        .relateCellLog = "---> [Value Relevance][type3] Spin Box <---",
        .relateCell = RelateNumberCell<QSpinBox>,
    };
}

SDataType PointRangeType()
{
    return {
        .name = "pointRange",
        .className = "QDoubleSpinBox",
        .initLog = "---> [Init][type1] Init Double Spin Box  <---",
        .readsEntry = true,
        .init = InitPointRange,
        .show = ShowNumber<QDoubleSpinBox>,
        .text = PointRangeText,
        .relateLog = "---> [Value Relevance][type1] Double Spin Box <---",
        .relate = RelatePointRange,
        .cellCheckSlot = SLOT(Slot_PointRangeCheck()),
        .makeCell = MakeNumberCell<QDoubleSpinBox>,
        .takesStatus = true,
        .inRowTable = true,
        .alignment = NumberAlignment,
        .cellReadsEntry = true,
        .entryKey = "decimals",
        .entryLog = "== Has the decimals setting <--- ",
        .startCell = StartNumberCell<QDoubleSpinBox>,
        .updatesCell = true,
        .relateCellLog = "---> [Value Relevance][type3] Double Spin Box <---",
        .relateCell = RelateNumberCell<QDoubleSpinBox>,
    };
}

SDataType UnsignedRangeType()
{
    return {
        .name = "unsignedRange",
        .className = "CUnsignedSpinBox",
        .show = ShowUnsigned,
        .text = UnsignedText,
        .makeCell = MakeUnsignedCell,
        .cellReadsEntry = true,
        .entryKey = "displayBase",
        .entryLog = "== It has displayBase <--- ",
        .startCell = StartUnsignedCell,
        .updatesCell = true,
        .recallCell = RecallUnsigned,
        .columnWidth = kUnsignedColumnWidth,
    };
}

}  // namespace

std::vector<SDataType> NumberTypes()
{
    return {RangeType(), PointRangeType(), UnsignedRangeType()};
}
