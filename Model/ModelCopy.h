// A copy of a document that shares nothing with it.
//
// What was overwritten in a document that lived long stays in its memory (decision 5 of
// docs/decisions); the copy is without it. Costs about as much as parsing the document. Any thread.
//
//   m_dataModel = CopyModel(m_dataModel);
#pragma once

#include <QJsonObject>

QJsonObject CopyModel(const QJsonObject &document);
