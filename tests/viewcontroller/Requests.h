// All requests of the view controller as one table: what each asks of the core, and how the answer
// comes back.
//
//   const SRequest &request = AllRequests()[row];
//   const std::string document = request.Document();
//   request.make(ctrl, document);
#pragma once

#include <functional>

#include <QStringList>
#include <QVariant>
#include <QVector>

#include "Controller/core/NrCore.h"
#include "ViewController/QuorlinViewCtrl.h"

struct SRequest
{
    const char *internalName;  // as it is logged
    const char *signal;
    const char *function;  // the one target call, "" for none; null: whatever the core needs
    const char *page;      // whose document goes along; null: none
    std::function<void(CQuorlinViewCtrl &ctrl, const std::string &document)> make;
    // The same asked of the core itself: what the signal has to carry, in words.
    std::function<QStringList(CNrCore &core, const std::string &document)> core;

    // Asks the core for it: not while a test holds the core.
    std::string Document() const;
};

const QVector<SRequest> &AllRequests();

// Arguments of a signal in words.
QStringList Words(const QVariantList &arguments);
