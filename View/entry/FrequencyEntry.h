// What a page's frequency editors offer beside typing kHz: "Enter a frequency..." in any form
// (FrequencyDialog.h), and for a row of channels "Spread channels evenly" over the band.
//
// The actions stand in the actions() of the editor or the table, and so in their context menus. The
// band, the SCS and the bandwidth are those that the page shows. GUI thread; call it once a page.
//
//   AddFrequencyEntry(page);
#pragma once

class CAutoBindingDataModelDockWidget;

void AddFrequencyEntry(CAutoBindingDataModelDockWidget *page);
