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
void FollowLimits(Box *box, const SRelevance &relevance)
{
    const auto limits = ReadLimits<Box>(relevance.entry.toObject());
    ApplyLimits(box, limits);
    box->setValue(relevance.isTestPage ? limits.Middle()
                                       : limits.Fit(SNumber<Box>::FromText(relevance.defaultText)));
}

void RelateRange(QWidget *widget, const SRelevance &relevance)
{
    auto *box = As<QSpinBox>(widget);
    FollowLimits(box, relevance);
    const QJsonObject entry = relevance.entry.toObject();
    if (Has(entry, kRangeCheck)) {
        qCDebug(lcEngine) << "---> [Value Relevance][type1] Has the range check <---";
        box->setToolTip(entry.value(kRangeCheck).toString());
    }
    if (Has(entry, kValue) && relevance.isTestPage) {
        qCDebug(lcEngine) << "---> [Value Relevance][type1] Has the value in valuePair <---";
        ShowNumber<QSpinBox>(box, {}, entry.value(kValue).toString());
    }
    qCDebug(lcEngine) << "---> [Value Relevance][type1] Final Value <---" << box->value();
}

void RelatePointRange(QWidget *widget, const SRelevance &relevance)
{
    auto *box = As<QDoubleSpinBox>(widget);
    FollowLimits(box, relevance);
    qCDebug(lcEngine) << "---> [Value Relevance][type1] Final Value <---" << box->value();
}

template <typename Box>
void RelateNumberCell(QWidget *cell, const SRelevance &relevance)
{
    auto *box = As<Box>(cell);
    FollowLimits(box, relevance);
    qCDebug(lcEngine) << "---> [Value Relevance][type3] Final value <--- index[" << relevance.column
                      << "] " << box->value();
    const QJsonObject entry = relevance.entry.toObject();
    if (!Has(entry, kRangeCheck))
        return;
    if (Has(entry, kValue) && relevance.isTestPage)
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
QWidget *MakeNumberCell(const SCellWish &wish)
{
    const bool asItCame = wish.use == ECellUse::RowAppend;
    auto *box = new Box(wish.parent);
    box->setLocale(QLocale::c());  // also of a cell that no page has taken in
    const auto limits = ReadLimits<Box>(wish.entry);
    ApplyLimits(box, limits);
    if (asItCame)
        box->setToolTip(QString());
    SetCellDecimals(box, wish.entry);
    const auto value = SNumber<Box>::FromText(wish.value.toString());
    box->setValue(asItCame ? value : limits.Fit(value));
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
    unsigned int value = wish.value.toString().toUInt(nullptr, 10);
    if (value > box->m_maximum || value < box->m_minimum)
        value = (box->m_minimum + box->m_maximum) / 2;
    box->setText(CUnsignedSpinBox::ToText(value, box->m_base));
    SetCellFont(box);
    return box;
}

// The radix is that of the fixed entry, also for a member that subscribes.
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

// What range and pointRange have in common.
template <typename Box>
SDataType NumberType()
{
    SDataType row;
    row.className = Box::staticMetaObject.className();
    row.readsEntry = true;
    row.cellReadsEntry = true;
    row.show = ShowNumber<Box>;
    row.inRowTable = true;
    row.updatesCell = true;
    row.takesStatus = true;
    row.makeCell = MakeNumberCell<Box>;
    row.relateCell = RelateNumberCell<Box>;
    return row;
}

}  // namespace

SDataType RangeType()
{
    SDataType row = NumberType<QSpinBox>();
    row.name = "range";
    row.initLog = "---> [Init][type1] Init Spin Box  <---";
    row.init = InitRange;
    row.text = RangeText;
    row.relateLog = "---> [Value Relevance][type1] Spin Box <---";
    row.relate = RelateRange;
    row.keyText = [](const QWidget *widget) { return As<QSpinBox>(widget)->text(); };
    row.statusSignal = SIGNAL(valueChanged(QString));
    row.statusSlot = SLOT(Slot_EnableStatusChange(QString));
    row.checkSlot = SLOT(Slot_RangeCheck());
    row.cellCheckSlot = SLOT(Slot_RangeCheck());
    row.relateCellLog = "---> [Value Relevance][type3] Spin Box <---";
    return row;
}

SDataType PointRangeType()
{
    SDataType row = NumberType<QDoubleSpinBox>();
    row.name = "pointRange";
    row.initLog = "---> [Init][type1] Init Double Spin Box  <---";
    row.init = InitPointRange;
    row.text = PointRangeText;
    row.relateLog = "---> [Value Relevance][type1] Double Spin Box <---";
    row.relate = RelatePointRange;
    row.cellCheckSlot = SLOT(Slot_PointRangeCheck());
    row.relateCellLog = "---> [Value Relevance][type3] Double Spin Box <---";
    return row;
}

SDataType UnsignedRangeType()
{
    SDataType row;
    row.name = "unsignedRange";
    row.className = "CUnsignedSpinBox";
    row.cellReadsEntry = true;
    row.show = ShowUnsigned;
    row.text = UnsignedText;
    row.updatesCell = true;
    row.columnWidth = kUnsignedColumnWidth;
    row.makeCell = MakeUnsignedCell;
    return row;
}
