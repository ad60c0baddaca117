// The values of a calibration record on their way between the record and the page's document.
//
// A walk names the fields of a record one after another, each with its member. The mover decides
// what happens to them: CCalFill takes the packaged texts into the record, CCalShow writes the
// record's values to where the page's widgets find them. So each list of fields stands in the code
// once.
//
//   void MoveHead(ICalMove &move, SMyRecord &record)
//   {
//       move.Field({"calDataIf.data.group1", "level", ECalText::Number, kOneText,
//                   [&](int) { return CCalCell(record.level); }, "Update level failed"});
//   }
#pragma once

#include <functional>

#include <QJsonArray>
#include <QJsonObject>
#include <QString>

#include "Controller/calibration/CalText.h"
#include "Operations/calibration/CalCells.h"
#include "Vond/VondCalBlocks.h"

constexpr int kOneText = 0;

// A member and its fields in the record.
struct SCalField
{
    const char *group;  // dotted path
    QString member;
    ECalText kind;
    int columns;  // of an array of texts; kOneText: the member is one text
    std::function<CCalCell(int column)> cell;
    const char *failed;             // message of a failed write; "%1" in it is the member
    const char *fillLog = nullptr;  // log line of the packaged texts
    QString caption = QString();    // the member's new caption; a null text keeps it
};

// The frequencies of a route, which give its block count too.
struct SCalFrequencies
{
    const char *group;
    const char *member;
    uint32_t (&freq)[kVondCalMaxSubbands];  // kHz
    uint32_t &blockCount;
    bool shownToFirst0;  // the page gets no entry behind the first 0
    const char *failed;
};

class ICalMove
{
public:
    virtual ~ICalMove() = default;
    virtual void Field(const SCalField &field) = 0;
    virtual void Frequencies(const SCalFrequencies &frequencies) = 0;
};

// Takes the packaged texts into the record. A field stays as it is when its member was not
// packaged, when the member's array is too short, or when the text is still the one that the page
// has shown. Frequencies set the block count: the entries before the first 0, in groups of 16,
// rounded up.
class CCalFill : public ICalMove
{
public:
    explicit CCalFill(const QJsonObject &document) : m_document(document) {}

    void Field(const SCalField &field) override;
    void Frequencies(const SCalFrequencies &frequencies) override;

private:
    const QJsonObject &m_document;
};

// Writes the record's values as texts into trait.defaultValue of the members. A write that fails
// leaves a message in the document's integrity record and a critical log line; the other fields are
// still written.
class CCalShow : public ICalMove
{
public:
    explicit CCalShow(QJsonObject &document) : m_document(document) {}

    void Field(const SCalField &field) override;
    void Frequencies(const SCalFrequencies &frequencies) override;
    void Fail(const QString &message);

private:
    bool Write(const QString &path, const QJsonValue &value);

    QJsonObject &m_document;
};
