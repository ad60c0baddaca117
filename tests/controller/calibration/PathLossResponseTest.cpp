// From the record into the path loss page.
#include <gtest/gtest.h>

#include "Controller/calibration/CalResponseBuilder.h"
#include "Model/JsonPath.h"
#include "Model/ModelText.h"
#include "tests/controller/calibration/CalPages.h"
#include "tests/operations/TargetFixture.h"

namespace {

using Type1 = SMMType1PathlossByRouteV7;
using Type2 = SMMType2PathlossByRouteV7;

class PathLossResponseTest : public CTargetTest
{
protected:
    static QJsonObject Page(const SSelection &selection = {})
    {
        QJsonObject page = Packaged(CalPage(kPathLossPage), EEditors::None);
        Select(page, selection);
        return page;
    }
    static QJsonObject Shown(const QJsonObject &page, const Type1 &record)
    {
        return ModelFromText(CCalResponseBuilder().GetType1PathLossDataModelV7(page, record));
    }
    static QJsonObject Shown(const QJsonObject &page, const Type2 &record)
    {
        return ModelFromText(CCalResponseBuilder().GetType2PathLossDataModelV7(page, record));
    }
    static QStringList Cells(const QJsonObject &document, const QString &member)
    {
        QStringList texts;
        for (const QJsonValue &text :
             GetJsonValueConst(document, Path(member) + ".trait.defaultValue").toArray())
            texts.append(text.toString());
        return texts;
    }
    static QString Caption(const QJsonObject &document, const QString &member)
    {
        return GetJsonValueConst(document, Path(member) + ".caption").toString();
    }
    static QString Path(const QString &member)
    {
        return "calDataIf.data." + QString(member).replace('/', ".memberProperty.");
    }
    static void Remove(QJsonObject &document, const QString &member)
    {
        EXPECT_TRUE(RemoveJsonValue(
            document, "calDataIf.data." + member.section('/', 0, 0) + ".memberProperty",
            member.section('/', 1)));
    }
};

TEST_F(PathLossResponseTest, LnaRowsAreTheHalfOfThePowerMode)
{
    Type1 record = {};
    for (int subband = 0; subband < 64; ++subband) {
        for (int pair = 0; pair < 16; ++pair)
            record.loss[subband][pair] = {static_cast<int16_t>(-(subband * 16 + pair)),
                                          static_cast<int16_t>(subband * 16 + pair)};
    }
    for (const char *powerMode : {"HPM", "LPM"}) {
        const int sign = powerMode[0] == 'H' ? 1 : -1;
        const QJsonObject document = Shown(Page({powerMode}), record);
        for (int slot = 0; slot < 8; ++slot) {
            const QStringList main = Cells(document, QString("group2/lna%1").arg(slot));
            const QStringList div = Cells(document, QString("group3/lna%1").arg(slot));
            ASSERT_EQ(main.size(), 64);
            ASSERT_EQ(div.size(), 64);
            for (int i = 0; i < 64; ++i) {
                EXPECT_EQ(main[i].toDouble(), sign * (i * 16 + slot) / 32.0);
                EXPECT_EQ(div[i].toDouble(), sign * (i * 16 + 8 + slot) / 32.0);
            }
        }
        EXPECT_FALSE(document.contains("modelIntegrity"));
    }
}

TEST_F(PathLossResponseTest, NumbersHaveFiveDecimals)
{
    Type1 record = {};
    record.loss[0][0].hpm = -976;
    record.loss[1][0].hpm = 1;
    record.plOffset[7] = 32767;
    const QJsonObject document = Shown(Page(), record);
    EXPECT_EQ(Cells(document, "group2/lna0").mid(0, 3),
              QStringList({"-30.50000", "0.03125", "0.00000"}));
    EXPECT_EQ(Cells(document, "group1/plOffset").last(), "1023.96875");
    EXPECT_EQ(Cells(document, "group1/plOffset").size(), 8);
}

TEST_F(PathLossResponseTest, AnyPowerModeWithoutHIsLpm)
{
    Type1 record = {};
    record.loss[0][0] = {32, 64};
    for (const char *text : {"LPM", "", "AUTO"})
        EXPECT_EQ(Cells(Shown(Page({text}), record), "group2/lna0").first(), "1.00000") << text;
    EXPECT_EQ(Cells(Shown(Page({"HPM"}), record), "group2/lna0").first(), "2.00000");
}

TEST_F(PathLossResponseTest, CaptionsAreTheSetGainsOfThePowerModeAndNaBehindThem)
{
    for (int mode = 0; mode < 2; ++mode) {
        QStringList captions;
        const auto *gains = m_target.GetSupportRxGainInfoV7(ERadioKind::Nr, uint32_t(mode));
        ASSERT_NE(gains, nullptr);
        for (int i = 0; i < 7; ++i) {
            for (int j = 0; j < 3; ++j) {
                if (gains->t1[i][j] == 1)
                    captions.append(QString("G%1,g%2").arg(i).arg(j));
            }
        }
        ASSERT_FALSE(captions.isEmpty());
        ASSERT_LE(captions.size(), 8);
        while (captions.size() < 8)
            captions.append("NA");
        const QJsonObject document = Shown(Page({mode == 0 ? "HPM" : "LPM"}), Type1());
        for (int slot = 0; slot < 8; ++slot) {
            EXPECT_EQ(Caption(document, QString("group2/lna%1").arg(slot)), captions[slot]);
            EXPECT_EQ(Caption(document, QString("group3/lna%1").arg(slot)), captions[slot]);
        }
    }
}

TEST_F(PathLossResponseTest, SlotThatNoGainUsesIsCaptionedNa)
{
    PlugHandsetWith(R"("gain": {
        "hpm": {"t1": ["100", "000", "001", "000", "000", "000", "000"],
                "t2": ["000 000 000", "000 000 000", "000 000 000", "000 000 000",
                       "000 000 000", "000 000 000", "000 000 000"]},
        "lpm": {"t1": ["000", "000", "000", "000", "000", "000", "000"],
                "t2": ["000 000 000", "000 000 000", "000 000 000", "000 000 000",
                       "000 000 000", "000 000 000", "000 000 000"]}})");
    const QJsonObject hpm = Shown(Page({"HPM"}), Type1());
    EXPECT_EQ(Caption(hpm, "group2/lna0"), "G0,g0");
    EXPECT_EQ(Caption(hpm, "group3/lna1"), "G2,g2");
    const QJsonObject lpm = Shown(Page({"LPM"}), Type1());
    for (int slot = 0; slot < 8; ++slot) {
        EXPECT_EQ(Caption(lpm, QString("group3/lna%1").arg(slot)), "NA");
        if (slot > 1) {
            EXPECT_EQ(Caption(hpm, QString("group2/lna%1").arg(slot)), "NA");
        }
    }
}

TEST_F(PathLossResponseTest, All64FrequenciesAreShown)
{
    Type1 record = {};
    record.freq[0] = 2110000;
    record.freq[63] = 4294967295u;
    const QStringList cells = Cells(Shown(Page(), record), "group4/freq");
    EXPECT_EQ(cells.size(), 64);
    EXPECT_EQ(cells.first(), "2110000");
    EXPECT_EQ(cells[1], "0");
    EXPECT_EQ(cells.last(), "4294967295");
}

TEST_F(PathLossResponseTest, Type2TablesAreThoseOfTheSelection)
{
    Type2 record = {};
    for (int pair = 0; pair < 284; ++pair)
        record.loss[9][pair] = {static_cast<int16_t>(-32 * pair), static_cast<int16_t>(32 * pair)};
    const QJsonObject document = Shown(Page({"HPM", 1, 5, 9}), record);
    QStringList main, div;
    for (int slot = 0; slot < 8; ++slot) {
        main.append(QString("%1.00000").arg(8 + slot));
        div.append(QString("%1.00000").arg(142 + 8 + slot));
    }
    EXPECT_EQ(Cells(document, "group5/main"), main);
    EXPECT_EQ(Cells(document, "group5/div"), div);
    for (int n = 0; n < 3; ++n) {
        const int first = 16 + 3 * (21 + 5 * 3 + n);
        QStringList mainGain, divGain;
        for (int k = 0; k < 3; ++k) {
            mainGain.append(QString("%1.00000").arg(first + k));
            divGain.append(QString("%1.00000").arg(142 + first + k));
        }
        EXPECT_EQ(Cells(document, QString("group6/gain%1").arg(n)), mainGain);
        EXPECT_EQ(Cells(document, QString("group7/gain%1").arg(n)), divGain);
    }
    EXPECT_FALSE(document.contains("modelIntegrity"));
}

TEST_F(PathLossResponseTest, SelectionThatNoRecordHasLeavesTheTables)
{
    const auto record = ExtremeLoss<Type2>(1, 3);
    const QJsonObject page = Page({"HPM", 0, 0, 64});
    const QJsonObject document = Shown(page, record);
    EXPECT_EQ(Cells(document, "group5/main"), Cells(page, "group5/main"));
    EXPECT_EQ(Cells(document, "group6/gain0"), Cells(page, "group6/gain0"));
    EXPECT_EQ(Cells(document, "group1/plOffset").size(), 8);
}

// Each member gone in its turn: its message, and every other value as in the whole document.
TEST_F(PathLossResponseTest, FailedWriteIsReportedAndTheRestIsWritten)
{
    const struct
    {
        bool isType2;
        const char *member;
        const char *message;
    } rows[] = {
        {false, "group1/plOffset", "Update tempOffset failed"},
        {false, "group4/freq", "Update dl freq failed"},
        {false, "group2/lna0", "Update Main lna0 failed"},
        {false, "group3/lna7", "Update Div lna7 failed"},
        {true, "group1/plOffset", "Update tempOffset failed"},
        {true, "group4/freq", "Update dl freq failed"},
        {true, "group5/main", "Update Main partial-on failed"},
        {true, "group5/div", "Update Div partial-on failed"},
        {true, "group6/gain1", "Update Main gain1 failed"},
        {true, "group7/gain2", "Update Div gain2 failed"},
    };
    const auto type1 = ExtremeLoss<Type1>(2, 30);
    const auto type2 = ExtremeLoss<Type2>(3, 30);
    for (const auto &row : rows) {
        const auto shown = [&](const QJsonObject &page) {
            return row.isType2 ? Shown(page, type2) : Shown(page, type1);
        };
        QJsonObject page = Page();
        QJsonObject whole = shown(page);
        Remove(page, row.member);
        Remove(whole, row.member);
        EXPECT_EQ(ChangesBetween(whole, shown(page)), ReportsOf({row.message})) << row.member;
    }
}

TEST_F(PathLossResponseTest, WithoutTheSupportedGainsTheLossTablesStayAndTheRestIsShown)
{
    Plug("unplugged");
    const struct
    {
        QJsonObject page;
        bool isType2;
        const char *message;
    } rows[] = {
        {Page({"HPM"}), false, "Get gain hpm info failed"},
        {Page({"LPM"}), false, "Get gain lpm info failed"},
        {Page({"HPM"}), true, "Get gain info failed"},
    };
    for (const auto &row : rows) {
        const QJsonObject document = row.isType2 ? Shown(row.page, ExtremeLoss<Type2>(4, 20))
                                                 : Shown(row.page, ExtremeLoss<Type1>(4, 20));
        Changes changes = ChangesBetween(row.page, document);
        const Changes reports = ReportsOf({row.message});
        for (const auto &report : reports) {
            EXPECT_EQ(changes[report.first], report.second);
            changes.erase(report.first);
        }
        ASSERT_EQ(changes.size(), 2u) << row.message;
        EXPECT_EQ(changes.count(Path("group1/plOffset.trait.defaultValue").toStdString()), 1u);
        EXPECT_EQ(changes.count(Path("group4/freq.trait.defaultValue").toStdString()), 1u);
    }
}

}  // namespace
