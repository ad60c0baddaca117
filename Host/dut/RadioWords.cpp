#include "Host/dut/RadioWords.h"

#include <QStringList>

namespace {

struct STestName
{
    const char *test = "";
    const char *words = "";
};

constexpr STestName kTestNames[] = {
    {.test = "ContRx", .words = "Continuous RX"},
    {.test = "SingleToneTx", .words = "Single Tone TX"},
    {.test = "PuschTx", .words = "PUSCH TX"},
    {.test = "Rsrp", .words = "RSRP"},
};

QString TestWords(const QString &test)
{
    for (const STestName &name : kTestNames) {
        if (test == QLatin1String(name.test))
            return name.words;
    }
    return test;
}

QString MHz(uint32_t kHz)
{
    return QString::number(kHz / 1000.0, 'f', 3) + " MHz";
}

// 23 as "23", 22.75 as "22.75".
QString Dbm(double power)
{
    return QString::number(power, 'g', 6) + " dBm";
}

QString Elapsed(uint64_t elapsedNs)
{
    const uint64_t seconds = elapsedNs / 1000000000;
    const QLatin1Char zero('0');
    const QString tail = QString("%1").arg(seconds % 60, 2, 10, zero);
    if (seconds < 3600)
        return QString("%1:%2").arg(seconds / 60).arg(tail);
    return QString("%1:%2:%3").arg(seconds / 3600).arg(seconds / 60 % 60, 2, 10, zero).arg(tail);
}

}  // namespace

QString RadioWords(const SVondSimRadioState &state)
{
    if (!state.isPlugged)
        return "Radio: no DUT is plugged in";
    const QString test = QString::fromUtf8(state.test);
    if (test.isEmpty())
        return "Radio: idle";
    QStringList parts = {"Radio: " + TestWords(test), QString("n%1").arg(state.band)};
    const bool isBoth = state.isReceiving && state.isTransmitting;
    if (state.isReceiving)
        parts << (isBoth ? "RX " : "") + MHz(state.downlinkKhz);
    if (state.isTransmitting)
        parts << (isBoth ? "TX " : "") + MHz(state.uplinkKhz) << Dbm(state.powerDbm);
    return parts.join(", ");
}

QString RunningWords(const SVondSimRadioState &state)
{
    if (state.test[0] == '\0')
        return {};
    QStringList parts = {"Running for " + Elapsed(state.elapsedNs)};
    if (state.route != 0)
        parts << QString("route %1").arg(state.route);
    if (state.isTransmitting)
        parts << QString::number(state.outputDbm, 'f', 1) + " dBm at the connector";
    return parts.join(", ");
}
