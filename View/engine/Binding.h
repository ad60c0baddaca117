// What a page lends to its walks and to the group types: the document, the widgets, and who follows
// an editor.
//
// Made for one walk. GUI thread; the page outlives it.
//
//   const SBinding binding{.document = m_dataModel, .update = update, ...};
//   FindGroupType(1)->update(binding, path, widget);
#pragma once

#include <QJsonObject>
#include <QString>

class CChangeRecorder;
class CEditSession;
class CWidgetIndex;
class QWidget;

struct SBinding
{
    QJsonObject &document;      // the page's; Package writes its memberValue objects
    const QJsonObject &update;  // what Update and Append show; the document in other walks
    int modelInterface;         // EModelInterface
    const CWidgetIndex &index;  // of the page's widgets
    QWidget &page;              // has the slots that a data type names
    CEditSession &edits;        // watches the editors
    CChangeRecorder &changes;   // of the members

    // A path of a publish or subscribe list, with the interface's word in front.
    QString AbsolutePath(const QString &relativePath) const;
    // Writes a packaged value. The first member of a group makes the group's memberValue object.
    // False when the document has no such group.
    bool StoreMemberValue(const QString &path, const QJsonValue &value) const;
};
