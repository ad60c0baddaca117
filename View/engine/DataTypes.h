// The data types of the document format, one row each.
//
// A data type says how a member is edited: which widget shows it, how Init fills the widget, how
// Update shows a result, what Package reads, how the widget follows a publisher, which of its
// signals carry a change to the members that depend on it, and how a table makes a cell of it. The
// engine knows nothing of a type but its row, so a new type is a new row. A null function means
// that the type cannot be used so; the engine words that as a failure. Signals and slots are named
// as Qt's string connections name them. GUI thread.
//
//   const SDataType *type = FindScalarType("range", widget);
//   if (type) type->show(widget, member, "1950000");
#pragma once

#include <QJsonArray>
#include <QJsonObject>
#include <QJsonValue>
#include <QString>
#include <QTableWidget>
#include <QWidget>

// What a subscriber takes over when its publisher has changed.
struct SRelevance
{
    QJsonValue entry;     // of valuePair, for the publisher's current text
    QString defaultText;  // the subscriber's default
    bool isTestPage;      // starts over in the middle; a calibration page holds its default
    int column = 0;       // of a table's row
};

enum class ECellUse
{
    RowInit,    // result row at Init: limits as a tool tip, value held to them, no buttons
    RowAppend,  // result row added later: the value as it came
    Column,     // editor of an array element
};

// How a table asks for a cell.
struct SCellWish
{
    ECellUse use;
    QWidget *parent;    // viewport of the table; null for a cell that is only read
    QJsonObject entry;  // limits, decimals, radix
    QJsonArray items;   // choices of a list
    QJsonValue value;   // text to start with; undefined when there is none
};

struct SDataType
{
    const char *name = nullptr;       // "dataType" of a trait
    const char *className = nullptr;  // exact class of the widget

    // A member of its own. Init: choices, limits, default.
    const char *initLog = nullptr;
    bool readsEntry = false;  // Init needs the value or valuePair entry
    void (*init)(QWidget *widget, const QJsonObject &member, const QJsonValue &entry) = nullptr;

    // Shows a value of the document; reads what the widget holds.
    void (*show)(QWidget *widget, const QJsonObject &member, const QString &text) = nullptr;
    QString (*text)(const QWidget *widget) = nullptr;

    // Follows a publisher.
    const char *relateLog = nullptr;
    void (*relate)(QWidget *widget, const SRelevance &relevance) = nullptr;

    // Publishes its own changes. keyText: what it contributes to a subscriber's joined key.
    QString (*keyText)(const QWidget *widget) = nullptr;
    const char *valueSignal = nullptr;
    const char *valueSlot = nullptr;
    const char *statusSignal = nullptr;
    const char *statusSlot = nullptr;

    // Held to a list of ranges when editing ends, if the entry in force at Init has one.
    const char *checkSlot = nullptr;
    const char *cellCheckSlot = nullptr;

    // A cell of a table.
    bool inRowTable = false;
    bool cellReadsEntry = false;  // a column table's cell needs the value or valuePair entry
    bool updatesCell = false;     // a column table's Update writes it
    bool takesStatus = false;     // defaultEnableStatus applies to it
    int columnWidth = 0;          // pixels that it wants in a column table; 0: the table's own
    QWidget *(*makeCell)(const SCellWish &wish) = nullptr;
    const char *relateCellLog = nullptr;
    void (*relateCell)(QWidget *cell, const SRelevance &relevance) = nullptr;
};

const SDataType *FindDataType(const QString &name);
// The row whose name and widget class both match and that can stand alone; null when there is none.
const SDataType *FindScalarType(const QString &name, const QWidget *widget);
// The row of the widget's class that can stand alone, whatever the document says of it.
const SDataType *FindScalarTypeOfWidget(const QWidget *widget);
