// The record of failed patches inside a document, for the page to show.
//
// A step that fills or patches a document reports into "modelIntegrity" at the document's root:
// "integrity" (false once any step failed) and "messageList" (one message a report, in order). The
// page reads the record once, shows it, and removes it. Works on documents that the caller owns, on
// any thread; each report is also a line on the debug log.
//
//   AddModelUpdateResult(document, false, "Update band failed");
#pragma once

#include <string>

#include <QJsonObject>
#include <QString>

// Starts a fresh record with one message, whatever record the document held.
void InsertModelUpdateResult(QJsonObject &document, bool allCorrect, const QString &errorMes);
// Adds a message to the record, or starts one. A true argument never turns the flag back to true.
void AddModelUpdateResult(QJsonObject &document, bool allCorrect, const QString &errorMes);
// The text of a document with nothing to show: "emptyModel" and a failed record with the message.
// Prescribed; see docs/decisions/0036-prescribed-surface.md
std::string BuildEmptyModel(const QString &message);
