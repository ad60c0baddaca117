#include "tests/fuzz/wire/FuzzPages.h"

#include <algorithm>

#include <QFile>
#include <QJsonDocument>

#include "Controller/capability/NrDataModelCapUpdater.h"
#include "Model/ModelResources.h"
#include "tests/controller/calibration/CalPages.h"
#include "tests/fuzz/common/FuzzTarget.h"

EPageId PageOf(const QString &name)
{
    const auto *page = std::find_if(std::begin(kFuzzPages), std::end(kFuzzPages),
                                    [&](EPageId id) { return PageName(id) == name; });
    return page == std::end(kFuzzPages) ? kFuzzPages[0] : *page;
}

bool IsCalibration(EPageId id)
{
    return id == EPageId::RxPathLoss || id == EPageId::AptProfile;
}

QJsonObject TemplatePage(EPageId id)
{
    InitModelResources();
    QFile file(QString::fromLatin1(FindPage(id).resource));
    Require(file.open(QIODevice::ReadOnly), "the library carries the page's document");
    return QJsonDocument::fromJson(file.readAll()).object();
}

QJsonObject PatchedPage(EPageId id)
{
    QJsonObject document = TemplatePage(id);
    CNrDataModelCapUpdater updater;
    updater.ResetCapabilityCache();
    (updater.*FindPage(id).driver)(document);
    return document;
}

QJsonObject PackagedPage(EPageId id, const QJsonObject &document)
{
    return IsCalibration(id) ? Packaged(document, EEditors::None) : PackagedDocument(document);
}

QJsonValue Merged(const QJsonValue &value, const QJsonValue &patch)
{
    if (!patch.isObject())
        return patch;
    const QJsonObject changes = patch.toObject();
    QJsonObject merged = value.toObject();
    for (auto change = changes.begin(); change != changes.end(); ++change) {
        if (change->isNull())
            merged.remove(change.key());
        else
            merged.insert(change.key(), Merged(QJsonValue(merged.value(change.key())), *change));
    }
    return merged;
}
