// Small data model documents for the tests of the binding engine.
//
// A document starts empty and gets a group with each first member of it. JSON is written with
// single quotes. Members of scalar groups and column tables are supported and enabled unless their
// text says otherwise; members of row tables have neither key.
//
//   CTestDocument document;
//   document.Member("request.group1.band", "{'trait':{'dataType':'list','value':['n1','n78']}}");
//   CTestPage page(document);
#pragma once

#include <string>

#include <QJsonArray>
#include <QJsonObject>
#include <QString>

#include "View/engine/AutoBindingDataModelDockWidget.h"

// An object or an array from JSON text with single quotes.
QJsonObject JsonObject(const QString &text);
QJsonArray JsonArray(const QString &text);

class CTestDocument
{
public:
    explicit CTestDocument(int modelInterface = eInterfaceCmdIf);

    // A group such as "request.group1"; keys are further keys of the group object.
    CTestDocument &Group(const QString &group, int groupType, const QString &keys = "{}");
    // A column table of so many columns; keys go into its memberProperty.
    CTestDocument &ColumnTable(const QString &group, int columns, const QString &keys = "{}");
    // A member such as "request.group1.band", appended to its group's memberList.
    CTestDocument &Member(const QString &member, const QString &json);
    CTestDocument &Member(const QString &member, const QJsonObject &json);
    // A key of the document's root.
    CTestDocument &Root(const QString &key, const QJsonValue &value);

    int ModelInterface() const { return m_modelInterface; }
    QString Word() const;  // "cmdIf" or "calDataIf"
    // "request.group1.band" to "cmdIf_request_group1_memberProperty_band".
    QString ObjectName(const QString &member) const;
    QJsonObject Json() const;
    std::string Text() const;

private:
    QJsonObject GroupObject(const QString &group) const;
    void SetGroupObject(const QString &group, const QJsonObject &object);

    int m_modelInterface;
    QJsonObject m_sections;
    QJsonObject m_root;
};
