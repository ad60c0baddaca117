// "Export results..." of a page: keeps its results since Clear, and writes them to a file of the
// user's choice.
//
// Each answer is given to Take, which keeps the rows that it brings, their time, and the settings that
// travelled with it. The action stands in the page's actions(). It asks for a file (ResultFile.h), and
// a thread of the pool writes what has come in by then; the page goes on meanwhile. How it ended is
// told in the status line, and a failure in a box. When the page ends, a write under way ends, too, and
// leaves nothing. Of several sources, the first that has rows is exported: one run fills one.
//
// GUI thread; a child of its page. The box runs an event loop: the page may be gone behind it.
//
//   constexpr SResultExport kExport = {.action = "m_actionExportResults", ...};
//   auto *results = new CResultExport(kExport, this, ViewCtrl());
//   results->Take(document);   // a page's answer
#pragma once

#include <atomic>
#include <memory>
#include <vector>

#include <QObject>
#include <QPointer>
#include <QTimer>

#include "Support/MessageBoxMan.h"
#include "View/results/ResultRows.h"
#include "View/results/ResultSettings.h"
#include "View/results/ResultSource.h"

class CAutoBindingDataModelDockWidget;
class CQuorlinViewCtrl;
struct SResultTable;

struct SResultExport
{
    const char *action = "m_actionExportResults";
    const char *text = "&Export results...";
    const char *keys = "Ctrl+E";
    std::vector<SResultSource> sources = {};
    // Settings that are columns, also when all rows have the same: "group1.band".
    std::vector<const char *> columns = {};
};

class CResultExport : public QObject
{
    Q_OBJECT

public:
    CResultExport(const SResultExport &what, CAutoBindingDataModelDockWidget *page,
                  CQuorlinViewCtrl *ctrl);
    ~CResultExport() override;

    void Take(const QJsonObject &document);
    void Clear();
    // Of a source.
    const CResultRows &Rows(int source) const;

private:
    struct SKept
    {
        SResultSource source = {};
        QStringList headers = {};
        CResultRows rows = {};
    };

    void Export();
    void Write();
    void Finish(const QString &failure, int rows);
    int SettingsNumber(const QJsonObject &request);
    SResultTable Table(const SKept &kept) const;
    void Say(const QString &text) const;
    void Complain(const QString &text);

    CAutoBindingDataModelDockWidget *const m_page;
    CQuorlinViewCtrl *const m_ctrl;
    std::vector<SKept> m_kept;
    QStringList m_columns;
    QVector<SSettingMember> m_members;
    QVector<QJsonObject> m_settings;
    int m_version = 1;  // of the page's document
    QString m_file;     // of the export under way; empty: none
    QString m_chip;
    bool m_isChipAwaited = false;
    QTimer m_patience;  // for the chip's name
    std::shared_ptr<std::atomic<bool>> m_isEnded;
};
