// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#include "importers/gigapan/uiwpgigapan.h"

#include "tests/support/fakeapplication.h"
#include "tests/support/formcheck.h"
#include "tests/support/pagedriver.h"

#include <QGridLayout>
#include <QtTest>

namespace
{

const Form kForm{
    { { "tabWidget", "QTabWidget", "" }, {} },
    { { "General", "QWidget", "General" },
      { { "label_6", "QLabel", "Images :" },
        { "m_leImage", "QLineEdit", "" },
        { "m_pbSelectImages", "QPushButton", "..." },
        { "m_pbReset", "QPushButton", "Reset" },
        { "m_lbImage", "QLabel", "0 images in " }, // "# Images in" until the page first counts
        { "m_sbRow", "QSpinBox", "4" },
        { "label_3", "QLabel", "rows and" },
        { "m_sbColumn", "QSpinBox", "5" },
        { "label_2", "QLabel", "columns." },
        { "label", "QLabel", "Ignore N files " },
        { "m_sbIgnore", "QSpinBox", "0" },
        { "label_4", "QLabel", "Nb image per location ( bracketing )" },
        { "m_sbBracket", "QSpinBox", "1" } } },
    { { "tab_4", "QWidget", "Shoot layout" },
      { { "m_rbMode0", "QRadioButton", "Columns (default)" },
        { "m_rbMode3", "QRadioButton", "Columns: to left" },
        { "m_rbMode1", "QRadioButton", "Rows: downward" },
        { "m_rbMode2", "QRadioButton", "Rows: upward" },
        { "label_11", "QLabel", "" },
        { "label_8", "QLabel", "" },
        { "label_12", "QLabel", "" },
        { "label_9", "QLabel", "" },
        { "label_10", "QLabel", "" } } },
    { { "tab_5", "QWidget", "Shoot setup" },
      { { "m_cbIS360", "QCheckBox", "Force 360° panorama" },
        { "label_14", "QLabel", "Overlapping" },
        { "m_dsbOverlapping", "QDoubleSpinBox", "40.00" } } },
    { { "tab_3", "QWidget", "Stack" },
      { { "label_13", "QLabel", "Detect links in:" },
        { "m_rbLevelLinking0", "QRadioButton", "The reference level" },
        { "m_rbLevelLinking1", "QRadioButton", "All stack levels" },
        { "label_5", "QLabel", "For a stack:" },
        { "m_rbStackLinking0", "QRadioButton", "Use hard links" },
        { "m_rbStackLinking1", "QRadioButton", "Detect control points" } } },
    { { "tab_2", "QWidget", "Detection options" },
      { { "m_autoStart", "QCheckBox", "Auto detection" },
        { "m_cleanLink", "QCheckBox", "Clean wrong link" },
        { "m_noOptim", "QCheckBox", "Skip optimization" } } },
    { { "groupBox", "QGroupBox", "Preview" },
      { { "m_saPreview", "QScrollArea", "" },
        { "label_7", "QLabel", "Zoom" },
        { "m_hSlider", "QSlider", "" } } },
};

} // namespace

/** The form as a user finds it on a fresh page. */
class TestUIWPGigapanForm : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void widgetHasItsKindAndText_data() { addFormRows(kForm); }
    void widgetHasItsKindAndText() { checkFormRow(UIWPGigapan(nullptr)); }
    void formHoldsNothingElse();
    void tabsStandInTheirOrder();
    void widgetStandsOnItsTab_data() { addFormPlaces(kForm); }
    void widgetStandsOnItsTab() { checkFormPlace(UIWPGigapan(nullptr)); }
    void tabKeyFollowsTheTable();
    void labelsNameTheirFields();
    void modesStartWithTheColumns();
    void numbersHaveTheirRanges_data();
    void numbersHaveTheirRanges();
    void overlapIsAPercentageInStepsOfFive();
    void columnsAreReadOnly();
    void modeButtonsStandAboveTheirPictures_data();
    void modeButtonsStandAboveTheirPictures();
    void gridOfModesStartsWithAnEmptyLabel();
    void textsAreTranslatedInTheirContexts();
};

void TestUIWPGigapanForm::formHoldsNothingElse()
{
    QCOMPARE(formNames(UIWPGigapan(nullptr)), rowNames(kForm));
}

void TestUIWPGigapanForm::tabsStandInTheirOrder()
{
    const UIWPGigapan page(nullptr);
    QCOMPARE(tabTitles(page),
             list({ "General", "Shoot layout", "Shoot setup", "Stack", "Detection options" }));
    QCOMPARE(page.tabWidget->currentIndex(), 0);
}

void TestUIWPGigapanForm::tabKeyFollowsTheTable()
{
    QCOMPARE(
        tabOrder(UIWPGigapan(nullptr)),
        list({ "tabWidget",         "m_leImage",         "m_pbSelectImages",  "m_pbReset",
               "m_sbRow",           "m_sbColumn",        "m_sbIgnore",        "m_sbBracket",
               "m_rbMode0",         "m_rbMode3",         "m_rbMode1",         "m_rbMode2",
               "m_cbIS360",         "m_dsbOverlapping",  "m_rbLevelLinking0", "m_rbLevelLinking1",
               "m_rbStackLinking0", "m_rbStackLinking1", "m_autoStart",       "m_cleanLink",
               "m_noOptim",         "m_saPreview",       "m_hSlider" }));
}

void TestUIWPGigapanForm::labelsNameTheirFields()
{
    QCOMPARE(buddies(UIWPGigapan(nullptr)),
             list({ "label > m_sbIgnore", "label_14 > m_dsbOverlapping", "label_3 > m_sbColumn",
                    "label_4 > m_sbBracket", "label_6 > m_leImage", "label_7 > m_hSlider",
                    "m_lbImage > m_sbRow" }));
}

void TestUIWPGigapanForm::modesStartWithTheColumns()
{
    const UIWPGigapan page(nullptr);
    QVERIFY(page.m_rbMode0->isChecked());
    QVERIFY(!page.m_rbMode1->isChecked());
    QVERIFY(!page.m_rbMode2->isChecked());
    QVERIFY(!page.m_rbMode3->isChecked());
}

void TestUIWPGigapanForm::numbersHaveTheirRanges_data()
{
    QTest::addColumn<int>("minimum");
    QTest::addColumn<int>("maximum");
    QTest::newRow("m_sbRow") << 1 << 100000;
    QTest::newRow("m_sbColumn") << 1 << 100000;
    // As a spin box has it without being told.
    QTest::newRow("m_sbIgnore") << 0 << 99;
    QTest::newRow("m_sbBracket") << 1 << 99;
}

void TestUIWPGigapanForm::numbersHaveTheirRanges()
{
    QFETCH(int, minimum);
    QFETCH(int, maximum);
    const UIWPGigapan page(nullptr);
    const auto *widget = page.findChild<QWidget *>(QString::fromLatin1(QTest::currentDataTag()));
    QVERIFY(widget);
    QCOMPARE(widget->property("minimum").toInt(), minimum);
    QCOMPARE(widget->property("maximum").toInt(), maximum);
}

void TestUIWPGigapanForm::overlapIsAPercentageInStepsOfFive()
{
    const UIWPGigapan page(nullptr);
    QCOMPARE(page.m_dsbOverlapping->minimum(), 5.0);
    QCOMPARE(page.m_dsbOverlapping->maximum(), 100.0);
    QCOMPARE(page.m_dsbOverlapping->singleStep(), 5.0);
    QCOMPARE(page.m_dsbOverlapping->value(), 40.0);
}

void TestUIWPGigapanForm::columnsAreReadOnly()
{
    const UIWPGigapan page(nullptr);
    QVERIFY(page.m_sbColumn->isReadOnly());
    QVERIFY(!page.m_sbRow->isReadOnly());
    QVERIFY(!page.m_sbIgnore->isReadOnly());
    QVERIFY(!page.m_sbBracket->isReadOnly());
}

void TestUIWPGigapanForm::modeButtonsStandAboveTheirPictures_data()
{
    QTest::addColumn<QString>("button");
    QTest::addColumn<QString>("label");
    QTest::addColumn<QString>("picture");
    QTest::addColumn<int>("column");
    const auto row = [](int mode, const char *label, int column) {
        QTest::addRow("mode %d", mode)
            << QStringLiteral("m_rbMode%1").arg(mode) << QString::fromLatin1(label)
            << QStringLiteral("gigapan-mode%1.png").arg(mode) << column;
    };
    row(0, "label_8", 1);
    row(3, "label_12", 2);
    row(1, "label_9", 3);
    row(2, "label_10", 4);
}

void TestUIWPGigapanForm::modeButtonsStandAboveTheirPictures()
{
    QFETCH(QString, button);
    QFETCH(QString, label);
    QFETCH(QString, picture);
    QFETCH(int, column);
    const UIWPGigapan page(nullptr);
    const auto *grid = qobject_cast<QGridLayout *>(page.tab_4->layout());
    QVERIFY(grid);

    QCOMPARE(grid->itemAtPosition(0, column)->widget()->objectName(), button);
    QCOMPARE(grid->itemAtPosition(1, column)->widget()->objectName(), label);

    const QImage resource(QStringLiteral(":/7A21C94E-5B20-2020-2020-6028D47773DF/Resources/")
                          + picture);
    QVERIFY(!resource.isNull());
    const auto *shown = page.findChild<QLabel *>(label);
    // As a pixmap keeps it: the way back from premultiplied is rounded by each processor in its own
    // way.
    QCOMPARE(shown->pixmap(Qt::ReturnByValue).toImage(), QPixmap::fromImage(resource).toImage());
}

void TestUIWPGigapanForm::gridOfModesStartsWithAnEmptyLabel()
{
    const UIWPGigapan page(nullptr);
    const auto *grid = qobject_cast<QGridLayout *>(page.tab_4->layout());
    QVERIFY(!grid->itemAtPosition(0, 0));
    QCOMPARE(grid->itemAtPosition(1, 0)->widget(), page.label_11);
    QVERIFY(page.label_11->pixmap(Qt::ReturnByValue).isNull());
    QCOMPARE(grid->rowCount(), 2);
    QCOMPARE(grid->columnCount(), 5);
}

void TestUIWPGigapanForm::textsAreTranslatedInTheirContexts()
{
    MarkingTranslator ofThePage("UIWPGigapan");
    QVERIFY(QCoreApplication::installTranslator(&ofThePage));
    UIWPGigapan page(nullptr);
    const PageDriver driver(&page);
    QCOMPARE(driver.text("m_lbImage"), QStringLiteral("0 <images in >"));
    QCOMPARE(driver.text("label_6"), QStringLiteral("Images :"));
    const DialogClicker::SeenFileDialog dialog = driver.cancelFiles("m_pbSelectImages");
    QCOMPARE(dialog.caption, QStringLiteral("<Select images>"));
    QCOMPARE(dialog.selectedNameFilter, QStringLiteral("<All Files (*.*)>"));

    MarkingTranslator ofTheForm("UIWPGigapanClass");
    QVERIFY(QCoreApplication::installTranslator(&ofTheForm));
    UIWPGigapan other(nullptr);
    QCOMPARE(PageDriver(&other).text("label_6"), QStringLiteral("<Images :>"));
    QCOMPARE(other.title(), QStringLiteral("<Gigapan panorama import>"));
    QCOMPARE(tabTitles(other).first(), QStringLiteral("<General>"));
    QVERIFY(other.subTitle().startsWith(QLatin1String("<<a href=")));
}

TEST_CLASS(TestUIWPGigapanForm, FakeApplication)
#include "tst_uiwpgigapan_form.moc"
