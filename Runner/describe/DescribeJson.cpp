#include "Runner/describe/DescribeJson.h"

#include <QJsonArray>

#include "Runner/bench/Bench.h"
#include "Runner/bench/BenchPage.h"

namespace {

QJsonArray Array(const QStringList &texts)
{
    return QJsonArray::fromStringList(texts);
}

QJsonObject Head(const CBench &bench)
{
    return {{"tool", bench.ToolName()},
            {"version", bench.ToolVersion()},
            {"chip", bench.ChipName()},
            {"handle", static_cast<qint64>(bench.Handle())}};
}

QJsonObject ButtonJson(const SBenchButton &button)
{
    return {{"text", button.text},
            {"name", button.name},
            {"enabled", button.isEnabled},
            {"shown", button.isShown}};
}

void AddText(QJsonObject &object, const char *key, const QString &text)
{
    if (!text.isEmpty())
        object.insert(QLatin1String(key), text);
}

}  // namespace

QJsonObject MemberJson(const SBenchMember &member)
{
    QJsonObject json{
        {"name", member.Name()},     {"section", member.section},   {"group", member.group},
        {"key", member.key},         {"caption", member.caption},   {"type", member.type},
        {"input", member.IsInput()}, {"enabled", member.isEnabled}, {"shown", member.isShown}};
    AddText(json, "groupName", member.groupName);
    AddText(json, "unit", member.unit);
    AddText(json, "min", member.min);
    AddText(json, "max", member.max);
    AddText(json, "allowed", member.allowed);
    if (member.base != 10)
        json.insert("base", member.base);
    if (!member.choices.isEmpty() || member.type == QLatin1String("list"))
        json.insert("choices", Array(member.choices));
    if (member.isCells) {
        json.insert("columns", Array(member.columns));
        json.insert("values", Array(member.values));
    } else {
        json.insert("value", member.values.value(0));
    }
    return json;
}

QJsonObject TableJson(const SBenchTable &table)
{
    QJsonArray values;
    for (const QStringList &row : table.values)
        values.append(Array(row));
    QJsonObject json{{"name", table.Name()},      {"section", table.section},
                     {"group", table.group},      {"results", table.isResults},
                     {"shown", table.isShown},    {"columns", Array(table.columns)},
                     {"rows", Array(table.rows)}, {"values", values}};
    if (table.isResults) {
        json.insert("keys", Array(table.keys));
        json.insert("units", Array(table.units));
    }
    return json;
}

QJsonObject BoxJson(const SBenchBox &box)
{
    return {{"title", box.title},
            {"text", box.text},
            {"informative", box.informative},
            {"detail", box.detail}};
}

QJsonObject DescribeTool(const CBench &bench)
{
    QJsonArray pages;
    for (const CBenchPage *page : bench.Pages())
        pages.append(QJsonObject{
            {"title", page->Title()}, {"class", page->ClassName()}, {"front", page->IsInFront()}});
    QJsonObject json = Head(bench);
    json.insert("pages", pages);
    return json;
}

QJsonObject DescribePage(const CBench &bench, const CBenchPage &page)
{
    QJsonArray buttons;
    for (const SBenchButton &button : page.Buttons())
        buttons.append(ButtonJson(button));
    QJsonArray members;
    for (const SBenchMember &member : page.Members())
        members.append(MemberJson(member));
    QJsonArray tables;
    for (const SBenchTable &table : page.Tables())
        tables.append(TableJson(table));
    QJsonObject json = Head(bench);
    json.insert("page", QJsonObject{{"title", page.Title()},
                                    {"class", page.ClassName()},
                                    {"front", page.IsInFront()},
                                    {"buttons", buttons},
                                    {"members", members},
                                    {"tables", tables}});
    return json;
}
