// Names, ids and documents of the pages.
#include "Controller/core/PageTable.h"

#include "tests/controller/core/CoreFixture.h"

namespace {

constexpr const char *kNames[] = {"RSSI",
                                  "RSSI Scan",
                                  "Continuous RX",
                                  "Route Calculator",
                                  "RX PathLoss",
                                  "RSRP Force Mode",
                                  "RSRP Normal Mode",
                                  "Single Tone TX",
                                  "PUSCH TX Force Mode",
                                  "PUSCH TX Normal Mode",
                                  "PRACH TX",
                                  "PUCCH TX",
                                  "SRS TX",
                                  "APT Profile",
                                  "CCA BW Calculator",
                                  "Error Page"};

// All pages that the tool shows, in the order of their tabs.
const QStringList kTabs = {
    "CNrRssiDockWidgetV7",       "CNrRxPathlossDockWidgetV7",    "CNrContRxDockWidgetV7",
    "CNrRsrpForceDockWidgetV7",  "CNrRsrpNormalDockWidgetV7",    "CNrSingleToneTxDockWidgetV7",
    "CNrAptProfileDockWidgetV7", "CNrPuschTxForcedDockWidgetV7", "CNrPuschTxNormalDockWidgetV7"};

class PageTableTest : public CCoreTest
{
};

TEST_F(PageTableTest, EveryPageHasItsNameByItsId)
{
    for (int id = 0; id < 16; ++id) {
        EXPECT_EQ(m_core.GetPageName(id), QString(kNames[id])) << id;
        EXPECT_EQ(static_cast<int>(FindPage(static_cast<EPageId>(id)).id), id);
    }
}

TEST_F(PageTableTest, EveryNameLeadsToItsPageAndAnyOtherToTheEndMark)
{
    for (int id = 0; id < 16; ++id)
        EXPECT_EQ(static_cast<int>(PageByName(kNames[id])), id) << kNames[id];
    for (const char *name : {"", "rssi", "RSSI ", "CNrRssiDockWidgetV7"})
        EXPECT_EQ(PageByName(name), EPageId::ErrorPage) << name;
}

TEST_F(PageTableTest, CalibrationItemsHaveTheirNames)
{
    EXPECT_EQ(m_core.GetCalItemName(0), QString("RX PathLoss"));
    EXPECT_EQ(m_core.GetCalItemName(1), QString("APT Profile"));
}

TEST_F(PageTableTest, GenerationOneHasNinePagesInTheOrderOfTheTabs)
{
    EXPECT_EQ(m_core.GetAllSupportPage(), kTabs);
}

TEST_F(PageTableTest, OtherGenerationHasNoPages)
{
    for (const char *generation : {"0", "2", "255"}) {
        PlugHandsetWith(std::string("\"generation\": ") + generation);
        EXPECT_EQ(m_core.GetAllSupportPage(), QStringList()) << generation;
    }
    Plug("gen0");
    EXPECT_EQ(m_core.GetAllSupportPage(), QStringList());
}

TEST_F(PageTableTest, UnreadableGenerationHasNoPages)
{
    Fault(kNrCapability);
    EXPECT_EQ(m_core.GetAllSupportPage(), QStringList());
}

TEST_F(PageTableTest, PageListIsReadFromTheTargetOnce)
{
    m_core.GetAllSupportPage();
    m_core.GetAllSupportPage();
    EXPECT_EQ(CountCalls(kNrCapability), 1);
}

}  // namespace
