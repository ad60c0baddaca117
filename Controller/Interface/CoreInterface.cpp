#include "Controller/Interface/CoreInterface.h"

#include <QJsonDocument>

#include "Support/Log.h"

bool IJsonModel::ReadDataModel(QFile &file, QJsonObject &out)
{
    if (!file.open(QIODevice::ReadOnly)) {
        qCCritical(lcCore) << file.fileName() << file.errorString();
        return false;
    }
    QJsonParseError error;
    const QJsonDocument document = QJsonDocument::fromJson(file.readAll(), &error);
    if (error.error != QJsonParseError::NoError) {
        qCCritical(lcCore) << file.fileName() << "is invalid data model" << error.offset
                           << error.errorString();
        return false;
    }
    qCDebug(lcCore) << "Get Data Model from Resource" << file.fileName() << "Status"
                    << error.errorString() << error.error;
    m_lastModel = document.object();
    out = m_lastModel;
    return true;
}

void IRfCoreCalDataOperation::ResetItemResults()
{
    m_isAllSuccess = true;
    m_itemResults.clear();
    m_errorMessage.clear();
}

void IRfCoreCalDataOperation::AddItemResult(const QString &item, int status, const QString &message)
{
    m_itemResults.append({item, status, message});
}

SEachItemOperationResult IRfCoreCalDataOperation::GetItemResult(int index) const
{
    return m_itemResults.value(index);
}
