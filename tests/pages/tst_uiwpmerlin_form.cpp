// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#include "importers/papywizard/uiwpmerlin.h"

#include "tests/support/fakeapplication.h"
#include "tests/support/formcheck.h"
#include "tests/support/pagedriver.h"
#include "tests/support/shootfolder.h"

#include <QCompleter>
#include <QDirModel>
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

/** The subtitle in \p linkColour, without the address that its link leads to. */
QString subtitle(const QString &linkColour)
{
    return QLatin1String("<a href=\"ADDRESS\"><font color=\"") + linkColour
        + QLatin1String("\">Papywizard</font></a> is a free project to drive Merlin/Orion panorama "
                        "heads. The XML file format is open and used by a wide range of motorized "
                        "panorama heads.");
}

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
    void tabKeyFollowsTheTable();
    void labelsNameTheirFields();
    void titlesAndSubtitle();
    void subtitleFollowsTheTheme();
    void pageShowsNoLogo();
    void freshDefaults();
    void numbersHaveTheirRanges();
    void lensTypesStartWithTheFisheye();
    void stackChoicesAreAGroupOfTheirOwn();
    void rotateButtonsShowTheirPictures();
    void photoListIsReadOnly();
    void pathIsCompletedFromFoldersAndFiles();
    void previewIsCentred();
    void labelsWithNumbersArePlain_data();
    void labelsWithNumbersArePlain();
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

void TestUIWPMerlinForm::titlesAndSubtitle()
{
    const UIWPMerlin page(nullptr);
    QCOMPARE(page.windowTitle(), QStringLiteral("Papywizard panohead control software"));
    QCOMPARE(page.QWizardPage::title(), QStringLiteral("Papywizard import"));
    const QString colour = PageDriver(const_cast<UIWPMerlin *>(&page))
                               .preview()
                               ->palette()
                               .color(QPalette::WindowText)
                               .name();
    QCOMPARE(withoutAddress(page.subTitle()), subtitle(colour));
}

void TestUIWPMerlinForm::subtitleFollowsTheTheme()
{
    const QPalette before = QApplication::palette();
    QPalette dark = before;
    dark.setColor(QPalette::WindowText, QColor(0x12, 0xab, 0xef));
    QApplication::setPalette(dark);
    const UIWPMerlin page(nullptr);
    QApplication::setPalette(before);

    QCOMPARE(withoutAddress(page.subTitle()), subtitle(QStringLiteral("#12abef")));
}

void TestUIWPMerlinForm::pageShowsNoLogo()
{
    QVERIFY(UIWPMerlin(nullptr).pixmap(QWizard::LogoPixmap).isNull());
}

void TestUIWPMerlinForm::freshDefaults()
{
    const UIWPMerlin page(nullptr);
    QVERIFY(page.m_rbLevelLinking0->isChecked());
    QVERIFY(!page.m_rbLevelLinking1->isChecked());
    QVERIFY(page.m_rbStackLinking0->isChecked());
    QVERIFY(!page.m_rbStackLinking1->isChecked());
    QCOMPARE(page.m_autoStart->checkState(), Qt::Checked);
    QCOMPARE(page.m_cleanLink->checkState(), Qt::Unchecked);
    QCOMPARE(page.m_noOptim->checkState(), Qt::Unchecked);
    QCOMPARE(page.m_GridOptim->checkState(), Qt::Checked);
}

void TestUIWPMerlinForm::numbersHaveTheirRanges()
{
    const UIWPMerlin page(nullptr);
    QCOMPARE(page.m_spFocal->decimals(), 3);
    QCOMPARE(page.m_spFocal->minimum(), 1.0);
    QCOMPARE(page.m_spFocal->maximum(), 10000.0);
    QCOMPARE(page.m_hSlider->minimum(), 1);
    QCOMPARE(page.m_hSlider->maximum(), 100);
    QCOMPARE(page.m_hSlider->value(), 50);
    QCOMPARE(page.m_hSlider->orientation(), Qt::Horizontal);
}

void TestUIWPMerlinForm::lensTypesStartWithTheFisheye()
{
    const UIWPMerlin page(nullptr);
    QCOMPARE(page.m_cbLensType->count(), 2);
    QCOMPARE(page.m_cbLensType->itemText(0), QStringLiteral("Standard"));
    QCOMPARE(page.m_cbLensType->itemText(1), QStringLiteral("Fisheye"));
    QCOMPARE(page.m_cbLensType->currentIndex(), 1);
}

void TestUIWPMerlinForm::stackChoicesAreAGroupOfTheirOwn()
{
    const UIWPMerlin page(nullptr);
    QCOMPARE(page.buttonGroup->objectName(), QStringLiteral("buttonGroup"));
    QCOMPARE(page.buttonGroup->buttons().size(), 2);
    QCOMPARE(page.m_rbStackLinking0->group(), page.buttonGroup);
    QCOMPARE(page.m_rbStackLinking1->group(), page.buttonGroup);
    QVERIFY(!page.m_rbLevelLinking0->group());
    QVERIFY(!page.m_rbLevelLinking1->group());
}

void TestUIWPMerlinForm::rotateButtonsShowTheirPictures()
{
    const UIWPMerlin page(nullptr);
    const QString folder = QStringLiteral(":/7A21C94E-5B20-2020-2020-483181480AB7/Resources/");
    const auto picture = [](const QIcon &icon) { return icon.pixmap(QSize(32, 32)).toImage(); };
    const QImage left = picture(QIcon(folder + QLatin1String("rot90left.png")));
    const QImage right = picture(QIcon(folder + QLatin1String("rot90right.png")));
    QVERIFY(!left.isNull());
    QVERIFY(left != right);
    QCOMPARE(picture(page.m_pbRot270->icon()), left);
    QCOMPARE(picture(page.m_pbRot90->icon()), right);
}

void TestUIWPMerlinForm::photoListIsReadOnly()
{
    const UIWPMerlin page(nullptr);
    QVERIFY(page.m_leImage->isReadOnly());
    QVERIFY(!page.m_leConfigFile->isReadOnly());
}

void TestUIWPMerlinForm::pathIsCompletedFromFoldersAndFiles()
{
    const ShootFolder folder;
    folder.write(QStringLiteral("shoot.xml"), {});
    folder.write(QStringLiteral("photo.jpg"), {});
    folder.write(QStringLiteral("sub/other.xml"), {});
    folder.write(QStringLiteral(".hidden"), {});
    const UIWPMerlin page(nullptr);

    QCOMPARE(proposals(*page.m_leConfigFile, folder.path()),
             list({ "photo.jpg", "shoot.xml", "sub" }));

    QT_WARNING_PUSH
    QT_WARNING_DISABLE_DEPRECATED
    const auto *model = qobject_cast<QDirModel *>(page.m_leConfigFile->completer()->model());
    QVERIFY(model);
    QVERIFY((model->filter() & (QDir::Dirs | QDir::AllDirs)) != 0);
    QVERIFY(model->filter().testFlag(QDir::Files));
    QVERIFY(model->filter().testFlag(QDir::Drives));
    QVERIFY(model->filter().testFlag(QDir::NoDotAndDotDot));
    QVERIFY(!model->filter().testFlag(QDir::Hidden));
    QT_WARNING_POP
}

void TestUIWPMerlinForm::previewIsCentred()
{
    UIWPMerlin page(nullptr);
    QCOMPARE(page.m_saPreview->alignment(), Qt::Alignment(Qt::AlignCenter));
    QCOMPARE(PageDriver(&page).preview()->alignment(),
             Qt::Alignment(Qt::AlignHCenter | Qt::AlignVCenter));
    QVERIFY(page.groupBox->isAncestorOf(page.m_saPreview));
}

void TestUIWPMerlinForm::labelsWithNumbersArePlain_data()
{
    QTest::addColumn<QString>("name");
    for (const char *name : { "m_lbPapyLog", "m_lbThetaMinMax", "m_lbPhiMinMax", "m_lbBracket",
                              "m_lbFocalLength", "m_lbImageLog", "m_lbFocalLengthImage" }) {
        QTest::newRow(name) << QString::fromLatin1(name);
    }
}

void TestUIWPMerlinForm::labelsWithNumbersArePlain()
{
    QFETCH(QString, name);
    const UIWPMerlin page(nullptr);
    QCOMPARE(page.findChild<QLabel *>(name)->textFormat(), Qt::PlainText);
}

FAKE_HOST_MAIN(FakeApplication, TestUIWPMerlinForm)
#include "tst_uiwpmerlin_form.moc"
