#include "Runner/bench/BoxCatcher.h"

#include <utility>

#include <QApplication>
#include <QEvent>
#include <QFileDialog>
#include <QFileInfo>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPointer>

#include "Host/PlainText.h"

CBoxCatcher::CBoxCatcher()
{
    qApp->installEventFilter(this);
}

QVector<SBenchBox> CBoxCatcher::Take()
{
    return std::exchange(m_boxes, {});
}

// The box is closed with a turn of its own event loop, which begins behind its show.
bool CBoxCatcher::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() != QEvent::Show)
        return false;
    if (auto *box = qobject_cast<QMessageBox *>(watched)) {
        QMetaObject::invokeMethod(
            box, [this, box] { Close(box); }, Qt::QueuedConnection);
    } else if (auto *dialog = qobject_cast<QFileDialog *>(watched)) {
        QMetaObject::invokeMethod(
            dialog, [this, dialog] { Answer(dialog); }, Qt::QueuedConnection);
    } else if (auto *question = qobject_cast<QDialog *>(watched); question && question->isModal()) {
        QMetaObject::invokeMethod(
            question, [this, question] { Cancel(question); }, Qt::QueuedConnection);
    }
    return false;
}

void CBoxCatcher::Close(QMessageBox *box)
{
    if (!box->isVisible())
        return;
    const QPointer<QMessageBox> alive(box);
    Keep({.title = box->windowTitle().trimmed(),
          .text = PlainText(box->text()).trimmed(),
          .informative = PlainText(box->informativeText()).trimmed(),
          .detail = box->detailedText().trimmed()});
    if (alive)
        alive->done(QMessageBox::Close);
}

// A dialog that does not take the file asks a question, which is closed with No; it is cancelled then.
void CBoxCatcher::Answer(QFileDialog *dialog)
{
    const QString file = std::exchange(m_file, {});
    const QPointer<QFileDialog> alive(dialog);
    if (file.isEmpty()) {
        Keep({.title = dialog->windowTitle().trimmed(),
              .text = QStringLiteral("No file was named for this dialog.")});
    } else if (auto *name = dialog->findChild<QLineEdit *>(QStringLiteral("fileNameEdit"))) {
        dialog->setOption(QFileDialog::DontConfirmOverwrite);
        dialog->setDirectory(QFileInfo(file).path());  // the one of last time may be gone
        name->setText(file);
        QMetaObject::invokeMethod(dialog, "accept");
    }
    if (alive && alive->isVisible())
        alive->reject();
}

// Its labels are what it says.
void CBoxCatcher::Cancel(QDialog *dialog)
{
    if (!dialog->isVisible())
        return;
    QStringList lines;
    for (const QLabel *label : dialog->findChildren<QLabel *>()) {
        if (label->isVisible() && !label->buddy())
            lines.append(PlainText(label->text()).trimmed());
    }
    const QPointer<QDialog> alive(dialog);
    Keep({.title = dialog->windowTitle().trimmed(), .text = lines.join(QLatin1Char('\n'))});
    if (alive)
        alive->reject();
}

void CBoxCatcher::Keep(const SBenchBox &box)
{
    m_boxes.append(box);
    emit Signal_Box(box);
}
