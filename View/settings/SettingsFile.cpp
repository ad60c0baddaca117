#include "View/settings/SettingsFile.h"

#include <QJsonArray>
#include <QJsonDocument>

namespace {

constexpr int kMostBytes = 1024 * 1024;  // a page's settings take a few hundred
const QLatin1String kVersion("version");
const QLatin1String kPage("page");
constexpr const char *kSections[] = {"request", "config"};

bool IsValue(const QJsonValue &value)
{
    if (!value.isArray())
        return value.isString();
    for (const QJsonValue &cell : value.toArray()) {
        if (!cell.isString())
            return false;
    }
    return true;
}

// The first value that is neither a text nor a list of texts, by its name; empty when all are.
QString OddValue(const QJsonObject &groups)
{
    for (const QString &group : groups.keys()) {
        if (!groups[group].isObject())
            return group;
        const QJsonObject members = groups[group].toObject();
        for (const QString &member : members.keys()) {
            if (!IsValue(members[member]))
                return group + QLatin1Char('.') + member;
        }
    }
    return {};
}

QString WhyNot(const SSettingsFile &file, const QJsonObject &root)
{
    if (!root[kVersion].isDouble())
        return QStringLiteral("It has no version.");
    if (file.page.isEmpty())
        return QStringLiteral("It names no page.");
    if (file.section.isEmpty())
        return QStringLiteral("It has no settings.");
    const QString odd = OddValue(file.groups);
    return odd.isEmpty() ? QString() : QStringLiteral("%1 is no text.").arg(odd);
}

}  // namespace

QByteArray SettingsText(const SSettingsFile &file)
{
    const QJsonObject root{
        {kVersion, file.version}, {kPage, file.page}, {file.section, file.groups}};
    return QJsonDocument(root).toJson();
}

std::optional<SSettingsFile> ReadSettings(const QByteArray &bytes, QString &reason)
{
    if (bytes.size() > kMostBytes) {
        reason = QStringLiteral("It is too large for a settings file.");
        return std::nullopt;
    }
    QJsonParseError error{};
    const QJsonDocument document = QJsonDocument::fromJson(bytes, &error);
    if (!document.isObject()) {
        reason = error.error == QJsonParseError::NoError
                     ? QStringLiteral("It is no settings file.")
                     : QStringLiteral("It is no JSON: %1, at byte %2.")
                           .arg(error.errorString())
                           .arg(error.offset);
        return std::nullopt;
    }
    const QJsonObject root = document.object();
    SSettingsFile file{.version = root[kVersion].toInt(), .page = root[kPage].toString()};
    for (const char *section : kSections) {
        if (root[QLatin1String(section)].isObject()) {
            file.section = QLatin1String(section);
            file.groups = root[file.section].toObject();
        }
    }
    reason = WhyNot(file, root);
    return reason.isEmpty() ? std::optional(file) : std::nullopt;
}
