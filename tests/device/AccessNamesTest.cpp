// What a screen reader is told of the pages' editors and cells: asked for as one asks, by Qt's own
// interfaces.
#include <QAbstractSpinBox>
#include <QAccessible>
#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QSpinBox>
#include <QTableWidget>
#include <QtTest>

#include "tests/common/PluginSession.h"
#include "tests/common/TestClass.h"
#include "tests/device/RsrpSession.h"

namespace {

constexpr const char *kPages[] = {
    "CNrContRxDockWidgetV7",        "CNrRssiDockWidgetV7",          "CNrRxPathlossDockWidgetV7",
    "CNrRsrpForceDockWidgetV7",     "CNrRsrpNormalDockWidgetV7",    "CNrSingleToneTxDockWidgetV7",
    "CNrPuschTxForcedDockWidgetV7", "CNrPuschTxNormalDockWidgetV7", "CNrAptProfileDockWidgetV7",
};

QString Told(QWidget *widget, QAccessible::Text part)
{
    QAccessibleInterface *told = QAccessible::queryAccessibleInterface(widget);
    return told ? told->text(part) : QString();
}

QString NameOf(QWidget *widget)
{
    return Told(widget, QAccessible::Name);
}

QString DescriptionOf(QWidget *widget)
{
    return Told(widget, QAccessible::Description);
}

bool IsEditor(const QWidget *widget)
{
    return qobject_cast<const QAbstractSpinBox *>(widget) ||
           qobject_cast<const QComboBox *>(widget) || qobject_cast<const QCheckBox *>(widget) ||
           (qobject_cast<const QLineEdit *>(widget) &&
            !qobject_cast<const QAbstractSpinBox *>(widget->parentWidget()));
}

bool IsCell(const QWidget *widget)
{
    return widget->parentWidget() &&
           qobject_cast<QTableWidget *>(widget->parentWidget()->parentWidget());
}

// The editors of the page's form; those of tables stand in cells.
QList<QWidget *> EditorsOf(const QWidget *page)
{
    QList<QWidget *> editors;
    for (QWidget *widget : page->findChildren<QWidget *>()) {
        if (IsEditor(widget) && !IsCell(widget) && widget->isVisibleTo(page))
            editors.append(widget);
    }
    return editors;
}

void AddPages()
{
    QTest::addColumn<QString>("page");
    for (const char *page : kPages)
        QTest::newRow(page) << QString(page);
}

}  // namespace

class AccessNamesTest : public QObject
{
    Q_OBJECT

private slots:
    void everyEditorIsCalledByItsCaption_data() { AddPages(); }

    void everyEditorIsCalledByItsCaption()
    {
        QFETCH(QString, page);
        CPluginSession session("handset", 1, page);
        QVERIFY(session.ShowAndWait());
        const QList<QWidget *> editors = EditorsOf(session.Page());
        QVERIFY(editors.size() > 2);
        for (QWidget *editor : editors) {
            const QString name = NameOf(editor);
            QVERIFY2(!name.isEmpty(), qPrintable(editor->objectName()));
            auto *label = session.Page()->findChild<QLabel *>(editor->objectName() + "_caption");
            if (!label)
                continue;
            QCOMPARE(label->buddy(), editor);
            QVERIFY2(name == label->text() || name.startsWith(label->text() + ", "),
                     qPrintable(editor->objectName() + ": " + name));
        }
    }

    // In one box; boxes have titles.
    void noTwoEditorsSideBySideHaveTheSameName_data() { AddPages(); }

    void noTwoEditorsSideBySideHaveTheSameName()
    {
        QFETCH(QString, page);
        CPluginSession session("handset", 1, page);
        QVERIFY(session.ShowAndWait());
        QSet<QPair<QWidget *, QString>> names;
        for (QWidget *editor : EditorsOf(session.Page())) {
            const QPair<QWidget *, QString> name(editor->parentWidget(), NameOf(editor));
            QVERIFY2(!names.contains(name),
                     qPrintable(editor->objectName() + ": " + NameOf(editor)));
            names.insert(name);
        }
    }

    void equalCaptionsAreToldApartByTheFormsWords()
    {
        CPluginSession apt("handset", 1, "CNrAptProfileDockWidgetV7");
        QVERIFY(apt.ShowAndWait());
        const QString data = "calDataIf_data_group";
        QCOMPARE(NameOf(apt.Find(data + "2_memberProperty_paMode2")), QString("paMode, 2"));
        QCOMPARE(NameOf(apt.Find(data + "2_memberProperty_paMode1")), QString("paMode, 1"));
        QCOMPARE(NameOf(apt.Find(data + "11_memberProperty_couplerLossHigh")),
                 QString("Coupler Loss, High"));
        QCOMPARE(DescriptionOf(apt.Find(data + "11_memberProperty_couplerLossHigh")),
                 QString("-1024 to 1023.97 dB"));
    }

    void searchesOfRssiAreToldApart()
    {
        CPluginSession session("handset", 1, "CNrRssiDockWidgetV7");
        QVERIFY(session.ShowAndWait());
        QCOMPARE(NameOf(session.Find("cmdIf_request_group1_memberProperty_path0DivSearch")),
                 QString("RXD Mode, Path 0"));
    }

    void limitsAndUnitFollowTheRelations()
    {
        CPluginSession session("handset", 1, "CNrContRxDockWidgetV7");
        QVERIFY(session.ShowAndWait());
        auto *frequency = session.Find<QSpinBox>("cmdIf_request_group1_memberProperty_dlFrequency");
        auto *band = session.Find<QComboBox>("cmdIf_request_group1_memberProperty_band");
        const auto expected = [&] {
            return frequency->toolTip().replace("~", " to ").replace(",", ", ") + " kHz";
        };
        const QString before = DescriptionOf(frequency);
        QCOMPARE(before, expected());
        band->setFocus(Qt::TabFocusReason);
        QTest::keyClick(band, Qt::Key_Down);
        QVERIFY(DescriptionOf(frequency) != before);
        QCOMPARE(DescriptionOf(frequency), expected());
    }

    void valueOfAnEditorIsToldBesideItsName()
    {
        CPluginSession session("handset", 1, "CNrSingleToneTxDockWidgetV7");
        QVERIFY(session.ShowAndWait());
        auto *power =
            session.Find<QAbstractSpinBox>("cmdIf_request_group1_memberProperty_txPowerValue");
        QCOMPARE(NameOf(power), QString("TX Power (dBm)"));
        QCOMPARE(Told(power, QAccessible::Value), power->text());
        QVERIFY(DescriptionOf(power).endsWith(" dBm"));
        auto *check = session.Find("cmdIf_request_group1_memberProperty_afcDataType");
        QCOMPARE(NameOf(check), QString("AFC data used UI"));
    }

    void cellsSayRowAndColumn()
    {
        CPluginSession session("handset", 1, "CNrRxPathlossDockWidgetV7");
        QVERIFY(session.ShowAndWait());
        auto *table = session.Find<QTableWidget>("calDataIf_data_group2_memberProperty_lna0");
        const QString row = table->verticalHeaderItem(2)->text();
        QCOMPARE(NameOf(table->cellWidget(2, 5)),
                 row + ", column " + table->horizontalHeaderItem(5)->text());
        QVERIFY(DescriptionOf(table->cellWidget(2, 5)).endsWith(" dB"));
        QVERIFY(!NameOf(table).isEmpty());
        // The headers, too, for those that walk over the table itself.
        QAccessibleTableInterface *cells =
            QAccessible::queryAccessibleInterface(table)->tableInterface();
        QCOMPARE(cells->rowCount(), table->rowCount());
        QCOMPARE(cells->rowDescription(2), row);
    }

    // The newest rows are labels, the older ones items of the table.
    void cellsOfReportsSayRowAndColumn()
    {
        CRsrpSession session("Normal");
        QVERIFY(session.Running());
        constexpr int kReports = 70;
        while (session.Rows() < kReports)
            QVERIFY(session.Fetch());
        QTableWidget *table = session.Table();
        const int last = table->rowCount() - 1;
        auto *label = qobject_cast<QLabel *>(table->cellWidget(last, 0));
        QVERIFY(label);
        QCOMPARE(NameOf(label), label->text());
        QCOMPARE(DescriptionOf(label), QString("row %1, RSRP0, dBm").arg(last + 1));
        QVERIFY(!table->cellWidget(0, 0));
        QAccessibleInterface *item =
            QAccessible::queryAccessibleInterface(table)->tableInterface()->cellAt(0, 0);
        QCOMPARE(item->text(QAccessible::Name), table->item(0, 0)->text());
        QCOMPARE(item->tableCellInterface()->rowIndex(), 0);
        const QList<QAccessibleInterface *> headers =
            item->tableCellInterface()->columnHeaderCells();
        QCOMPARE(headers.value(0)->text(QAccessible::Name), QString("RSRP0"));
        // Qt makes them for whoever asks, and frees those that it has an id for.
        for (QAccessibleInterface *header : headers)
            QAccessible::deleteAccessibleInterface(
                QAccessible::registerAccessibleInterface(header));
    }
};

QUORLIN_TEST_CLASS(AccessNamesTest)
#include "AccessNamesTest.moc"
