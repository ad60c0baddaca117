// What the tool has, for a person who reads it in a terminal. Ends with a line break.
//
//   DescribeToolText(bench);
//   RSSI             CNrRssiDockWidgetV7
//   Continuous RX    CNrContRxDockWidgetV7
#pragma once

#include <QString>

class CBench;
class CBenchPage;

QString DescribeToolText(const CBench &bench);
QString DescribePageText(const CBenchPage &page);
