// What the tool tells by colours is read on a light and on a dark desktop, by the contrast of WCAG AA in
// what is on the screen, and is told by something else beside the colour.
#include <cmath>

#include <QAccessible>
#include <QHeaderView>
#include <QImage>
#include <QLabel>
#include <QStatusBar>
#include <QtTest>

#include "tests/common/TestClass.h"
#include "tests/common/WaitUntil.h"
#include "tests/device/UndoSteps.h"

namespace {

constexpr double kLeast = 4.5;
constexpr int kPaGain = 7;  // group of the APT page
constexpr char kHighGain[] = "paHighPaGain";

QPalette DarkPalette()
{
    QPalette dark(QColor(53, 53, 53), QColor(45, 45, 45));
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        dark.setColor(role, Qt::white);
    dark.setColor(QPalette::Base, QColor(30, 30, 30));
    dark.setColor(QPalette::Highlight, QColor(42, 130, 218));
    dark.setColor(QPalette::HighlightedText, Qt::black);
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        dark.setColor(QPalette::Disabled, role, QColor(127, 127, 127));
    return dark;
}

double Linear(double share)
{
    return share <= 0.03928 ? share / 12.92 : std::pow((share + 0.055) / 1.055, 2.4);
}

double Luminance(QRgb color)
{
    return 0.2126 * Linear(qRed(color) / 255.0) + 0.7152 * Linear(qGreen(color) / 255.0) +
           0.0722 * Linear(qBlue(color) / 255.0);
}

// Of the widget's picture, without its frame: the ground is what it has most of, and the strokes of
// the letters are what differs from it most.
double ShownContrast(QWidget *widget)
{
    constexpr int kFrame = 3;
    // Letters that are large enough for strokes of full colour.
    const QImage image = widget->grab(widget->rect().adjusted(kFrame, kFrame, -kFrame, -kFrame))
                             .toImage()
                             .convertToFormat(QImage::Format_RGB32);
    QHash<QRgb, int> counts;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x)
            ++counts[image.pixel(x, y)];
    }
    QRgb ground = 0;
    for (auto it = counts.cbegin(); it != counts.cend(); ++it) {
        if (it.value() > counts.value(ground))
            ground = it.key();
    }
    double most = 1;
    for (auto it = counts.cbegin(); it != counts.cend(); ++it) {
        const double one = Luminance(it.key()) + 0.05;
        const double other = Luminance(ground) + 0.05;
        most = std::max(most, std::max(one, other) / std::min(one, other));
    }
    return most;
}

QString DescriptionOf(QWidget *widget)
{
    return QAccessible::queryAccessibleInterface(widget)->text(QAccessible::Description);
}

void Desktops()
{
    QTest::addColumn<bool>("isDark");
    QTest::newRow("light") << false;
    QTest::newRow("dark") << true;
}

}  // namespace

class AccessSignsTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        QApplication::setStyle("Fusion");
        m_light = QApplication::palette();
    }

    void init()
    {
        const auto *isDark = static_cast<const bool *>(QTest::qData("isDark", qMetaTypeId<bool>()));
        QApplication::setPalette(*isDark ? DarkPalette() : m_light);
    }

    void cleanup() { QApplication::setPalette(m_light); }

    void greyResultIsReadAndSlanted_data() { Desktops(); }

    void greyResultIsReadAndSlanted()
    {
        CPluginSession session("handset", 1, "CNrSingleToneTxDockWidgetV7");
        QVERIFY(session.ShowAndWait());
        auto *value = session.Find<QLabel>("cmdIf_response_group1_memberProperty_pdValue");
        QVERIFY(!value->text().isEmpty());
        QVERIFY(value->font().italic());
        QVERIFY2(ShownContrast(value) >= kLeast, qPrintable(QString::number(ShownContrast(value))));
        QVERIFY(DescriptionOf(value).contains("not of the settings that are shown"));
    }

    void greyNumbersAreReadAndSlanted_data() { Desktops(); }

    void greyNumbersAreReadAndSlanted()
    {
        CPluginSession session("handset", 1, "CNrRssiDockWidgetV7");
        QVERIFY(session.ShowAndWait());
        auto *gain = session.Find("cmdIf_response_group1_memberProperty_path0MainRfGain");
        QVERIFY(gain->font().italic());
        QVERIFY2(ShownContrast(gain) >= kLeast, qPrintable(QString::number(ShownContrast(gain))));
        // Weaker than the text of an editor, which has all that the desktop gives.
        QVERIFY(ShownContrast(gain) <
                ShownContrast(session.Find("cmdIf_request_group1_memberProperty_numFreq")) - 2);
        QVERIFY(DescriptionOf(gain).contains("not of the settings that are shown"));
        session.Press("m_btnRssiSeqSrhCalculator");
        QVERIFY(session.WaitForStatus("Fetch Gain info done"));
        QVERIFY(!gain->font().italic());
        QVERIFY(!DescriptionOf(gain).contains("not of"));
    }

    void changedCellIsReadAndBold_data() { Desktops(); }

    void changedCellIsReadAndBold()
    {
        CUndoSession session(kAptPage);
        QVERIFY(session.IsRead());
        auto *cell = session.Cell(kPaGain, kHighGain, 0, 3);
        const QString before = cell->text();
        session.Edit(kPaGain, kHighGain, 0, 3, "18.5");
        session.Cell(kPaGain, kHighGain, 0, 5)->setFocus();
        QCOMPARE(session.ChangeCount(), QString("1 changed cell"));
        QVERIFY(cell->font().bold());
        QVERIFY2(ShownContrast(cell) >= kLeast, qPrintable(QString::number(ShownContrast(cell))));
        QVERIFY(DescriptionOf(cell).endsWith("changed, was " + before));
    }

    void markedCellIsReadAndItsHeadersAreBold_data() { Desktops(); }

    void markedCellIsReadAndItsHeadersAreBold()
    {
        CUndoSession session(kAptPage);
        QVERIFY(session.IsRead());
        QTableWidget *table = session.Table(kPaGain, kHighGain);
        session.Cell(kPaGain, kHighGain, 0, 2)->setFocus();
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Right, Qt::ShiftModifier);
        auto *cell = session.Cell(kPaGain, kHighGain, 0, 3);
        QVERIFY2(ShownContrast(cell) >= kLeast, qPrintable(QString::number(ShownContrast(cell))));
        QVERIFY(table->selectionModel()->isSelected(table->model()->index(0, 3)));
        QVERIFY(table->horizontalHeader()->highlightSections());
        QVERIFY(table->selectionModel()->columnIntersectsSelection(3, {}));
        const QImage marked = SectionPicture(table, 3);
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape);
        QVERIFY(SectionPicture(table, 3) != marked);
    }

    void runningTestIsReadAndSaysWhatTheDutDoes_data() { Desktops(); }

    void runningTestIsReadAndSaysWhatTheDutDoes()
    {
        for (const auto *page : {"CNrSingleToneTxDockWidgetV7", "CNrContRxDockWidgetV7"}) {
            CPluginSession session("handset", 1, page);
            QVERIFY(session.ShowAndWait());
            session.Press("m_start");
            auto *lamp = session.Window()->statusBar()->findChild<QLabel *>("m_testLamp");
            QVERIFY(WaitUntil([&] { return lamp->isVisible(); }));
            QVERIFY2(ShownContrast(lamp) >= kLeast,
                     qPrintable(QString::number(ShownContrast(lamp))));
            QVERIFY(DescriptionOf(lamp).startsWith("The DUT "));
            QWidget *rfOff = session.Find("m_rfOff");
            QVERIFY2(ShownContrast(rfOff) >= kLeast,
                     qPrintable(QString::number(ShownContrast(rfOff))));
            session.Press("m_stop");
            QVERIFY(WaitUntil([&] { return !lamp->isVisible(); }));
        }
    }

private:
    static QImage SectionPicture(QTableWidget *table, int column)
    {
        QHeaderView *header = table->horizontalHeader();
        const QRect place(header->sectionViewportPosition(column), 0, header->sectionSize(column),
                          header->height());
        return header->viewport()->grab(place).toImage();
    }

    QPalette m_light;
};

QUORLIN_TEST_CLASS(AccessSignsTest)
#include "AccessSignsTest.moc"
