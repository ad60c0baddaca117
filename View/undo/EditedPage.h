// What undo needs of the page that it works for. GUI thread.
//
// A selection is the texts of the page's selectors, in the order in which they publish. A call that
// shows something may take the page away: who calls guards itself with a QPointer.
#pragma once

#include <QJsonObject>
#include <QStringList>

#include "ViewController/QuorlinViewCtrl.h"

class CChangeRecorder;
class QWidget;

class IEditedPage
{
public:
    virtual ~IEditedPage() = default;

    virtual QWidget *Widget() = 0;
    virtual CChangeRecorder &Recorder() = 0;
    virtual ECalItem Item() const = 0;
    virtual CQuorlinViewCtrl &Ctrl() = 0;

    // The edit under way ends.
    virtual void EndEdit() = 0;
    virtual QStringList Selection() const = 0;
    // Chooses it in the selectors, one after the other, so that their relations run. False when the
    // page has no such selection, or is gone.
    virtual bool ShowSelection(const QStringList &selection) = 0;
    // The page has its document, and none is being shown.
    virtual bool IsReady() const = 0;
    // The document with what the page shows. The first one ends the edit under way.
    virtual QJsonObject Packaged() = 0;
    virtual QJsonObject PackagedCopy() = 0;
    // The document as memory gave it to the page, and as it was packaged last.
    virtual const QJsonObject &Document() const = 0;
    // Shows what memory holds under the selection.
    virtual void ShowMemory() = 0;
};
