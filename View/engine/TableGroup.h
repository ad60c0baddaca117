// The group of the document that a table shows, read once for a walk over the table.
//
// A column table has one row a supported member (defaultSupport exactly 1), in list order, and one
// column an element of the members' arrays. Values only; GUI thread.
//
//   const STableGroup group(binding.document, path);
//   for (const QString &member : group.rows) ...
#pragma once

#include <QJsonArray>
#include <QJsonObject>
#include <QJsonValue>
#include <QString>
#include <QStringList>
#include <QTableWidget>

struct STableGroup
{
    STableGroup(const QJsonObject &document, const QString &memberPath);

    // Something below memberProperty, such as Member("freq", "trait.dataType").
    QJsonValue Member(const QString &member, const char *subPath) const;
    // Captions of the members given.
    QStringList Captions(const QStringList &of) const;

    QJsonObject properties;  // memberProperty
    QStringList members;     // memberList
    QStringList rows;        // members that a column table shows
    QJsonArray instances;    // instanceList, rows of a row table: texts, maybe tens of thousands
    int columns = 0;         // dimentionCount, held to what a table can sensibly show
    QJsonObject group;
};

// Element c of an array that may be shorter: its last element repeats; undefined when it is empty.
QJsonValue ColumnElement(const QJsonArray &array, int column);
QStringList ToStringList(const QJsonArray &array);

// Removes the cells of a row table's rows from the document. The rows stay in its instanceList, so
// that the next one gets the next number. For a document whose rows are all on the table: it travels
// between threads as text, and most of it would be cells that nobody reads again. Such a document is
// only appended to; Update would show its missing cells as empty. A document without such a group
// is left as it is.
void DropRowCells(QJsonObject &document, const QString &memberPath);

// The widget as a table; null, with the failure on the critical log, when it is of another class.
QTableWidget *AsTable(QWidget *widget, const char *failure);
