// Wide tables of a calibration page that move as one.
//
// A table of 64 columns stands at its full width in a scroll area. Its row captions would go out of
// sight with the first columns, so they are pinned to the left edge, above the cells. All tables
// whose columns are the same frequencies scroll together. GUI thread; the connections live as long
// as the widgets.
//
//   PinRowCaptions(m_ui->m_mainPathArea, m_ui->calDataIf_data_group2_memberProperty_lna0);
//   AlignColumns({main, diversity});
//   ScrollTogether({frequencyBar, mainBar, diversityBar});
#pragma once

#include <QList>

class QScrollArea;
class QScrollBar;
class QTableWidget;

// table: the one inside of area, at its left edge.
void PinRowCaptions(QScrollArea *area, QTableWidget *table);
// The first one is always in sight.
void ScrollTogether(const QList<QScrollBar *> &bars);
// Gives all tables row captions of the same width, and columns that are wide enough for every value
// of all of them: their columns align.
void AlignColumns(const QList<QTableWidget *> &tables);
