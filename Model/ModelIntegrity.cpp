#include "Model/ModelIntegrity.h"

#include <QJsonArray>

#include "Model/JsonPath.h"
#include "Model/ModelLog.h"
#include "Model/ModelText.h"

namespace {

const QString kRecord = QStringLiteral("modelIntegrity");
const QString kFlag = QStringLiteral("modelIntegrity.integrity");
const QString kMessages = QStringLiteral("modelIntegrity.messageList");

void LogReport(const char *title, bool allCorrect, const QString &errorMes)
{
    qCDebug(lcModel) << title << allCorrect;
    qCDebug(lcModel) << "errorMes: " << errorMes;
}

}  // namespace

void InsertModelUpdateResult(QJsonObject &document, bool allCorrect, const QString &errorMes)
{
    qCDebug(lcModel) << "======> InsertModelUpdateResult";
    if (HasJsonValue(document, kRecord)) {
        qCDebug(lcModel) << "======> Has defined the modelIntegrity: remove it!";
        document.remove(kRecord);
    }
    LogReport("======> InsertModelUpdateResult allCorrect: ", allCorrect, errorMes);
    document.insert(kRecord, QJsonObject{{QStringLiteral("integrity"), allCorrect},
                                         {QStringLiteral("messageList"), QJsonArray{errorMes}}});
}

void AddModelUpdateResult(QJsonObject &document, bool allCorrect, const QString &errorMes)
{
    qCDebug(lcModel) << "AddModelUpdateResult";
    if (!HasJsonValue(document, kRecord)) {
        InsertModelUpdateResult(document, allCorrect, errorMes);
        return;
    }
    QJsonArray messages = GetJsonValueConst(document, kMessages).toArray();
    messages.append(errorMes);
    LogReport("======> AddModelUpdateResult allCorrect: ", allCorrect, errorMes);
    if (!allCorrect)
        ModifyJsonValue(document, kFlag, false, 0);
    ModifyJsonValue(document, kMessages, messages, 0);
}

std::string BuildEmptyModel(const QString &message)
{
    QJsonObject document{{QStringLiteral("emptyModel"), QString()}};
    InsertModelUpdateResult(document, false, message);
    return ModelToText(document);
}
