// The settings of one page: save them to a file, load them from one, keep them for the next session.
//
// Two actions of the page, "Save settings..." and "Load settings...". A file of another page, of a
// newer version, a broken or a missing one is told in a box, and nothing is changed. Loading enters the
// values as a user would, so what depends on them follows; what this DUT does not have, or an editor
// refuses, is listed in one box, and the rest is set. Editors that are off are left out. GUI thread;
// lives as long as its page.
//
//   auto *settings = new CPageSettings(page);
//   CSettings::Get().SetValue("settings/" + name, settings->Text());
//   const QStringList refused = settings->Take(CSettings::Get().Value("settings/" + name).toByteArray());
#pragma once

#include <QByteArray>
#include <QObject>
#include <QStringList>

class CAutoBindingDataModelDockWidget;

class CPageSettings : public QObject
{
    Q_OBJECT

public:
    explicit CPageSettings(CAutoBindingDataModelDockWidget *page);

    // Null when the page has none.
    static CPageSettings *Of(const CAutoBindingDataModelDockWidget *page);

    // As a file has them; empty while the page has no document.
    QByteArray Text() const;
    // Brings the page to settings of this text. What was not taken, in words, a line each.
    QStringList Take(const QByteArray &text);

private:
    void Save();
    void Load();

    CAutoBindingDataModelDockWidget *const m_page;
};
