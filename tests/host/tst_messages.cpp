// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/model/messages.h"
#include "host/model/result.h"
#include "tests/support/testprogram.h"

#include <QtTest>

using namespace PanoHost;

class MessagesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void errorIsOneLine_data();
    void errorIsOneLine();
    void warningIsOneLine();
    void controlCharactersNeverReachTheTerminal_data();
    void controlCharactersNeverReachTheTerminal();
    void exitCodesAreTheDocumentedOnes();
    void resultHoldsAValueOrAFailure();
};

void MessagesTest::errorIsOneLine_data()
{
    QTest::addColumn<QString>("what");
    QTest::addColumn<QString>("why");
    QTest::addColumn<QString>("tryThis");
    QTest::addColumn<QString>("expected");
    QTest::newRow("all three") << "enfuse"
                               << "not found"
                               << "apt install enfuse"
                               << "panohost: error: enfuse: not found; apt install enfuse";
    QTest::newRow("nothing to try") << "a.jpg"
                                    << "cannot read"
                                    << ""
                                    << "panohost: error: a.jpg: cannot read";
    QTest::newRow("no reason") << "unknown head 'x'"
                               << ""
                               << "did you mean 'y'?"
                               << "panohost: error: unknown head 'x'; did you mean 'y'?";
    QTest::newRow("what alone") << "interrupted"
                                << ""
                                << ""
                                << "panohost: error: interrupted";
    QTest::newRow("percent signs stay") << "%1.jpg"
                                        << "%2"
                                        << "%3"
                                        << "panohost: error: %1.jpg: %2; %3";
}

void MessagesTest::errorIsOneLine()
{
    QFETCH(QString, what);
    QFETCH(QString, why);
    QFETCH(QString, tryThis);
    QFETCH(QString, expected);
    QCOMPARE(errorLine({ ExitCode::InputRefused, what, why, tryThis }), expected);
}

void MessagesTest::warningIsOneLine()
{
    QCOMPARE(warningLine(QStringLiteral("a\nb")), QStringLiteral("panohost: warning: a b"));
}

void MessagesTest::controlCharactersNeverReachTheTerminal_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("expected");
    QTest::newRow("line end") << "a\nb"
                              << "a b";
    QTest::newRow("carriage return") << "a\rb"
                                     << "a b";
    QTest::newRow("escape") << "a\x1b[2Jb"
                            << "a [2Jb";
    QTest::newRow("delete") << "a\x7f"
                               "b"
                            << "a b";
    QTest::newRow("8-bit control")
        << QStringLiteral("a") + QChar(0x9b) + QStringLiteral("b") << "a b";
    QTest::newRow("line separator")
        << QStringLiteral("a") + QChar(0x2028) + QStringLiteral("b") << "a b";
    QTest::newRow("reversed writing")
        << QStringLiteral("a") + QChar(0x202e) + QStringLiteral("gpj.exe") << "a gpj.exe";
    QTest::newRow("letters stay") << QString::fromUtf8("Höhe 全景.jpg")
                                  << QString::fromUtf8("Höhe 全景.jpg");
}

void MessagesTest::controlCharactersNeverReachTheTerminal()
{
    QFETCH(QString, name);
    QFETCH(QString, expected);
    QCOMPARE(onOneLine(name), expected);
}

void MessagesTest::exitCodesAreTheDocumentedOnes()
{
    QCOMPARE(static_cast<int>(ExitCode::Done), 0);
    QCOMPARE(static_cast<int>(ExitCode::ToolFailed), 1);
    QCOMPARE(static_cast<int>(ExitCode::Usage), 2);
    QCOMPARE(static_cast<int>(ExitCode::InputRefused), 3);
    QCOMPARE(static_cast<int>(ExitCode::NoPlugin), 4);
    QCOMPARE(static_cast<int>(ExitCode::ToolMissing), 5);
    QCOMPARE(static_cast<int>(ExitCode::Interrupted), 130);
}

void MessagesTest::resultHoldsAValueOrAFailure()
{
    const Result<int> good(7);
    QVERIFY(good.ok());
    QVERIFY(good);
    QCOMPARE(good.value(), 7);
    const Result<int> bad(Failure{ ExitCode::Usage, QStringLiteral("what"), {}, {} });
    QVERIFY(!bad.ok());
    QVERIFY(!bad);
    QCOMPARE(bad.error().code, ExitCode::Usage);
}

TEST_CLASS(MessagesTest, QCoreApplication)
#include "tst_messages.moc"
