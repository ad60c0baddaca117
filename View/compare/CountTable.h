// Counts of differences in a table widget: name, how many, and the largest where there is one.
// GUI thread.
//
//   FillCountTable(m_ui->m_routes, "Route", differences.Routes());
#pragma once

#include <QString>
#include <QVector>

#include "Model/CalDifferences.h"

class QTableWidget;

// Replaces what the table shows. The column of the largest is there when some count has one.
void FillCountTable(QTableWidget *table, const QString &heading, const QVector<SCalCount> &counts);
