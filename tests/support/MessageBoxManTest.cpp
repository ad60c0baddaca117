#include "Support/MessageBoxMan.h"

#include <functional>

#include <QAbstractButton>
#include <QApplication>
#include <QGridLayout>
#include <QLabel>
#include <QMainWindow>
#include <QScreen>
#include <QSignalSpy>
#include <QSpacerItem>
#include <QTextEdit>
#include <QTimer>
#include <QWindow>
#include <QtTest>

#include "tests/common/TestClass.h"

class MessageBoxManTest : public QObject
{
    Q_OBJECT

private slots:
    void init() { m_boxesSeen = 0; }

    void kindSetsIconButtonAndText_data()
    {
        const QString wrapped = "<P><FONT COLOR='#000080'><FONT SIZE='4'>a text</FONT></FONT></P>";
        QTest::addColumn<int>("type");
        QTest::addColumn<int>("icon");
        QTest::addColumn<int>("button");
        QTest::addColumn<QString>("text");
        QTest::newRow("1") << 1 << int(QMessageBox::Information) << int(QMessageBox::Ok) << wrapped;
        QTest::newRow("2") << 2 << int(QMessageBox::Warning) << int(QMessageBox::Close) << wrapped;
        QTest::newRow("3") << 3 << int(QMessageBox::Warning) << int(QMessageBox::Close) << "a text";
        QTest::newRow("4") << 4 << int(QMessageBox::Critical) << int(QMessageBox::Close) << wrapped;
        QTest::newRow("unknown") << 9 << int(QMessageBox::Warning) << int(QMessageBox::Close)
                                 << "a text";
    }

    void kindSetsIconButtonAndText()
    {
        QFETCH(int, type);
        QFETCH(int, icon);
        QFETCH(int, button);
        QFETCH(QString, text);
        if (type == 9)
            QTest::ignoreMessage(QtCriticalMsg, "unknown message box type 9");
        CMessageBoxMan box;
        InOpenBox([&](QMessageBox *open) {
            QCOMPARE(open, &box);
            QVERIFY(open->isModal());
            QCOMPARE(open->windowTitle(), QString("a title"));
            QCOMPARE(int(open->icon()), icon);
            QCOMPARE(open->text(), text);
            QCOMPARE(int(open->standardButtons()), button);
            QCOMPARE(open->defaultButton(), open->button(QMessageBox::StandardButton(button)));
            QVERIFY(open->informativeText().isEmpty());
            QVERIFY(open->detailedText().isEmpty());
            open->defaultButton()->click();
        });
        QCOMPARE(box.Show(type, "a title", "a text", "", "", -1), button);
        QCOMPARE(m_boxesSeen, 1);
    }

    void pressedButtonIsReturnedAndSignalled()
    {
        CMessageBoxMan box;
        QSignalSpy results(&box, &CMessageBoxMan::Signal_InteractionResult);
        InOpenBox([](QMessageBox *open) { QTest::keyClick(open, Qt::Key_Return); });
        QCOMPARE(box.Show(1, "t", "x", "", "", -1), int(QMessageBox::Ok));
        QCOMPARE(results.size(), 1);
        QCOMPARE(results[0][0].toInt(), int(QMessageBox::Ok));
    }

    void escapeCountsAsTheButton()
    {
        CMessageBoxMan box;
        QSignalSpy results(&box, &CMessageBoxMan::Signal_InteractionResult);
        InOpenBox([](QMessageBox *open) { QTest::keyClick(open, Qt::Key_Escape); });
        QCOMPARE(box.Show(4, "t", "x", "", "", -1), int(QMessageBox::Close));
        QCOMPARE(results.value(0).value(0).toInt(), int(QMessageBox::Close));
    }

    void informativeAndDetailedTextsAreShown()
    {
        CMessageBoxMan box;
        InOpenBox([](QMessageBox *open) {
            QCOMPARE(open->informativeText(), QString("why"));
            QCOMPARE(open->detailedText(), QString("long story"));
            open->button(QMessageBox::Close)->click();
        });
        QCOMPARE(box.Show(2, "t", "x", "why", "long story", -1), int(QMessageBox::Close));
        QCOMPARE(m_boxesSeen, 1);
    }

    void widthAddsASpacerInANewLastRowThatHoldsTheBoxOpen()
    {
        CMessageBoxMan box;
        InOpenBox([&](QMessageBox *open) {
            auto *grid = qobject_cast<QGridLayout *>(open->layout());
            const QList<int> spacers = SpacersOfHeight0(grid);
            QCOMPARE(spacers.size(), 1);
            QSpacerItem *spacer = grid->itemAt(spacers[0])->spacerItem();
            QCOMPARE(spacer->minimumSize(), QSize(640, 0));
            QCOMPARE(spacer->sizePolicy(),
                     QSizePolicy(QSizePolicy::Minimum, QSizePolicy::Expanding));
            int row, column, rows, columns;
            grid->getItemPosition(spacers[0], &row, &column, &rows, &columns);
            QCOMPARE(row, grid->rowCount() - 1);
            for (int i = 0; i < grid->count(); ++i) {
                int otherRow, otherRows, ignored;
                grid->getItemPosition(i, &otherRow, &ignored, &otherRows, &ignored);
                QVERIFY(i == spacers[0] || otherRow + otherRows <= row);
            }
            QCOMPARE(column, 0);
            QCOMPARE(columns, grid->columnCount());
            QVERIFY(open->width() >= 640);
            open->reject();
        });
        box.Show(1, "t", "x", "", "", 640);
        QCOMPARE(m_boxesSeen, 1);
    }

    void widthOfMinus1AddsNothing()
    {
        CMessageBoxMan box;
        InOpenBox([&](QMessageBox *open) {
            QVERIFY(SpacersOfHeight0(qobject_cast<QGridLayout *>(open->layout())).isEmpty());
            QVERIFY(open->width() < 640);
            open->reject();
        });
        box.Show(1, "t", "x", "", "", -1);
        QCOMPARE(m_boxesSeen, 1);
    }

    void secondShowStartsClean()
    {
        CMessageBoxMan box;
        InOpenBox([](QMessageBox *open) {
            for (QAbstractButton *button : open->buttons()) {
                if (open->buttonRole(button) == QMessageBox::ActionRole)
                    button->click();  // unfolds the details
            }
            open->reject();
        });
        box.Show(4, "first", "x", "why", "long story", 700);
        InOpenBox([&](QMessageBox *open) {
            QCOMPARE(open->windowTitle(), QString("second"));
            QCOMPARE(open->text(), QString("y"));
            QCOMPARE(open->informativeText(), QString());
            QCOMPARE(open->detailedText(), QString());
            QCOMPARE(int(open->icon()), int(QMessageBox::Warning));
            QCOMPARE(open->buttons().size(), 1);
            QCOMPARE(open->buttons().first(), open->button(QMessageBox::Close));
            QVERIFY(SpacersOfHeight0(qobject_cast<QGridLayout *>(open->layout())).isEmpty());
            QVERIFY(open->width() < 700);
            open->reject();
        });
        box.Show(3, "second", "y", "", "", -1);
        QCOMPARE(m_boxesSeen, 2);
    }

    void sameDetailsAreFoldedAgainInTheSecondShow()
    {
        CMessageBoxMan box;
        InOpenBox([&](QMessageBox *open) {
            for (QAbstractButton *button : open->buttons()) {
                if (open->buttonRole(button) == QMessageBox::ActionRole)
                    button->click();
            }
            QVERIFY(AreDetailsVisible(open));
            open->reject();
        });
        box.Show(2, "t", "x", "", "long story", -1);
        InOpenBox([&](QMessageBox *open) {
            QVERIFY(!AreDetailsVisible(open));
            QCOMPARE(open->buttons().size(), 2);
            open->reject();
        });
        box.Show(2, "t", "x", "", "long story", -1);
        QCOMPARE(m_boxesSeen, 2);
    }

    void widthOfTheSecondShowReplacesTheFirst()
    {
        CMessageBoxMan box;
        for (int width : {700, 500}) {
            InOpenBox([&](QMessageBox *open) {
                auto *grid = qobject_cast<QGridLayout *>(open->layout());
                QCOMPARE(SpacersOfHeight0(grid).size(), 1);
                QVERIFY(open->width() >= width && open->width() < width + 200);
                open->reject();
            });
            box.Show(1, "t", "x", "", "", width);
        }
        QCOMPARE(m_boxesSeen, 2);
    }

    void destructionWhileOpenEndsShowWith0AndNoSignal()
    {
        auto *box = new CMessageBoxMan;
        int signalled = 0;
        connect(box, &CMessageBoxMan::Signal_InteractionResult, this, [&] { ++signalled; });
        InOpenBox([&](QMessageBox *) { delete box; });
        QCOMPARE(box->Show(4, "t", "x", "i", "d", 300), 0);
        QCOMPARE(signalled, 0);
        QCOMPARE(m_boxesSeen, 1);
        QVERIFY(!QApplication::activeModalWidget());
    }

    void destructionByASlotOfTheResultIsHarmless()
    {
        auto *box = new CMessageBoxMan;
        connect(box, &CMessageBoxMan::Signal_InteractionResult, this, [&] { delete box; });
        InOpenBox([](QMessageBox *open) { open->button(QMessageBox::Ok)->click(); });
        QCOMPARE(box->Show(1, "t", "x", "", "", -1), int(QMessageBox::Ok));
    }

    void showWhileOpenShowsASecondBoxAndLeavesTheFirst()
    {
        CMessageBoxMan box;
        QSignalSpy results(&box, &CMessageBoxMan::Signal_InteractionResult);
        InOpenBox([&](QMessageBox *first) {
            InOpenBox([&](QMessageBox *second) {
                QVERIFY(second != first);
                QCOMPARE(second->text(), QString("late"));
                QCOMPARE(first->text(), QString("early"));
                second->button(QMessageBox::Close)->click();
            });
            QCOMPARE(box.Show(3, "t", "late", "", "", -1), int(QMessageBox::Close));
            QVERIFY(first->isVisible());
            first->button(QMessageBox::Close)->click();
        });
        QCOMPARE(box.Show(3, "t", "early", "", "", -1), int(QMessageBox::Close));
        QCOMPARE(m_boxesSeen, 2);
        QCOMPARE(results.size(), 2);
    }

    void destructionUnderASecondBoxIsHarmless()
    {
        auto *box = new CMessageBoxMan;
        InOpenBox([&](QMessageBox *) {
            InOpenBox([&](QMessageBox *second) {
                delete box;
                second->reject();
            });
            box->Show(3, "t", "late", "", "", -1);
        });
        QCOMPARE(box->Show(3, "t", "early", "", "", -1), 0);
        QCOMPARE(m_boxesSeen, 2);
    }

    void boxStaysOverTheActiveWindowWithoutBeingItsChild()
    {
        QMainWindow tool;
        tool.setGeometry(60, 70, 600, 400);
        tool.show();
        QApplication::setActiveWindow(&tool);
        CMessageBoxMan box;
        InOpenBox([&](QMessageBox *open) {
            QVERIFY(!open->parent());
            QVERIFY(tool.findChildren<QMessageBox *>().isEmpty());
            QCOMPARE(open->windowHandle()->transientParent(), tool.windowHandle());
            const QPoint apart = open->frameGeometry().center() - tool.frameGeometry().center();
            QVERIFY2(apart.manhattanLength() <= 2, qPrintable(QString::number(apart.x())));
            open->reject();
        });
        box.Show(1, "t", "x", "", "", -1);
        QCOMPARE(m_boxesSeen, 1);
    }

    void boxOfAWindowAtTheEdgeStaysOnTheScreen()
    {
        QMainWindow tool;
        tool.setGeometry(-500, -300, 520, 320);
        tool.show();
        QApplication::setActiveWindow(&tool);
        CMessageBoxMan box;
        InOpenBox([&](QMessageBox *open) {
            QVERIFY(open->screen()->availableGeometry().contains(open->frameGeometry().topLeft()));
            open->reject();
        });
        box.Show(1, "t", "x", "", "", -1);
        QCOMPARE(m_boxesSeen, 1);
    }

    void secondShowOpensOverTheActiveWindowToo()
    {
        QMainWindow tool;
        tool.setGeometry(60, 70, 600, 400);
        tool.show();
        CMessageBoxMan box;
        for (const QPoint &place : {QPoint(60, 70), QPoint(120, 250)}) {
            tool.move(place);
            QApplication::setActiveWindow(&tool);
            InOpenBox([&](QMessageBox *open) {
                QCOMPARE(open->windowHandle()->transientParent(), tool.windowHandle());
                const QPoint apart = open->frameGeometry().center() - tool.frameGeometry().center();
                QVERIFY(apart.manhattanLength() <= 2);
                open->reject();
            });
            box.Show(1, "t", "x", "", "", -1);
        }
        QCOMPARE(m_boxesSeen, 2);
    }

    void boxWithoutAnyWindowIsOnItsOwn()
    {
        CMessageBoxMan box;
        for (int round = 0; round < 2; ++round) {
            InOpenBox([](QMessageBox *open) {
                QVERIFY(!open->windowHandle()->transientParent());
                open->reject();
            });
            box.Show(1, "t", "x", "", "", -1);
        }
        QCOMPARE(m_boxesSeen, 2);
    }

    void withoutAnActiveWindowTheOwnersWindowHoldsTheBox()
    {
        QMainWindow tool;
        auto *page = new QWidget(&tool);
        tool.setCentralWidget(page);
        tool.show();
        QApplication::setActiveWindow(nullptr);
        QVERIFY(!QApplication::activeWindow());
        CMessageBoxMan box;
        box.SetOwner(page);
        InOpenBox([&](QMessageBox *open) {
            QCOMPARE(open->windowHandle()->transientParent(), tool.windowHandle());
            open->reject();
        });
        box.Show(1, "t", "x", "", "", -1);
        QCOMPARE(m_boxesSeen, 1);
    }

    void windowUnderTheBoxMayBeDestroyed()
    {
        auto *tool = new QMainWindow;
        tool->show();
        QApplication::setActiveWindow(tool);
        CMessageBoxMan box;
        InOpenBox([&](QMessageBox *open) {
            delete tool;
            QVERIFY(!open->windowHandle()->transientParent());
            open->button(QMessageBox::Ok)->click();
        });
        QCOMPARE(box.Show(1, "t", "x", "", "", -1), int(QMessageBox::Ok));
        InOpenBox([](QMessageBox *open) { open->reject(); });
        box.Show(1, "t", "x", "", "", -1);
        QCOMPARE(m_boxesSeen, 2);
    }

private:
    // Runs the steps in the box that opens next. Whatever they find, that box does not stay open.
    void InOpenBox(std::function<void(QMessageBox *)> steps)
    {
        QTimer::singleShot(0, this, [this, steps] {
            QPointer<QMessageBox> open =
                qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
            QVERIFY(open);
            ++m_boxesSeen;
            steps(open);
            if (open && open->isVisible())
                open->reject();
        });
    }

    static QList<int> SpacersOfHeight0(const QGridLayout *grid)
    {
        QList<int> spacers;
        for (int i = 0; i < grid->count(); ++i) {
            QSpacerItem *spacer = grid->itemAt(i)->spacerItem();
            if (spacer && spacer->sizeHint().height() == 0)
                spacers << i;
        }
        return spacers;
    }

    static bool AreDetailsVisible(const QMessageBox *open)
    {
        for (const QTextEdit *details : open->findChildren<QTextEdit *>()) {
            if (details->isVisible())
                return true;
        }
        return false;
    }

    int m_boxesSeen = 0;
};

QUORLIN_TEST_CLASS(MessageBoxManTest)
#include "MessageBoxManTest.moc"
