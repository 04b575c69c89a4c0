// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#include "importers/papywizard/uiwpmerlin.h"

#include "tests/support/fakeapplication.h"
#include "tests/support/formcheck.h"

#include <QtTest>

namespace
{

const QVector<FormRow> kRows{
    { "tabWidget", "QTabWidget", "" },
    { "General", "QWidget", "General" },
    { "label", "QLabel", "XML:" },
    { "m_leConfigFile", "QLineEdit", "" },
    { "m_pbSelectConfigFile", "QPushButton", "..." },
    { "m_pbReset", "QPushButton", "Reset" },
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
    { "m_leImage", "QLineEdit", "" },
    { "m_pbSelectImages", "QPushButton", "..." },
    { "m_lbImage", "QLabel", "Images:" },
    { "label_5", "QLabel", "Number of images:" },
    { "m_lbImageLog", "QLabel", "N/A" },
    { "label_14", "QLabel", "Image focal:" },
    { "m_lbFocalLengthImage", "QLabel", "N/A" },
    { "m_lbWarning", "QLabel", "<p style='color:red'></p>" },
    { "tab_4", "QWidget", "Shoot setup" },
    { "m_pInverseCoordinates", "QPushButton", "Inverse Y coordinates" },
    { "m_pbRot270", "QPushButton", "" },
    { "m_pbRot90", "QPushButton", "" },
    { "label_15", "QLabel", "Focal length:" },
    { "m_spFocal", "QDoubleSpinBox", "1.000" },
    { "label_16", "QLabel", "Lens Type:" },
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
    { "tab", "QWidget", "Header details" },
    { "label_6", "QLabel", "Title:" },
    { "m_leHeaderTitle", "QLineEdit", "" },
    { "label_7", "QLabel", "GPS:" },
    { "m_leHeaderGps", "QLineEdit", "" },
    { "label_8", "QLabel", "Comment:" },
    { "m_leHeaderComment", "QLineEdit", "" },
    { "groupBox", "QGroupBox", "Preview" },
    { "m_saPreview", "QScrollArea", "" },
    { "label_3", "QLabel", "Zoom" },
    { "m_hSlider", "QSlider", "" },
};

const std::vector<FormPlace> kPlaces{
    { "General",
      { "label",
        "m_leConfigFile",
        "m_pbSelectConfigFile",
        "m_pbReset",
        "label_4",
        "m_lbPapyLog",
        "label_2",
        "m_lbThetaMinMax",
        "label_9",
        "m_lbPhiMinMax",
        "label_10",
        "m_lbBracket",
        "label_12",
        "m_lbFocalLength",
        "m_leImage",
        "m_pbSelectImages",
        "m_lbImage",
        "label_5",
        "m_lbImageLog",
        "label_14",
        "m_lbFocalLengthImage",
        "m_lbWarning" } },
    { "Shoot setup",
      { "m_pInverseCoordinates", "m_pbRot270", "m_pbRot90", "label_15", "m_spFocal", "label_16",
        "m_cbLensType", "m_pbFLUseXML", "m_pbFLUseImage" } },
    { "Stack",
      { "label_13", "m_rbLevelLinking0", "m_rbLevelLinking1", "label_11", "m_rbStackLinking0",
        "m_rbStackLinking1" } },
    { "Detection options", { "m_autoStart", "m_cleanLink", "m_noOptim", "m_GridOptim" } },
    { "Header details",
      { "label_6", "m_leHeaderTitle", "label_7", "m_leHeaderGps", "label_8",
        "m_leHeaderComment" } },
    { "Preview", { "m_saPreview", "label_3", "m_hSlider" } },
};

} // namespace

/** The form as a user finds it on a fresh page. */
class TestUIWPMerlinForm : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void widgetHasItsKindAndText_data() { addFormRows(kRows); }
    void widgetHasItsKindAndText() { checkFormRow(UIWPMerlin(nullptr)); }
    void formHoldsNothingElse();
    void tabsStandInTheirOrder();
    void widgetStandsOnItsTab_data() { addFormPlaces(kPlaces); }
    void widgetStandsOnItsTab() { checkFormPlace(UIWPMerlin(nullptr)); }
    void tabKeyFollowsTheTable();
    void labelsNameTheirFields();
};

void TestUIWPMerlinForm::formHoldsNothingElse()
{
    QCOMPARE(formNames(UIWPMerlin(nullptr)), rowNames(kRows));
}

void TestUIWPMerlinForm::tabsStandInTheirOrder()
{
    const UIWPMerlin page(nullptr);
    QCOMPARE(tabTitles(page),
             list({ "General", "Shoot setup", "Stack", "Detection options", "Header details" }));
    QCOMPARE(page.tabWidget->currentIndex(), 0);
}

void TestUIWPMerlinForm::tabKeyFollowsTheTable()
{
    QCOMPARE(tabOrder(UIWPMerlin(nullptr)), list({ "tabWidget",
                                                   "m_leConfigFile",
                                                   "m_pbSelectConfigFile",
                                                   "m_pbReset",
                                                   "m_leImage",
                                                   "m_pbSelectImages",
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
                                                   "m_leHeaderTitle",
                                                   "m_leHeaderGps",
                                                   "m_leHeaderComment",
                                                   "m_saPreview",
                                                   "m_hSlider" }));
}

void TestUIWPMerlinForm::labelsNameTheirFields()
{
    QCOMPARE(buddies(UIWPMerlin(nullptr)),
             list({ "label > m_leConfigFile", "label_15 > m_spFocal", "label_16 > m_cbLensType",
                    "label_3 > m_hSlider", "label_6 > m_leHeaderTitle", "label_7 > m_leHeaderGps",
                    "label_8 > m_leHeaderComment", "m_lbImage > m_leImage" }));
}

TEST_CLASS(TestUIWPMerlinForm, FakeApplication)
#include "tst_uiwpmerlin_form.moc"
