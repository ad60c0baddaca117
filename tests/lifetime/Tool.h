// The tool in the hands of the campaign: made ready for a request, asked, and looked at afterwards.
//
// What a session is for one page, this is for all of them, one after another, and it outlives a
// reset and an unload: whatever is missing is made anew when it is next needed. GUI thread.
//
//   CTool tool(folder);
//   if (tool.Prepare(request)) {
//       tool.Make(request);
//       tool.Session().HidePlugin();
//       tool.Settle();
//   }
#pragma once

#include <functional>
#include <memory>

#include "tests/common/BoxWatcher.h"
#include "tests/common/PluginSession.h"
#include "tests/lifetime/Requests.h"

class QAction;
class QDockWidget;
class QTimer;

class CTool
{
public:
    // folder: for the files of exports and imports.
    explicit CTool(const QString &folder);
    ~CTool();

    // Null after an unload.
    CPluginSession *Session() const { return m_session.get(); }
    CBoxWatcher &Boxes() { return m_boxes; }

    // Loads the tool, shows it and starts a test, as far as the request needs it. Why not, if not.
    QString Prepare(const SRequest &request);
    // Asks. onDialog is called with the dialog of a request open, if it has one.
    void Make(const SRequest &request, const std::function<void()> &onDialog = {});
    // Waits until nothing runs and the host has heard of it. Why not, if not.
    QString Settle();

    // Shows the tool and waits until all its pages are there.
    QString PrepareAnyPage();

    // Stops every test on the DUT by the window's own button. Why not, if not.
    QString RfOff();

    void Unload();
    // Forgets an unloaded session; the next request makes a new one.
    void DropSession() { m_session.reset(); }
    // Leaves the session to itself, as a host does that ends without unloading.
    void Abandon() { m_session.release(); }

    bool HasPages() const;
    QDockWidget *Page(const char *page) const;
    // The page has a button that can be pressed to go on.
    bool IsUsable(const char *page) const;

private:
    void Load();
    QString Show();
    QString Raise(QDockWidget *page);
    QString Press(const QDockWidget *page, const char *button);
    QString PrepareFiles(const SRequest &request, const QDockWidget *page);
    QString PrepareData(const SRequest &request, const QDockWidget *page);
    QString File(const SRequest &request) const;
    QAction *Action(const SRequest &request) const;
    void AnswerDialog(const QString &file, const std::function<void()> &onDialog);

    const QString m_folder;
    CBoxWatcher m_boxes;
    std::unique_ptr<QTimer> m_dialogs;  // looks for the dialog of the request
    std::unique_ptr<CPluginSession> m_session;
};
