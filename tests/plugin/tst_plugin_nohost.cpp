// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#include "hostcontract.h"
#include "hosthead.h"
#include "testprogram.h"

#include <QApplication>
#include <QTest>

/** The module in a program whose application object is no host. */
class TestPluginWithoutHost : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyPluginComesWithItsPage();
    void aboutDataNeedsNoHost();
    void pagesAcceptNext();
    void theModuleUnloadsWithAllItsPages();
};

void TestPluginWithoutHost::everyPluginComesWithItsPage()
{
    Contract::Module module;
    QVERIFY2(module.root(), qPrintable(module.loader().errorString()));
    const QList<QPointer<QObject>> plugins = module.library()->plugins(2);
    QCOMPARE(plugins.size(), static_cast<int>(allHostHeads().size()));
    for (const QPointer<QObject> &plugin : plugins) {
        QVERIFY(!plugin.isNull());
        const QList<QWizardPage *> pages = Contract::asImport(plugin)->pages();
        QCOMPARE(pages.size(), 1);
        QVERIFY(pages.first() != nullptr);
    }
}

void TestPluginWithoutHost::aboutDataNeedsNoHost()
{
    Contract::Module module;
    QCOMPARE(Contract::asAbout(module.root())->uid(),
             QStringLiteral("7A21C94E-5B20-2020-2020-2D91D0DDB961"));
    QStringList names;
    for (const QPointer<QObject> &plugin : module.library()->plugins(2)) {
        names.append(Contract::asAbout(plugin)->name());
    }
    QStringList expected;
    for (const HostHead *head : allHostHeads()) {
        expected.append(QString::fromLatin1(head->name));
    }
    QCOMPARE(names, expected);
}

void TestPluginWithoutHost::pagesAcceptNext()
{
    Contract::Module module;
    for (const QPointer<QObject> &plugin : module.library()->plugins(2)) {
        QWizardPage *page = Contract::asImport(plugin)->pages().first();
        page->initializePage();
        QVERIFY(page->validatePage());
        page->cleanupPage();
    }
}

void TestPluginWithoutHost::theModuleUnloadsWithAllItsPages()
{
    {
        Contract::Module module;
        module.library()->plugins(2);
        QVERIFY(Contract::isMapped());
        QVERIFY(module.loader().unload());
    }
    QVERIFY(!Contract::isMapped());
}

TEST_CLASS(TestPluginWithoutHost, QApplication)
#include "tst_plugin_nohost.moc"
