// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/model/safefile.h"
#include "tests/support/testprogram.h"

#include <QDir>
#include <QFileInfo>
#include <QTemporaryDir>
#include <QtTest>

#include <sys/stat.h>
#include <unistd.h>

using namespace PanoHost;

class SafeFileTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void contentComesBack();
    void contentAsLargeAsTheBoundIsRead();
    void largerContentIsRefused();
    void onlyRegularFilesAreOpened_data();
    void onlyRegularFilesAreOpened();
    void writingReplacesTheWholeFile();
    void failedWriteLeavesTheOldFileAndNoOther_data();
    void failedWriteLeavesTheOldFileAndNoOther();
    void folderThatTakesNoFilesIsNamed();

private:
    [[nodiscard]] QString at(const QString &name) const { return m_folder.filePath(name); }
    QString write(const QString &name, const QByteArray &content) const;
    QTemporaryDir m_folder;
};

QString SafeFileTest::write(const QString &name, const QByteArray &content) const
{
    QFile file(at(name));
    if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size()) {
        qFatal("cannot write");
    }
    return at(name);
}

void SafeFileTest::contentComesBack()
{
    const QByteArray content("a\0b\r\n", 5);
    const auto read = readRegularFile(write(QStringLiteral("file"), content), 100);
    QVERIFY(read.ok());
    QCOMPARE(read.value(), content);
}

void SafeFileTest::contentAsLargeAsTheBoundIsRead()
{
    const auto read = readRegularFile(write(QStringLiteral("file"), "12345"), 5);
    QVERIFY(read.ok());
    QCOMPARE(read.value(), QByteArray("12345"));
}

void SafeFileTest::largerContentIsRefused()
{
    const auto read = readRegularFile(write(QStringLiteral("file"), "123456"), 5);
    QVERIFY(!read.ok());
    QCOMPARE(read.error().why, QStringLiteral("larger than 5 bytes"));
}

void SafeFileTest::onlyRegularFilesAreOpened_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("why");
    const QString pipe = at(QStringLiteral("pipe"));
    QCOMPARE(::mkfifo(QFile::encodeName(pipe).constData(), 0600), 0);
    QTest::newRow("pipe without a writer") << pipe << "is not a regular file";
    QTest::newRow("device") << "/dev/zero"
                            << "is not a regular file";
    QTest::newRow("folder") << m_folder.path() << "is a folder";
    QTest::newRow("missing") << at(QStringLiteral("missing")) << "no such file";
    QTest::newRow("below a file") << write(QStringLiteral("file"), "x") + QStringLiteral("/x")
                                  << "Not a directory";
    QTest::newRow("NUL behind a name that there is")
        << write(QStringLiteral("file"), "x") + QChar(QChar::Null) + QStringLiteral(".jpg")
        << "no such file";
    QTest::newRow("empty name") << QString() << "no such file";
}

void SafeFileTest::onlyRegularFilesAreOpened()
{
    QFETCH(QString, path);
    QFETCH(QString, why);
    const auto read = readRegularFile(path, 100);
    QVERIFY(!read.ok());
    QCOMPARE(read.error().what, path);
    QCOMPARE(read.error().why, why);
    QCOMPARE(read.error().code, ExitCode::InputRefused);
}

void SafeFileTest::writingReplacesTheWholeFile()
{
    const QString path = write(QStringLiteral("project.pto"), "a longer text than the next");
    const auto written = writeFileAtomically(path, "short");
    QVERIFY(written.ok());
    QCOMPARE(written.value(), path);
    QCOMPARE(readRegularFile(path, 100).value(), QByteArray("short"));
}

void SafeFileTest::failedWriteLeavesTheOldFileAndNoOther_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("why");
    QTest::newRow("no such folder")
        << at(QStringLiteral("nowhere/x.pto"))
        << QStringLiteral("the folder %1 does not exist").arg(at(QStringLiteral("nowhere")));
    QTest::newRow("a folder") << m_folder.path() << "is a folder";
    const QString pipe = at(QStringLiteral("output"));
    QCOMPARE(::mkfifo(QFile::encodeName(pipe).constData(), 0600), 0);
    QTest::newRow("a pipe") << pipe << "is not a regular file";
    write(QStringLiteral("file"), "x");
    QTest::newRow("below a file")
        << at(QStringLiteral("file/x.pto"))
        << QStringLiteral("the folder %1 does not exist").arg(at(QStringLiteral("file")));
}

void SafeFileTest::failedWriteLeavesTheOldFileAndNoOther()
{
    QFETCH(QString, path);
    QFETCH(QString, why);
    const QStringList before = QDir(m_folder.path()).entryList(QDir::AllEntries | QDir::System);
    const auto written = writeFileAtomically(path, "text");
    QVERIFY(!written.ok());
    QCOMPARE(written.error().why, why);
    QVERIFY(!written.error().tryThis.isEmpty());
    QCOMPARE(QDir(m_folder.path()).entryList(QDir::AllEntries | QDir::System), before);
}

void SafeFileTest::folderThatTakesNoFilesIsNamed()
{
    // Permissions do not hold the superuser back; the process file system does.
    const bool superuser = ::geteuid() == 0;
    const QString folder = superuser ? QStringLiteral("/proc/self") : at(QStringLiteral("locked"));
    if (!superuser) {
        QVERIFY(QDir().mkpath(folder));
        QVERIFY(QFile::setPermissions(folder, QFileDevice::ReadOwner | QFileDevice::ExeOwner));
    }
    const QString path = folder + QStringLiteral("/x.pto");
    const auto written = writeFileAtomically(path, "text");
    QVERIFY(!written.ok());
    QCOMPARE(written.error().what, path);
    QVERIFY(written.error().why.startsWith(QStringLiteral("cannot be written (")));
    QCOMPARE(written.error().code, ExitCode::ToolFailed);
    QVERIFY(!QFileInfo::exists(path));
}

TEST_CLASS(SafeFileTest, QCoreApplication)
#include "tst_safefile.moc"
