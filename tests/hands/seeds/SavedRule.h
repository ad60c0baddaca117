// What was saved stays: a file of the user's changes when he saves over it and not else, and is whole
// whatever becomes of the save. Backups never change.
//
// Looks at all files of a folder whenever the tool is at rest.
#pragma once

#include <QDateTime>
#include <QMap>
#include <QSet>

#include "tests/hands/desk/Desk.h"
#include "tests/hands/rules/Rule.h"

class CSavedRule : public IRule
{
public:
    explicit CSavedRule(CDesk &desk);

    const char *Name() const override { return "saved"; }
    QString After(const SDeed &deed) override;

    int Files() const { return m_files.size(); }

private:
    struct SFile
    {
        qint64 size = 0;
        QDateTime changed;
    };
    QMap<QString, SFile> Look() const;
    QString Check(const QString &file) const;
    bool IsBesideExport(const QString &file) const;

    CDesk &m_desk;
    QMap<QString, SFile> m_files;  // by path
    QSet<QString> m_settings;      // saved by the user himself
};
