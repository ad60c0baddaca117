// Gain modes: the choices of the RSSI page, the LNA columns of the path loss page.
#include "tests/controller/capability/UpdaterFixture.h"

namespace {

const QString kGroup1 = QStringLiteral("cmdIf.request.group1.memberProperty.");

// Rows of G0 to G6; those that are not named hold nothing.
std::string Mode(const std::string &t1, const std::string &t2)
{
    return R"({"t1": [)" + t1 + R"(], "t2": [)" + t2 + "]}";
}

const std::string kNoT1 = R"("000", "000", "000", "000", "000", "000", "000")";
const std::string kNoT2 =
    R"("000 000 000", "000 000 000", "000 000 000", "000 000 000", "000 000 000", "000 000 000",
       "000 000 000")";

class RxGainTest : public CUpdaterTest
{
protected:
    void PlugGain(const std::string &hpm, const std::string &lpm)
    {
        PlugKeys(R"("gain": {"hpm": )" + hpm + R"(, "lpm": )" + lpm + "}");
    }
    QJsonObject Rssi(const char *member)
    {
        return At(Patched(EPageId::Rssi), kGroup1 + member + ".trait.valuePair").toObject();
    }
};

TEST_F(RxGainTest, ModeWithoutASupportedGainHasAnEmptyListNotAnAbsentKey)
{
    PlugGain(Mode(kNoT1, kNoT2), Mode(kNoT1, kNoT2));
    const QJsonObject path0 = Rssi("path0MainSearch");
    const QJsonObject path1 = Rssi("path1MainSearch");
    EXPECT_TRUE(m_isDone);
    EXPECT_EQ(path0.size(), 2 * 7 * 2);
    EXPECT_EQ(path1.size(), 2 * 7 * 8);
    for (const QJsonValue &modes : path0)
        EXPECT_EQ(modes, QJsonArray());
    for (const char *powerMode : {"HPM", "LPM"}) {
        for (int i = 0; i < 7; ++i) {
            const QString alone = QString("%1,Partial-On Path1,G%2,").arg(powerMode).arg(i);
            const QString both = QString("%1,Simultaneously,G%2,").arg(powerMode).arg(i);
            EXPECT_EQ(path1.value(alone), QJsonArray());
            EXPECT_EQ(path1.value(both), QJsonValue(""));
            for (const char *g : {"g0", "g1", "g2"}) {
                EXPECT_EQ(path1.value(alone + g), QJsonArray());
                EXPECT_EQ(path1.value(both + g), QJsonArray());
            }
        }
    }
}

TEST_F(RxGainTest, EveryValueOfPath0AnswersWithTheSameListWhilePath1RunsAlone)
{
    PlugGain(Mode(R"("101", "000", "000", "000", "000", "000", "010")", kNoT2),
             Mode(R"("010", "000", "000", "000", "000", "000", "111")", kNoT2));
    const QJsonObject path0 = Rssi("path0DivSearch");
    const QJsonObject path1 = Rssi("path1DivSearch");
    EXPECT_EQ(path0.value("HPM,Partial-On Path0,G0"), Names({"g0", "g2"}));
    EXPECT_EQ(path0.value("LPM,Partial-On Path0,G6"), Names({"g0", "g1", "g2"}));
    for (const char *end : {"", "g0", "g1", "g2"}) {
        EXPECT_EQ(path1.value(QString("HPM,Partial-On Path1,G0,") + end), Names({"g0", "g2"}));
        EXPECT_EQ(path1.value(QString("LPM,Partial-On Path1,G0,") + end), Names({"g1"}));
        EXPECT_EQ(path1.value(QString("HPM,Partial-On Path1,G6,") + end), Names({"g1"}));
    }
}

TEST_F(RxGainTest, BothPathsOfferWhatHasAPartner)
{
    const std::string t2 =
        R"("000 000 000", "011 000 101", "000 000 000", "000 000 000", "000 000 000",
           "000 000 000", "000 000 000")";
    PlugGain(Mode(kNoT1, t2), Mode(kNoT1, kNoT2));
    const QJsonObject path0 = Rssi("path0MainSearch");
    const QJsonObject path1 = Rssi("path1MainSearch");
    EXPECT_EQ(path0.value("HPM,Simultaneously,G1"), Names({"g0", "g2"}));
    EXPECT_EQ(path0.value("LPM,Simultaneously,G1"), QJsonArray());
    EXPECT_EQ(path1.value("HPM,Simultaneously,G1,g0"), Names({"g1", "g2"}));
    EXPECT_EQ(path1.value("HPM,Simultaneously,G1,g1"), QJsonArray());
    EXPECT_EQ(path1.value("HPM,Simultaneously,G1,g2"), Names({"g0", "g2"}));
    EXPECT_EQ(path1.value("HPM,Simultaneously,G1,"), QJsonValue(""));
}

// A page with one member that takes whatever the step writes.
QJsonObject GainPage()
{
    const QJsonObject trait{{"valuePair", "sample"}, {"defaultValue", "sample"}};
    return {{"g", QJsonObject{
                      {"memberProperty", QJsonObject{{"path0", QJsonObject{{"trait", trait}}},
                                                     {"path1", QJsonObject{{"trait", trait}}}}}}}};
}

TEST_F(RxGainTest, DefaultsAreWrittenOnlyWhereAPageAsksForThem)
{
    SRxGainInfoPathV7 path;
    QJsonObject document = GainPage();
    EXPECT_TRUE(m_updater.UpdateRSSIGainInfoV7(document, path));
    EXPECT_EQ(document, GainPage());

    path.path0DefaultPaths = DefaultOf("g", "path0");
    path.path1DefaultPaths = DefaultOf("g", "path1");
    EXPECT_TRUE(m_updater.UpdateRSSIGainInfoV7(document, path));
    EXPECT_EQ(At(document, "g.memberProperty.path0.trait.valuePair"), QJsonValue("sample"));
    EXPECT_EQ(At(document, "g.memberProperty.path0.trait.defaultValue"), QJsonValue("g0"));
    EXPECT_EQ(At(document, "g.memberProperty.path1.trait.defaultValue"), QJsonValue(""));
}

TEST_F(RxGainTest, DefaultOfPath0IsTheFirstGainOfTheHighPowerModeAlone)
{
    const std::string lateT1 = R"("000", "000", "001", "100", "000", "000", "000")";
    PlugGain(Mode(lateT1, kNoT2),
             Mode(R"("010", "000", "000", "000", "000", "000", "000")", kNoT2));
    SRxGainInfoPathV7 path;
    path.path0DefaultPaths = DefaultOf("g", "path0");
    QJsonObject document = GainPage();
    EXPECT_TRUE(m_updater.UpdateRSSIGainInfoV7(document, path));
    EXPECT_EQ(At(document, "g.memberProperty.path0.trait.defaultValue"), QJsonValue("g2"));
    PlugGain(Mode(kNoT1, kNoT2), Mode(lateT1, kNoT2));
    EXPECT_TRUE(m_updater.UpdateRSSIGainInfoV7(document, path));
    EXPECT_EQ(At(document, "g.memberProperty.path0.trait.defaultValue"), QJsonValue(""));
}

TEST_F(RxGainTest, DefaultsOfTheRssiPageStayTheTemplates)
{
    const QJsonObject document = Patched(EPageId::Rssi);
    for (const char *member :
         {"path0DivSearch", "path0MainSearch", "path1DivSearch", "path1MainSearch"}) {
        const QString path = kGroup1 + member + ".trait.defaultValue";
        EXPECT_EQ(At(document, path), At(TemplateOf(EPageId::Rssi), path)) << member;
    }
}

const QString kMain = QStringLiteral("calDataIf.data.group2.memberProperty.lna");
const QString kDiv = QStringLiteral("calDataIf.data.group3.memberProperty.lna");
const QString kPartialOn =
    QStringLiteral("calDataIf.data.group5.memberProperty.colFieldCaptionList");
const QString kChoices =
    QStringLiteral("calDataIf.config.group1.memberProperty.scGainInfo.trait.valuePair.");

TEST_F(RxGainTest, CaptionsFollowTheHighPowerModeAlone)
{
    PlugGain(Mode(R"("001", "000", "000", "010", "000", "000", "000")", kNoT2),
             Mode(R"("100", "100", "100", "100", "100", "100", "110")", kNoT2));
    const QJsonObject document = Patched(EPageId::RxPathLoss);
    EXPECT_TRUE(m_isDone);
    for (const QString &lna : {kMain, kDiv}) {
        EXPECT_EQ(At(document, lna + "0.caption"), QJsonValue("G0,g2"));
        EXPECT_EQ(At(document, lna + "1.caption"), QJsonValue("G3,g1"));
        EXPECT_EQ(At(document, lna + "2.caption"),
                  At(TemplateOf(EPageId::RxPathLoss), lna + "2.caption"));
    }
    EXPECT_EQ(At(document, kPartialOn), Names({"G0,g2", "G3,g1"}));
    EXPECT_EQ(At(document, kChoices + "HPM"), Names({"G0,g2", "G3,g1"}));
    EXPECT_EQ(At(document, kChoices + "LPM"),
              Names({"G0,g0", "G1,g0", "G2,g0", "G3,g0", "G4,g0", "G5,g0", "G6,g0", "G6,g1"}));
}

TEST_F(RxGainTest, NinthHighPowerGainGetsNoCaptionAndStopsThePage)
{
    PlugGain(Mode(R"("111", "111", "111", "000", "000", "000", "000")", kNoT2),
             Mode(R"("100", "000", "000", "000", "000", "000", "000")", kNoT2));
    QJsonObject expected = ExpectedOf(EPageId::RxPathLoss);
    const QJsonObject page = TemplateOf(EPageId::RxPathLoss);
    for (int n = 0; n < 8; ++n) {
        const QString caption = QString("G%1,g%2").arg(n / 3).arg(n % 3);
        Set(expected, kMain + QString::number(n) + ".caption", caption);
        Set(expected, kDiv + QString::number(n) + ".caption", caption);
    }
    for (const QString &path : {kPartialOn, kChoices + "HPM", kChoices + "LPM"})
        Set(expected, path, At(page, path));
    expected.insert("modelIntegrity", Failed({"LNA mode number is over the current limitation 8"}));
    EXPECT_EQ(Differences(Patched(EPageId::RxPathLoss), expected), "");
    EXPECT_FALSE(m_isDone);
}

TEST_F(RxGainTest, NinthLowPowerGainStopsThePageWhereItStands)
{
    // The ninth stands at G2,g2, where the high power mode has shown one of its two.
    PlugGain(Mode(R"("000", "010", "000", "001", "000", "000", "000")", kNoT2),
             Mode(R"("111", "111", "111", "000", "000", "000", "000")", kNoT2));
    const QJsonObject page = TemplateOf(EPageId::RxPathLoss);
    const QJsonObject document = Patched(EPageId::RxPathLoss);
    EXPECT_FALSE(m_isDone);
    EXPECT_EQ(Messages(document), QStringList("LNA mode number is over the current limitation 8"));
    EXPECT_EQ(At(document, kMain + "0.caption"), QJsonValue("G1,g1"));
    EXPECT_EQ(At(document, kDiv + "0.caption"), QJsonValue("G1,g1"));
    EXPECT_EQ(At(document, kMain + "1.caption"), At(page, kMain + "1.caption"));
    EXPECT_EQ(At(document, kPartialOn), At(page, kPartialOn));
}

TEST_F(RxGainTest, DutWithoutGainsShowsNoLnaChoices)
{
    PlugGain(Mode(kNoT1, kNoT2), Mode(kNoT1, kNoT2));
    const QJsonObject document = Patched(EPageId::RxPathLoss);
    EXPECT_TRUE(m_isDone);
    EXPECT_EQ(At(document, kPartialOn), QJsonArray());
    EXPECT_EQ(At(document, kChoices + "HPM"), QJsonArray());
    EXPECT_EQ(At(document, kMain + "0.caption"),
              At(TemplateOf(EPageId::RxPathLoss), kMain + "0.caption"));
}

}  // namespace
