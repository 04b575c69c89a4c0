// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "tests/host/cli/clibench.h"
#include "tests/support/testprogram.h"

#include <QtTest>

#include <array>
#include <map>
#include <sys/inotify.h>
#include <unistd.h>

/** How often commands open their input files. */
class TestCliOpens : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void eachPhotoIsOpenedOnce_data();
    void eachPhotoIsOpenedOnce();
};

namespace
{

/** Counts how often each of some files is opened, by whomever. */
class Opens
{
public:
    explicit Opens(const QStringList &paths)
    {
        // Events that are alike and follow each other are one: with those between they are not.
        for (const QString &path : paths) {
            const int watch = inotify_add_watch(m_events, QFile::encodeName(path).constData(),
                                                IN_OPEN | IN_ACCESS | IN_CLOSE);
            m_counts[watch] = 0;
        }
    }
    ~Opens() { close(m_events); }
    Q_DISABLE_COPY(Opens)

    /** Of one file each. */
    [[nodiscard]] QVector<int> counts()
    {
        alignas(inotify_event) std::array<char, 1 << 16> buffer{};
        for (ssize_t size = 0; (size = read(m_events, buffer.data(), buffer.size())) > 0;) {
            for (ssize_t at = 0; at < size;) {
                const auto *event = reinterpret_cast<const inotify_event *>(buffer.data() + at);
                m_counts[event->wd] += (event->mask & IN_OPEN) != 0 ? 1 : 0;
                at += static_cast<ssize_t>(sizeof(inotify_event) + event->len);
            }
        }
        QVector<int> counts;
        for (const auto &[watch, count] : m_counts) {
            counts += count;
        }
        return counts;
    }

private:
    const int m_events = inotify_init1(IN_NONBLOCK | IN_CLOEXEC);
    std::map<int, int> m_counts;
};

} // namespace

void TestCliOpens::eachPhotoIsOpenedOnce_data()
{
    QTest::addColumn<QStringList>("command");
    QTest::addColumn<QStringList>("options");
    const auto words
        = [](const char *text) { return QString::fromLatin1(text).split(QLatin1Char(' ')); };
    QTest::newRow("import") << words("import") << words("-o a.pto --json a.json");
    QTest::newRow("import by time") << words("import") << words("-o a.pto --order time");
    QTest::newRow("import in another order") << words("import") << words("-o a.pto --order given");
    QTest::newRow("check") << words("check") << QStringList();
    QTest::newRow("check, by time") << words("check") << words("--order time --json");
    QTest::newRow("describe") << words("describe") << QStringList();
    QTest::newRow("preview") << words("preview") << words("-o a.png");
}

void TestCliOpens::eachPhotoIsOpenedOnce()
{
    QFETCH(QStringList, command);
    QFETCH(QStringList, options);
    constexpr int kPhotos = 6;
    CliBench bench;
    const QString record = bench.record(QStringLiteral("six.xml"), CliBench::row(kPhotos));
    const QStringList photos = bench.photos(kPhotos);
    QStringList paths;
    for (const QString &photo : photos) {
        paths += bench.path(photo);
    }
    Opens opens(paths);
    Opens recordOpens({ bench.path(record) });
    const CliBench::Run run = bench.run(
        command + QStringList{ QStringLiteral("papywizard"), record } + photos + options);
    QVERIFY2(run.exitCode == 0, qPrintable(run.err));
    QCOMPARE(opens.counts(), QVector<int>(kPhotos, 1));
    // By the host, which says what is wrong with it, and by the page.
    QCOMPARE(recordOpens.counts(), QVector<int>{ 2 });
}

TEST_CLASS(TestCliOpens, QCoreApplication)
#include "tst_cli_opens.moc"
