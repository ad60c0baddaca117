// What the user has set on a page, as its document packages it.
//
//   SMemberSettings{1, "request", {{"group1", {{"band", "n78"}}}}}
#pragma once

#include <QJsonObject>
#include <QString>

struct SMemberSettings
{
    int version = 0;          // of the page's document
    QString section = {};     // "request", on a calibration page "config"
    QJsonObject groups = {};  // {"group1": {"band": "n78", ...}}; empty: there is no document
};
