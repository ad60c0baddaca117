// A bench on the simulated DUT, anew for each test: what an earlier one has left in the core is gone.
//
//   CBenchSession session("handset");
//   QCOMPARE(session.error.text, QString());
//   QVERIFY(!session.bench.FindPage("RSSI", nullptr)->Set("band", "n77"));
#pragma once

#include "Runner/bench/Bench.h"
#include "Runner/bench/BenchPage.h"
#include "tests/common/PluginSession.h"
#include "tests/common/SimJournal.h"

constexpr std::chrono::milliseconds kLong = std::chrono::seconds(20);

class CBenchSession
{
public:
    explicit CBenchSession(const QString &profile = "handset", uint32_t handle = 1)
    {
        {
            const CPluginSession fresh(profile, handle);
        }
        VondSim_SetProfile(profile.toUtf8().constData());
        VondSim_ClearJournal();
        error = bench.Open({.handle = handle});
    }

    ~CBenchSession()
    {
        bench.Close();
        VondSim_Reset();
    }

    CBenchPage *Page(const QString &name) const { return bench.FindPage(name, nullptr); }

    CBench bench;
    SBenchError error;
};

inline QString Text(const std::optional<SRefusal> &refusal)
{
    return refusal ? refusal->Text() : QString();
}
