// A report of the target that differs from the page's document.
//
// One byte chooses what differs: the values, the rows, the columns, the group types, the record of
// failed patches. Only the result section is altered, and the root's own keys. Pure; any thread.
//
//   page.UpdateWidget(FuzzVariant(document, "cmdIf", "response", 3));
#pragma once

#include <cstdint>

#include <QJsonObject>
#include <QString>

QJsonObject FuzzVariant(const QJsonObject &document, const QString &word, const QString &section,
                        uint8_t how);

// Texts that an editor may be given: numbers at and beyond every limit, and what is no number at
// all. Any byte chooses one.
QString FuzzText(uint8_t how);
