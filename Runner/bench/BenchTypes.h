// What the runner sees of a page, as values: nothing here points into the tool.
//
// Texts are those that a person reads, without the blanks around them. A member is one entry of the
// page's document: a single editor or label, or a row of a column table, which has a value a column.
//
//   for (const SBenchMember &member : page->Members())
//       print(member.Name(), member.values.value(0), member.unit);
#pragma once

#include <QString>
#include <QStringList>
#include <QVector>

// A message box or file dialog that opened and was closed again.
struct SBenchBox
{
    QString title;
    QString text;              // without the markup that sets its font
    QString informative = {};  // empty: none
    QString detail = {};       // empty: none
};

struct SBenchButton
{
    QString text;  // without mnemonic
    QString name;  // object name
    bool isEnabled = false;
    bool isShown = false;
};

struct SBenchMember
{
    QString section;    // request, response, config, data
    QString group;      // group1
    QString key;        // band
    QString groupName;  // of the document; may be empty
    QString caption;    // of the document
    QString type;       // list, range, pointRange, unsignedRange, boolean, label
    QString unit;       // dB, dBm, kHz, ms, %, or empty: as the caption has it in parentheses
    bool isShown = false;
    bool isEnabled = false;  // takes a value now, as far as its page is in front
    // A row of a column table: its values by column, and the table's headers. Otherwise one value and
    // no columns.
    bool isCells = false;
    QStringList columns = {};
    QStringList values = {};   // as packaged
    QStringList choices = {};  // list, boolean: what can be chosen now
    QString min = {};          // of a number: the limits now, in the editor's own digits
    QString max = {};
    QString allowed = {};  // of a number that has to be one of several ranges: "1~5,7"
    int base = 10;         // radix of the digits that are typed

    QString Name() const { return section + '.' + group + '.' + key; }
    bool IsInput() const
    {
        return section != QLatin1String("response") && type != QLatin1String("label");
    }
    bool IsNumber() const { return type.contains(QLatin1String("ange")); }
};

// A table of the page. rows: row captions; values by row, then by column.
struct SBenchTable
{
    QString section;
    QString group;
    bool isResults = false;  // a row table: grows by a row a reading
    bool isShown = false;
    QStringList keys = {};     // of a result table: the members, by column
    QStringList columns = {};  // headers
    QStringList units = {};    // of a result table: by column, from its header
    QStringList rows = {};
    QVector<QStringList> values = {};

    QString Name() const { return section + '.' + group; }
};

// Why a value, a name or a press was not taken.
struct SRefusal
{
    QString reason;  // a sentence
    QString allowed =
        {};  // what would be taken: choices joined by ", ", or "300~10000"; may be empty

    QString Text() const;  // both, in one line
};
