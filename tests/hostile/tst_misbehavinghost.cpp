// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#include "hostlink/readingthread.h"
#include "tests/support/dialogclicker.h"
#include "tests/support/fakeapplication.h"
#include "tests/support/heads.h"
#include "tests/support/longruns.h"

#include <QLabel>
#include <QRandomGenerator>
#include <QSlider>
#include <QStyle>
#include <QtTest>

#include <atomic>
#include <limits>
#include <memory>
#include <mutex>

/** What a host does besides what every misbehaving host does. */
enum class Habit {
    None,
    ChangesAnswers, ///< a photo answers something else whenever it is asked
    KnowsNothing, ///< photos have no thumbnail, focal length, lens or time, and never will
    ChangesLooks, ///< palette, font and style change while photos are read
};
Q_DECLARE_METATYPE(Habit)

namespace
{

constexpr int kFiles = 24;
constexpr int kSteps = 10;
constexpr int kEnough = 100; // runs, for everything to happen at least once

template <typename T> T anyOf(QRandomGenerator &random, std::initializer_list<T> values)
{
    return *(values.begin() + random.bounded(static_cast<int>(values.size())));
}

constexpr float kNan = std::numeric_limits<float>::quiet_NaN();
constexpr float kInf = std::numeric_limits<float>::infinity();

/** A photo that answers something else whenever it is asked; its last thumbnail is gone then. */
class FicklePhoto : public FakeImage
{
public:
    FicklePhoto(const QString &name, const FakePhoto &photo)
        : FakeImage(name, photo)
        , m_random(QFileInfo(name).baseName().right(4).toUInt())
    {
    }

    QPixmap *Thumbnail() override
    {
        m_thumbnail.reset();
        const QSize size
            = anyOf(m_random, { QSize(96, 64), QSize(1, 1), QSize(1, 900), QSize(300, 200) });
        switch (m_random.bounded(5)) {
        case 0:
            break;
        case 1:
            m_thumbnail = std::make_unique<QPixmap>();
            break;
        default:
            m_thumbnail = std::make_unique<QPixmap>(size);
            m_thumbnail->fill(anyOf<QColor>(m_random, { Qt::red, Qt::transparent }));
        }
        return m_thumbnail.get();
    }
    float FocalLength() override
    {
        return anyOf(m_random, { 24.0F, 50.0F, 0.0F, -5.0F, kNan, kInf, 1e30F });
    }
    int LensType() override { return anyOf(m_random, { 0, 1, 7, -1 }); }
    long ShotTime() override { return m_random.bounded(4); }
    float Exposure() override { return anyOf(m_random, { 0.0F, 1.0F, 2.0F, kNan, kInf }); }

private:
    QRandomGenerator m_random;
    std::unique_ptr<QPixmap> m_thumbnail;
};

/** A host that may take its interface away. */
class MisbehavingApplication : public FakeApplication
{
public:
    using FakeApplication::FakeApplication;

    XIImageDef *CreateImageDef(const QString &fileName) override
    {
        XIImageDef *photo = FakeApplication::CreateImageDef(fileName);
        if (photo == nullptr || habit != Habit::ChangesAnswers) {
            return photo;
        }
        const std::lock_guard lock(m_mutex);
        m_ficklePhotos.push_back(
            std::make_unique<FicklePhoto>(fileName, static_cast<FakeImage *>(photo)->photo()));
        return m_ficklePhotos.back().get();
    }
    /** No page is left. */
    void forgetAll()
    {
        forget();
        m_ficklePhotos.clear();
    }

    void *qt_metacast(const char *name) override
    {
        if (qstrcmp(name, "XIApplication") != 0) {
            return FakeApplication::qt_metacast(name);
        }
        const int left = answersLeft;
        if (left > 0) {
            --answersLeft;
        }
        return hidesInterface || left == 0 ? nullptr : FakeApplication::qt_metacast(name);
    }

    // The reading threads ask too.
    std::atomic_bool hidesInterface{ false };
    std::atomic_int answersLeft{ -1 }; ///< after so many the interface is gone; negative: never
    std::atomic<Habit> habit{ Habit::None };

private:
    std::mutex m_mutex; ///< guards the member below
    std::vector<std::unique_ptr<FicklePhoto>> m_ficklePhotos;
};

MisbehavingApplication &application()
{
    return *static_cast<MisbehavingApplication *>(QCoreApplication::instance());
}

QSet<QString> toSet(const QStringList &names)
{
    return { names.begin(), names.end() };
}

FakePhoto anyPhoto(QRandomGenerator &random, int percentUnreadable)
{
    FakePhoto photo;
    if (random.bounded(100) < percentUnreadable) {
        photo.reading = anyOf(random, { FakePhoto::Reading::Fails, FakePhoto::Reading::Throws });
    }
    photo.preview = anyOf(random,
                          { FakePhoto::Preview::SolidColour, FakePhoto::Preview::NullPixmap,
                            FakePhoto::Preview::NullPointer });
    photo.size = anyOf(random, { QSize(96, 64), QSize(1, 1), QSize(1, 900), QSize(900, 1) });
    photo.focalMm = anyOf(random, { 24.0F, 24.0F, 0.0F, -5.0F, kNan, kInf, 1e30F });
    photo.lensType = anyOf(random, { 0, 0, 1, 7, -1, std::numeric_limits<int>::max() });
    photo.shotTime = anyOf(random, { 0L, 1L, 2L, std::numeric_limits<long>::min() });
    photo.exposure = anyOf(random, { 0.0F, -1.0F, 1.0F, kNan, kInf });
    photo.spins = anyOf(random, { 0, 0, 100, 2000 });
    return photo;
}

/** \p photo without anything that a page may ask for. */
FakePhoto withoutFacts(FakePhoto photo)
{
    photo.preview = photo.preview == FakePhoto::Preview::NullPixmap
        ? FakePhoto::Preview::NullPixmap
        : FakePhoto::Preview::NullPointer;
    photo.focalMm = 0.0F;
    photo.lensType = -1;
    photo.shotTime = 0;
    return photo;
}

void changeLooks(QRandomGenerator &random)
{
    switch (random.bounded(3)) {
    case 0:
        QApplication::setPalette(QPalette(QColor::fromRgb(random.generate())));
        break;
    case 1: {
        QFont font = QApplication::font();
        font.setPointSize(6 + random.bounded(10));
        QApplication::setFont(font);
        break;
    }
    default:
        QApplication::setStyle(
            anyOf(random, { QStringLiteral("fusion"), QStringLiteral("windows") }));
    }
}

/** What happened in all runs of one page: the promises below mean nothing if nothing happens. */
struct Tally {
    int completePages = 0; ///< with photos; a page without any photo or shot is complete too
    int delivered = 0;
    int deletedWhileReading = 0;
    int deletedInADialog = 0;
    int interfaceMissing = 0;
};

/** One page in the hands of a host and a user who both do what they like. */
class Run
{
public:
    Run(const Head &head, const QStringList &files, const QStringList &records, quint32 seed,
        Tally *tally)
        : m_head(head)
        , m_made(head.newPage())
        , m_page(m_made.page)
        , m_driver(m_page.get())
        , m_files(files)
        , m_records(records)
        , m_random(seed)
        , m_tally(tally)
    {
        const int unreadable = anyOf(m_random, { 0, 0, 0, 5, 50, 100 });
        for (const QString &file : files) {
            const FakePhoto photo = anyPhoto(m_random, unreadable);
            const bool isKnown = application().habit != Habit::KnowsNothing;
            fakeHost().setPhoto(file, isKnown ? photo : withoutFacts(photo));
        }
    }
    ~Run() { application().hidesInterface = false; }
    Q_DISABLE_COPY(Run)

    /** Empty, or the promise that was broken. */
    QString play()
    {
        for (int step = 0; step < kSteps && m_page; ++step) {
            application().hidesInterface = m_random.bounded(15) == 0;
            m_tally->interfaceMissing += application().hidesInterface ? 1 : 0;
            act();
            if (application().habit == Habit::ChangesLooks) {
                changeLooks(m_random);
            }
            if (m_page && m_broken.isEmpty()) {
                checkPromises();
            }
            if (!m_broken.isEmpty()) {
                return m_broken;
            }
        }
        return {};
    }

private:
    void act()
    {
        switch (m_random.bounded(10)) {
        case 0:
        case 1:
            choosePhotos();
            break;
        case 2:
        case 3:
        case 4:
            readRecord();
            break;
        case 5:
        case 6:
            m_driver.waitUntilRead();
            break;
        case 7:
            pressNext();
            break;
        case 8:
            m_driver.find<QSlider>("m_hSlider")->setValue(1 + m_random.bounded(100));
            QCoreApplication::processEvents();
            break;
        default:
            resetOrDelete();
        }
    }

    /** More often the former: what follows a deletion is not played. */
    void resetOrDelete()
    {
        if (m_random.bounded(3) != 0) {
            m_driver.click("m_pbReset");
            m_chosen.clear();
            return;
        }
        m_tally->deletedWhileReading += m_page->findChild<QThread *>()->isRunning() ? 1 : 0;
        m_page.reset();
    }

    /** Now and then the page goes while it waits for an answer. */
    void perhapsDeleteIn(DialogClicker &clicker)
    {
        if (m_random.bounded(20) == 0) {
            clicker.beforeNextAnswer([this] {
                ++m_tally->deletedInADialog;
                m_page.reset();
            });
        }
    }

    void choosePhotos()
    {
        const int first = m_random.bounded(kFiles - 8);
        const QStringList files = m_files.mid(first, 1 + m_random.bounded(8));
        DialogClicker clicker;
        clicker.chooseFiles(files);
        perhapsDeleteIn(clicker);
        m_driver.click("m_pbSelectImages");
        m_chosen = files;
    }

    void readRecord()
    {
        if (m_head.recordName == nullptr) {
            return;
        }
        // Mostly one that fits the photos: otherwise hardly any page would ever be complete.
        const int shots = m_random.bounded(4) == 0 ? m_random.bounded(9) : m_chosen.size();
        const QString path = m_random.bounded(20) == 0
            ? m_records.last()
            : m_records.at(2 * shots + m_random.bounded(2));
        DialogClicker boxes;
        boxes.pressButton();
        perhapsDeleteIn(boxes);
        m_head.enterPath(m_made, path);
    }

    void pressNext()
    {
        if (!m_page->isComplete()) {
            return;
        }
        DialogClicker boxes;
        boxes.pressButton();
        perhapsDeleteIn(boxes);
        const int delivered = fakeHost().descriptions.size();
        const int before = m_made.description->imageGroups.size();
        const bool isAccepted = m_page->validatePage();
        if (!m_page || application().hidesInterface) {
            return;
        }
        if (fakeHost().descriptions.size() != delivered + (isAccepted ? 1 : 0)) {
            m_broken = QStringLiteral("Next did not hand over one description");
        }
        if (!isAccepted) {
            return;
        }
        m_tally->delivered += m_chosen.isEmpty() ? 0 : 1;
        QStringList names;
        const auto groups = fakeHost().descriptions.last().imageGroups;
        // A page appends to what it handed over before.
        for (int i = before; i < groups.size(); ++i) {
            names += groups.at(i);
        }
        names.sort();
        // A grid takes only as many photos as it has cells.
        const bool fits
            = m_head.facts->isGrid() ? toSet(m_chosen).contains(toSet(names)) : names == m_chosen;
        if (!fits) {
            m_broken = QStringLiteral("Chosen was %1, handed over %2")
                           .arg(m_chosen.join(QLatin1Char(' ')), names.join(QLatin1Char(' ')));
        }
    }

    void checkPromises()
    {
        if (!m_page->isComplete()) {
            return;
        }
        m_tally->completePages += m_chosen.isEmpty() ? 0 : 1;
        auto *thread = static_cast<ReadingThread *>(m_page->findChild<QThread *>());
        QStringList read;
        for (XIImageDef *image : thread->XIImageDefs()) {
            read += static_cast<FakeImage *>(image)->fileName();
        }
        read.sort();
        if (read != m_chosen) {
            m_broken = QStringLiteral("Next is enabled; chosen was %1, read was %2")
                           .arg(m_chosen.join(QLatin1Char(' ')), read.join(QLatin1Char(' ')));
        }
        const auto *count = m_page->findChild<QLabel *>(QStringLiteral("m_lbPapyLog"));
        const QString expected
            = m_chosen.isEmpty() ? QStringLiteral("N/A") : QString::number(m_chosen.size());
        if (count != nullptr && count->text() != expected) {
            m_broken = QStringLiteral("Next is enabled with %1 shots for %2 photos")
                           .arg(count->text())
                           .arg(m_chosen.size());
        }
    }

    const Head &m_head;
    HeadPage m_made;
    std::unique_ptr<QWizardPage> m_page;
    PageDriver m_driver;
    QStringList m_files;
    QStringList m_records; ///< two for each number of shots from 0, and one that is not there
    QStringList m_chosen;
    QRandomGenerator m_random;
    Tally *m_tally;
    QString m_broken;
};

} // namespace

/** Hosts that answer null, nonsense or late, throw, or are not there. */
class TestMisbehavingHost : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();
    void nextIsEnabledOnlyWhenEverythingFits_data();
    void nextIsEnabledOnlyWhenEverythingFits();
    void aHostThatLeavesAsReadingBeginsReadsNothing();
    void photosChosenWithoutAHostTakeThePlaceOfOthers_data();
    void photosChosenWithoutAHostTakeThePlaceOfOthers();

private:
    ShootFolder m_folder;
    QStringList m_files;
    QMap<const Head *, QStringList> m_records;
    QString m_style;
    QFont m_font;
};

void TestMisbehavingHost::initTestCase()
{
    m_style = QApplication::style()->objectName();
    m_font = QApplication::font();
    m_files = m_folder.addPhotos(kFiles);
    for (const Head *head : headsWithRecords()) {
        QStringList &records = m_records[head];
        const auto write = [&](int shots, const char *kind, const QByteArray &record) {
            records.append(
                m_folder.write(QStringLiteral("%1/%2%3 %4")
                                   .arg(QLatin1String(head->name))
                                   .arg(shots)
                                   .arg(QLatin1String(kind), QLatin1String(head->recordName)),
                               record));
        };
        for (int shots = 0; shots <= 8; ++shots) {
            // The second record has brackets if it can, else one direction only.
            write(shots, "", head->host->record(rowOf(shots)));
            write(shots, "b",
                  head->bracketsOf != nullptr
                      ? head->bracketsOf(shots, shots % 4)
                      : head->recordOf(QVector<ShotAngles>(shots, { 5.0, 0.0 })));
        }
        records.append(m_folder.path(QStringLiteral("nowhere")));
    }
}

void TestMisbehavingHost::init()
{
    application().answersLeft = -1;
    application().habit = Habit::None;
    application().forgetAll();
}

void TestMisbehavingHost::cleanup()
{
    QApplication::setStyle(m_style);
    QApplication::setPalette(QPalette());
    QApplication::setFont(m_font);
}

void TestMisbehavingHost::nextIsEnabledOnlyWhenEverythingFits_data()
{
    QTest::addColumn<const Head *>("head");
    QTest::addColumn<Habit>("habit");
    for (const Head *head : allHeads()) {
        QTest::addRow("%s", head->name) << head << Habit::None;
        QTest::addRow("%s: changes answers", head->name) << head << Habit::ChangesAnswers;
        QTest::addRow("%s: knows nothing", head->name) << head << Habit::KnowsNothing;
        QTest::addRow("%s: changes looks", head->name) << head << Habit::ChangesLooks;
    }
}

void TestMisbehavingHost::nextIsEnabledOnlyWhenEverythingFits()
{
    QFETCH(const Head *, head);
    QFETCH(const Habit, habit);
    const int runs = rounds(habit == Habit::None ? kEnough : 15, 1'000);
    application().habit = habit;
    Tally tally;
    for (int seed = 1; seed <= runs; ++seed) {
        application().forgetAll();
        const QString broken
            = Run(*head, m_files, m_records.value(head), static_cast<quint32>(seed), &tally).play();
        QVERIFY2(broken.isEmpty(), qPrintable(QStringLiteral("Seed %1: %2").arg(seed).arg(broken)));
    }
    qInfo("%d runs: %d times complete, %d descriptions, %d pages deleted while reading, %d in a "
          "dialog, %d steps without the interface",
          runs, tally.completePages, tally.delivered, tally.deletedWhileReading,
          tally.deletedInADialog, tally.interfaceMissing);
    QVERIFY(tally.completePages > runs / 10);
    if (runs < kEnough) {
        return;
    }
    QVERIFY(tally.delivered > 0);
    QVERIFY(tally.deletedInADialog > 0);
    QVERIFY(tally.interfaceMissing > 0);
}

void TestMisbehavingHost::aHostThatLeavesAsReadingBeginsReadsNothing()
{
    const QStringList photos = m_files.mid(0, 3);
    fakeHost().setPhotos(photos, {});
    ReadingThread thread(nullptr);
    application().answersLeft = 1; // for Start(), which begins only with a host
    thread.Start(photos);
    QVERIFY(thread.wait());
    QCOMPARE(thread.XIImageDefs().size(), 0);
    QCOMPARE(fakeHost().readFiles(), QStringList());

    application().answersLeft = -1;
    thread.Start(photos);
    QVERIFY(thread.wait());
    QCOMPARE(thread.XIImageDefs().size(), 3);
}

void TestMisbehavingHost::photosChosenWithoutAHostTakeThePlaceOfOthers_data()
{
    QTest::addColumn<const Head *>("head");
    for (const Head *head : allHeads()) {
        QTest::newRow(head->name) << head;
    }
}

void TestMisbehavingHost::photosChosenWithoutAHostTakeThePlaceOfOthers()
{
    QFETCH(const Head *, head);
    fakeHost().setPhotos(m_files, {});
    const HeadPage made = head->newPage();
    const std::unique_ptr<QWizardPage> page(made.page);
    PageDriver driver(page.get());
    auto *thread = static_cast<ReadingThread *>(page->findChild<QThread *>());
    const auto choose = [&](const QStringList &files) {
        DialogClicker clicker;
        clicker.chooseFiles(files);
        driver.click("m_pbSelectImages");
        driver.waitUntilRead();
    };
    choose(m_files.mid(0, 2));
    QCOMPARE(thread->XIImageDefs().size(), 2);

    application().hidesInterface = true;
    choose(m_files.mid(2, 2));
    application().hidesInterface = false;
    QCOMPARE(thread->XIImageDefs().size(), 0);
}

TEST_CLASS(TestMisbehavingHost, MisbehavingApplication)
#include "tst_misbehavinghost.moc"
