#include "Runner/bench/Editors.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDoubleSpinBox>
#include <QLineEdit>
#include <QRegularExpression>
#include <QSpinBox>
#include <QTableWidget>

namespace {

constexpr char kLateEditors[] = "CLateEditors";

QString RangeText(const QString &min, const QString &max)
{
    return min + '~' + max;
}

// A tool tip that lists what may be entered, and says more than the limits do.
QString AllowedOf(const QWidget *editor, const SBenchMember &member)
{
    static const QRegularExpression kRanges(QStringLiteral("^[-0-9.,~]+$"));
    const QString tip = editor->toolTip();
    const QStringList limits = tip.split('~');
    const bool isLimits = limits.size() == 2 && limits[0].toDouble() == member.min.toDouble() &&
                          limits[1].toDouble() == member.max.toDouble();
    return kRanges.match(tip).hasMatch() && !isLimits && !tip.contains(QLatin1String("~~"))
               ? tip
               : QString();
}

}  // namespace

QWidget *CellEditor(QTableWidget *table, int row, int column)
{
    if (!table->cellWidget(row, column)) {
        for (QObject *part : table->children()) {
            if (part->inherits(kLateEditors))
                QMetaObject::invokeMethod(part, "Ensure");
        }
    }
    return table->cellWidget(row, column);
}

void ReadEditor(const QWidget *editor, SBenchMember &member)
{
    if (const auto *list = qobject_cast<const QComboBox *>(editor)) {
        member.choices.clear();
        for (int i = 0; i < list->count(); ++i)
            member.choices.append(list->itemText(i).trimmed());
    } else if (qobject_cast<const QCheckBox *>(editor)) {
        member.choices = QStringList{QStringLiteral("false"), QStringLiteral("true")};
    } else if (const auto *box = qobject_cast<const QSpinBox *>(editor)) {
        member.base = box->displayIntegerBase();
        member.min = QString::number(box->minimum(), member.base);
        member.max = QString::number(box->maximum(), member.base);
        member.allowed = AllowedOf(editor, member);
    } else if (const auto *box = qobject_cast<const QDoubleSpinBox *>(editor)) {
        member.min = QString::number(box->minimum(), 'f', box->decimals());
        member.max = QString::number(box->maximum(), 'f', box->decimals());
        member.allowed = AllowedOf(editor, member);
    } else if (qobject_cast<const QLineEdit *>(editor)) {
        const QStringList limits = editor->toolTip().split('~');
        member.min = QString::number(limits.value(0).toUInt(), member.base).toUpper();
        member.max = QString::number(limits.value(1).toUInt(), member.base).toUpper();
    }
}

QString AllowedText(const SBenchMember &member)
{
    if (!member.choices.isEmpty())
        return member.choices.join(QStringLiteral(", "));
    if (!member.allowed.isEmpty())
        return member.allowed;
    return member.min.isEmpty() ? QString() : RangeText(member.min, member.max);
}
