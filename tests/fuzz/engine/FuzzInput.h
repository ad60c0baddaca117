// One input of the fuzz target, cut into its parts.
//
// Any bytes are an input. Lines that hold "--" alone part it:
//
//     {"cmdIf":{...}}        the page's document
//     --
//     vb1 taF p ua           what the user and the target do, three bytes an action (UserActions.h)
//     --
//     {"cmdIf":{...}}        what the target reports; any number of these, taken in turn
//
// Without a report, the page's own document stands in, altered (FuzzVariant.h). The page is one of
// a calibration if the document names "calDataIf" before it names "cmdIf". Values only.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>

#include <QByteArray>
#include <QJsonObject>
#include <QList>

class CFuzzInput
{
public:
    CFuzzInput(const uint8_t *data, size_t size);

    std::string Document() const { return m_document.toStdString(); }
    const QByteArray &Actions() const { return m_actions; }
    const QList<QByteArray> &Reports() const { return m_reports; }
    int ModelInterface() const { return m_interface; }

private:
    int m_interface;
    QByteArray m_document;
    QByteArray m_actions;
    QList<QByteArray> m_reports;
};

// The parts of an input as they stand, at least one; and the input of such parts.
QList<QByteArray> CutInput(const QByteArray &whole);
QByteArray JoinInput(const QList<QByteArray> &parts);

// Cells that the tables of a document ask for, all groups together. A short document may ask for
// millions of editors by naming a member again and again: that is slow by right, and no finding.
qint64 CellCount(const QJsonObject &document);
