// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#include "importers/clauss/uiwpclauss.h"
#include "importers/papywizard/uiwpmerlin.h"
#include "importers/vrdrive2/uiwpvrdrive2.h"
#include "tests/hostile/hostilefiles.h"
#include "tests/support/dialogclicker.h"
#include "tests/support/fakeapplication.h"
#include "tests/support/pagedriver.h"
#include "tests/support/shootfolder.h"

#include <QElapsedTimer>
#include <QHelpEvent>
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

/** What a page may take for one file. */
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

/** A row for one file in \p step. */
void listFiles(const QVector<HostileFile> &files, int step)
{
    QTest::addColumn<int>("index");
    for (int i = 0; i < files.size(); i += step) {
        if (kWithLargeFiles || !files.at(i).isLarge) {
            QTest::newRow(files.at(i).name.constData()) << i;
        }
    }
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
template <typename Page, typename Read>
void useRecord(const QStringList &photos, const QVector<const char *> &clicks, const Read &read)
{
    Page page(nullptr);
    const PageDriver driver(&page);
    driver.load("m_pbSelectImages", photos);
    if (driver.text("m_lbImageLog") != QString::number(photos.size())) {
        _exit(6);
    }
    DialogClicker boxes;
    for (int i = 0; i < 10; ++i) {
        boxes.pressButton();
    }
    read(page, driver);
    showToolTip(driver);
    for (const char *name : clicks) {
        driver.click(name);
    }
    (void)page.isComplete();
    (void)page.validatePage();
    (void)driver.picture();
}

} // namespace

/** Gives pages files that nobody's head writes, each in a process of its own. */
class TestHostile : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void aMeasuredProcessIsJudged();
    void recordsAreSurvivedByThePapywizardPage_data();
    void recordsAreSurvivedByThePapywizardPage();
    void recordsAreSurvivedByTheVRDrive2Page_data();
    void recordsAreSurvivedByTheVRDrive2Page();
    void scriptsAreSurvivedByTheClaussPage_data();
    void scriptsAreSurvivedByTheClaussPage();
    void specialFilesAreRefused_data();
    void specialFilesAreRefused();
    void cleanupTestCase();

private:
    void usePapywizard(const QString &path) const;
    void useVRDrive2(const QString &path) const;
    void useClauss(const QString &path) const;
    [[nodiscard]] QString write(const HostileFile &file, const QString &name) const;
    void judge(const Outcome &outcome, const Limits &limits);

    ShootFolder m_folder;
    QStringList m_photos;
    int m_judged = 0;
    Outcome m_worst;
};

void TestHostile::initTestCase()
{
    m_photos = m_folder.addPhotos(kPhotos);
    // What a process loads at its first page is nobody's fault; the children start with it.
    usePapywizard({});
}

void TestHostile::usePapywizard(const QString &path) const
{
    useRecord<UIWPMerlin>(
        m_photos, { "m_pInverseCoordinates" },
        [&path](UIWPMerlin &page, const PageDriver &) { page.SetConfigFFilename(path); });
}

void TestHostile::useVRDrive2(const QString &path) const
{
    useRecord<UIWPVRDrive2>(
        m_photos, { "m_pbRot90" },
        [&path](UIWPVRDrive2 &page, const PageDriver &) { page.SetConfigFFilename(path); });
}

void TestHostile::useClauss(const QString &path) const
{
    useRecord<UIWPClauss>(m_photos, { "m_pInverseCoordinates" },
                          [&path](UIWPClauss &page, const PageDriver &driver) {
                              driver.find<QLineEdit>("m_leConfigFile")->setText(path);
                              page.SetConfigFFilename();
                          });
}

QString TestHostile::write(const HostileFile &file, const QString &name) const
{
    return m_folder.write(name, file.content());
}

void TestHostile::judge(const Outcome &outcome, const Limits &limits)
{
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
    QVERIFY2(outcome.cpuSeconds <= limits.cpuSeconds * kSlowness,
             qPrintable(QStringLiteral("Took %1 s").arg(outcome.cpuSeconds)));
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
}

void TestHostile::recordsAreSurvivedByThePapywizardPage_data()
{
    listFiles(hostileRecords(), 1);
}

void TestHostile::recordsAreSurvivedByThePapywizardPage()
{
    QFETCH(const int, index);
    static const QVector<HostileFile> files = hostileRecords();
    const QString path = write(files.at(index), QStringLiteral("shoot.xml"));
    judge(runApart([this, &path] { usePapywizard(path); }), kFileLimits);
}

/** The page shares reader and generator with the other; every tenth file is enough. */
void TestHostile::recordsAreSurvivedByTheVRDrive2Page_data()
{
    listFiles(hostileRecords(), 10);
}

void TestHostile::recordsAreSurvivedByTheVRDrive2Page()
{
    QFETCH(const int, index);
    static const QVector<HostileFile> files = hostileRecords();
    const QString path = write(files.at(index), QStringLiteral("shoot.xml"));
    judge(runApart([this, &path] { useVRDrive2(path); }), kFileLimits);
}

void TestHostile::scriptsAreSurvivedByTheClaussPage_data()
{
    listFiles(hostileScripts(), 1);
}

void TestHostile::scriptsAreSurvivedByTheClaussPage()
{
    QFETCH(const int, index);
    static const QVector<HostileFile> files = hostileScripts();
    const QString path = write(files.at(index), QStringLiteral("shoot.txt"));
    judge(runApart([this, &path] { useClauss(path); }), kFileLimits);
}

void TestHostile::specialFilesAreRefused_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<bool>("isRead"); // without shots; such a record is none, such a script is one

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

    QTest::newRow("pipe") << pipe << false;
    QTest::newRow("link to a pipe") << linkToPipe << false;
    QTest::newRow("socket") << socketPath << false;
    QTest::newRow("folder") << m_folder.path() << false;
    QTest::newRow("folder with a slash") << m_folder.path() + QLatin1Char('/') << false;
    QTest::newRow("root folder") << QStringLiteral("/") << false;
    QTest::newRow("dangling link") << dangling << false;
    QTest::newRow("link to itself") << loop << false;
    QTest::newRow("link to a device") << linkToDevice << false;
    QTest::newRow("forbidden") << forbidden << false;
    QTest::newRow("nowhere") << m_folder.path(QStringLiteral("nowhere")) << false;
    QTest::newRow("file as a folder") << m_photos.first() + QStringLiteral("/shoot.xml") << false;
    QTest::newRow("/dev/zero") << QStringLiteral("/dev/zero") << false;
    QTest::newRow("/dev/random") << QStringLiteral("/dev/random") << false;
    QTest::newRow("/dev/full") << QStringLiteral("/dev/full") << false;
    QTest::newRow("/dev/null") << QStringLiteral("/dev/null") << false;
    QTest::newRow("/dev/tty") << QStringLiteral("/dev/tty") << false;
    QTest::newRow("/dev/ptmx") << QStringLiteral("/dev/ptmx") << false;
    QTest::newRow("/dev/stdin") << QStringLiteral("/dev/stdin") << false;
    QTest::newRow("/proc/self/mem") << QStringLiteral("/proc/self/mem") << false;
    QTest::newRow("/proc/self/maps") << QStringLiteral("/proc/self/maps") << true;
    QTest::newRow("/proc/kmsg") << QStringLiteral("/proc/kmsg") << false;
    QTest::newRow("/proc/self/pagemap") << QStringLiteral("/proc/self/pagemap") << false;
    QTest::newRow("empty path") << QString() << false;
    QTest::newRow("blank path") << QStringLiteral(" ") << false;
    QTest::newRow("home") << QStringLiteral("~") << false;
    QTest::newRow("path of 100,000 characters") << QString(100'000, QLatin1Char('x')) << false;
    QTest::newRow("path of 5,000 folders") << QStringLiteral("/x").repeated(5'000) << false;
    QTest::newRow("path with NUL") << m_photos.first() + QChar(0) + QStringLiteral(".xml") << false;
    QTest::newRow("address") << QStringLiteral("http://127.0.0.1:9/shoot.xml") << false;
    QTest::newRow("command") << QStringLiteral("$(touch /tmp/x); `id` | cat") << false;
    QTest::newRow("resource") << QStringLiteral(":/Licenses") << false;
}

/** Root may read everything, so the pages run as somebody else. */
void TestHostile::specialFilesAreRefused()
{
    QFETCH(const QString, path);
    QFETCH(const bool, isRead);
    const auto refused = [this, &path, isRead] {
        if (::geteuid() == 0 && path.startsWith(m_folder.path())) {
            ::chmod(QFile::encodeName(m_folder.path()).constData(), 0755);
            if (::setuid(65534) != 0) {
                _exit(4);
            }
        }
        UIWPMerlin xml(nullptr);
        xml.SetConfigFFilename(path);
        UIWPClauss script(nullptr);
        DialogClicker boxes;
        boxes.pressButton();
        script.findChild<QLineEdit *>(QStringLiteral("m_leConfigFile"))->setText(path);
        script.SetConfigFFilename();
        const bool isUnread
            = xml.findChild<QLabel *>(QStringLiteral("m_lbPapyLog"))->text() == QLatin1String("N/A")
            && xml.shots.isEmpty() && script.shots.isEmpty();
        const bool isBoxExpected = !isRead && !path.isEmpty();
        if (!isUnread || boxes.isSettled() != isBoxExpected) {
            _exit(5);
        }
    };
    judge(runApart(refused), kSpecialLimits);
}

void TestHostile::cleanupTestCase()
{
    qInfo("%d files, at most %.2f s of processor time and %ld MB", m_judged, m_worst.cpuSeconds,
          m_worst.megabytes);
    QVERIFY(!kWithLargeFiles || m_judged >= 400);
}

TEST_CLASS(TestHostile, FakeApplication)
#include "tst_hostile.moc"
