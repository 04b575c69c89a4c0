// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/stitch/workfolder.h"
#include "tests/support/testprogram.h"

#include <QCoreApplication>
#include <QDir>
#include <QLockFile>
#include <QTemporaryDir>
#include <QtTest>

#include <memory>

using namespace PanoHost;

namespace
{

WorkFolder::Maker writes(const QByteArray &content, int *calls = nullptr)
{
    return [=](const QString &part) -> Result<QString> {
        if (calls != nullptr) {
            ++*calls;
        }
        QFile file(part);
        return file.open(QIODevice::WriteOnly) && file.write(content) == content.size()
            ? Result<QString>(part)
            : Failure{};
    };
}

QByteArray contentOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

} // namespace

/** Results that are made once. */
class TestWorkFolder : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void init();
    void resultsAreMadeOnce();
    void anotherSourceMakesThemAnew();
    void whatIsGoneIsMadeAgain();
    void whatLostItsEndIsMadeAgain();
    void failureLeavesNothingButTheOldResult();
    void whatToolsLeaveBesideIsRemoved();
    void foldersAreResultsToo();
    void whoeverWasKilledBetweenStepsGoesOn();
    void twoProcessesDoNotShareIt();
    void emptyLockOfAPowerCutIsNobodys();
    void aFileInItsPlaceIsRefused();

private:
    [[nodiscard]] QString path() const { return m_folder->filePath(QStringLiteral("a b.work")); }

    std::unique_ptr<QTemporaryDir> m_folder;
};

void TestWorkFolder::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
}

void TestWorkFolder::resultsAreMadeOnce()
{
    const auto work = WorkFolder::open(path());
    QVERIFY(work);
    int calls = 0;
    const QString name = QStringLiteral("deep/one.txt");
    QVERIFY(!work.value().has(name, "source"));
    for (int i = 0; i < 3; ++i) {
        const auto made = work.value().make(name, "source", writes("content", &calls));
        QVERIFY(made);
        QCOMPARE(contentOf(made.value()), QByteArray("content"));
    }
    QCOMPARE(calls, 1);
    QVERIFY(work.value().has(name, "source"));
    QVERIFY(!work.value().has(name, "other"));
}

void TestWorkFolder::anotherSourceMakesThemAnew()
{
    const auto work = WorkFolder::open(path());
    const QString name = QStringLiteral("one.txt");
    QVERIFY(work.value().make(name, "first", writes("1")));
    const auto made = work.value().make(name, "second", writes("2"));
    QCOMPARE(contentOf(made.value()), QByteArray("2"));
    QVERIFY(!work.value().has(name, "first"));
}

void TestWorkFolder::whatIsGoneIsMadeAgain()
{
    const auto work = WorkFolder::open(path());
    const QString name = QStringLiteral("one.txt");
    QVERIFY(work.value().make(name, "source", writes("1")));
    QVERIFY(QFile::remove(work.value().path(name)));
    int calls = 0;
    QVERIFY(work.value().make(name, "source", writes("1", &calls)));
    QCOMPARE(calls, 1);
}

void TestWorkFolder::whatLostItsEndIsMadeAgain()
{
    const auto work = WorkFolder::open(path());
    const QString name = QStringLiteral("one.txt");
    QVERIFY(work.value().make(name, "source", writes("whole")));
    QVERIFY(QFile::resize(work.value().path(name), 0));
    const auto made = work.value().make(name, "source", writes("whole"));
    QVERIFY(made);
    QCOMPARE(contentOf(made.value()), QByteArray("whole"));
}

void TestWorkFolder::failureLeavesNothingButTheOldResult()
{
    const auto work = WorkFolder::open(path());
    const QString name = QStringLiteral("one.txt");
    QVERIFY(work.value().make(name, "first", writes("1")));
    const Failure why{ ExitCode::ToolFailed, QStringLiteral("tool"), {}, {} };
    const auto failed
        = work.value().make(name, "second", [&](const QString &part) -> Result<QString> {
              (void)writes("half of i")(part);
              return why;
          });
    QVERIFY(!failed);
    QCOMPARE(failed.error().what, why.what);
    QCOMPARE(contentOf(work.value().path(name)), QByteArray("1"));
    QVERIFY(!work.value().has(name, "second"));
    QCOMPARE(QDir(path()).entryList(QDir::Files), (QStringList{ QStringLiteral("lock"), name }));
}

void TestWorkFolder::whatToolsLeaveBesideIsRemoved()
{
    const auto work = WorkFolder::open(path());
    const QString name = QStringLiteral("one.tif");
    QVERIFY(writes("of a killed run")(path() + QStringLiteral("/part-one.tif.XyZ")));
    QVERIFY(writes("another's")(path() + QStringLiteral("/part-two.tif")));
    const auto failed = work.value().make(name, "1", [&](const QString &) -> Result<QString> {
        for (const char *left : { "/part-one0000.tif", "/raw-part-one.tiff" }) {
            (void)writes("half")(path() + QLatin1String(left));
        }
        return Failure{};
    });
    QVERIFY(!failed);
    QCOMPARE(QDir(path()).entryList(QDir::Files),
             (QStringList{ QStringLiteral("lock"), QStringLiteral("part-two.tif") }));
}

void TestWorkFolder::foldersAreResultsToo()
{
    const auto work = WorkFolder::open(path());
    const QString name = QStringLiteral("tiles");
    const auto fill = [](const QByteArray &content) {
        return [=](const QString &part) -> Result<QString> {
            QDir().mkpath(part);
            return writes(content)(part + QStringLiteral("/0.jpg"));
        };
    };
    QVERIFY(work.value().make(name, "1", fill("old")));
    QVERIFY(work.value().make(name, "2", fill("new")));
    QCOMPARE(contentOf(work.value().path(QStringLiteral("tiles/0.jpg"))), QByteArray("new"));
}

void TestWorkFolder::whoeverWasKilledBetweenStepsGoesOn()
{
    const QString name = QStringLiteral("one.txt");
    {
        const auto work = WorkFolder::open(path());
        QVERIFY(work.value().make(name, "source", writes("whole")));
    }
    // Killed between the result and its key, and within a result.
    QVERIFY(QFile::remove(path() + QStringLiteral("/one.txt.key")));
    QVERIFY(writes("ha")(path() + QStringLiteral("/part-one.txt")));
    const auto work = WorkFolder::open(path());
    QVERIFY(work);
    int calls = 0;
    QVERIFY(work.value().make(name, "source", writes("whole", &calls)));
    QCOMPARE(calls, 1);
    QVERIFY(!QFile::exists(path() + QStringLiteral("/part-one.txt")));
}

void TestWorkFolder::twoProcessesDoNotShareIt()
{
    const auto work = WorkFolder::open(path());
    const auto second = WorkFolder::open(path());
    QVERIFY(!second);
    QCOMPARE(second.error().code, ExitCode::InputRefused);
    QVERIFY(second.error().why.startsWith(QStringLiteral("is in use by ")));
    QVERIFY(second.error().why.contains(QString::number(QCoreApplication::applicationPid())));
}

void TestWorkFolder::emptyLockOfAPowerCutIsNobodys()
{
    QVERIFY(QDir().mkpath(path()));
    QVERIFY(writes({})(path() + QStringLiteral("/lock")));
    const auto work = WorkFolder::open(path());
    QVERIFY2(work, work ? "" : qPrintable(work.error().text()));
    QVERIFY(!WorkFolder::open(path()));
}

void TestWorkFolder::aFileInItsPlaceIsRefused()
{
    QVERIFY(writes("a file")(path()));
    const auto work = WorkFolder::open(path());
    QVERIFY(!work);
    QCOMPARE(work.error().why, QStringLiteral("this folder cannot be made"));
}

TEST_CLASS(TestWorkFolder, QCoreApplication)
#include "tst_workfolder.moc"
