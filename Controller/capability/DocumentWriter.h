// Writes the outputs of an update step into a page's document, and reports the first that fails.
//
// A step is a table: paths, value, message. The rows are written in order. At the first path that
// the document lacks, the message goes to the critical log behind the document's model name and
// into its integrity record, and the rest is left alone: what was written stays. A few messages
// differ between log and record. The document belongs to the caller; any thread.
//
//   CDocumentWriter writer(document);
//   return writer.Write({{path.scsPaths, scs, "Update SCS failed"},
//                        {path.defaultPaths, "15kHz", "Update SCS default value failed"}});
#pragma once

#include <initializer_list>

#include <QJsonObject>

#include "Controller/capability/CapUpdatePaths.h"

struct SMessage
{
    SMessage(const char *text) : logged(text), reported(text) {}
    SMessage(const char *loggedText, const char *reportedText)
        : logged(loggedText), reported(reportedText)
    {
    }

    const char *logged;
    const char *reported;
};

struct SWrite
{
    SPaths paths;
    QJsonValue value;
    SMessage message;
};

class CDocumentWriter
{
public:
    explicit CDocumentWriter(QJsonObject &document) : m_document(document) {}

    bool Write(std::initializer_list<SWrite> rows);
    bool Write(const SPaths &paths, const QJsonValue &value, const SMessage &message);
    // Logs and reports; false, for the caller to return.
    bool Fail(const SMessage &message);

private:
    QJsonObject &m_document;
};
