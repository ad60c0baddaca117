// The bytes of a command, made by the core's builders of a document that the campaign filled.
//
// The documents are the templates of the nine pages, patched for the DUT that is plugged in when
// this is made, by an updater of the campaign's own. It reads the DUT, which the journal shows.
//
//   const CDutCommands commands;
//   for (const SCommandRow &row : commands.Rows(call.function)) {
//       const QByteArray bytes = commands.Build(row, page);
#pragma once

#include <QByteArray>
#include <QDockWidget>
#include <QJsonObject>
#include <QMap>
#include <QVector>

#include "Controller/commands/NrCoreCmdBuilder.h"

struct SCommandRow
{
    const char *function;   // of the DUT
    const char *className;  // page that asks for it
    QByteArray (*build)(const CNrCoreCmdBuilder &builder, const QJsonObject &filled);
};

class CDutCommands
{
public:
    CDutCommands();

    // Of all pages that ask for this function; empty when its bytes come of no page's document.
    static QVector<SCommandRow> Rows(const char *function);
    // The page's document on this DUT; and filled with what the page shows.
    QJsonObject Document(const QString &className) const { return m_documents.value(className); }
    QJsonObject Fill(const QDockWidget *page) const;
    QByteArray Build(const SCommandRow &row, const QJsonObject &filled) const;

private:
    QMap<QString, QJsonObject> m_documents;  // by page class
    CNrCoreCmdBuilder m_builder;
};
