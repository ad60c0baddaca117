// The product's pages with column tables on the documents of whole DUTs: with editors at once and
// with late ones they look alike and package the same bytes, whatever comes in between.
#include <QComboBox>
#include <QFile>
#include <QTableWidget>
#include <QtTest>

#include "Controller/capability/NrDataModelCapUpdater.h"
#include "Controller/core/PageTable.h"
#include "Model/ModelResources.h"
#include "Model/ModelText.h"
#include "Operations/capability/TargetCapability.h"
#include "Simulator/VondSim.h"
#include "View/Rx/NrRssiDockWidgetV7.h"
#include "View/Rx/NrRxPathlossDockWidgetV7.h"
#include "View/Tx/NrAptProfileDockWidgetV7.h"
#include "tests/common/CalProfile.h"
#include "tests/common/Cells.h"
#include "tests/view/engine/CellPairs.h"

namespace {

// A page that is given its document, and asks the target for nothing when a selector changes.
template <typename Page>
class COpen : public Page
{
public:
    COpen(const std::string &document, bool hasEditorsAtOnce) : Page(nullptr)
    {
        this->resize(1200, 800);
        this->show();
        this->Slot_GetDataModelDone(document);
        this->m_modelReady = false;
        if (hasEditorsAtOnce)
            MakeAllEditors(this);
    }
    void RequestDataModel() override
    {
        if (this->metaObject()->indexOfSlot("Slot_InitDone()") >= 0)
            QObject::connect(this, SIGNAL(Signal_InitDone()), this, SLOT(Slot_InitDone()));
    }
    void Update(const QJsonObject &document)
    {
        this->UpdateWidget(document);
        this->m_modelReady = false;
    }
    using Page::PackageMemberValue;
};

std::string PatchedText(EPageId id, const char *profile)
{
    VondSim_Reset();
    VondSim_SetProfileText(profile);
    CTargetCapability::Reset();
    CNrDataModelCapUpdater updater;
    updater.ResetCapabilityCache();
    const SPageRow &row = FindPage(id);
    QFile file(row.resource);
    if (!file.open(QIODevice::ReadOnly))
        return {};
    QJsonObject document = ModelFromText(file.readAll().toStdString());
    (updater.*row.driver)(document);
    return ModelToText(document);
}

// Chooses an item of a list of both pages.
void Choose(const QWidget &early, const QWidget &late, QRandomGenerator &random)
{
    const QList<QComboBox *> lists = early.findChildren<QComboBox *>();
    QComboBox *list = lists[random.bounded(lists.size())];
    if (list->count() == 0 || list->objectName().isEmpty())
        return;
    const int item = random.bounded(list->count());
    list->setCurrentIndex(item);
    late.findChild<QComboBox *>(list->objectName())->setCurrentIndex(item);
}

template <typename Page>
void Compare(EPageId id, const char *profile, quint32 seed)
{
    QRandomGenerator random(seed);
    const std::string text = PatchedText(id, profile);
    const QJsonObject document = ModelFromText(text);
    QVERIFY(!document.isEmpty() && !document.contains("modelIntegrity"));
    COpen<Page> early(text, true);
    COpen<Page> late(text, false);
    QVERIFY(TablesWithoutEditors(late) >= 3 && TablesWithoutEditors(early) == 0);
    for (const QTableWidget *table : early.template findChildren<QTableWidget *>()) {
        const auto *other = late.template findChild<QTableWidget *>(table->objectName());
        QCOMPARE(other->maximumSize(), table->maximumSize());
        for (int c = 0; c < table->columnCount(); ++c)
            QCOMPARE(other->columnWidth(c), table->columnWidth(c));
    }
    for (int step = 0; step < 6; ++step) {
        if (random.bounded(2) == 0) {
            const QJsonObject update = RandomUpdate(document, random);
            early.Update(update);
            late.Update(update);
        }
        QVERIFY(late.PackageMemberValue() == early.PackageMemberValue());
        if (random.bounded(2) == 0)
            Choose(early, late, random);
    }
    // A list gives new limits and states to its own followers alone; on RSSI to all tables.
    QVERIFY(id == EPageId::Rssi || TablesWithoutEditors(late) > 0);
    QCOMPARE(late.grab().toImage(), early.grab().toImage());
    QVERIFY(late.PackageMemberValue() == early.PackageMemberValue());
    QCOMPARE(DifferenceOfCells(early, late), QString());
}

}  // namespace

class LateEditorsDocumentTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { InitModelResources(); }

    void pagesAreAlike_data()
    {
        QTest::addColumn<int>("page");
        QTest::addColumn<QByteArray>("profile");
        QTest::addColumn<quint32>("seed");
        const QByteArray handset = R"({"name": "handset", "base": "handset"})";
        for (const EPageId id : {EPageId::Rssi, EPageId::RxPathLoss, EPageId::AptProfile}) {
            for (const QByteArray &profile : {handset, QByteArray(kLargestCalProfile)}) {
                for (quint32 seed = 1; seed <= 2; ++seed)
                    QTest::addRow("%s on %s, seed %u", FindPage(id).name,
                                  profile == handset ? "handset" : "largest", seed)
                        << static_cast<int>(id) << profile << seed;
            }
        }
    }

    void pagesAreAlike()
    {
        QFETCH(int, page);
        QFETCH(QByteArray, profile);
        QFETCH(quint32, seed);
        const auto id = static_cast<EPageId>(page);
        if (id == EPageId::Rssi)
            Compare<CNrRssiDockWidgetV7>(id, profile, seed);
        else if (id == EPageId::RxPathLoss)
            Compare<CNrRxPathlossDockWidgetV7>(id, profile, seed);
        else
            Compare<CNrAptProfileDockWidgetV7>(id, profile, seed);
    }
};

QTEST_MAIN(LateEditorsDocumentTest)
#include "LateEditorsDocumentTest.moc"
