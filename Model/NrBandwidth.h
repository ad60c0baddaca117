// The width of an NR channel, by the texts that the pages have for it.
//
// "20M" is a bandwidth in MHz; "106 RB" a transmission bandwidth, whose channel bandwidth goes by the SCS
// (3GPP TS 38.101-1, table 5.3.2-1). Pure function.
//
//   ChannelKhz("20M", 15);      // 20000
//   ChannelKhz("51 RB", 30);    // 20000
#pragma once

#include <optional>

#include <QString>

// None: the text is neither, or the table has no such number of RB.
std::optional<double> ChannelKhz(const QString &text, int scsKhz);
