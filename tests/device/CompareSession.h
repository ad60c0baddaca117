// A calibration page with its Compare window, as a user works it.
//
//   CCompareSession session(kAptPage);
//   QVERIFY(session.ShowAndWait() && session.Run(kRead));
//   session.OpenCompare();
//   QVERIFY(session.Compare(eDut, eMemory));
//   QCOMPARE(session.Rows().size(), 1);
#pragma once

#include <QDialog>
#include <QLabel>
#include <QTableView>

#include "tests/device/CalibrationSession.h"

enum ESideChoice
{
    eDutSide,
    ePageSide,
    eFileSide
};

class CCompareSession : public CCalibrationSession
{
public:
    using CCalibrationSession::CCalibrationSession;

    QDialog *CompareWindow() const
    {
        const QString title = Page() ? Page()->windowTitle() + ": Compare" : QString();
        for (auto *window :
             Window() ? Window()->findChildren<QDialog *>("CCompareWindow") : QList<QDialog *>()) {
            if (window->windowTitle() == title)
                return window;
        }
        return nullptr;
    }
    template <typename T>
    T *InWindow(const char *name) const
    {
        return CompareWindow()->findChild<T *>(name);
    }
    QDialog *OpenCompare()
    {
        Press("m_btnCompare");
        return CompareWindow();
    }
    void Choose(const char *side, ESideChoice kind, const QString &file = {})
    {
        InWindow<QComboBox>(qPrintable(QString("m_%1Kind").arg(side)))->setCurrentIndex(kind);
        InWindow<QLineEdit>(qPrintable(QString("m_%1File").arg(side)))->setText(file);
    }
    // Presses Compare, and waits for the end of it. False when it does not come.
    bool Compare(ESideChoice left, ESideChoice right, const QString &leftFile = {},
                 const QString &rightFile = {})
    {
        Choose("left", left, leftFile);
        Choose("right", right, rightFile);
        InWindow<QLabel>("m_summary")->clear();
        InWindow<QPushButton>("m_compare")->click();
        return WaitUntil([&] { return !Summary().isEmpty() && IsIdle(); });
    }
    QString Summary() const { return InWindow<QLabel>("m_summary")->text(); }
    QTableView *Differences() const { return InWindow<QTableView>("m_differences"); }
    // The cells of each row, joined by bars.
    QStringList Rows() const
    {
        QStringList rows;
        const QAbstractItemModel *model = Differences()->model();
        for (int r = 0; r < model->rowCount(); ++r) {
            QStringList cells;
            for (int c = 0; c < model->columnCount(); ++c)
                cells.append(model->index(r, c).data().toString());
            rows.append(cells.join('|'));
        }
        return rows;
    }
};

inline int CountOf(const CCompareSession &session)
{
    return session.Differences()->model()->rowCount();
}

// A page with the DUT's data, its window open.
inline bool IsReady(CCompareSession &session)
{
    return session.ShowAndWait() && session.Run(kRead) && session.OpenCompare() != nullptr;
}
