// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#include "tests/support/desktop.h"
#include "tests/support/heads.h"
#include "tests/support/testprogram.h"
#include "ui/xui.h"

#include <QApplication>
#include <QtTest>

/** The pages in an application that is no host for plug-ins of this kind. */
class TestPagesNoHost : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void photosAreListedButNotRead_data() { addHeads(allHeads()); }
    void photosAreListedButNotRead();
    void nextIsAcceptedAndHandsNothingOver_data() { addHeads(allHeads()); }
    void nextIsAcceptedAndHandsNothingOver();
    void controlKeyOpensNothing_data() { addDialogs(); }
    void controlKeyOpensNothing();
    void goingBackAndForthIsHarmless_data() { addHeads(allHeads()); }
    void goingBackAndForthIsHarmless();
};

void TestPagesNoHost::photosAreListedButNotRead()
{
    QFETCH(const Head *, head);
    // No UI settings of a host either: the desktop's dialogs, which this platform replaces by Qt's.
    QVERIFY(!XUI::ms_instances.settings);
    const HeadShoot shoot(*head);
    const QString photo = shoot.folder.write(QStringLiteral("a.jpg"), {});

    const DialogClicker::SeenFileDialog dialog = shoot.driver.chooseFiles(kSelectPhotos, { photo });
    shoot.driver.waitUntilRead();

    QVERIFY(!dialog.options.testFlag(QFileDialog::DontUseNativeDialog));
    QCOMPARE(shoot.driver.text("m_leImage"), QStringLiteral("\"a.jpg\"; "));
    QVERIFY(!shoot.page->isComplete());
}

void TestPagesNoHost::nextIsAcceptedAndHandsNothingOver()
{
    QFETCH(const Head *, head);
    const HeadShoot shoot(*head);
    const DialogClicker clicker;

    QVERIFY(shoot.page->validatePage());

    QVERIFY(shoot.made.description->imageGroups.isEmpty());
    QVERIFY(shoot.made.description->authorizedLinks.isEmpty());
    QVERIFY(clicker.messageBoxes().isEmpty());
}

void TestPagesNoHost::controlKeyOpensNothing()
{
    QFETCH(const Head *, head);
    QFETCH(QByteArray, button);
    const HeadShoot shoot(*head);
    const DesktopCatcher desktop;
    const DialogClicker clicker;

    shoot.driver.click(button.constData(), Qt::ControlModifier);

    QVERIFY(desktop.urls().isEmpty());
    QVERIFY(clicker.fileDialogs().isEmpty());
}

void TestPagesNoHost::goingBackAndForthIsHarmless()
{
    QFETCH(const Head *, head);
    const HeadShoot shoot(*head);
    shoot.page->initializePage();
    shoot.page->cleanupPage();
    shoot.page->initializePage();
    shoot.driver.click("m_pbReset");
    QVERIFY(!shoot.page->isComplete());
}

TEST_CLASS(TestPagesNoHost, QApplication)
#include "tst_pages_nohost.moc"
