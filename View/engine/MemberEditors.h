// The editors of a section of the document: what the user sets, one by one, with its name in the
// document, for whoever brings a page to settings that were saved.
//
// Scalars and the cells of column tables; labels and members without a widget are left out. Members
// come in the order of their lists. Late editors are made. GUI thread.
//
//   for (const SMemberEditor &editor : EditorsOf(document, "cmdIf.request", index))
//       ... editor.key   // "group1.band", "group2.dlFrequency"
#pragma once

#include <QJsonObject>
#include <QPointer>
#include <QString>
#include <QVector>
#include <QWidget>

class CWidgetIndex;

struct SMemberEditor
{
    QString key = {};
    QString caption = {};
    int column = -1;  // of a table's cell
    QPointer<QWidget> editor = {};
};

QVector<SMemberEditor> EditorsOf(const QJsonObject &document, const QString &section,
                                 const CWidgetIndex &index);
// The packaged value of an editor, as the document has it; null when the widget is no editor.
QString PackagedText(const QWidget *editor);
// Brings an editor to a packaged value, as a user would. False, and nothing is changed, when the editor
// refuses it.
bool EnterPackaged(QWidget *editor, const QString &packaged);
