// What a page shows, read by object name alone: the campaign's own packaging.
//
// It shares no line with the tool's: a number is the editor's value, not its text, so that a text
// which is still being typed shows as a difference (Unfinished names it).
//
//   const QJsonObject filled = FillFrom(page, document);   // every memberValue as the page shows it
//   const QString text = Unfinished(page);                 // empty: nobody types into an editor
#pragma once

#include <QDockWidget>
#include <QJsonObject>
#include <QMap>
#include <QString>

// A copy of the document, with the memberValue of each group as the page's widgets have it.
QJsonObject FillFrom(const QDockWidget *page, QJsonObject document);
// A widget's value as a document has it: a number in decimal, a double with the editor's decimals.
QString ShownValue(const QWidget *widget);
// The value of every editor of the page, by widget; a table's cells each by their own.
QMap<const QWidget *, QString> EditorValues(const QDockWidget *page);
bool IsEditor(const QWidget *widget);
// The first editor whose text is not that of its value; empty when there is none.
QString Unfinished(const QDockWidget *page);
// An editor's name for the report: its object name or its table's, with row and column.
QString NameOf(const QWidget *widget);
