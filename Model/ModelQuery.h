// Questions about a packaged document.
//
// Pure reads of a document that the caller owns, on any thread; logged at debug level.
//
//   GetUiIndexByMemberValue(document, "cmdIf.request.group1.memberValue.lpmHpmConf");
//       // 2 for "AUTO"
#pragma once

#include <QJsonObject>
#include <QString>

// Position of a packaged value in the list that its combo box had shown, or -1: the member is no
// list, the value is not in it, or the list depends on several publishers (subscribeValueList). A
// caller that indexes a table with the answer must guard -1.
int GetUiIndexByMemberValue(QJsonObject document, const QString &memberValuePath);
