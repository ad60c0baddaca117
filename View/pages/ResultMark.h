// Greys results that are not of the settings that the page shows.
//
// Results are grey until they are measured, and while a visible editor of the request shows another
// value than was packaged for them: grey and slanted, and a screen reader says so. Texts stay. A label whose text has
// changed since the measurement is grey. GUI thread; the widgets outlive this object.
//
//   m_mark = std::make_unique<CResultMark>(this, QList<QWidget *>{m_ui->pdValue});
//   m_mark->Watch();      // the document is in place
//   m_mark->Package();    // the request goes out
//   m_mark->Measured();   // its answer is shown
//   m_mark->Forget();     // or it has failed, and what is shown is no result
#pragma once

#include <QHash>
#include <QList>
#include <QObject>
#include <QVariant>

class QWidget;

class CResultMark : public QObject
{
public:
    // results: labels, editors, or tables of them. inputs: editors that the request packages
    // beside those of the document's request section.
    CResultMark(QWidget *page, const QList<QWidget *> &results,
                const QList<QWidget *> &inputs = {});

    void Watch();
    void Package();
    void Measured();
    void Forget();

private:
    void WatchEditor(QWidget *editor);
    void Show();
    bool IsOfShownSettings() const;
    QHash<QWidget *, QVariant> Settings() const;
    QList<QWidget *> Results() const;

    QWidget *const m_page;
    const QList<QWidget *> m_results;
    const QList<QWidget *> m_inputs;
    QList<QWidget *> m_watched;  // widgets and tables whose editors are watched
    QList<QWidget *> m_editors;
    QHash<QWidget *, QVariant> m_packaged;  // by the request under way, or the last one
    QHash<QWidget *, QVariant> m_measured;  // by the one whose results are shown
    QHash<QWidget *, QString> m_texts;      // of the labels, as measured
};
