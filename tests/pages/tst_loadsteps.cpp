// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT

// What a page does, and does not do again, each time ten more photos have been read.
#include "hostlink/readingthread.h"
#include "tests/support/heads.h"
#include "tests/support/recordshoot.h"
#include "ui/previewlabel.h"
#include "ui/xui.h"

#include <QLineEdit>
#include <QtTest>

#include <memory>

using namespace PanoHead;

namespace
{

constexpr int kPhotos = 60;
constexpr int kPhotosPerSignal = 10;
constexpr int kStepDegrees = 10;

/** Six rows of ten shots, so far apart that no cell touches one of another row. */
QVector<ShotAngles> sixRows()
{
    QVector<ShotAngles> shots;
    for (int i = 0; i < kPhotos; ++i) {
        shots.append({ 1.0 * (i % kPhotosPerSignal * kStepDegrees),
                       50.0 - 2 * kStepDegrees * (i / kPhotosPerSignal) });
    }
    return shots;
}

} // namespace

class TestLoadSteps : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();

    void thumbnailsAreDrawnByTheSignalThatBringsThem_data() { addHeads(headsWithRecords()); }
    void thumbnailsAreDrawnByTheSignalThatBringsThem();
    void updatingThePageAgainFindsNothingToDraw_data() { addHeads(headsWithRecords()); }
    void updatingThePageAgainFindsNothingToDraw();
    void namesOfThePhotosAreWrittenOnce_data() { addHeads(headsWithRecords()); }
    void namesOfThePhotosAreWrittenOnce();

private:
    [[nodiscard]] QVector<int> requests() const;

    RecordShoot m_shoot{ kPhotos };
    std::unique_ptr<QWizardPage> m_page;
    std::unique_ptr<PageLoad> m_load;
};

void TestLoadSteps::initTestCase()
{
    XUI::init(fakeHost().UIInstances());
}

/** Enters the record and chooses all photos; none has been read yet. */
void TestLoadSteps::init()
{
    QFETCH(const Head *, head);
    m_page.reset(head->newPage().page);
    m_load = std::make_unique<PageLoad>(m_page.get());
    (void)m_load->enterRecord(
        m_shoot.write(QString::fromLatin1(head->recordName), head->recordOf(sixRows())));
    (void)m_load->choosePhotos(m_shoot.photos(kPhotos));
}

void TestLoadSteps::cleanup()
{
    while (!m_load->isDone()) {
        (void)m_load->readNext();
    }
    m_load->driver().waitUntilRead();
    m_load.reset();
    m_page.reset();
}

/** How often the host was asked for the thumbnail of each photo read. */
QVector<int> TestLoadSteps::requests() const
{
    QVector<int> answer;
    for (XIImageDef *photo : m_page->findChild<ReadingThread *>()->XIImageDefs()) {
        answer.append(static_cast<RecordPhoto *>(photo)->requests());
    }
    return answer;
}

void TestLoadSteps::thumbnailsAreDrawnByTheSignalThatBringsThem()
{
    (void)m_load->readNext();
    const QVector<int> first = requests();
    QCOMPARE(first.size(), kPhotosPerSignal);
    QVERIFY(!first.contains(0));

    (void)m_load->readNext();
    const QVector<int> second = requests();
    QCOMPARE(second.size(), 2 * kPhotosPerSignal);
    QVERIFY(!second.contains(0));
    // Nobody has looked at those of the first row again.
    QCOMPARE(second.mid(0, kPhotosPerSignal), first);
}

void TestLoadSteps::updatingThePageAgainFindsNothingToDraw()
{
    (void)m_load->readNext();
    const QVector<int> before = requests();
    const auto *preview = m_page->findChild<PreviewLabel *>();
    const qint64 picture = preview->pixmap(Qt::ReturnByValue).cacheKey();

    QVERIFY(QMetaObject::invokeMethod(m_page.get(), "UpdateUI", Qt::DirectConnection));

    QCOMPARE(requests(), before);
    QCOMPARE(preview->pixmap(Qt::ReturnByValue).cacheKey(), picture);
}

void TestLoadSteps::namesOfThePhotosAreWrittenOnce()
{
    constexpr int kPlace = 7;
    auto *names = m_page->findChild<QLineEdit *>(QStringLiteral("m_leImage"));
    QVERIFY(names->text().startsWith(QLatin1String("\"000000.jpg\"; \"000001.jpg\"; ")));
    // Written again, the same text would take the cursor away.
    names->setCursorPosition(kPlace);
    (void)m_load->readNext();
    QCOMPARE(names->cursorPosition(), kPlace);
}

TEST_CLASS(TestLoadSteps, RecordShootApplication)
#include "tst_loadsteps.moc"
