// The text that the editor of a member shows when it is given a text.
//
// An editor can hold less than a calibration record. A spin box stops at its limits; a combo box
// stays empty for a text that it does not offer. A spin box whose limits follow another member goes
// to the middle of new limits when its value does not fit them. Storing a page asks here which
// texts the editor may show for a value of the record. If the page holds one of them, nobody has
// edited the value, and the record keeps it as it was. Reads the document; changes nothing. Any
// thread.
//
//   CCalEditor editor(document, "calDataIf.data.group2.memberProperty.lna0");   // -30 to 30
//   editor.Shown("-29.50000");   // {"-29.50000"}
//   editor.Shown("-30.50000");   // {"-30.00000"}
#pragma once

#include <QJsonObject>
#include <QStringList>

// The path of a member of a group, which is a path itself.
inline QString PropertyPath(const char *group, const QString &member)
{
    return QLatin1String(group) + QLatin1String(".memberProperty.") + member;
}

class CCalEditor
{
public:
    CCalEditor(const QJsonObject &document, const QString &memberPath);

    // One text; two for a number beyond limits that follow another member.
    QStringList Shown(const QString &text) const;

    const QString &DataType() const { return m_dataType; }
    // Limits or options as the document has them; undefined: none are known.
    const QJsonValue &Entry() const { return m_entry; }

private:
    QString m_dataType;
    bool m_isSubscriber = false;
    QJsonValue m_entry;  // limits or options; undefined: none are known
};
