// Closes every message box and modal dialog of the application as soon as it is shown, and keeps what it
// said. A question is answered with no: what it asks for does not happen. Windows that a user may leave
// open stay. GUI thread.
//
//   CBoxCatcher boxes;
//   boxes.AnswerFileDialog("/tmp/loss.ini");
//   ... a button opens dialogs and boxes ...
//   const QVector<SBenchBox> seen = boxes.Take();
#pragma once

#include <QObject>

#include "Runner/bench/BenchTypes.h"

class QDialog;
class QFileDialog;
class QMessageBox;

class CBoxCatcher : public QObject
{
    Q_OBJECT

public:
    CBoxCatcher();

    // For the next file dialog; without a file it is cancelled, and counts as a box.
    void AnswerFileDialog(const QString &file) { m_file = file; }
    QVector<SBenchBox> Take();

    bool eventFilter(QObject *watched, QEvent *event) override;

signals:
    void Signal_Box(const SBenchBox &box);

private:
    void Close(QMessageBox *box);
    void Answer(QFileDialog *dialog);
    void Cancel(QDialog *dialog);
    void Keep(const SBenchBox &box);

    QString m_file;
    QVector<SBenchBox> m_boxes;
};
