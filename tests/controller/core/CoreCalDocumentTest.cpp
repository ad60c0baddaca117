// Calibration records between the core's memory and the pages' documents.
#include "Model/JsonPath.h"
#include "Model/ModelText.h"
#include "tests/controller/calibration/CalPages.h"
#include "tests/controller/core/CoreFixture.h"

namespace {

constexpr char kApt[] = "APT Profile";
constexpr char kPathLoss[] = "RX PathLoss";
constexpr char kSetCalData[] = "VOND_MMRf_SetCalDataV7_r";
constexpr char kBlockInfo[] = "VOND_MMRf_GetCalBlkInfoV7_r";
constexpr char kConfig[] = "calDataIf.config.group1";
constexpr char kCoupler[] = "calDataIf.data.group11";

class CoreCalDocumentTest : public CCoreTest
{
protected:
    static QJsonObject AptPage(const char *route, const char *region)
    {
        QJsonObject page = Packaged(CalPage(kAptPage), EEditors::None);
        Put(page, kConfig, {{"txRoute", route}, {"aggBwRegion", region}});
        return page;
    }
    static QJsonObject LossPage(const char *type, const char *route,
                                const SSelection &selection = {})
    {
        QJsonObject page = Packaged(CalPage(kPathLossPage), EEditors::None);
        Put(page, kConfig, {{"routeType", type}, {"route", route}});
        Select(page, selection);
        return page;
    }
    // As the page that shows the answer packages it.
    QJsonObject AptAnswer(const QJsonObject &page)
    {
        return Packaged(ModelFromText(m_core.GetAptCalibrationData(ModelToText(page))),
                        EEditors::OfThePage);
    }
    QJsonObject LossAnswer(const QJsonObject &page)
    {
        return Packaged(ModelFromText(m_core.GetPathLossCalibrationData(ModelToText(page))),
                        EEditors::OfThePage);
    }
    void StoreCoupler(const char *route, const char *region, const char *db)
    {
        QJsonObject page = AptPage(route, region);
        Put(page, kCoupler, {{"couplerLossHigh", db}});
        m_core.SetAptCalibrationData(ModelToText(page));
    }
    QString Coupler(const char *route, const char *region)
    {
        return GetJsonValueConst(AptAnswer(AptPage(route, region)),
                                 "calDataIf.data.group11.memberValue.couplerLossHigh")
            .toString();
    }
    void StoreLoss(QJsonObject page, const char *group, const char *member, const char *db)
    {
        PutRow(page, group, member, {db});
        m_core.SetPathLossCalibrationData(ModelToText(page));
    }
    QString FirstLoss(const QJsonObject &page, const QString &group, const char *member)
    {
        return GetJsonValueConst(LossAnswer(page), group + ".memberValue." + member)
            .toArray()
            .first()
            .toString();
    }
    // The rounds of a write, as the target gets them.
    QVector<QByteArray> WriteAll()
    {
        VondSim_ClearJournal();
        Run([this] { m_core.DownloadToFlashStart({kApt, kPathLoss}); });
        QVector<QByteArray> rounds;
        for (const SJournalCall &call : JournalOf(kSetCalData))
            rounds.append(call.request);
        return rounds;
    }
};

// 16-bit words that differ: what was written first and then.
using Words = QMap<QPair<int, int>, QPair<int, int>>;  // round and offset -> before, after
Words WordsBetween(const QVector<QByteArray> &before, const QVector<QByteArray> &after)
{
    Words words;
    EXPECT_EQ(before.size(), after.size());
    for (int round = 0; round < qMin(before.size(), after.size()); ++round) {
        EXPECT_EQ(before[round].size(), after[round].size());
        for (int at = 0; at + 1 < qMin(before[round].size(), after[round].size()); at += 2) {
            int16_t was = 0, is = 0;
            std::memcpy(&was, before[round].constData() + at, sizeof was);
            std::memcpy(&is, after[round].constData() + at, sizeof is);
            if (was != is)
                words[{round, at}] = {was, is};
        }
    }
    return words;
}

TEST_F(CoreCalDocumentTest, RegionIsTheNumberBehindTheFirstTwoCharacters)
{
    StoreCoupler("7", "BW1", "3");
    EXPECT_EQ(Coupler("7", "BW1"), "3.00000");
    EXPECT_EQ(Coupler("7", "XY1"), "3.00000");
    EXPECT_EQ(Coupler("7", "BW0"), "0.00000");
    EXPECT_EQ(Coupler("8", "BW1"), "0.00000");
}

TEST_F(CoreCalDocumentTest, RegionThatNoRouteHasLeavesTheDocument)
{
    const std::string document = ModelToText(AptPage("7", "BW4"));
    m_core.SetAptCalibrationData(document);
    EXPECT_EQ(m_core.GetAptCalibrationData(document), document);
}

TEST_F(CoreCalDocumentTest, RouteTypeWith2PicksTheType2Record)
{
    StoreLoss(LossPage("Type1", "5"), "calDataIf.data.group1", "plOffset", "1");
    StoreLoss(LossPage("Type2", "5"), "calDataIf.data.group1", "plOffset", "2");
    EXPECT_EQ(FirstLoss(LossPage("Type1", "5"), "calDataIf.data.group1", "plOffset"), "1.00000");
    EXPECT_EQ(FirstLoss(LossPage("Type2", "5"), "calDataIf.data.group1", "plOffset"), "2.00000");
    EXPECT_EQ(FirstLoss(LossPage("Type1", "6"), "calDataIf.data.group1", "plOffset"), "0.00000");
}

TEST_F(CoreCalDocumentTest, AnotherGenerationAnswersNothingAndStoresNothing)
{
    Plug("gen0");
    StoreCoupler("7", "BW0", "3");
    StoreLoss(LossPage("Type1", "5"), "calDataIf.data.group1", "plOffset", "1");
    EXPECT_EQ(m_core.GetAptCalibrationData(ModelToText(AptPage("7", "BW0"))), "");
    EXPECT_EQ(m_core.GetPathLossCalibrationData(ModelToText(LossPage("Type1", "5"))), "");
    EXPECT_FALSE(m_core.GetCalibrationData(ECalItem::Apt, AptPage("7", "BW0")));
    EXPECT_FALSE(m_core.GetCalBase(ECalItem::Apt, AptPage("7", "BW0")));
    Plug("handset");
    EXPECT_EQ(Coupler("7", "BW0"), "0.00000");
    EXPECT_EQ(FirstLoss(LossPage("Type1", "5"), "calDataIf.data.group1", "plOffset"), "0.00000");
}

TEST_F(CoreCalDocumentTest, ARecordThatNeverCameInHasNoBase)
{
    StoreCoupler("1", "BW0", "3");
    EXPECT_FALSE(m_core.GetCalBase(ECalItem::Apt, AptPage("1", "BW0")));
    Run([this] { m_core.UploadFromFlashStart({kApt}); });
    EXPECT_TRUE(m_core.GetCalBase(ECalItem::Apt, AptPage("1", "BW0")));
}

TEST_F(CoreCalDocumentTest, ACopyOntoARecordThatNeverCameInIsShownAndNotWritten)
{
    QJsonObject page = AptPage("1", "BW0");
    Put(page, kCoupler, {{"couplerLossHigh", "3"}});
    const CalChange change = m_core.CopyCalRecord(ECalItem::Apt, page, {{.route = 2, .region = 0}});
    ASSERT_TRUE(change);
    EXPECT_EQ(Coupler("2", "BW0"), "3.00000");
    EXPECT_TRUE(WriteAll().isEmpty());
    m_core.ApplyCalChange(ECalItem::Apt, page, *change, ECalWay::Back);
    EXPECT_EQ(Coupler("2", "BW0"), "0.00000");
}

TEST_F(CoreCalDocumentTest, AChangeOfAnEarlierConnectionIsNotTakenBack)
{
    StoreCoupler("1", "BW0", "3");
    const CalChange change =
        m_core.CopyCalRecord(ECalItem::Apt, AptPage("1", "BW0"), {{.route = 2, .region = 0}});
    ASSERT_TRUE(change);
    for (const char *profile : {"gen0", "handset"}) {
        Plug(profile);
        m_core.ResetTargetCache();
        StoreCoupler("2", "BW0", "5");
        m_core.ApplyCalChange(ECalItem::Apt, AptPage("1", "BW0"), *change, ECalWay::Back);
    }
    EXPECT_EQ(Coupler("2", "BW0"), "5.00000");
}

TEST_F(CoreCalDocumentTest, StoringBeforeAnyReadMakesNothingValid)
{
    StoreCoupler("1", "BW0", "3");
    StoreLoss(LossPage("Type1", "1"), "calDataIf.data.group1", "plOffset", "1");
    EXPECT_TRUE(WriteAll().isEmpty());
}

// A job may hold the target for as long as that takes to answer. The calls below come back while
// another item's flow is held; what a waiting call would do here, the time limit of the test ends.
TEST_F(CoreCalDocumentTest, RecordsAreShownAndStoredWhileTheTargetWorksForAnotherItem)
{
    m_core.GetDataModel(kApt);
    m_core.GetDataModel(kPathLoss);
    const struct
    {
        const char *busy;
        std::function<void()> use;
    } cases[] = {{kPathLoss,
                  [this] {
                      StoreCoupler("7", "BW0", "3");
                      EXPECT_EQ(Coupler("7", "BW0"), "3.00000");
                  }},
                 {kApt, [this] {
                      StoreLoss(LossPage("Type1", "5"), "calDataIf.data.group1", "plOffset", "1");
                      EXPECT_EQ(
                          FirstLoss(LossPage("Type1", "5"), "calDataIf.data.group1", "plOffset"),
                          "1.00000");
                  }}};
    for (const auto &each : cases) {
        VondSim_Hold(kBlockInfo);
        m_core.UploadFromFlashStart({each.busy});
        ASSERT_EQ(VondSim_WaitUntilHeld(kBlockInfo, 20000), 1);
        const int before = CountCalls(kBlockInfo);
        each.use();
        EXPECT_EQ(CountCalls(kBlockInfo), before);
        VondSim_Release(kBlockInfo);
        WaitForPool();
    }
}

// What the page shows and stores again is what was there; edits under HPM and LPM, with another
// route and back between, are all that the flash gets.
TEST_F(CoreCalDocumentTest, EditsAreTheOnlyWordsThatAWriteChanges)
{
    Run([this] { m_core.UploadFromFlashStart({kApt, kPathLoss}); });
    const QVector<QByteArray> before = WriteAll();
    ASSERT_FALSE(before.isEmpty());

    const auto visit = [this](const SSelection &selection, const char *type, const char *route,
                              const QMap<QString, QStringList> &edits) {
        QJsonObject page = LossAnswer(LossPage(type, route, selection));
        for (auto edit = edits.begin(); edit != edits.end(); ++edit) {
            const QString group = "calDataIf.data." + edit.key().section('/', 0, 0);
            const QString path = group + ".memberValue." + edit.key().section('/', 1);
            QJsonArray texts = GetJsonValueConst(page, path).toArray();
            texts[edit.value()[0].toInt()] = edit.value()[1];
            EXPECT_TRUE(ModifyJsonValue(page, path, texts, 0));
        }
        m_core.SetPathLossCalibrationData(ModelToText(page));
    };
    visit({"HPM"}, "Type1", "1", {{"group2/lna1", {"0", "7.75"}}});
    visit({"LPM"}, "Type1", "1", {{"group3/lna0", {"0", "-7.5"}}});
    visit({"HPM"}, "Type1", "2", {});
    visit({"HPM", 1, 2, 0}, "Type2", "101", {{"group5/main", {"0", "9.25"}}});
    visit({"HPM"}, "Type1", "1", {});
    QJsonObject apt = AptAnswer(AptPage("1", "BW0"));
    Put(apt, kCoupler, {{"couplerLossLow", "11.5"}});
    m_core.SetAptCalibrationData(ModelToText(apt));
    m_core.SetAptCalibrationData(ModelToText(AptAnswer(AptPage("1", "BW0"))));

    QList<int> written;
    for (const auto &word : WordsBetween(before, WriteAll()))
        written.append(word.second);
    std::sort(written.begin(), written.end());
    QList<int> expected{-240, 248, 296};
    // The coupler loss stands in each block of the route's region.
    while (expected.size() < written.size())
        expected.append(368);
    EXPECT_EQ(written, expected);
    EXPECT_GE(written.size(), 4);
    EXPECT_LE(written.size(), 7);
}

}  // namespace
