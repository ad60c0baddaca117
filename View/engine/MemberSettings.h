// What the user has set on a page, as its document packages it: the form of a settings file.
//
//   PackagedValues(document, "cmdIf.request");   // {"group1": {"band": "n78", ...}, ...}
#pragma once

#include <QJsonObject>
#include <QString>

struct SMemberSettings
{
    int version = 0;          // of the page's document
    QString section = {};     // "request", on a calibration page "config"
    QJsonObject groups = {};  // as of PackagedValues; empty: there is no document
};

// The packaged values of a section, by group; groups without any are left out.
QJsonObject PackagedValues(const QJsonObject &document, const QString &section);
