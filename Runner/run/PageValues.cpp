#include "Runner/run/PageValues.h"

#include <QJsonDocument>

QJsonObject PackagedInputs(const QString &documentText)
{
    const QJsonObject document = QJsonDocument::fromJson(documentText.toUtf8()).object();
    QJsonObject inputs;
    for (const char *interface : {"cmdIf", "calDataIf"}) {
        const QJsonObject sections = document.value(QLatin1String(interface)).toObject();
        for (const char *section : {"request", "config"}) {
            const QJsonObject groups = sections.value(QLatin1String(section)).toObject();
            for (auto group = groups.begin(); group != groups.end(); ++group) {
                const QJsonObject values = group.value().toObject().value("memberValue").toObject();
                for (auto value = values.begin(); value != values.end(); ++value)
                    inputs.insert(QLatin1String(section) + ('.' + group.key()) + '.' + value.key(),
                                  value.value());
            }
        }
    }
    return inputs;
}

QVector<SCaseOutput> OutputsOf(const CBenchPage &page)
{
    QVector<SCaseOutput> outputs;
    for (const SBenchMember &member : page.Members())
        if (member.section == "response" || member.section == "data")
            outputs.append({member.Name(), member.caption, member.unit, false, member.values});
    for (const SBenchTable &table : page.Tables()) {
        if (!table.isResults || !table.isShown)
            continue;
        for (int column = 0; column < table.keys.size(); ++column) {
            SCaseOutput output{table.Name() + '.' + table.keys[column],
                               table.columns.value(column),
                               table.units.value(column),
                               true,
                               {}};
            for (const QStringList &row : table.values)
                output.values << row.value(column);
            outputs.append(output);
        }
    }
    return outputs;
}
