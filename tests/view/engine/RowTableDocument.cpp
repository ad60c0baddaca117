#include "tests/view/engine/RowTableDocument.h"

#include <QAbstractSpinBox>
#include <QLabel>
#include <QtTest>

CTestDocument RowDocument(const QVector<QStringList> &rows, const QMap<QString, QString> &captions)
{
    QJsonObject members[] = {
        JsonObject("{'caption':'Label','trait':{'dataType':'label'}}"),
        JsonObject("{'caption':'Range','trait':{'dataType':'range',"
                   "'value':{'min':-1000,'max':1000}}}"),
        JsonObject("{'caption':'Point','trait':{'dataType':'pointRange',"
                   "'value':{'min':-150.5,'max':0,'decimals':2}}}"),
    };
    QStringList instances;
    for (int r = 0; r < rows.size(); ++r) {
        const QString key = QString("r%1").arg(r);
        instances.append('\'' + key + '\'');
        for (int c = 0; c < 3; ++c)
            members[c][key] = QJsonObject{{"defaultValue", rows[r][c]}};
    }
    QStringList properties;
    for (auto it = captions.begin(); it != captions.end(); ++it)
        properties.append(QString("'%1':{'caption':'%2'}").arg(it.key(), it.value()));
    CTestDocument document;
    document.Group("response.group1", 2,
                   QString("{'instanceList':[%1],'instanceProperty':{%2}}")
                       .arg(instances.join(','), properties.join(',')));
    document.Member("response.group1.label", members[0]);
    document.Member("response.group1.range", members[1]);
    document.Member("response.group1.point", members[2]);
    return document;
}

QVector<QStringList> Values(int rows)
{
    QVector<QStringList> values;
    for (int r = 0; r < rows; ++r)
        values.append({QString("report %1").arg(r), QString::number(r - 500),
                       QString::number(-0.25 * (r % 500 + 1), 'f', 2)});
    return values;
}

QStringList CellTexts(const QTableWidget *table, int row)
{
    QStringList texts;
    for (int c = 0; c < table->columnCount(); ++c) {
        QWidget *cell = table->cellWidget(row, c);
        if (auto *label = qobject_cast<QLabel *>(cell))
            texts.append(label->text());
        else if (auto *box = qobject_cast<QAbstractSpinBox *>(cell))
            texts.append(box->text());
        else
            texts.append(table->item(row, c) ? table->item(row, c)->text() : "(empty)");
    }
    return texts;
}

void CheckSplit(const QTableWidget *table, int rows)
{
    QCOMPARE(table->rowCount(), rows);
    const QVector<QStringList> expected = Values(rows);
    for (int r = 0; r < rows; ++r) {
        const bool isEditor = r >= rows - kEditorRows;
        for (int c = 0; c < 3; ++c) {
            QCOMPARE(table->cellWidget(r, c) != nullptr, isEditor);
            QCOMPARE(table->item(r, c) != nullptr, !isEditor);
        }
        QCOMPARE(CellTexts(table, r), expected[r]);
    }
}
