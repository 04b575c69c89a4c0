// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/gui/choicepage.h"
#include "host/gui/recentshoots.h"
#include "host/gui/resultpage.h"
#include "host/import/dialogcatcher.h"
#include "host/model/photofile.h"
#include "tests/host/gui/guibench.h"
#include "tests/support/testprogram.h"

#include <QDir>
#include <QFile>
#include <QLineEdit>
#include <QListWidget>
#include <QMessageBox>
#include <QSettings>
#include <QTimer>
#include <QtTest>

using namespace PanoHost;

/** Shoots that were imported before. */
class TestRecent : public QObject
{
    Q_OBJECT

public:
    /** Before the application. */
    static void initMain() { initializePhotoReading(); }

private Q_SLOTS:
    void init() { m_bench = std::make_unique<GuiBench>(); }
    void cleanup() { m_bench.reset(); }
    void importedShootIsOpenedAgain_data();
    void importedShootIsOpenedAgain();
    void goneFilesAreMarkedAndOfferedToRemove();
    void listCanBeCleared();
    void theLastEightAreKept();

private:
    [[nodiscard]] QWizardPage *page() const { return m_bench->wizard().currentPage(); }
    [[nodiscard]] QListWidget *list() const
    {
        return m_bench->wizard().findChild<QListWidget *>(QStringLiteral("m_recent"));
    }
    void import(const QStringList &files);

    std::unique_ptr<GuiBench> m_bench;
};

/** To the result page, and the window anew. */
void TestRecent::import(const QStringList &files)
{
    m_bench->drop(files);
    QTRY_VERIFY(m_bench->isSettled() && m_bench->isNextEnabled());
    m_bench->press(QWizard::NextButton);
    QVERIFY(qobject_cast<ResultPage *>(page()));
    m_bench->reopen();
}

void TestRecent::importedShootIsOpenedAgain_data()
{
    QTest::addColumn<bool>("byKey");
    QTest::newRow("Enter") << true;
    QTest::newRow("double click") << false;
}

void TestRecent::importedShootIsOpenedAgain()
{
    QFETCH(bool, byKey);
    QVERIFY(!list()->isVisible());
    const QString record = m_bench->record(4);
    import(QStringList(record) + m_bench->photos(0, 3));
    (void)m_bench->photos(7, 8); // of the next shoot, in the same folder
    QVERIFY(list()->isVisible());
    QCOMPARE(list()->count(), 1);
    QVERIFY2(list()->item(0)->text().startsWith(QFileInfo(record).fileName()
                                                + QStringLiteral("\nPapywizard, 4 photos, ")),
             qPrintable(list()->item(0)->text()));
    QVERIFY(!list()->item(0)->icon().isNull());
    m_bench->picture(QStringLiteral("recent"));
    list()->setFocus();
    if (byKey) {
        QTest::keyClick(list(), Qt::Key_Down);
        QTest::keyClick(list(), Qt::Key_Return);
    } else {
        const QPoint place = list()->visualItemRect(list()->item(0)).center();
        QTest::mouseClick(list()->viewport(), Qt::LeftButton, {}, place);
        QTest::mouseDClick(list()->viewport(), Qt::LeftButton, {}, place);
    }
    QTRY_VERIFY(page()->inherits("UIWPMerlin"));
    QTRY_VERIFY(m_bench->isSettled() && m_bench->isNextEnabled());
    QCOMPARE(page()->findChild<QLineEdit *>(QStringLiteral("m_leConfigFile"))->text(), record);
    m_bench->press(QWizard::NextButton);
    QCOMPARE(m_bench->result().size(), 4);
}

void TestRecent::goneFilesAreMarkedAndOfferedToRemove()
{
    const QString record = m_bench->record(3);
    import(QStringList(record) + m_bench->photos(0, 2));
    QVERIFY(QFile::remove(record));
    m_bench->reopen();
    QVERIFY(list()->item(0)->text().endsWith(QLatin1String("The files are gone.")));
    list()->setFocus();
    QTest::keyClick(list(), Qt::Key_Down);
    QTimer::singleShot(0, this, [] {
        auto *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
        QVERIFY(box);
        QTest::mouseClick(box->button(QMessageBox::Yes), Qt::LeftButton);
    });
    QTest::keyClick(list(), Qt::Key_Return);
    QCOMPARE(list()->count(), 0);
    QVERIFY(!list()->isVisible());
    m_bench->reopen();
    QCOMPARE(list()->count(), 0);
}

void TestRecent::listCanBeCleared()
{
    import(QStringList(m_bench->record(3)) + m_bench->photos(0, 2));
    QVERIFY(list()->isVisible());
    QTest::mouseClick(m_bench->wizard().findChild<QWidget *>(QStringLiteral("m_clearRecent")),
                      Qt::LeftButton);
    QVERIFY(!list()->isVisible());
    m_bench->reopen();
    QVERIFY(!list()->isVisible());
}

void TestRecent::theLastEightAreKept()
{
    QSettings settings(m_bench->path(QStringLiteral("recent.ini")), QSettings::IniFormat);
    RecentShoots shoots(settings);
    for (int i = 0; i < 10; ++i) {
        const QString folder = QStringLiteral("/photos/%1/").arg(i);
        shoots.add(
            RecentShoot::of(QStringLiteral("gigapan"), {},
                            { folder + QStringLiteral("a.jpg"), folder + QStringLiteral("b.jpg") }),
            {});
    }
    shoots.add(shoots.all().at(3), {}); // once more
    const RecentShoots read(settings);
    QStringList folders;
    for (const RecentShoot &shoot : read.all()) {
        folders += QFileInfo(shoot.folder).fileName();
    }
    QCOMPARE(folders.join(QLatin1Char(' ')), QStringLiteral("6 9 8 7 5 4 3 2"));
    QCOMPARE(read.all().first().last, QStringLiteral("b.jpg"));
    // From more than one folder: what lies below the one that holds all.
    const RecentShoot deep
        = RecentShoot::of(QStringLiteral("gigapan"), {},
                          { QStringLiteral("/card/100/a.jpg"), QStringLiteral("/card/101/b.jpg") });
    QCOMPARE(deep.files(), QStringList(QStringLiteral("/card")));
}

TEST_CLASS(TestRecent, PanoHostApplication)
#include "tst_gui_recent.moc"
