// The RF page table: page ids, page names, the document that each page starts from, and the driver
// that patches it with what the DUT can do.
//
// A page's name is what travels through the requests; the id is what the core switches on. Constant
// data, any thread.
//
//   PageName(EPageId::ContRx);        // "Continuous RX"
//   FindPage(EPageId::ContRx).resource;   // ":/NrContRxV7.json"
#pragma once

#include <QMap>
#include <QString>
#include <QStringList>

class CNrDataModelCapUpdater;
class QJsonObject;

enum class EPageId
{
    Rssi = 0,
    RssiScan = 1,
    ContRx = 2,
    RouteCalculator = 3,
    RxPathLoss = 4,
    RsrpForce = 5,
    RsrpNormal = 6,
    SingleToneTx = 7,
    PuschTxForce = 8,
    PuschTxNormal = 9,
    PrachTx = 10,
    PucchTx = 11,
    SrsTx = 12,
    AptProfile = 13,
    CcaBwCalculator = 14,
    ErrorPage = 15,  // end mark
};

struct SPageRow
{
    EPageId id;
    const char *name;
    const char *resource;  // null: the page has no document
    bool (CNrDataModelCapUpdater::*driver)(QJsonObject &document);
};

const SPageRow &FindPage(EPageId id);
QString PageName(EPageId id);
// Page name to page id, of all pages but the end mark.
QMap<QString, int> BuildPageMap();
// Class names of the pages that the tool shows, in the order of the tabs.
QStringList ShownPageClasses();
