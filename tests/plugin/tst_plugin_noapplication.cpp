// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#include "hostcontract.h"
#include "testprogram.h"

#include <QCoreApplication>
#include <QTest>

/** The module in a program without any application object. */
class TestPluginWithoutApplication : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theLibraryLoadsAndSaysItsName();
    void theLibraryWorksInAConsoleProgramToo();
};

void TestPluginWithoutApplication::theLibraryLoadsAndSaysItsName()
{
    QVERIFY(QCoreApplication::instance() == nullptr);
    {
        Contract::Module module;
        QVERIFY2(module.root(), qPrintable(module.loader().errorString()));
        QCOMPARE(module.root()->objectName(), QStringLiteral("XPanoHead"));
        QCOMPARE(Contract::asAbout(module.root())->name(), QStringLiteral("XPanoHead"));
        QVERIFY(module.library()->plugins(0).isEmpty());
    }
    QVERIFY(!Contract::isMapped());
}

void TestPluginWithoutApplication::theLibraryWorksInAConsoleProgramToo()
{
    int argc = 1;
    char name[] = "console";
    char *argv[] = { name, nullptr };
    const QCoreApplication application(argc, argv);
    Contract::Module module;
    QVERIFY2(module.root(), qPrintable(module.loader().errorString()));
    QCOMPARE(Contract::asAbout(module.root())->version(), QStringLiteral("3.0.0.400"));
    QVERIFY(module.library()->plugins(0).isEmpty());
}

TEST_CLASS(TestPluginWithoutApplication, TestProgram::NoApplication)
#include "tst_plugin_noapplication.moc"
