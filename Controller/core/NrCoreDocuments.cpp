// Page list and documents of the core.
#include "Controller/core/NrCore.h"

#include "Model/ModelText.h"
#include "Support/Log.h"

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
    if (generation != 1)
        return {};
    qCDebug(lcCore) << "[CNrCore] GetDataModelV7()--" << pageName;
    const EPageId page = PageByName(pageName);
    // An unknown name counts as that of the first page.
    const EPageId asked = page == EPageId::ErrorPage ? EPageId::Rssi : page;
    if (std::optional<std::string> document = m_awaited.Take(asked, m_connection.load()))
        return *std::move(document);
    return GetDataModelV7(asked);
}

void CNrCore::AwaitPages()
{
    const CLockSentry lock(m_targetLock);
    m_awaited.Expect(ShownPages(), m_connection.load());
}

// A document that cannot be made is left to the page's own request, which tells what went wrong.
void CNrCore::PrepareNextDataModel()
{
    const CLockSentry lock(m_targetLock);
    const uint64_t connection = m_connection.load();
    const std::optional<EPageId> page = m_awaited.Next(connection);
    if (!page)
        return;
    try {
        if (m_target.GetNrGeneration() == 1)
            m_awaited.Keep(*page, GetDataModelV7(*page), connection);
    } catch (...) {
        qCCritical(lcCore) << "[CNrCore] no document in advance" << PageName(*page);
    }
}

std::string CNrCore::GetDataModelV7(EPageId page)
{
    const SPageRow &row = FindPage(page);
    if (!row.resource) {
        qCDebug(lcCore) << "[CNrCore] GetDataModelV7()Done --" << QJsonObject();
        return ModelToText({});
    }
    std::string document = LoadDataModel(row, QString::fromLatin1(row.resource));
    if (const std::optional<ECalItem> item = CalItemOfPage(page))
        LookForCalItem(*item);
    return document;
}

std::string CNrCore::LoadDataModel(const SPageRow &page, const QString &resource)
{
    if (m_isUpdaterStale.exchange(false))
        m_capUpdater.ResetCapabilityCache();
    QFile file(resource);
    QJsonObject document;
    if (!ReadDataModel(file, document))
        m_errorMessage = QLatin1String("CNrCore::GetDataModel: cannon get the data Model->") +
                         QLatin1String(page.name);
    // The document itself tells what a driver could not patch; the page shows it.
    (m_capUpdater.*page.driver)(document);
    qCDebug(lcCore) << "[CNrCore] GetDataModelV7()Done --" << document;
    return ModelToText(document);
}
