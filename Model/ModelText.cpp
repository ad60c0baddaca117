#include "Model/ModelText.h"

#include <atomic>

#include <QJsonDocument>

namespace {

thread_local SModelTextCount t_count;
std::atomic<int> s_parsed{0};
std::atomic<int> s_printed{0};

}  // namespace

QJsonObject ModelFromText(const std::string &text)
{
    ++t_count.parsed;
    ++s_parsed;
    const QByteArray bytes = QByteArray::fromRawData(text.data(), static_cast<int>(text.size()));
    return QJsonDocument::fromJson(bytes).object();
}

std::string ModelToText(const QJsonObject &document)
{
    ++t_count.printed;
    ++s_printed;
    return QJsonDocument(document).toJson(QJsonDocument::Compact).toStdString();
}

SModelTextCount ModelTextCountHere()
{
    return t_count;
}

SModelTextCount ModelTextCountInAll()
{
    return {.parsed = s_parsed.load(), .printed = s_printed.load()};
}
