// What the editor of a member makes of a text that it is given to show.
//
// An editor can hold less than a calibration record: a spin box stops at its limits, a combo box is
// empty for a text that it does not offer. A spin box whose limits follow another member goes to
// their middle when new ones come that its value does not fit. Who stores a page's document asks
// here what the page may have made of a record's own value, so that a value which nobody has edited
// is not changed by having been shown. Reads the document that it is made of, and keeps no part of
// it. Any thread.
//
//   CCalEditor editor(document, "calDataIf.data.group2.memberProperty.lna0");   // -30 to 30
//   editor.Shown("-29.50000");   // {"-29.50000"}
//   editor.Shown("-30.50000");   // {"-30.00000"}
#pragma once

#include <QJsonObject>
#include <QStringList>

class CCalEditor
{
public:
    CCalEditor(const QJsonObject &document, const QString &memberPath);

    // One text, or two of a number beyond limits that follow another member.
    QStringList Shown(const QString &text) const;

    const QString &DataType() const { return m_dataType; }
    // Limits or options as the document has them; undefined: none are known.
    const QJsonValue &Entry() const { return m_entry; }

private:
    QString m_dataType;
    bool m_isSubscriber = false;
    QJsonValue m_entry;  // limits or options; undefined: none are known
};
