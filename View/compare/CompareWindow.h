// The window that shows two images of calibration data side by side: what the DUT, the page and files
// hold, in any pairing.
//
// It is modeless. Its parent is the tool's window, with which it goes out of sight, for a page behind
// another tab is off with all of its children; the page's CCalCompare ends it. The page asks for the comparison: Signal_Compare names the two sides, Show() has the answer.
// Signal_GoTo names a value that the user wants to see on the page. GUI thread.
//
//   auto *window = new CCompareWindow("RX Pathloss", page->parentWidget());
//   connect(window, &CCompareWindow::Signal_Compare, this, &CCalCompare::AskForComparison);
//   window->Show(compared);
#pragma once

#include <memory>

#include <QDialog>

#include "Model/CalDifferences.h"
#include "View/compare/DifferenceModel.h"
#include "View/engine/RowCopy.h"

namespace Ui {
class CCompareWindow;
}
class QComboBox;
class QLineEdit;
class QTableWidget;

class CCompareWindow : public QDialog
{
    Q_OBJECT

public:
    // name: of the page, for the title.
    CCompareWindow(const QString &name, QWidget *tool);
    ~CCompareWindow() override;

    // Shows it in front of the others.
    void ShowInFront();
    // isOn: a comparison is under way.
    void SetBusy(bool isOn);
    void Show(const SCalCompared &compared);
    // Beside the count of the rows that are shown.
    void Say(const QString &text);

signals:
    void Signal_Compare(SComparedSide left, SComparedSide right);
    void Signal_GoTo(SCalCellPlace place);

protected:
    bool eventFilter(QObject *object, QEvent *event) override;
    bool focusNextPrevChild(bool next) override;

private:
    struct SSideEditors
    {
        QComboBox *kind;
        QLineEdit *file;
        QWidget *browse;
    };

    void ConnectSide(const SSideEditors &side);
    void ConnectTable();
    void ConnectCounts(QTableWidget *table, QComboBox *filter);
    void FollowChoices();
    void Browse(QLineEdit *file);
    SComparedSide SideOf(const SSideEditors &side) const;
    void Compare();
    void Filter();
    void Copy();
    void GoTo();

    std::unique_ptr<Ui::CCompareWindow> m_ui;
    SSideEditors m_left;
    SSideEditors m_right;
    CDifferenceModel m_model;
    CRowCopy m_copy;
    bool m_isBusy = false;
    bool m_mayTakeFocus = false;  // Compare had it when it went off
};
