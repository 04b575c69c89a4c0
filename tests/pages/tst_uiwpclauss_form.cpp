// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#include "importers/clauss/uiwpclauss.h"

#include "tests/support/fakeapplication.h"
#include "tests/support/formcheck.h"
#include "tests/support/pagedriver.h"

#include <QtTest>

namespace
{

const Form kForm{
    { { "tabWidget", "QTabWidget", "" }, {} },
    { { "General", "QWidget", "General" },
      { { "label", "QLabel", "Script file:" },
        { "m_leConfigFile", "QLineEdit", "" },
        { "m_pbSelectConfigFile", "QPushButton", "..." },
        { "m_pbReset", "QPushButton", "Reset" },
        { "label_5", "QLabel", "Number of shoot:" },
        { "m_lbPapyLog", "QLabel", "N/A" },
        { "label_6", "QLabel", "Theta:" },
        { "m_lbThetaMinMax", "QLabel", "N/A" },
        { "label_9", "QLabel", "Phi:" },
        { "m_lbPhiMinMax", "QLabel", "N/A" },
        { "m_pInverseCoordinates", "QPushButton", "Inverse Y coordinates" },
        { "m_lbImage_2", "QLabel", "Images:" },
        { "m_leImage", "QLineEdit", "" },
        { "m_pbSelectImages", "QPushButton", "..." },
        { "label_10", "QLabel", "Number of image:" },
        { "m_lbImageLog", "QLabel", "N/A" } } },
    { { "tab_2", "QWidget", "Options" },
      { { "m_autoStart", "QCheckBox", "Auto detection" },
        { "m_cleanLink", "QCheckBox", "Clean wrong link" },
        { "m_noOptim", "QCheckBox", "Skip optimization" },
        { "m_GridOptim", "QCheckBox", "Guided optimization" } } },
    { { "groupBox", "QGroupBox", "Preview" },
      { { "m_saPreview", "QScrollArea", "" },
        { "label_2", "QLabel", "Zoom" },
        { "m_hSlider", "QSlider", "" } } },
};

} // namespace

/** The form as a user finds it on a fresh page. */
class TestUIWPClaussForm : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void widgetHasItsKindAndText_data() { addFormRows(kForm); }
    void widgetHasItsKindAndText() { checkFormRow(UIWPClauss(nullptr)); }
    void formHoldsNothingElse();
    void tabsStandInTheirOrder();
    void widgetStandsOnItsTab_data() { addFormPlaces(kForm); }
    void widgetStandsOnItsTab() { checkFormPlace(UIWPClauss(nullptr)); }
    void tabKeyFollowsTheTable();
    void labelsNameTheirFields();
    void textsAreTranslatedInTheirContexts();
};

void TestUIWPClaussForm::formHoldsNothingElse()
{
    QCOMPARE(formNames(UIWPClauss(nullptr)), rowNames(kForm));
}

void TestUIWPClaussForm::tabsStandInTheirOrder()
{
    const UIWPClauss page(nullptr);
    QCOMPARE(tabTitles(page), list({ "General", "Options" }));
    QCOMPARE(page.tabWidget->currentIndex(), 0);
}

void TestUIWPClaussForm::tabKeyFollowsTheTable()
{
    QCOMPARE(tabOrder(UIWPClauss(nullptr)),
             list({ "tabWidget", "m_leConfigFile", "m_pbSelectConfigFile", "m_pbReset",
                    "m_pInverseCoordinates", "m_leImage", "m_pbSelectImages", "m_autoStart",
                    "m_cleanLink", "m_noOptim", "m_GridOptim", "m_saPreview", "m_hSlider" }));
}

void TestUIWPClaussForm::labelsNameTheirFields()
{
    QCOMPARE(buddies(UIWPClauss(nullptr)),
             list({ "label > m_leConfigFile", "label_2 > m_hSlider", "m_lbImage_2 > m_leImage" }));
}

void TestUIWPClaussForm::textsAreTranslatedInTheirContexts()
{
    MarkingTranslator ofThePage("UIWPClauss");
    QVERIFY(QCoreApplication::installTranslator(&ofThePage));
    UIWPClauss page(nullptr);
    const PageDriver driver(&page);
    for (const char *name : { "m_lbPapyLog", "m_lbThetaMinMax", "m_lbPhiMinMax", "m_lbImageLog" }) {
        QCOMPARE(driver.text(name), QStringLiteral("<N/A>"));
    }
    QCOMPARE(driver.text("label"), QStringLiteral("Script file:"));
    QCOMPARE(driver.cancelFiles("m_pbSelectConfigFile").caption,
             QStringLiteral("<Select the preset file and/or images>"));
    QCOMPARE(driver.cancelFiles("m_pbSelectImages").caption, QStringLiteral("<Select images>"));
    DialogClicker clicker;
    clicker.pressButton();
    page.ParseConfigFile(QStringLiteral("/missing"));
    QCOMPARE(clicker.messageBoxes().size(), 1);
    QCOMPARE(clicker.messageBoxes().first().title, QStringLiteral("<Error>"));
    QCOMPARE(clicker.messageBoxes().first().text, QStringLiteral("<Error parse file:/missing>"));

    MarkingTranslator ofTheForm("UIWPClaussClass");
    QVERIFY(QCoreApplication::installTranslator(&ofTheForm));
    UIWPClauss other(nullptr);
    QCOMPARE(PageDriver(&other).text("label"), QStringLiteral("<Script file:>"));
    QCOMPARE(other.title(), QStringLiteral("<Clauss panohead import>"));
    QCOMPARE(tabTitles(other), list({ "<General>", "<Options>" }));
    QVERIFY(other.subTitle().startsWith(QLatin1String("<<a href=")));
}

TEST_CLASS(TestUIWPClaussForm, FakeApplication)
#include "tst_uiwpclauss_form.moc"
