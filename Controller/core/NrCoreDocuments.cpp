// Page list and documents of the core.
#include <QJsonDocument>

#include "Controller/core/NrCore.h"
#include "Controller/core/PageTable.h"
#include "Model/ModelText.h"
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

QStringList CNrCore::GetAllSupportPage()
{
    const CLockSentry lock(m_targetLock);
    const int generation = m_target.GetNrGeneration();
    qCDebug(lcCore) << "[CNrCore] GetAllSupportPage modem generation: " << generation;
    return generation == 1 ? ShownPageClasses() : QStringList();
}

std::string CNrCore::GetDataModel(QString pageName)
{
    const CLockSentry lock(m_targetLock);
    const int generation = m_target.GetNrGeneration();
    qCDebug(lcCore) << "[CNrCore] GetDataModel()--" << pageName;
    qCDebug(lcCore) << "modem generation: " << generation;
    return generation == 1 ? GetDataModelV7(pageName) : std::string();
}

std::string CNrCore::GetDataModelV7(const QString &pageName)
{
    qCDebug(lcCore) << "[CNrCore] GetDataModelV7()--" << pageName;
    const SPageRow &page = FindPage(static_cast<EPageId>(m_pageMap.value(pageName)));
    if (!page.resource) {
        qCDebug(lcCore) << "[CNrCore] GetDataModelV7()Done --" << QJsonObject();
        return ModelToText({});
    }
    std::string document = LoadDataModel(pageName, page, QString::fromLatin1(page.resource));
    const auto item = m_calItemMap.constFind(pageName);  // a calibration page bears its item's name
    if (item != m_calItemMap.constEnd())
        LookForCalItem(static_cast<ECalItem>(*item));
    return document;
}

std::string CNrCore::LoadDataModel(const QString &pageName, const SPageRow &page,
                                   const QString &resource)
{
    if (m_isUpdaterStale.exchange(false))
        m_capUpdater.ResetCapabilityCache();
    QFile file(resource);
    QJsonObject document;
    if (!ReadDataModel(file, document))
        m_errorMessage =
            QLatin1String("CNrCore::GetDataModel: cannon get the data Model->") + pageName;
    // Whatever a driver could not patch stands in the document, for the page to show.
    (m_capUpdater.*page.driver)(document);
    qCDebug(lcCore) << "[CNrCore] GetDataModelV7()Done --" << document;
    return ModelToText(document);
}
