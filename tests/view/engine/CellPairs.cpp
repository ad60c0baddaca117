#include "tests/view/engine/CellPairs.h"

#include <QComboBox>
#include <QDoubleSpinBox>
#include <QJsonArray>
#include <QLabel>
#include <QSpinBox>
#include <QTableWidget>

#include "View/editors/LateEditors.h"
#include "View/editors/UnsignedSpinBox.h"
#include "tests/common/Cells.h"

namespace {

constexpr int kColumnTable = 3;

QJsonArray RandomValues(QRandomGenerator &random)
{
    QJsonArray values;
    const int count = random.bounded(70);
    for (int i = 0; i < count; ++i)
        values.append(RandomText(random));
    return values;
}

QJsonObject RandomMember(QJsonObject member, QRandomGenerator &random)
{
    QJsonObject trait = member["trait"].toObject();
    trait["defaultValue"] = RandomValues(random);
    member["trait"] = trait;
    return member;
}

QJsonObject RandomGroup(QJsonObject group, QRandomGenerator &random)
{
    QJsonObject properties = group["memberProperty"].toObject();
    for (const QString &key : properties.keys()) {
        if (properties[key].isObject())
            properties[key] = RandomMember(properties[key].toObject(), random);
    }
    group["memberProperty"] = properties;
    return group;
}

QString State(const QWidget *cell)
{
    if (!cell)
        return "none";
    QStringList parts = {cell->metaObject()->className(), cell->toolTip(), cell->font().toString(),
                         cell->isEnabled() ? "on" : "off"};
    if (const auto *box = qobject_cast<const QSpinBox *>(cell))
        parts << box->text()
              << QString("%1 %2 %3").arg(box->value()).arg(box->minimum()).arg(box->maximum());
    if (const auto *box = qobject_cast<const QDoubleSpinBox *>(cell))
        parts << box->text()
              << QString("%1 %2 %3 %4")
                     .arg(box->value(), 0, 'g', 17)
                     .arg(box->minimum(), 0, 'g', 17)
                     .arg(box->maximum(), 0, 'g', 17)
                     .arg(box->decimals());
    if (const auto *box = qobject_cast<const CUnsignedSpinBox *>(cell))
        parts << box->text() << box->m_lastValidText;
    if (const auto *box = qobject_cast<const QComboBox *>(cell))
        parts << box->currentText() << QString::number(box->currentIndex());
    if (const auto *label = qobject_cast<const QLabel *>(cell))
        parts << label->text();
    return parts.join(" | ");
}

QString DifferenceOfTables(const QTableWidget *early, const QTableWidget *late)
{
    for (int r = 0; r < early->rowCount(); ++r) {
        for (int c = 0; c < early->columnCount(); ++c) {
            const QString here = State(early->cellWidget(r, c));
            const QString there = State(late->cellWidget(r, c));
            if (here != there)
                return QString("%1[%2][%3]: %4, late %5")
                    .arg(early->objectName())
                    .arg(r)
                    .arg(c)
                    .arg(here, there);
        }
    }
    return {};
}

}  // namespace

QString RandomText(QRandomGenerator &random)
{
    static const QStringList kOdd = {"",      "0",          "-0",         "abc",  "1e3",
                                     "-1e-9", "4294967295", "4294967296", "nan",  "inf",
                                     "0x10",  "12,5",       " 7 ",        "1e300"};
    if (random.bounded(4) == 0)
        return kOdd[random.bounded(kOdd.size())];
    const double number = random.generateDouble() * 200 - 100;
    return QString::number(number, 'f', random.bounded(9));
}

QJsonObject RandomUpdate(QJsonObject document, QRandomGenerator &random)
{
    for (const char *word : {"cmdIf", "calDataIf"}) {
        QJsonObject sections = document[word].toObject();
        for (const QString &section : sections.keys()) {
            QJsonObject groups = sections[section].toObject();
            for (const QString &group : groups.keys()) {
                if (groups[group].toObject()["groupType"].toInt() == kColumnTable)
                    groups[group] = RandomGroup(groups[group].toObject(), random);
            }
            sections[section] = groups;
        }
        if (!sections.isEmpty())
            document[word] = sections;
    }
    return document;
}

QString DifferenceOfCells(const QWidget &early, const QWidget &late)
{
    MakeAllEditors(&late);
    for (const QTableWidget *table : early.findChildren<QTableWidget *>()) {
        const QString difference =
            DifferenceOfTables(table, late.findChild<QTableWidget *>(table->objectName()));
        if (!difference.isEmpty())
            return difference;
    }
    return {};
}

int TablesWithoutEditors(const QWidget &page)
{
    int count = 0;
    for (const QTableWidget *table : page.findChildren<QTableWidget *>()) {
        const CLateEditors *late = CLateEditors::Of(table);
        count += late && !late->AreMade() ? 1 : 0;
    }
    return count;
}
