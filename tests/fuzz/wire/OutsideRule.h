// What holds of every response: it is written to its section alone.
#pragma once

#include <QJsonObject>

// Ends the process when the documents differ elsewhere than in this section of the root; notes on what
// could not be read are let through.
void CheckOutside(const QJsonObject &before, const QJsonObject &after, const char *root,
                  const char *section);
