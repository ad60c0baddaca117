// Paths through documents: text, one leaf, the capability update, a command, a report.
#include <map>
#include <string>
#include <vector>

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include "Controller/capability/NrDataModelCapUpdater.h"
#include "Controller/commands/NrCoreCmdBuilder.h"
#include "Controller/core/PageTable.h"
#include "Controller/responses/NrDataModelResponseBuilder.h"
#include "Model/JsonPath.h"
#include "Model/ModelText.h"
#include "bench/BenchDocuments.h"
#include "bench/guard/Counted.h"
#include "bench/guard/GuardPaths.h"

namespace {

std::string ResourceText(EPageId page)
{
    QFile file(FindPage(page).resource);
    if (!file.open(QIODevice::ReadOnly))
        qFatal("no resource");
    return file.readAll().toStdString();
}

// Qt alone: the text there and back.
qsizetype ThroughQt(const std::string &text)
{
    const QByteArray bytes = QByteArray::fromRawData(text.data(), static_cast<int>(text.size()));
    return QJsonDocument::fromJson(bytes).toJson(QJsonDocument::Compact).size();
}

void CountText(const std::string &text)
{
    CountPath(
        "documentText", [&] { ModelToText(ModelFromText(text)); }, [&] { ThroughQt(text); });
}

// A leaf among many siblings, beside the same in nested maps.
void CountLeafWrites()
{
    struct SNode
    {
        std::map<QString, SNode> children;
        QString value;
    };
    constexpr int kSiblings = 2000;
    constexpr int kWrites = 200;
    const auto key = [](int i) { return QString("member%1").arg(i, 6, 10, QLatin1Char('0')); };
    QJsonObject group;
    SNode root;
    SNode &rootGroup = root.children["data"].children["group1"];
    for (int i = 0; i < kSiblings; ++i) {
        group.insert(key(i), QJsonObject{{"defaultValue", "0"}});
        rootGroup.children[key(i)].children["defaultValue"].value = "0";
    }
    QJsonObject document{{"data", QJsonObject{{"group1", group}}}};
    group = {};
    std::vector<QString> paths;
    for (int i = 0; i < kWrites; ++i)
        paths.push_back("data.group1." + key(i * 7919 % kSiblings) + ".defaultValue");

    const auto writeLeaves = [&] {
        for (size_t i = 0; i < paths.size(); ++i) {
            if (!ModifyJsonValue(document, paths[i], QString::number(i), 0))
                qFatal("the leaf is missing");
        }
    };
    CountPath("leafWrite", writeLeaves, [&] {
        for (size_t i = 0; i < paths.size(); ++i) {
            SNode *node = &root;
            for (const QString &segment : paths[i].split('.'))
                node = &node->children.find(segment)->second;
            node->value = QString::number(i);
        }
    });
}

// The largest page's capability update, beside its document's text there and back.
void CountCapability(CNrDataModelCapUpdater &updater)
{
    constexpr EPageId kPage = EPageId::PuschTxNormal;
    const QJsonObject original = ModelFromText(ResourceText(kPage));
    QJsonObject patched = original;
    if (!(updater.*FindPage(kPage).driver)(patched))
        qFatal("the page was not patched");
    const std::string text = ModelToText(patched);
    CountPath(
        "capabilityPatch",
        [&] {
            QJsonObject document = original;
            (updater.*FindPage(kPage).driver)(document);
        },
        [&] { ThroughQt(text); });
}

// A command from a document, beside the document's text there and back.
void CountCommand()
{
    const QJsonObject document = PackagedContRx();
    const std::string text = ModelToText(document);
    const CNrCoreCmdBuilder builder;
    CountPath(
        "commandRecord", [&] { builder.GetContRxCmdV7(document); }, [&] { ThroughQt(text); });
}

// Ten reports of 12 columns into the page's document, beside as many cells into empty objects.
void CountReports()
{
    constexpr int kReports = 10;
    constexpr int kColumns = 12;
    NRfTestResult_GetMixRxReportV7 report = {};
    report.reportCount = kVondMaxReports;
    for (int i = 0; i < kVondMaxReports; ++i)
        report.RSRP0[i] = report.RSRP1[i] = report.RSRP2[i] = report.RSRP3[i] = report.RSSI0[i] =
            report.RSSI1[i] = report.RSSI2[i] = report.RSSI3[i] = static_cast<int16_t>(-11552 + i);
    report.GoodBLK = 1234567;
    QJsonObject original = ModelFromText(ResourceText(EPageId::RsrpNormal));
    InsertJsonObject(original, "cmdIf.request.group1", "memberValue", "mimoType", "4x4");
    const CNrDataModelResponseBuilder builder;
    CountPath(
        "reportRows",
        [&] {
            QJsonObject document = original;
            for (int i = 0; i < kReports; ++i)
                builder.UpdateMixRxNormalResultV7(document, report, true);
        },
        [&] {
            for (int column = 0; column < kColumns; ++column) {
                QJsonObject cells;
                for (int row = 0; row < kReports * kVondMaxReports; ++row) {
                    const QString text = QString::number(-90.25 + row, 'f', 2);
                    cells.insert(QString::number(row), QJsonObject{{"defaultValue", text}});
                }
            }
        });
}

}  // namespace

void CountDocumentPaths(CNrDataModelCapUpdater &updater)
{
    CountText(ResourceText(EPageId::ContRx));
    CountLeafWrites();
    CountCapability(updater);
    CountCommand();
    CountReports();
}
