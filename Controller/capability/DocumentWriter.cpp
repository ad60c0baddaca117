#include "Controller/capability/DocumentWriter.h"

#include "Model/JsonPath.h"
#include "Model/ModelIntegrity.h"
#include "Support/Log.h"

bool CDocumentWriter::Write(std::initializer_list<SWrite> rows)
{
    for (const SWrite &row : rows) {
        if (!Write(row.paths, row.value, row.message))
            return false;
    }
    return true;
}

bool CDocumentWriter::Write(const SPaths &paths, const QJsonValue &value, const SMessage &message)
{
    for (const SPath &path : paths) {
        if (!ModifyJsonValue(m_document, path.Text(), value, 0))
            return Fail(message);
    }
    return true;
}

bool CDocumentWriter::Fail(const SMessage &message)
{
    qCCritical(lcUpdate).noquote()
        << GetJsonValueConst(m_document, "modelName").toString() << message.logged;
    AddModelUpdateResult(m_document, false, QString::fromLatin1(message.reported));
    return false;
}
