// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#include "importers/clauss/uiwpclauss.h"
#include "importers/gigapan/uiwpgigapan.h"
#include "importers/papywizard/uiwpmerlin.h"
#include "importers/vrdrive2/uiwpvrdrive2.h"

#include "tests/support/desktop.h"
#include "tests/support/pagedriver.h"
#include "ui/xui.h"

#include <QTemporaryDir>
#include <QtTest>

#include <memory>

namespace
{

/** A page together with the description that it would hand over. */
struct PageUnderTest {
    std::unique_ptr<QWizardPage> page;
    const StructuredPanoramaProperties *description;
};

using MakePage = PageUnderTest (*)();

template <typename Page> PageUnderTest make()
{
    auto page = std::make_unique<Page>(nullptr);
    const StructuredPanoramaProperties *description = page.get();
    return { std::move(page), description };
}

} // namespace

Q_DECLARE_METATYPE(MakePage)

/** The pages in an application that is no host for plug-ins of this kind. */
class TestPagesNoHost : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void photosAreListedButNotRead_data() { addPages(); }
    void photosAreListedButNotRead();
    void nextIsAcceptedAndHandsNothingOver_data() { addPages(); }
    void nextIsAcceptedAndHandsNothingOver();
    void controlKeyOpensNothing_data() { addPages(); }
    void controlKeyOpensNothing();
    void goingBackAndForthIsHarmless_data() { addPages(); }
    void goingBackAndForthIsHarmless();

private:
    static void addPages();
};

void TestPagesNoHost::addPages()
{
    QTest::addColumn<MakePage>("makePage");
    QTest::newRow("Papywizard") << &make<UIWPMerlin>;
    QTest::newRow("Gigapan") << &make<UIWPGigapan>;
    QTest::newRow("VR Drive 2") << &make<UIWPVRDrive2>;
    QTest::newRow("Clauss") << &make<UIWPClauss>;
}

void TestPagesNoHost::photosAreListedButNotRead()
{
    QFETCH(MakePage, makePage);
    const QTemporaryDir folder;
    QFile photo(folder.filePath(QStringLiteral("a.jpg")));
    QVERIFY(photo.open(QIODevice::WriteOnly));
    photo.close();
    // No UI settings of a host either: the desktop's dialogs, which this platform replaces by Qt's.
    QVERIFY(!XUI::ms_instances.settings);
    const auto [page, description] = makePage();
    const PageDriver driver(page.get());

    const DialogClicker::SeenFileDialog dialog
        = driver.chooseFiles("m_pbSelectImages", { photo.fileName() });
    driver.waitUntilRead();

    QVERIFY(!dialog.options.testFlag(QFileDialog::DontUseNativeDialog));
    QCOMPARE(driver.text("m_leImage"), QStringLiteral("\"a.jpg\"; "));
    QVERIFY(!page->isComplete());
}

void TestPagesNoHost::nextIsAcceptedAndHandsNothingOver()
{
    QFETCH(MakePage, makePage);
    const auto [page, description] = makePage();
    const DialogClicker clicker;

    QVERIFY(page->validatePage());

    QVERIFY(description->imageGroups.isEmpty());
    QVERIFY(description->authorizedLinks.isEmpty());
    QVERIFY(clicker.messageBoxes().isEmpty());
}

void TestPagesNoHost::controlKeyOpensNothing()
{
    QFETCH(MakePage, makePage);
    const auto [page, description] = makePage();
    const PageDriver driver(page.get());
    const DesktopCatcher desktop;
    const DialogClicker clicker;

    driver.click("m_pbSelectImages", Qt::ControlModifier);
    if (page->findChild<QPushButton *>(QStringLiteral("m_pbSelectConfigFile"))) {
        driver.click("m_pbSelectConfigFile", Qt::ControlModifier);
    }

    QVERIFY(desktop.urls().isEmpty());
    QVERIFY(clicker.fileDialogs().isEmpty());
}

void TestPagesNoHost::goingBackAndForthIsHarmless()
{
    QFETCH(MakePage, makePage);
    const auto [page, description] = makePage();
    page->initializePage();
    page->cleanupPage();
    page->initializePage();
    PageDriver(page.get()).click("m_pbReset");
    QVERIFY(!page->isComplete());
}

QTEST_MAIN(TestPagesNoHost)
#include "tst_pages_nohost.moc"
