// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#include "importers/vrdrive2/uiwpvrdrive2.h"

#include "tests/support/fakeapplication.h"
#include "tests/support/formcheck.h"
#include "tests/support/pagedriver.h"

#include <QtTest>

namespace
{

const QVector<FormRow> kRows{
    { "m_renderMode", "QTabWidget", "" },
    { "General", "QWidget", "General" },
    { "m_lbImage", "QLabel", "Images:" },
    { "m_leImage", "QLineEdit", "" },
    { "m_pbSelectImages", "QPushButton", "..." },
    { "label_5", "QLabel", "Number of images:" },
    { "m_lbImageLog", "QLabel", "N/A" },
    { "label_14", "QLabel", "Image focal:" },
    { "m_lbFocalLengthImage", "QLabel", "N/A" },
    { "label_4", "QLabel", "Number of images:" },
    { "m_lbPapyLog", "QLabel", "N/A" },
    { "label_2", "QLabel", "Yaw:" },
    { "m_lbThetaMinMax", "QLabel", "N/A" },
    { "label_9", "QLabel", "Pitch:" },
    { "m_lbPhiMinMax", "QLabel", "N/A" },
    { "label_10", "QLabel", "Bracketing:" },
    { "m_lbBracket", "QLabel", "N/A" },
    { "label_12", "QLabel", "XML focal:" },
    { "m_lbFocalLength", "QLabel", "N/A" },
    { "label", "QLabel", "XML:" },
    { "m_leConfigFile", "QLineEdit", "" },
    { "m_pbSelectConfigFile", "QPushButton", "..." },
    { "m_pbReset", "QPushButton", "Reset" },
    { "label_6", "QLabel", "Output:" },
    { "m_rbOutputMode1", "QRadioButton", "8-bits / 16-bits tonemapped" },
    { "m_rbOutputMode2", "QRadioButton", "32-bits HDR radiance" },
    { "tab_4", "QWidget", "Shoot setup" },
    { "m_pInverseCoordinates", "QPushButton", "Inverse Y coordinates" },
    { "m_pbRot270", "QPushButton", "" },
    { "m_pbRot90", "QPushButton", "" },
    { "label_15", "QLabel", "Focal length:" },
    { "m_spFocal", "QDoubleSpinBox", "1.000" },
    { "label_7", "QLabel", "Lens Type:" },
    { "m_cbLensType", "QComboBox", "" },
    { "m_pbFLUseXML", "QPushButton", "Use XML information" },
    { "m_pbFLUseImage", "QPushButton", "Use image information" },
    { "tab_3", "QWidget", "Stack" },
    { "label_13", "QLabel", "Detect links in:" },
    { "m_rbLevelLinking0", "QRadioButton", "The reference level" },
    { "m_rbLevelLinking1", "QRadioButton", "All stack levels" },
    { "label_11", "QLabel", "For a stack:" },
    { "m_rbStackLinking0", "QRadioButton", "Use hard links" },
    { "m_rbStackLinking1", "QRadioButton", "Detect control points" },
    { "tab_2", "QWidget", "Detection options" },
    { "m_autoStart", "QCheckBox", "Auto detection" },
    { "m_cleanLink", "QCheckBox", "Clean wrong link" },
    { "m_noOptim", "QCheckBox", "Skip optimization" },
    { "m_GridOptim", "QCheckBox", "Use recorded location" },
    { "groupBox", "QGroupBox", "Preview" },
    { "m_saPreview", "QScrollArea", "" },
    { "label_3", "QLabel", "Zoom" },
    { "m_hSlider", "QSlider", "" },
};

const std::vector<FormPlace> kPlaces{
    { "General", { "m_lbImage",       "m_leImage", "m_pbSelectImages",     "label_5",
                   "m_lbImageLog",    "label_14",  "m_lbFocalLengthImage", "label_4",
                   "m_lbPapyLog",     "label_2",   "m_lbThetaMinMax",      "label_9",
                   "m_lbPhiMinMax",   "label_10",  "m_lbBracket",          "label_12",
                   "m_lbFocalLength", "label",     "m_leConfigFile",       "m_pbSelectConfigFile",
                   "m_pbReset",       "label_6",   "m_rbOutputMode1",      "m_rbOutputMode2",
                   "m_lbWarning" } },
    { "Shoot setup",
      { "m_pInverseCoordinates", "m_pbRot270", "m_pbRot90", "label_15", "m_spFocal", "label_7",
        "m_cbLensType", "m_pbFLUseXML", "m_pbFLUseImage" } },
    { "Stack",
      { "label_13", "m_rbLevelLinking0", "m_rbLevelLinking1", "label_11", "m_rbStackLinking0",
        "m_rbStackLinking1" } },
    { "Detection options", { "m_autoStart", "m_cleanLink", "m_noOptim", "m_GridOptim" } },
    { "Preview", { "m_saPreview", "label_3", "m_hSlider" } },
};

} // namespace

/** The form as a user finds it on a fresh page. */
class TestUIWPVRDrive2Form : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void widgetHasItsKindAndText_data() { addFormRows(kRows); }
    void widgetHasItsKindAndText() { checkFormRow(UIWPVRDrive2(nullptr)); }
    void formHoldsTheWarningAndNothingElse();
    void tabWidgetIsCalledRenderModeWanted();
    void tabsStandInTheirOrder();
    void widgetStandsOnItsTab_data() { addFormPlaces(kPlaces); }
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
    QStringList names = formNames(UIWPVRDrive2(nullptr));
    QVERIFY(names.removeOne(QStringLiteral("m_lbWarning")));
    QCOMPARE(names, rowNames(kRows));
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
             list({ "m_renderMode",
                    "m_leImage",
                    "m_pbSelectImages",
                    "m_leConfigFile",
                    "m_pbSelectConfigFile",
                    "m_pbReset",
                    "m_rbOutputMode1",
                    "m_rbOutputMode2",
                    "m_pInverseCoordinates",
                    "m_pbRot270",
                    "m_pbRot90",
                    "m_spFocal",
                    "m_cbLensType",
                    "m_pbFLUseXML",
                    "m_pbFLUseImage",
                    "m_rbLevelLinking0",
                    "m_rbLevelLinking1",
                    "m_rbStackLinking0",
                    "m_rbStackLinking1",
                    "m_autoStart",
                    "m_cleanLink",
                    "m_noOptim",
                    "m_GridOptim",
                    "m_saPreview",
                    "m_hSlider" }));
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
