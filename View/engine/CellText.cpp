#include "View/engine/CellText.h"

#include <algorithm>

#include <QComboBox>
#include <QDoubleSpinBox>
#include <QSpinBox>

#include "View/editors/DbStep.h"
#include "View/editors/UnsignedSpinBox.h"
#include "View/engine/RangeCheck.h"

namespace {

using TakenCellText = std::optional<QString>;

// What a user could type letter by letter. A comma is none of a number: the box would read over it.
bool CanType(const QAbstractSpinBox *box, QString text)
{
    int end = text.size();
    return !text.contains(QLatin1Char(',')) && box->validate(text, end) == QValidator::Acceptable;
}

template <typename Box>
TakenCellText Checked(const Box *box, const QString &text)
{
    if (IsRangeChecked(box) && !IsInRanges(box, text))
        return {};
    return text;
}

TakenCellText Taken(const QSpinBox *box, const QString &text)
{
    if (!CanType(box, text))
        return {};
    const int base = box->displayIntegerBase();
    const int value = text.toInt(nullptr, base);
    const QString sign = value < 0 ? QStringLiteral("-") : QString();
    return Checked(box, sign + QString::number(qAbs(static_cast<qint64>(value)), base));
}

TakenCellText Taken(const QDoubleSpinBox *box, const QString &text)
{
    if (!CanType(box, text))
        return {};
    return Checked(box, box->textFromValue(ToDbStep(box, box->valueFromText(text))));
}

TakenCellText Taken(const CUnsignedSpinBox *box, const QString &text)
{
    const auto isDigit = [](QChar letter) { return letter.isLetterOrNumber(); };
    bool isNumber = std::all_of(text.begin(), text.end(), isDigit) &&
                    !text.startsWith(QLatin1String("0x"), Qt::CaseInsensitive);
    const unsigned int value = isNumber ? text.toUInt(&isNumber, box->m_base) : 0;
    if (!isNumber || value < box->m_minimum || value > box->m_maximum)
        return {};
    return text.toUpper();
}

TakenCellText Taken(const QComboBox *list, const QString &text)
{
    for (int i = 0; i < list->count(); ++i) {
        if (list->itemText(i).trimmed() == text)
            return list->itemText(i);
    }
    return {};
}

}  // namespace

QString CellText(const QWidget *editor)
{
    if (const auto *box = qobject_cast<const QAbstractSpinBox *>(editor))
        return box->text();
    if (const auto *line = qobject_cast<const CUnsignedSpinBox *>(editor))
        return line->text();
    const auto *list = qobject_cast<const QComboBox *>(editor);
    return list ? list->currentText() : QString();
}

std::optional<QString> TakenText(const QWidget *editor, const QString &entered)
{
    const QString text = entered.trimmed();
    if (const auto *box = qobject_cast<const QSpinBox *>(editor))
        return Taken(box, text);
    if (const auto *box = qobject_cast<const QDoubleSpinBox *>(editor))
        return Taken(box, text);
    if (const auto *line = qobject_cast<const CUnsignedSpinBox *>(editor))
        return Taken(line, text);
    if (const auto *list = qobject_cast<const QComboBox *>(editor))
        return Taken(list, text);
    return {};
}

void SetCellText(QWidget *editor, const QString &text)
{
    if (auto *box = qobject_cast<QSpinBox *>(editor))
        box->setValue(text.toInt(nullptr, box->displayIntegerBase()));
    else if (auto *box = qobject_cast<QDoubleSpinBox *>(editor))
        box->setValue(box->valueFromText(text));
    else if (auto *line = qobject_cast<CUnsignedSpinBox *>(editor))
        line->setText(text);
    else if (auto *list = qobject_cast<QComboBox *>(editor))
        list->setCurrentIndex(list->findText(text));
}
