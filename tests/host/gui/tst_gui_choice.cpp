// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/gui/choicepage.h"
#include "host/import/dialogcatcher.h"
#include "host/model/photofile.h"
#include "tests/host/gui/guibench.h"
#include "tests/host/testphotos.h"
#include "tests/support/testprogram.h"

#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QtTest>

using namespace PanoHost;

/** The first page, and why Next is grey there and on the pages behind it. */
class TestChoice : public QObject
{
    Q_OBJECT

public:
    /** Before the application. */
    static void initMain() { initializePhotoReading(); }

private Q_SLOTS:
    void init() { m_bench = std::make_unique<GuiBench>(); }
    void cleanup() { m_bench.reset(); }
    void nextSaysThatItWaitsForAHead();
    void keysWorkFromTheStart();
    void headsSayWhatTheyNeed();
    void photosAloneWaitForTheHead();
    void recordFollowsPhotos();
    void recordAndPhotosPickTheHead();
    void greyNextHasAReason_data();
    void greyNextHasAReason();

private:
    [[nodiscard]] QWizardPage *page() const { return m_bench->wizard().currentPage(); }
    [[nodiscard]] bool isChoosing() const { return qobject_cast<ChoicePage *>(page()) != nullptr; }
    [[nodiscard]] QListWidget *heads() const
    {
        return m_bench->wizard().findChild<QListWidget *>(QStringLiteral("m_heads"));
    }
    [[nodiscard]] QString news() const
    {
        return m_bench->wizard().findChild<QLabel *>(QStringLiteral("m_news"))->text();
    }

    std::unique_ptr<GuiBench> m_bench;
};

void TestChoice::nextSaysThatItWaitsForAHead()
{
    QCOMPARE(heads()->currentRow(), -1);
    QVERIFY(!m_bench->isNextEnabled());
    QCOMPARE(news(), QStringLiteral("Next waits for the head that took the photos."));
    m_bench->picture(QStringLiteral("choice"));
    QTest::mouseClick(heads()->viewport(), Qt::LeftButton, {},
                      heads()->visualItemRect(heads()->item(1)).center());
    QVERIFY(m_bench->isNextEnabled());
    QCOMPARE(news(), QString());
}

void TestChoice::keysWorkFromTheStart()
{
    QCOMPARE(QApplication::focusWidget(), heads());
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Down);
    QCOMPARE(heads()->currentRow(), 0);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_G); // "Gigapan"
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
    QVERIFY(page()->inherits("UIWPGigapan"));
}

void TestChoice::headsSayWhatTheyNeed()
{
    QStringList needs;
    for (int row = 0; row < heads()->count(); ++row) {
        needs += heads()->item(row)->text().section(QLatin1Char('\n'), 0, 0) + QLatin1Char(':')
            + heads()->item(row)->text().section(QLatin1Char('\n'), 2);
    }
    QVERIFY(needs.contains(QStringLiteral("Gigapan:Needs photos only")));
    QVERIFY(needs.contains(QStringLiteral("Clauss:Needs *.txt record and photos")));
    QVERIFY(needs.contains(QStringLiteral("Papywizard:Needs *.xml record and photos")));
}

void TestChoice::photosAloneWaitForTheHead()
{
    m_bench->drop(m_bench->photos(0, 5));
    QVERIFY(isChoosing());
    QCOMPARE(heads()->currentRow(), -1);
    QCOMPARE(news(), QStringLiteral("6 photos. Next waits for the head that took the photos."));
    m_bench->picture(QStringLiteral("choice-photos"));
    m_bench->choose("Gigapan");
    QVERIFY(page()->inherits("UIWPGigapan"));
    QTRY_VERIFY(m_bench->isSettled() && m_bench->isNextEnabled());
    m_bench->press(QWizard::NextButton);
    QCOMPARE(m_bench->result().size(), 6);
}

void TestChoice::recordFollowsPhotos()
{
    m_bench->drop(m_bench->photos(0, 2));
    m_bench->drop({ m_bench->record(3) });
    QVERIFY(page()->inherits("UIWPMerlin"));
    QTRY_VERIFY(m_bench->isSettled() && m_bench->isNextEnabled());
}

void TestChoice::recordAndPhotosPickTheHead()
{
    m_bench->drop(QStringList(m_bench->record(4)) + m_bench->photos(0, 3));
    QVERIFY(page()->inherits("UIWPMerlin"));
    QTRY_VERIFY(m_bench->isSettled() && m_bench->isNextEnabled());
    m_bench->press(QWizard::BackButton);
    QCOMPARE(news(), QStringLiteral("Papywizard record with 4 shots, 4 photos."));
    m_bench->picture(QStringLiteral("choice-recognised"));
}

void TestChoice::greyNextHasAReason_data()
{
    QTest::addColumn<QString>("head");
    QTest::addColumn<QString>("file");
    QTest::addColumn<QString>("why");
    QTest::newRow("record of another head") << QStringLiteral("Clauss") << QStringLiteral("other")
                                            << QStringLiteral("this one is of Papywizard");
    QTest::newRow("picture named .xml") << QStringLiteral("Papywizard") << QStringLiteral("png")
                                        << QStringLiteral("a record that can be read");
    QTest::newRow("script of nothing") << QStringLiteral("Clauss") << QStringLiteral("txt")
                                       << QStringLiteral("a record that can be read");
    QTest::newRow("nothing") << QStringLiteral("Clauss") << QString()
                             << QStringLiteral("waits for the head's record");
    QTest::newRow("no photos") << QStringLiteral("Gigapan") << QString()
                               << QStringLiteral("waits for the photos");
}

void TestChoice::greyNextHasAReason()
{
    QFETCH(QString, head);
    QFETCH(QString, file);
    QFETCH(QString, why);
    m_bench->choose(qPrintable(head));
    QString path;
    if (file == QLatin1String("other")) {
        path = m_bench->record(3, "papywizard", QStringLiteral("other.txt"));
    } else if (file == QLatin1String("png")) {
        QImage picture(9, 9, QImage::Format_RGB32);
        picture.fill(Qt::gray);
        path = m_bench->path(QStringLiteral("layout.xml"));
        QVERIFY(picture.save(path, "PNG"));
    } else if (file == QLatin1String("txt")) {
        path = TestPhotos::writeFile(m_bench->path(QStringLiteral("script.txt")), "no script");
    }
    if (!path.isEmpty()) {
        DialogCatcher boxes; // of the page
        auto *field = page()->findChild<QLineEdit *>(QStringLiteral("m_leConfigFile"));
        field->setFocus();
        QTest::keyClicks(field, path);
        QTest::keyClick(field, Qt::Key_Tab);
    }
    QTRY_VERIFY2(m_bench->text("next").contains(why), qPrintable(m_bench->text("next")));
    QVERIFY(!m_bench->isNextEnabled());
}

TEST_CLASS(TestChoice, PanoHostApplication)
#include "tst_gui_choice.moc"
