// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#include "importers/clauss/uiwpclauss.h"

#include "tests/support/fakeapplication.h"
#include "tests/support/formcheck.h"
#include "tests/support/pagedriver.h"
#include "tests/support/shootfolder.h"
#include "ui/xuipixmaphelper.h"

#include <QtTest>

namespace
{

const QVector<FormRow> kRows{
    { "tabWidget", "QTabWidget", "" },
    { "General", "QWidget", "General" },
    { "label", "QLabel", "Script file:" },
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
    { "m_lbImageLog", "QLabel", "N/A" },
    { "tab_2", "QWidget", "Options" },
    { "m_autoStart", "QCheckBox", "Auto detection" },
    { "m_cleanLink", "QCheckBox", "Clean wrong link" },
    { "m_noOptim", "QCheckBox", "Skip optimization" },
    { "m_GridOptim", "QCheckBox", "Guided optimization" },
    { "groupBox", "QGroupBox", "Preview" },
    { "m_saPreview", "QScrollArea", "" },
    { "label_2", "QLabel", "Zoom" },
    { "m_hSlider", "QSlider", "" },
};

const std::vector<FormPlace> kPlaces{
    { "General",
      { "label", "m_leConfigFile", "m_pbSelectConfigFile", "m_pbReset", "label_5", "m_lbPapyLog",
        "label_6", "m_lbThetaMinMax", "label_9", "m_lbPhiMinMax", "m_pInverseCoordinates",
        "m_lbImage_2", "m_leImage", "m_pbSelectImages", "label_10", "m_lbImageLog" } },
    { "Options", { "m_autoStart", "m_cleanLink", "m_noOptim", "m_GridOptim" } },
    { "Preview", { "m_saPreview", "label_2", "m_hSlider" } },
};

/** The subtitle in \p linkColour, without the address that its link leads to. */
QString subtitle(const QString &linkColour)
{
    return QLatin1String("<a href=\"ADDRESS\"><font color=\"") + linkColour
        + QLatin1String("\">Clauss</font></a> provides special equipment for panoramic photography "
                        "and VR applications.");
}

} // namespace

/** The form as a user finds it on a fresh page. */
class TestUIWPClaussForm : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void widgetHasItsKindAndText_data() { addFormRows(kRows); }
    void widgetHasItsKindAndText() { checkFormRow(UIWPClauss(nullptr)); }
    void formHoldsNothingElse();
    void tabsStandInTheirOrder();
    void widgetStandsOnItsTab_data() { addFormPlaces(kPlaces); }
    void widgetStandsOnItsTab() { checkFormPlace(UIWPClauss(nullptr)); }
    void tabKeyFollowsTheTable();
    void labelsNameTheirFields();
    void titlesAndSubtitle();
    void subtitleFollowsTheTheme();
    void pageShowsItsLogo();
    void freshDefaults();
    void zoomHasItsRange();
    void photoListIsReadOnly();
    void pathIsCompletedFromFoldersAndFiles();
    void previewIsCentred();
    void labelsWithNumbersArePlain_data();
    void labelsWithNumbersArePlain();
    void textsAreTranslatedInTheirContexts();
};

void TestUIWPClaussForm::formHoldsNothingElse()
{
    QCOMPARE(formNames(UIWPClauss(nullptr)), rowNames(kRows));
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

void TestUIWPClaussForm::titlesAndSubtitle()
{
    UIWPClauss page(nullptr);
    QCOMPARE(page.windowTitle(), QStringLiteral("Clauss panohead"));
    QCOMPARE(page.title(), QStringLiteral("Clauss panohead import"));
    const QColor colour = PageDriver(&page).preview()->palette().color(QPalette::WindowText);
    QCOMPARE(withoutAddress(page.subTitle()), subtitle(colour.name()));
}

void TestUIWPClaussForm::subtitleFollowsTheTheme()
{
    const QPalette before = QApplication::palette();
    QPalette dark = before;
    dark.setColor(QPalette::WindowText, QColor(0x12, 0xab, 0xef));
    QApplication::setPalette(dark);
    const UIWPClauss page(nullptr);
    QApplication::setPalette(before);

    QCOMPARE(withoutAddress(page.subTitle()), subtitle(QStringLiteral("#12abef")));
}

void TestUIWPClaussForm::pageShowsItsLogo()
{
    const QPixmap logo = XuiPixmapHelper::CreateHighDpiPixmap(
        QStringLiteral(":/7A21C94E-5B20-2020-2020-D6D081182F97/Resources/Clauss_wp.png"), 255,
        QSize(-1, -1));
    QVERIFY(!logo.isNull());
    QCOMPARE(UIWPClauss(nullptr).pixmap(QWizard::LogoPixmap).toImage(), logo.toImage());
}

void TestUIWPClaussForm::freshDefaults()
{
    const UIWPClauss page(nullptr);
    QCOMPARE(page.m_autoStart->checkState(), Qt::Checked);
    QCOMPARE(page.m_cleanLink->checkState(), Qt::Unchecked);
    QCOMPARE(page.m_noOptim->checkState(), Qt::Unchecked);
    QCOMPARE(page.m_GridOptim->checkState(), Qt::Checked);
}

void TestUIWPClaussForm::zoomHasItsRange()
{
    const UIWPClauss page(nullptr);
    QCOMPARE(page.m_hSlider->minimum(), 1);
    QCOMPARE(page.m_hSlider->maximum(), 100);
    QCOMPARE(page.m_hSlider->value(), 50);
    QCOMPARE(page.m_hSlider->orientation(), Qt::Horizontal);
}

void TestUIWPClaussForm::photoListIsReadOnly()
{
    const UIWPClauss page(nullptr);
    QVERIFY(page.m_leImage->isReadOnly());
    QVERIFY(!page.m_leConfigFile->isReadOnly());
}

void TestUIWPClaussForm::pathIsCompletedFromFoldersAndFiles()
{
    const ShootFolder folder;
    folder.write(QStringLiteral("script.txt"), {});
    folder.write(QStringLiteral("photo.jpg"), {});
    folder.write(QStringLiteral("sub/other.txt"), {});
    const UIWPClauss page(nullptr);

    QCOMPARE(proposals(*page.m_leConfigFile, folder.path()),
             list({ "photo.jpg", "script.txt", "sub" }));
}

void TestUIWPClaussForm::previewIsCentred()
{
    UIWPClauss page(nullptr);
    QCOMPARE(PageDriver(&page).preview()->alignment(),
             Qt::Alignment(Qt::AlignHCenter | Qt::AlignVCenter));
    QVERIFY(page.groupBox->isAncestorOf(page.m_saPreview));
    QVERIFY(page.groupBox->isAncestorOf(page.m_hSlider));
}

void TestUIWPClaussForm::labelsWithNumbersArePlain_data()
{
    QTest::addColumn<QString>("name");
    for (const char *name : { "m_lbPapyLog", "m_lbThetaMinMax", "m_lbPhiMinMax", "m_lbImageLog" }) {
        QTest::newRow(name) << QString::fromLatin1(name);
    }
}

void TestUIWPClaussForm::labelsWithNumbersArePlain()
{
    QFETCH(QString, name);
    const UIWPClauss page(nullptr);
    QCOMPARE(page.findChild<QLabel *>(name)->textFormat(), Qt::PlainText);
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

FAKE_HOST_MAIN(FakeApplication, TestUIWPClaussForm)
#include "tst_uiwpclauss_form.moc"
