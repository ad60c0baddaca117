// What a receiver page has to offer on the DUT that is plugged in, told from the DUT's own profile
// and the band tables of 3GPP alone.
//
// Made for tests that look at the widgets: nothing here comes from the tool. The profile names its
// bands, RX routes and RX limits itself (neither "base" nor "generate" stands in for them). Bands
// and routes are the texts of the widgets ("n78", "105"), frequencies are kHz. GUI or any thread.
//
//   VondSim_SetProfile("handset");
//   const CDutChoices dut;
//   dut.Routes("n78", "Type2");   // 105, 106, 107
#pragma once

#include <QJsonObject>
#include <QStringList>

struct SLimits
{
    int low = 0;   // kHz
    int high = 0;  // kHz
};

class CDutChoices
{
public:
    // Reads the profile in force.
    CDutChoices();

    // In the DUT's order, without those that have no downlink.
    QStringList Bands() const;
    // Type1 is always offered, Type2 where there are such routes.
    QStringList RouteTypes(const QString &band) const;
    QStringList Routes(const QString &band, const QString &routeType) const;
    // Channel bandwidths ("5M").
    QStringList Bandwidths(const QString &band) const;
    // Limits that the DUT declares for the route, otherwise those of the band's downlink. A route
    // of several bands has those of the last one.
    SLimits Limits(const QString &route) const;

private:
    SLimits LimitsOn(const QString &band, const QString &route) const;

    QJsonObject m_profile;
    QJsonObject m_bandTables;
};
