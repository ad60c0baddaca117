// What the tests of the capability update share: an updater on a fresh DUT, the pages' templates
// and expected documents, and paths in them.
//
//   TEST_F(CUpdaterTest, ...)
//   {
//       PlugBands(R"([{"band": 78}])");
//       const QJsonObject document = Patched(EPageId::ContRx);
//       EXPECT_EQ(At(document, "cmdIf.request.group1.memberProperty.band.trait.defaultValue"),
//                 QJsonValue("n78"));
//   }
#pragma once

#include <QJsonArray>
#include <QJsonObject>
#include <QStringList>

#include "Controller/capability/NrDataModelCapUpdater.h"
#include "Controller/core/PageTable.h"
#include "tests/operations/TargetFixture.h"

class CUpdaterTest : public CTargetTest
{
protected:
    void SetUp() override;

    // The handset with other bands and without routes; or with some keys of its profile replaced.
    // The updater has forgotten the DUT before.
    void PlugBands(const std::string &bands);
    void PlugKeys(const std::string &keys);
    // What the driver makes of the page's template; m_isDone is its result.
    QJsonObject Patched(EPageId id);

    CNrDataModelCapUpdater m_updater;
    bool m_isDone = false;
};

// The pages that have a document.
constexpr EPageId kPatchedPages[] = {
    EPageId::Rssi,         EPageId::ContRx,        EPageId::RxPathLoss,
    EPageId::RsrpForce,    EPageId::RsrpNormal,    EPageId::SingleToneTx,
    EPageId::PuschTxForce, EPageId::PuschTxNormal, EPageId::AptProfile,
};
// "ContinuousRX", to name the tests of a page.
std::string PageLabel(EPageId id);
// "GetRouteConfigV7" of a call to the DUT.
std::string CallLabel(const char *function);

QJsonObject ReadObject(const QString &path);
// A page's document as the library carries it, and as it should come out on the handset.
QJsonObject TemplateOf(EPageId id);
QJsonObject ExpectedOf(EPageId id);

// As if the library carried no documents, until InitModelResources.
void HideDocuments();

QJsonValue At(const QJsonObject &document, const QString &path);
// The path must be there.
void Set(QJsonObject &document, const QString &path, const QJsonValue &value);
void Remove(QJsonObject &document, const QString &path);

QStringList Messages(const QJsonObject &document);
// The record of failed steps with these messages.
QJsonObject Failed(const QStringList &messages);
// The paths at which two documents differ, with both values; empty when they are the same.
std::string Differences(const QJsonValue &actual, const QJsonValue &expected);

QJsonArray Names(const QStringList &names);
