// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#include "tests/support/dialogclicker.h"
#include "tests/support/fakeapplication.h"
#include "tests/support/heads.h"

#include <QElapsedTimer>
#include <QHelpEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPainter>
#include <QStaticText>
#include <QtTest>

#include <algorithm>

#include <csignal>
#include <sys/resource.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <sys/wait.h>
#include <unistd.h>

namespace
{

#if defined(__SANITIZE_ADDRESS__)
constexpr bool kWithLargeFiles = false;
constexpr int kSlowness = 8; // a sanitizer multiplies time and memory
#else
constexpr bool kWithLargeFiles = true;
constexpr int kSlowness = 1;
#endif

constexpr int kPhotos = 12;

/** What a page may take for one file; seconds of a processor that needs `kUsualPlainSeconds` for
 * `plainWork`. */
struct Limits {
    double cpuSeconds;
    int megabytes;
};
constexpr Limits kFileLimits{ 3.0, 512 };
constexpr Limits kSpecialLimits{ 1.0, 512 };
// A process that waits takes no processor time; on a busy machine it may wait for its turn.
constexpr int kWaitsForEverSeconds = 60;

/** What became of a child process. */
struct Outcome {
    int status = 0; ///< as of wait()
    double cpuSeconds = 0.0;
    long megabytes = 0;
    bool hung = false;
};

/** Runs \p work in a process of its own and measures it. */
Outcome runApart(const std::function<void()> &work)
{
    const pid_t child = fork();
    if (child == 0) {
        work();
        _exit(0);
    }
    Outcome outcome;
    QElapsedTimer clock;
    clock.start();
    rusage usage = {};
    while (wait4(child, &outcome.status, WNOHANG, &usage) == 0) {
        if (clock.elapsed() > kWaitsForEverSeconds * 1000LL * kSlowness) {
            outcome.hung = true;
            ::kill(child, SIGKILL);
            wait4(child, &outcome.status, 0, &usage);
            break;
        }
        ::usleep(500);
    }
    const auto seconds = [](const timeval &time) {
        return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_usec) / 1e6;
    };
    outcome.cpuSeconds = seconds(usage.ru_utime) + seconds(usage.ru_stime);
    outcome.megabytes = usage.ru_maxrss / 1024;
    return outcome;
}

/** Work like that of a page with much to show, written down plainly: outlines, and captions that
 * are broken into lines. */
void plainWork()
{
    QImage image(4000, 2000, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::white);
    QPainter painter(&image);
    constexpr int kCells = 30000;
    constexpr int kSide = 96;
    for (int i = 0; i < kCells; ++i) {
        const QPoint place(i * 37 % (image.width() - kSide), i * 17 % (image.height() - kSide));
        QStaticText text(QStringLiteral("%1 (%2,%3)").arg(i).arg(i % 360).arg(i % 90));
        text.setTextFormat(Qt::PlainText);
        text.setTextWidth(kSide);
        text.prepare({}, painter.font());
        painter.fillRect(QRect(place, QSize(kSide, 1)), Qt::black);
        painter.fillRect(QRect(place, QSize(1, kSide)), Qt::black);
        painter.drawStaticText(place, text);
    }
}
constexpr double kUsualPlainSeconds = 0.26;

/** How much slower than usual processor time goes by now: machines differ, and neighbours on the
 * same processor slow each other down. */
double slownessNow()
{
    return std::max(1.0, runApart(&plainWork).cpuSeconds / kUsualPlainSeconds);
}

/** Shows the tool tip of the record's path, as a resting mouse does. */
void showToolTip(const PageDriver &driver)
{
    auto *edit = driver.find<QLineEdit>("m_leConfigFile");
    const QPoint place = edit->rect().center();
    QHelpEvent event(QEvent::ToolTip, place, edit->mapToGlobal(place));
    QCoreApplication::sendEvent(edit, &event);
    QCoreApplication::processEvents();
}

/** Types the path of a record that is there with photos chosen before, looks around, and goes on.
 */
void useRecord(const Head &head, const QStringList &photos, const QString &path)
{
    const HeadShoot shoot(head);
    shoot.driver.load(kSelectPhotos, photos);
    if (shoot.count() != shoot.countOf(photos.size())) {
        _exit(6);
    }
    DialogClicker boxes;
    for (int i = 0; i < 10; ++i) {
        boxes.pressButton();
    }
    head.enterPath(shoot.made, path);
    showToolTip(shoot.driver);
    shoot.driver.click(head.facts->turnsCamera ? "m_pbRot90" : "m_pInverseCoordinates");
    (void)shoot.page->isComplete();
    (void)shoot.page->validatePage();
    (void)shoot.driver.picture();
}

} // namespace

Q_DECLARE_METATYPE(HostileFile)

/** Gives pages files that nobody's head writes, each in a process of its own. */
class TestHostile : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void aMeasuredProcessIsJudged();
    void recordsAreSurvived_data();
    void recordsAreSurvived();
    void specialFilesAreRefused_data();
    void specialFilesAreRefused();
    void cleanupTestCase();

private:
    void judge(const std::function<void()> &work, const Limits &limits);

    ShootFolder m_folder;
    QStringList m_photos;
    int m_judged = 0;
    Outcome m_worst;
};

void TestHostile::initTestCase()
{
    m_photos = m_folder.addPhotos(kPhotos);
    // What a process loads at its first page is nobody's fault; the children start with it.
    useRecord(*headsWithRecords().front(), m_photos, {});
}

void TestHostile::judge(const std::function<void()> &work, const Limits &limits)
{
    Outcome outcome = runApart(work);
    double allowed = limits.cpuSeconds * kSlowness;
    // Is it the machine? A page that is slow by itself is so each time.
    constexpr int kMoreTries = 4;
    for (int i = 0; i < kMoreTries && outcome.cpuSeconds > allowed; ++i) {
        const double slowness = slownessNow();
        outcome = runApart(work);
        allowed = limits.cpuSeconds * kSlowness * std::max(slowness, slownessNow());
    }
    ++m_judged;
    m_worst.cpuSeconds = std::max(m_worst.cpuSeconds, outcome.cpuSeconds);
    m_worst.megabytes = std::max(m_worst.megabytes, outcome.megabytes);
    if (outcome.cpuSeconds > limits.cpuSeconds / 2 || outcome.megabytes > limits.megabytes / 2) {
        qInfo("%.2f s and %ld MB", outcome.cpuSeconds, outcome.megabytes);
    }
    QVERIFY2(!outcome.hung, "The page waits for ever");
    QVERIFY2(!WIFSIGNALED(outcome.status),
             qPrintable(QStringLiteral("Ended by signal %1").arg(WTERMSIG(outcome.status))));
    QCOMPARE(WEXITSTATUS(outcome.status), 0);
    QVERIFY2(outcome.cpuSeconds <= allowed,
             qPrintable(QStringLiteral("Took %1 of %2 s").arg(outcome.cpuSeconds).arg(allowed)));
    QVERIFY2(outcome.megabytes <= limits.megabytes * kSlowness,
             qPrintable(QStringLiteral("Took %1 MB").arg(outcome.megabytes)));
}

/** The judge can tell: signals, exits, memory and time of a child are seen. */
void TestHostile::aMeasuredProcessIsJudged()
{
    QCOMPARE(WTERMSIG(runApart([] { ::raise(SIGKILL); }).status), SIGKILL);
    QCOMPARE(WEXITSTATUS(runApart([] { _exit(3); }).status), 3);
    const Outcome large = runApart([] {
        QByteArray memory(700 * 1024 * 1024, 'x');
        if (memory.at(memory.size() / 2) != 'x') {
            _exit(1);
        }
    });
    QVERIFY(large.megabytes > 700);
    const Outcome slow = runApart([] {
        while (clock() < CLOCKS_PER_SEC) { }
    });
    QVERIFY(slow.cpuSeconds >= 0.9);
    const double plain = runApart(&plainWork).cpuSeconds;
    qInfo("plain work took %.2f s", plain);
    QVERIFY(plain > 0.0);
}

void TestHostile::recordsAreSurvived_data()
{
    QTest::addColumn<const Head *>("head");
    QTest::addColumn<HostileFile>("file");
    for (const Head *head : headsWithRecords()) {
        const QVector<HostileFile> files = head->host->hostileFiles();
        // Any record: empty, cut off, without an end, of other bytes, with every odd number.
        QVERIFY2(files.size() >= 40, head->name);
        for (const HostileFile &file : files) {
            if (kWithLargeFiles || !file.isLarge) {
                QTest::addRow("%s: %s", head->name, file.name.constData()) << head << file;
            }
        }
    }
}

void TestHostile::recordsAreSurvived()
{
    QFETCH(const Head *, head);
    QFETCH(const HostileFile, file);
    const QString path = m_folder.write(QString::fromLatin1(head->recordName), file.content());
    judge([&] { useRecord(*head, m_photos, path); }, kFileLimits);
}

void TestHostile::specialFilesAreRefused_data()
{
    QTest::addColumn<const Head *>("head");
    QTest::addColumn<QString>("path");
    QTest::addColumn<bool>("isText"); // which some heads read as a record without shots
    const auto row = [](const char *name, const QString &path, bool isText = false) {
        for (const Head *head : headsWithRecords()) {
            QTest::addRow("%s: %s", head->name, name) << head << path << isText;
        }
    };

    const QString pipe = m_folder.path(QStringLiteral("pipe"));
    QVERIFY(::mkfifo(QFile::encodeName(pipe).constData(), 0600) == 0);
    const QString dangling = m_folder.path(QStringLiteral("dangling"));
    QVERIFY(QFile::link(m_folder.path(QStringLiteral("nowhere")), dangling));
    const QString loop = m_folder.path(QStringLiteral("loop"));
    QVERIFY(QFile::link(loop, loop));
    const QString linkToPipe = m_folder.path(QStringLiteral("link to the pipe"));
    QVERIFY(QFile::link(pipe, linkToPipe));
    const QString linkToDevice = m_folder.path(QStringLiteral("link to a device"));
    QVERIFY(QFile::link(QStringLiteral("/dev/zero"), linkToDevice));
    const QString forbidden = m_folder.write(QStringLiteral("forbidden"), "<p/>");
    QVERIFY(::chmod(QFile::encodeName(forbidden).constData(), 0) == 0);

    const QString socketPath = m_folder.path(QStringLiteral("socket"));
    sockaddr_un address = {};
    address.sun_family = AF_UNIX;
    const QByteArray socketName = QFile::encodeName(socketPath);
    QVERIFY(socketName.size() < static_cast<int>(sizeof address.sun_path));
    std::copy(socketName.cbegin(), socketName.cend(), address.sun_path);
    const int listener = ::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
    QVERIFY(::bind(listener, reinterpret_cast<const sockaddr *>(&address), sizeof address) == 0);

    row("pipe", pipe);
    row("link to a pipe", linkToPipe);
    row("socket", socketPath);
    row("folder", m_folder.path());
    row("folder with a slash", m_folder.path() + QLatin1Char('/'));
    row("root folder", QStringLiteral("/"));
    row("dangling link", dangling);
    row("link to itself", loop);
    row("link to a device", linkToDevice);
    row("forbidden", forbidden);
    row("nowhere", m_folder.path(QStringLiteral("nowhere")));
    row("file as a folder", m_photos.first() + QStringLiteral("/shoot.xml"));
    row("/dev/zero", QStringLiteral("/dev/zero"));
    row("/dev/random", QStringLiteral("/dev/random"));
    row("/dev/full", QStringLiteral("/dev/full"));
    row("/dev/null", QStringLiteral("/dev/null"));
    row("/dev/tty", QStringLiteral("/dev/tty"));
    row("/dev/ptmx", QStringLiteral("/dev/ptmx"));
    row("/dev/stdin", QStringLiteral("/dev/stdin"));
    row("/proc/self/mem", QStringLiteral("/proc/self/mem"));
    row("/proc/self/maps", QStringLiteral("/proc/self/maps"), true);
    row("/proc/kmsg", QStringLiteral("/proc/kmsg"));
    row("/proc/self/pagemap", QStringLiteral("/proc/self/pagemap"));
    row("empty path", QString());
    row("blank path", QStringLiteral(" "));
    row("home", QStringLiteral("~"));
    row("path of 100,000 characters", QString(100'000, QLatin1Char('x')));
    row("path of 5,000 folders", QStringLiteral("/x").repeated(5'000));
    row("path with NUL", m_photos.first() + QChar(0) + QStringLiteral(".xml"));
    row("address", QStringLiteral("http://127.0.0.1:9/shoot.xml"));
    row("command", QStringLiteral("$(touch /tmp/x); `id` | cat"));
    row("resource", QStringLiteral(":/Licenses"));
}

/** Root may read everything, so the pages run as somebody else. */
void TestHostile::specialFilesAreRefused()
{
    QFETCH(const Head *, head);
    QFETCH(const QString, path);
    QFETCH(const bool, isText);
    const auto refused = [this, head, &path, isText] {
        if (::geteuid() == 0 && path.startsWith(m_folder.path())) {
            ::chmod(QFile::encodeName(m_folder.path()).constData(), 0755);
            if (::setuid(65534) != 0) {
                _exit(4);
            }
        }
        const HeadShoot shoot(*head);
        DialogClicker boxes;
        boxes.pressButton();
        head->enterPath(shoot.made, path);
        const bool isRead = isText && head->readsAnyText;
        const bool isUnread = shoot.made.shots->isEmpty()
            && shoot.driver.text("m_lbPapyLog") == QLatin1String("N/A");
        const bool isBoxExpected = head->saysUnreadable && !isRead && !path.isEmpty();
        if (!isUnread || boxes.isSettled() != isBoxExpected) {
            _exit(5);
        }
    };
    judge(refused, kSpecialLimits);
}

void TestHostile::cleanupTestCase()
{
    qInfo("%d files, at most %.2f s of processor time and %ld MB", m_judged, m_worst.cpuSeconds,
          m_worst.megabytes);
    QVERIFY(!kWithLargeFiles || m_judged >= 400);
}

TEST_CLASS(TestHostile, FakeApplication)
#include "tst_hostile.moc"
