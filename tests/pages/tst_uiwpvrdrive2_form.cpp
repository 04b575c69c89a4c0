// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#include "importers/vrdrive2/uiwpvrdrive2.h"

#include "tests/pages/recordform.h"
#include "tests/support/fakeapplication.h"
#include "tests/support/pagedriver.h"

#include <QtTest>

namespace
{

const Form kForm
    = RecordForm::form("m_renderMode", "label_7",
                       { { "label_6", "QLabel", "Output:" },
                         { "m_rbOutputMode1", "QRadioButton", "8-bits / 16-bits tonemapped" },
                         { "m_rbOutputMode2", "QRadioButton", "32-bits HDR radiance" },
                         { "m_lbWarning", "QLabel", nullptr } }); // hidden

} // namespace

/** The form as a user finds it on a fresh page. */
class TestUIWPVRDrive2Form : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void widgetHasItsKindAndText_data() { addFormRows(kForm); }
    void widgetHasItsKindAndText() { checkFormRow(UIWPVRDrive2(nullptr)); }
    void formHoldsTheWarningAndNothingElse();
    void tabWidgetIsCalledRenderModeWanted();
    void tabsStandInTheirOrder();
    void widgetStandsOnItsTab_data() { addFormPlaces(kForm); }
    void widgetStandsOnItsTab() { checkFormPlace(UIWPVRDrive2(nullptr)); }
    void tabKeyFollowsTheTable();
    void labelsNameTheirFields();
    void warningIsHidden();
    void outputAndLevelChoicesExcludeEachOtherAlone();
    void rangesAreTheOnlyTextsNotTranslated();
    void formHasAContextOfItsOwn();
};

void TestUIWPVRDrive2Form::formHoldsTheWarningAndNothingElse()
{
    QCOMPARE(formNames(UIWPVRDrive2(nullptr)), rowNames(kForm));
}

void TestUIWPVRDrive2Form::tabWidgetIsCalledRenderModeWanted()
{
    const UIWPVRDrive2 page(nullptr);
    // It holds the tabs, not the choice of the output.
    QCOMPARE(page.m_renderMode->metaObject()->className(), "QTabWidget");
    QCOMPARE(page.m_renderMode->objectName(), QStringLiteral("m_renderMode"));
    QCOMPARE(page.m_renderMode->count(), 4);
}

void TestUIWPVRDrive2Form::tabsStandInTheirOrder()
{
    const UIWPVRDrive2 page(nullptr);
    QCOMPARE(tabTitles(page), list({ "General", "Shoot setup", "Stack", "Detection options" }));
    QCOMPARE(page.m_renderMode->currentIndex(), 0);
}

void TestUIWPVRDrive2Form::tabKeyFollowsTheTable()
{
    QCOMPARE(tabOrder(UIWPVRDrive2(nullptr)),
             list({ "m_renderMode", "m_leImage", "m_pbSelectImages", "m_leConfigFile",
                    "m_pbSelectConfigFile", "m_pbReset", "m_rbOutputMode1", "m_rbOutputMode2" })
                 + RecordForm::tabOrder() + list({ "m_saPreview", "m_hSlider" }));
}

void TestUIWPVRDrive2Form::labelsNameTheirFields()
{
    QCOMPARE(buddies(UIWPVRDrive2(nullptr)),
             list({ "label > m_leConfigFile", "label_15 > m_spFocal", "label_3 > m_hSlider",
                    "label_7 > m_cbLensType", "m_lbImage > m_leImage" }));
}

void TestUIWPVRDrive2Form::warningIsHidden()
{
    UIWPVRDrive2 page(nullptr);
    const PageDriver driver(&page);
    QCOMPARE(driver.find<QLabel>("m_lbWarning")->metaObject()->className(), "QLabel");
    QVERIFY(!page.m_lbWarning->isVisible());
}

void TestUIWPVRDrive2Form::outputAndLevelChoicesExcludeEachOtherAlone()
{
    UIWPVRDrive2 page(nullptr);
    const PageDriver driver(&page);
    QVERIFY(page.m_rbOutputMode1->isChecked());
    QVERIFY(!page.m_rbOutputMode2->isChecked());

    driver.click("m_rbOutputMode2");

    QVERIFY(page.m_rbOutputMode2->isChecked());
    QVERIFY(!page.m_rbOutputMode1->isChecked());
    QVERIFY(page.m_rbLevelLinking0->isChecked());
    QVERIFY(page.m_rbStackLinking0->isChecked());
    driver.click("m_rbOutputMode1");
    QVERIFY(page.m_rbOutputMode1->isChecked());
    QVERIFY(!page.m_rbOutputMode2->isChecked());
}

void TestUIWPVRDrive2Form::rangesAreTheOnlyTextsNotTranslated()
{
    MarkingTranslator translator("UIWPVRDrive2");
    QVERIFY(QCoreApplication::installTranslator(&translator));
    UIWPVRDrive2 page(nullptr);
    const PageDriver driver(&page);
    for (const char *name : { "m_lbPapyLog", "m_lbBracket", "m_lbFocalLength", "m_lbImageLog",
                              "m_lbFocalLengthImage" }) {
        QCOMPARE(driver.text(name), QStringLiteral("<N/A>"));
    }
    QCOMPARE(driver.text("m_lbThetaMinMax"), QStringLiteral("N/A"));
    QCOMPARE(driver.text("m_lbPhiMinMax"), QStringLiteral("N/A"));
    QCOMPARE(page.m_cbLensType->itemText(0), QStringLiteral("<Standard>"));
    QCOMPARE(page.m_cbLensType->itemText(1), QStringLiteral("<Fisheye>"));
    const DialogClicker::SeenFileDialog dialog = driver.cancelFiles("m_pbSelectConfigFile");
    QCOMPARE(dialog.caption, QStringLiteral("<Select the preset file and/or images>"));
    QCOMPARE(driver.cancelFiles("m_pbSelectImages").caption, QStringLiteral("<Select images>"));
    QCOMPARE(driver.text("label"), QStringLiteral("XML:")); // of the form
}

void TestUIWPVRDrive2Form::formHasAContextOfItsOwn()
{
    MarkingTranslator translator("UIWPVRDrive2Class");
    QVERIFY(QCoreApplication::installTranslator(&translator));
    UIWPVRDrive2 page(nullptr);
    const PageDriver driver(&page);
    QCOMPARE(driver.text("label"), QStringLiteral("<XML:>"));
    QCOMPARE(driver.text("m_lbPapyLog"), QStringLiteral("N/A")); // of the page
    QCOMPARE(page.QWizardPage::title(), QStringLiteral("<VR Drive 2>"));
    QCOMPARE(tabTitles(page).first(), QStringLiteral("<General>"));
    QVERIFY(page.subTitle().startsWith(QLatin1String("<<a href=")));
}

TEST_CLASS(TestUIWPVRDrive2Form, FakeApplication)
#include "tst_uiwpvrdrive2_form.moc"
