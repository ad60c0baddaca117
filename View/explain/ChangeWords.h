// The words for a change: which member, and why (View/engine/ChangeRing.h).
//
//   Band (request.group1.band)
//   Relation with Band (band), key "n78": min 3300000, max 3800000
//   Relation with Band (band), key "n78,Type2": no entry, it stays
//
// Made for what is on the screen alone. GUI thread; lives no longer than its page.
//
//   CChangeWords words(*page);
//   words.Because(change);
#pragma once

#include <QHash>
#include <QJsonObject>
#include <QString>
#include <QStringList>

#include "View/engine/ChangeRing.h"

class CAutoBindingDataModelDockWidget;

class CChangeWords
{
public:
    explicit CChangeWords(CAutoBindingDataModelDockWidget &page) : m_page(page) {}

    // column: -1 for the member as a whole.
    QString Name(const QString &path, int column) const;
    QString Caption(const QString &path, int column) const;
    QString To(const SChange &change) const;
    QString Because(const SChange &change);
    // All of the document, by their paths, in its order.
    QStringList Members() const;

private:
    bool IsOfTemplate(const SChange &change);
    bool HasTemplateTables(const QString &path) const;
    void LoadTemplate();

    CAutoBindingDataModelDockWidget &m_page;
    QJsonObject m_template;  // the page's document, before the DUT's capability was written into it
    bool m_hasTemplate = false;
    QHash<int, bool> m_isOfTemplate;  // by member
};
