// Plays a script of pictures on the tool.
//
// A step that opens a dialog returns when the dialog closes; the steps behind it go on meanwhile, by a
// timer. GUI thread.
//
//   CPictureRun run(steps, "docs/images");
//   run.Start();
//   application.exec();     // ends with exit code 0, or 1 with words on stderr
#pragma once

#include <QElapsedTimer>
#include <QMainWindow>
#include <QObject>
#include <QPointer>

#include "tools/pictures/PictureSteps.h"

class CPictureRun : public QObject
{
    Q_OBJECT

public:
    // folder: where pictures go; empty: they are made, and nothing is written.
    CPictureRun(QVector<SPictureStep> steps, QString folder);

    void Start();

private:
    void Tick();
    void End(const QString &failure);
    bool CanDo(const SPictureStep &step);
    void Do(const SPictureStep &step);
    bool IsQuiet() const;
    QWidget *Editor(const QString &member) const;
    QWidget *Named(const QString &name) const;
    class QAction *Action(const QString &name) const;
    QWidget *Shown(const QString &window) const;
    void Save(const SPictureStep &step);

    const QVector<SPictureStep> m_steps;
    const QString m_folder;
    int m_next = 0;
    QPointer<QMainWindow> m_tool;
    QPointer<QWidget> m_page;
    QElapsedTimer m_waited;  // for the step that is next
};
