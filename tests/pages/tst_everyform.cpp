// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#include "tests/support/fakeapplication.h"
#include "tests/support/formcheck.h"
#include "tests/support/heads.h"
#include "ui/xuipixmaphelper.h"

#include <QAbstractButton>
#include <QButtonGroup>
#include <QCheckBox>
#include <QComboBox>
#include <QCompleter>
#include <QDirModel>
#include <QDoubleSpinBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QRadioButton>
#include <QScrollArea>
#include <QSlider>
#include <QWizard>
#include <QtTest>

namespace
{

/** \p text about the head \p name, without the address that its link leads to. */
QString subtitle(const QString &name, const QString &colour, const QString &text)
{
    return QStringLiteral("<a href=\"ADDRESS\"><font color=\"%1\">%2</font></a> %3")
        .arg(colour, name, text);
}

} // namespace

/** What the forms of all heads have alike on a fresh page. */
class TestEveryForm : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void titlesAndSubtitle_data();
    void titlesAndSubtitle();
    void subtitleFollowsTheTheme_data() { titlesAndSubtitle_data(); }
    void subtitleFollowsTheTheme();
    void pageShowsItsLogo_data();
    void pageShowsItsLogo();

    void boxesAreCheckedAsWanted_data();
    void boxesAreCheckedAsWanted();
    void linkingStartsWithTheReferenceLevelAndHardLinks_data() { addHeads(headsWithLinking()); }
    void linkingStartsWithTheReferenceLevelAndHardLinks();
    void stackChoicesAreAGroupOfTheirOwn_data() { addHeads(headsWithLinking()); }
    void stackChoicesAreAGroupOfTheirOwn();
    void focalLengthHasItsRange_data() { addHeads(headsWithLens()); }
    void focalLengthHasItsRange();
    void lensTypesStartWithTheFisheye_data() { addHeads(headsWithLens()); }
    void lensTypesStartWithTheFisheye();
    void rotateButtonsShowTheirPictures_data() { addHeads(headsThatTurn()); }
    void rotateButtonsShowTheirPictures();

    void photoListIsReadOnly_data() { addHeads(allHeads()); }
    void photoListIsReadOnly();
    void pathIsTypedAndCompleted_data() { addHeads(headsWithRecords()); }
    void pathIsTypedAndCompleted();
    void labelsWithNumbersArePlain_data();
    void labelsWithNumbersArePlain();
    void previewIsCentred_data() { addHeads(allHeads()); }
    void previewIsCentred();
    void zoomHasItsRange_data() { addHeads(allHeads()); }
    void zoomHasItsRange();
};

void TestEveryForm::titlesAndSubtitle_data()
{
    addHeads(allHeads());
}

void TestEveryForm::titlesAndSubtitle()
{
    QFETCH(const Head *, head);
    const HeadShoot shoot(*head);
    QCOMPARE(shoot.page->windowTitle(), head->windowTitle);
    QCOMPARE(shoot.page->title(), head->title);
    const QColor colour = shoot.driver.preview()->palette().color(QPalette::WindowText);
    QCOMPARE(withoutAddress(shoot.page->subTitle()),
             subtitle(QLatin1String(head->name), colour.name(), head->about));
}

void TestEveryForm::subtitleFollowsTheTheme()
{
    QFETCH(const Head *, head);
    const QPalette before = QApplication::palette();
    QPalette dark = before;
    dark.setColor(QPalette::WindowText, QColor(0x12, 0xab, 0xef));
    QApplication::setPalette(dark);
    const HeadShoot shoot(*head);
    QApplication::setPalette(before);

    QCOMPARE(withoutAddress(shoot.page->subTitle()),
             subtitle(QLatin1String(head->name), QStringLiteral("#12abef"), head->about));
}

void TestEveryForm::pageShowsItsLogo_data()
{
    addHeads(allHeads());
}

void TestEveryForm::pageShowsItsLogo()
{
    QFETCH(const Head *, head);
    const QImage shown = HeadShoot(*head).page->pixmap(QWizard::LogoPixmap).toImage();
    if (head->logo.isEmpty()) {
        QVERIFY(shown.isNull());
        return;
    }
    QImage logo = XuiPixmapHelper::CreateHighDpiPixmap(head->logo, 255, QSize(-1, -1)).toImage();
    QVERIFY(!logo.isNull());
    // The picture as it is, shown in 64 pixels of the page.
    QCOMPARE(QSizeF(shown.size()) / shown.devicePixelRatio(), QSizeF(64.0, 64.0));
    logo.setDevicePixelRatio(shown.devicePixelRatio());
    QCOMPARE(shown, logo);
}

void TestEveryForm::boxesAreCheckedAsWanted_data()
{
    QTest::addColumn<const Head *>("head");
    QTest::addColumn<QByteArray>("box");
    QTest::addColumn<Qt::CheckState>("state");
    const auto row = [](const Head &head, const char *box, Qt::CheckState state) {
        QTest::addRow("%s: %s", head.name, box) << &head << QByteArray(box) << state;
    };
    for (const Head *head : allHeads()) {
        row(*head, "m_autoStart", Qt::Checked);
        row(*head, "m_noOptim", Qt::Unchecked);
        row(*head, "m_cleanLink", head->facts->cleansLinks ? Qt::Checked : Qt::Unchecked);
        if (head->facts->isGrid()) {
            row(*head, "m_cbIS360", Qt::Unchecked);
        } else {
            row(*head, "m_GridOptim", Qt::Checked);
        }
    }
}

void TestEveryForm::boxesAreCheckedAsWanted()
{
    QFETCH(const Head *, head);
    QFETCH(QByteArray, box);
    QFETCH(Qt::CheckState, state);
    const HeadShoot shoot(*head);
    QCOMPARE(shoot.driver.find<QCheckBox>(box.constData())->checkState(), state);
}

void TestEveryForm::linkingStartsWithTheReferenceLevelAndHardLinks()
{
    QFETCH(const Head *, head);
    const HeadShoot shoot(*head);
    QVERIFY(shoot.driver.find<QRadioButton>("m_rbLevelLinking0")->isChecked());
    QVERIFY(!shoot.driver.find<QRadioButton>("m_rbLevelLinking1")->isChecked());
    QVERIFY(shoot.driver.find<QRadioButton>("m_rbStackLinking0")->isChecked());
    QVERIFY(!shoot.driver.find<QRadioButton>("m_rbStackLinking1")->isChecked());
}

void TestEveryForm::stackChoicesAreAGroupOfTheirOwn()
{
    QFETCH(const Head *, head);
    const HeadShoot shoot(*head);
    const QButtonGroup *group = shoot.driver.find<QRadioButton>("m_rbStackLinking0")->group();
    QVERIFY(group);
    QCOMPARE(group->objectName(), QStringLiteral("buttonGroup"));
    QCOMPARE(group->buttons().size(), 2);
    QCOMPARE(shoot.driver.find<QRadioButton>("m_rbStackLinking1")->group(), group);
    QVERIFY(!shoot.driver.find<QRadioButton>("m_rbLevelLinking0")->group());
    QVERIFY(!shoot.driver.find<QRadioButton>("m_rbLevelLinking1")->group());
}

void TestEveryForm::focalLengthHasItsRange()
{
    QFETCH(const Head *, head);
    const HeadShoot shoot(*head);
    const auto *focal = shoot.driver.find<QDoubleSpinBox>("m_spFocal");
    QCOMPARE(focal->decimals(), 3);
    QCOMPARE(focal->minimum(), 1.0);
    QCOMPARE(focal->maximum(), 10000.0);
}

void TestEveryForm::lensTypesStartWithTheFisheye()
{
    QFETCH(const Head *, head);
    const HeadShoot shoot(*head);
    const auto *lensType = shoot.driver.find<QComboBox>("m_cbLensType");
    QCOMPARE(lensType->count(), 2);
    QCOMPARE(lensType->itemText(0), QStringLiteral("Standard"));
    QCOMPARE(lensType->itemText(1), QStringLiteral("Fisheye"));
    QCOMPARE(lensType->currentIndex(), 1);
}

void TestEveryForm::rotateButtonsShowTheirPictures()
{
    QFETCH(const Head *, head);
    const HeadShoot shoot(*head);
    const QString folder = QStringLiteral(":/7A21C94E-5B20-2020-2020-483181480AB7/Resources/");
    const auto picture = [](const QIcon &icon) { return icon.pixmap(QSize(32, 32)).toImage(); };
    const QImage left = picture(QIcon(folder + QLatin1String("rot90left.png")));
    const QImage right = picture(QIcon(folder + QLatin1String("rot90right.png")));
    QVERIFY(!left.isNull());
    QVERIFY(left != right);
    QCOMPARE(picture(shoot.driver.find<QAbstractButton>("m_pbRot270")->icon()), left);
    QCOMPARE(picture(shoot.driver.find<QAbstractButton>("m_pbRot90")->icon()), right);
}

void TestEveryForm::photoListIsReadOnly()
{
    QFETCH(const Head *, head);
    QVERIFY(HeadShoot(*head).driver.find<QLineEdit>("m_leImage")->isReadOnly());
}

void TestEveryForm::pathIsTypedAndCompleted()
{
    QFETCH(const Head *, head);
    const HeadShoot shoot(*head);
    shoot.folder.write(QStringLiteral("record"), {});
    shoot.folder.write(QStringLiteral("photo.jpg"), {});
    shoot.folder.write(QStringLiteral("sub/other"), {});
    shoot.folder.write(QStringLiteral(".hidden"), {});
    const auto *edit = shoot.driver.find<QLineEdit>("m_leConfigFile");

    QVERIFY(!edit->isReadOnly());
    QCOMPARE(proposals(*edit, shoot.folder.path()), list({ "photo.jpg", "record", "sub" }));

    QT_WARNING_PUSH
    QT_WARNING_DISABLE_DEPRECATED
    const auto *model = qobject_cast<QDirModel *>(edit->completer()->model());
    QVERIFY(model);
    QVERIFY((model->filter() & (QDir::Dirs | QDir::AllDirs)) != 0);
    QVERIFY(model->filter().testFlag(QDir::Files));
    QVERIFY(model->filter().testFlag(QDir::Drives));
    QVERIFY(model->filter().testFlag(QDir::NoDotAndDotDot));
    QVERIFY(!model->filter().testFlag(QDir::Hidden));
    QT_WARNING_POP
}

void TestEveryForm::labelsWithNumbersArePlain_data()
{
    QTest::addColumn<const Head *>("head");
    QTest::addColumn<QByteArray>("label");
    const auto row = [](const Head *head, const char *label) {
        QTest::addRow("%s: %s", head->name, label) << head << QByteArray(label);
    };
    for (const Head *head : headsWithRecords()) {
        for (const char *label :
             { "m_lbPapyLog", "m_lbThetaMinMax", "m_lbPhiMinMax", "m_lbImageLog" }) {
            row(head, label);
        }
    }
    for (const Head *head : headsWithLens()) {
        for (const char *label : { "m_lbBracket", "m_lbFocalLength", "m_lbFocalLengthImage" }) {
            row(head, label);
        }
    }
}

void TestEveryForm::labelsWithNumbersArePlain()
{
    QFETCH(const Head *, head);
    QFETCH(QByteArray, label);
    const HeadShoot shoot(*head);
    QCOMPARE(shoot.driver.find<QLabel>(label.constData())->textFormat(), Qt::PlainText);
}

void TestEveryForm::previewIsCentred()
{
    QFETCH(const Head *, head);
    const HeadShoot shoot(*head);
    const auto *area = shoot.driver.find<QScrollArea>("m_saPreview");
    const auto *group = shoot.driver.find<QGroupBox>("groupBox");
    QVERIFY(area->widgetResizable());
    QCOMPARE(area->alignment(), Qt::Alignment(Qt::AlignCenter));
    QCOMPARE(shoot.driver.preview()->alignment(),
             Qt::Alignment(Qt::AlignHCenter | Qt::AlignVCenter));
    QVERIFY(group->isAncestorOf(area));
    QVERIFY(group->isAncestorOf(shoot.driver.find<QSlider>("m_hSlider")));
}

void TestEveryForm::zoomHasItsRange()
{
    QFETCH(const Head *, head);
    const HeadShoot shoot(*head);
    const auto *zoom = shoot.driver.find<QSlider>("m_hSlider");
    QCOMPARE(zoom->minimum(), 1);
    QCOMPARE(zoom->maximum(), 100);
    QCOMPARE(zoom->value(), 50);
    QCOMPARE(zoom->orientation(), Qt::Horizontal);
}

TEST_CLASS(TestEveryForm, FakeApplication)
#include "tst_everyform.moc"
