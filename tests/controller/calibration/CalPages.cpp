#include "tests/controller/calibration/CalPages.h"

#include <algorithm>

#include <gtest/gtest.h>

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>

#include "Model/ModelResources.h"

namespace {

constexpr int kColumnTable = 3;

// What a number given as such reads as: an empty text, and so 0.
QString GivenText(const QJsonValue &value)
{
    return value.isString() ? value.toString() : QStringLiteral("0");
}

QString EditorText(const QJsonObject &trait, const QString &text)
{
    const QString type = trait["dataType"].toString();
    const QJsonValue entry = trait["value"];
    if (type == "list")
        return entry.toArray().contains(text) ? text : QString();
    const QJsonObject limits = entry.toObject();
    if (limits.isEmpty())
        return text;
    const double held =
        std::clamp(text.toDouble(), limits["min"].toDouble(), limits["max"].toDouble());
    return QString::number(held, 'f', type == "range" ? 0 : 5);
}

QJsonValue PackagedMember(const QJsonObject &trait, bool table, int columns, EEditors editors)
{
    const auto packaged = [&](const QJsonValue &given) {
        const QString text = GivenText(given);
        return editors == EEditors::None ? text : EditorText(trait, text);
    };
    if (!table)
        return packaged(trait["defaultValue"]);
    const QJsonArray given = trait["defaultValue"].toArray();
    QJsonArray texts;
    for (int i = 0; i < columns; ++i)
        texts.append(packaged(given.at(std::min(i, given.size() - 1))));
    return texts;
}

}  // namespace

QJsonObject CalPage(const char *name)
{
    InitModelResources();
    QFile file(QStringLiteral(":/%1.json").arg(name));
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << name;
    return QJsonDocument::fromJson(file.readAll()).object();
}

QJsonObject Packaged(QJsonObject document, EEditors editors)
{
    QJsonObject sections = document["calDataIf"].toObject();
    for (const QString &section : sections.keys()) {
        QJsonObject groups = sections[section].toObject();
        for (const QString &key : groups.keys()) {
            QJsonObject group = groups[key].toObject();
            const QJsonObject members = group["memberProperty"].toObject();
            const bool table = group["groupType"].toInt() == kColumnTable;
            QJsonObject values = group["memberValue"].toObject();
            for (const QJsonValue &member : group["memberList"].toArray()) {
                if (section == "config" && values.contains(member.toString()))
                    continue;  // the selection is the user's
                values[member.toString()] =
                    PackagedMember(members[member.toString()].toObject()["trait"].toObject(), table,
                                   members["dimentionCount"].toInt(), editors);
            }
            group["memberValue"] = values;
            groups[key] = group;
        }
        sections[section] = groups;
    }
    document["calDataIf"] = sections;
    return document;
}

void Select(QJsonObject &document, const SSelection &selection)
{
    Put(document, "calDataIf.config.group1",
        {{"powerMode", selection.powerMode},
         {"path", QString::number(selection.path)},
         {"type2GainModeIdx", QString("G%1").arg(selection.bigG)},
         {"freqIdx", QString::number(selection.freqIdx)}});
}

SAptRouteBwRecord ExtremeApt(unsigned seed, int frequencies)
{
    std::mt19937 random(seed);
    SAptRouteBwRecord record = {};
    record.band = 78;
    record.route = 7;
    FillExtreme(random, record.normalTempIndex);
    FillExtreme(random, record.paControlLevel);
    FillExtreme(random, record.paModeCount);
    FillExtreme(random, record.reserved7);
    for (SAptLevel &level : record.level) {
        FillExtreme(random, level.paMode);
        FillExtreme(random, level.dc2dcLevel);
        FillExtreme(random, level.usage256Qam);
        FillExtreme(random, level.reserved3);
        FillExtreme(random, level.prf);
        FillExtreme(random, level.paGain);
    }
    FillExtreme(random, record.paGainTempOffset);
    FillExtreme(random, record.powerDetectorTempOffset);
    FillExtreme(random, record.prfIndex);
    FillExtreme(random, record.couplerLoss);
    FillExtreme(random, record.paGain);
    FillExtreme(random, record.powerDetector);
    for (int i = 0; i < frequencies; ++i)
        record.freq[i] = i % 2 ? 1920000 + i : std::numeric_limits<uint32_t>::max() - i;
    record.blockCount = static_cast<uint32_t>((frequencies + 15) / 16);
    return record;
}
