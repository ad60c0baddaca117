// A data type of the document format: the row that has all of it.
//
// A data type says how a member is edited. Its row has all that the engine knows of it: the widget
// that shows it, how each walk uses that widget, how the widget follows a publisher and publishes
// itself, and how a table makes a cell of it. So a new type is a new row. A null function means
// that the type cannot be used so; whoever asks says so on the critical log. Signals and slots are
// named as Qt's string connections name them; the slots are the page's. GUI thread.
//
//   SDataType LabelType() { return {.name = "label", .className = "QLabel", .init = InitLabel}; }
#pragma once

#include <QJsonArray>
#include <QJsonObject>
#include <QJsonValue>
#include <QString>
#include <QTableWidget>
#include <QWidget>

// What a subscriber takes over when its publisher has changed.
struct SRelation
{
    QJsonValue entry;     // of valuePair, for the publisher's current text
    QString defaultText;  // the subscriber's default
    bool isTestPage;      // a number goes to the middle; on a calibration page to its default
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
    ECellUse use = ECellUse::RowInit;
    QWidget *parent = nullptr;  // viewport of the table; null for a cell that is only read
    QJsonObject entry = {};     // limits, decimals, radix
    QJsonArray items = {};      // choices of a list
    QJsonValue value = {};      // text to start with; undefined when there is none
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
    void (*relate)(QWidget *widget, const SRelation &relation) = nullptr;
    // Behind enabling or disabling it, for what hangs on it in turn.
    void (*statusChanged)(QWidget *widget) = nullptr;

    // Publishes its own changes. keyText: its part of a subscriber's joined key.
    QString (*keyText)(const QWidget *widget) = nullptr;
    const char *valueSignal = nullptr;
    const char *valueSlot = nullptr;
    const char *statusSignal = nullptr;
    const char *statusSlot = nullptr;

    // Held to a list of ranges when editing ends, if the entry in force at Init has one.
    const char *checkSlot = nullptr;
    const char *cellCheckSlot = nullptr;

    // A cell of a table.
    QWidget *(*makeCell)(const SCellWish &wish) = nullptr;
    bool takesStatus = false;  // defaultEnableStatus applies to it
    // Of a result table.
    bool inRowTable = false;
    Qt::Alignment (*alignment)(const QWidget *cell) = nullptr;  // of its text; null: left
    // Of a column table.
    bool hasItems = false;           // offers the choices in "value"
    bool cellReadsEntry = false;     // needs the value or valuePair entry
    const char *entryKey = nullptr;  // of that entry, with a log line of its own
    const char *entryLog = nullptr;
    // Gives a cell the value of its wish, as makeCell does, whatever it held before.
    void (*startCell)(QWidget *cell, const SCellWish &wish) = nullptr;
    bool updatesCell = false;  // Update writes it
    // Brings a cell that Update writes to a text that such a cell held before; null where showing
    // the text does.
    void (*recallCell)(QWidget *cell, const QString &text) = nullptr;
    int columnWidth = 0;  // pixels that it wants; 0: the table's own
    const char *relateCellLog = nullptr;
    void (*relateCell)(QWidget *cell, const SRelation &relation) = nullptr;
};
