#include "Model/ModelText.h"

#include <QJsonDocument>

namespace {

thread_local SModelTextCount t_count;

}  // namespace

QJsonObject ModelFromText(const std::string &text)
{
    ++t_count.parsed;
    const QByteArray bytes = QByteArray::fromRawData(text.data(), static_cast<int>(text.size()));
    return QJsonDocument::fromJson(bytes).object();
}

std::string ModelToText(const QJsonObject &document)
{
    ++t_count.printed;
    return QJsonDocument(document).toJson(QJsonDocument::Compact).toStdString();
}

SModelTextCount ModelTextCount()
{
    return t_count;
}
