#include "Model/ModelText.h"

#include <QJsonDocument>

QJsonObject ModelFromText(const std::string &text)
{
    const QByteArray bytes = QByteArray::fromRawData(text.data(), static_cast<int>(text.size()));
    return QJsonDocument::fromJson(bytes).object();
}

std::string ModelToText(const QJsonObject &document)
{
    return QJsonDocument(document).toJson(QJsonDocument::Compact).toStdString();
}
