// The comparison of two images of calibration data, as a page shows it.
//
// A difference is named by its index. It is worded when somebody asks for its row; sorting and filtering
// go by its key, which is numbers alone, so that a million of differences cost little. An object never
// changes after it was made; any thread.
//
//   const SCalDifferenceRow row = differences.Row(0);
//   row.field, row.left, row.right;          // "paGain", "18.5 dB", "18 dB"
//   differences.Key(0).difference            // -0.5
//   differences.Routes()[0].name             // "TX 7 bw100000"
#pragma once

#include <memory>
#include <optional>

#include <QPair>
#include <QString>
#include <QVector>

#include "Model/OperationResult.h"

// One side of a comparison.
enum class ECalSide
{
    Dut,
    Memory,  // what the page has
    File
};

struct SComparedSide
{
    ECalSide kind = ECalSide::Dut;
    QString file = {};  // of a file: .ini or .json
};

struct SCalDifferenceRow
{
    QString route = {};   // "TX 7"
    QString band = {};    // "n78"
    QString region = {};  // upper bound of the bandwidth region, "100 MHz"; empty without regions
    QString field = {};   // without its indexes; "record" where one side lacks the whole
    QString index = {};   // "0, 3"
    QString left = {};    // with the unit; "lacking" or "there" of a record
    QString right = {};
    QString difference = {};  // right minus left, with the unit; empty where there is no number
};

struct SCalDifferenceKey
{
    int route = 0;   // in Routes()
    int field = -1;  // in Fields(); -1: one side lacks the record
    int place = 0;   // grows with the indexes within a record
    std::optional<double> left = {};
    std::optional<double> right = {};
    std::optional<double> difference = {};
};

// How often a route or a field differs.
struct SCalCount
{
    QString name = {};
    int count = 0;
    QString largest = {};  // of the differences, without its sign, with the unit; of a field
};

// Where a page shows a value.
struct SCalCellPlace
{
    // Members of the page's config with the texts to choose, in the order to choose them in.
    QVector<QPair<QString, QString>> selection = {};
    QString member = {};  // path of the member's group and its name; empty: no page shows the value
    int column = 0;       // of a table
};

class ICalDifferences
{
public:
    virtual ~ICalDifferences() = default;

    virtual int Count() const = 0;
    virtual SCalDifferenceRow Row(int index) const = 0;
    virtual SCalDifferenceKey Key(int index) const = 0;
    virtual SCalCellPlace Place(int index) const = 0;
    // Those without a difference are left out.
    virtual const QVector<SCalCount> &Routes() const = 0;
    virtual const QVector<SCalCount> &Fields() const = 0;
    virtual int RecordsLeft() const = 0;
    virtual int RecordsRight() const = 0;
};

using CalDifferences = std::shared_ptr<const ICalDifferences>;

// The answer to the question for a comparison.
struct SCalCompared
{
    SEachItemOperationResult result = {};  // of the side that could not be had, if there is one
    CalDifferences differences = {};       // null then
};
