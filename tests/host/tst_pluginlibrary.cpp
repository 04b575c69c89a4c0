// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/plugin/panohostapplication.h"
#include "host/plugin/pluginlibrary.h"
#include "hostlink/xiabout.h"
#include "hostlink/xipluginimport.h"
#include "tests/host/testphotos.h"
#include "tests/support/hosthead.h"
#include "tests/support/testprogram.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QLibraryInfo>
#include <QTemporaryDir>
#include <QWizard>
#include <QtTest>

using namespace PanoHost;

namespace
{

const QString kPlugin = QStringLiteral(PANOHOST_TEST_PLUGIN);

/** Whether the library is in this process's memory. */
bool isMapped()
{
    QFile maps(QStringLiteral("/proc/self/maps"));
    if (!maps.open(QIODevice::ReadOnly)) {
        qFatal("cannot read the maps");
    }
    return maps.readAll().contains("libXPanoHead.so");
}

QString foreignPlugin()
{
    return QLibraryInfo::location(QLibraryInfo::PluginsPath)
        + QStringLiteral("/imageformats/libqjpeg.so");
}

} // namespace

class PluginLibraryTest : public QObject
{
    Q_OBJECT

public:
    /** Before the application. */
    static void initMain() { initializePhotoReading(); }

private Q_SLOTS:
    void init();
    void cleanup();
    void fileIsLoadedAndReallyUnloaded();
    void folderIsSearched();
    void allHeadsAreOffered();
    void headIsFoundByItsName();
    void pageLivesInAWizardAndGoesWithIt();
    void deletedPlugInIsSkipped();
    void translationComesWithTheLibraryAndGoesWithIt();
    void libraryLoadsAgainAfterUnloading();
    void environmentIsSearchedInOrder();
    void askedForPlaceIsTheOnlyOne();
    void buildTreeIsSearchedFromWithin();
    void whatIsNoLibraryIsRefused_data();
    void whatIsNoLibraryIsRefused();

private:
    QTemporaryDir m_folder;
};

void PluginLibraryTest::init()
{
    qunsetenv("PANOHOST_PLUGIN_PATH");
    PanoHostApplication::instance()->setSettingsFile(m_folder.filePath(QStringLiteral("s.ini")));
    PanoHostApplication::instance()->setLocale(QLocale::c());
}

void PluginLibraryTest::cleanup()
{
    QVERIFY(!isMapped());
}

void PluginLibraryTest::fileIsLoadedAndReallyUnloaded()
{
    QVERIFY(!isMapped());
    auto library = PluginLibrary::open(kPlugin);
    QVERIFY2(library.ok(), library ? "" : qPrintable(library.error().text()));
    QVERIFY(isMapped());
    QCOMPARE(library.value()->path(), kPlugin);
    QCOMPARE(library.value()->about()->Name(), QStringLiteral("XPanoHead"));
    QVERIFY(library.value()->unload());
    QVERIFY(!isMapped());
    QVERIFY(library.value()->plugins().isEmpty());
    QVERIFY(!library.value()->about());
}

void PluginLibraryTest::folderIsSearched()
{
    const auto library = PluginLibrary::open(QFileInfo(kPlugin).path());
    QVERIFY(library.ok());
    QCOMPARE(library.value()->path(), kPlugin);
}

void PluginLibraryTest::allHeadsAreOffered()
{
    const auto library = PluginLibrary::open(kPlugin);
    QVERIFY(library.ok());
    QStringList heads;
    for (const ImportPlugin &plugin : library.value()->plugins()) {
        heads.append(plugin.head());
        QVERIFY(plugin.object);
        QVERIFY(plugin.import);
        QVERIFY(plugin.page());
        QVERIFY(plugin.page()->inherits("QWizardPage"));
        QVERIFY(!plugin.about->UID().isEmpty());
    }
    QStringList known;
    for (const HostHead *head : allHostHeads()) {
        known.append(QString::fromLatin1(head->name).toLower());
    }
    QCOMPARE(heads, known);
}

void PluginLibraryTest::headIsFoundByItsName()
{
    const auto library = PluginLibrary::open(kPlugin);
    QVERIFY(library.ok());
    const ImportPlugin *const plugin = library.value()->find(QStringLiteral("PapyWizard"));
    QVERIFY(plugin);
    QCOMPARE(plugin->about->UID(), QStringLiteral("7A21C94E-5B20-2020-2020-483181480AB7"));
    QVERIFY(plugin->page()->inherits("UIWPMerlin"));
    QVERIFY(!library.value()->find(QStringLiteral("gigpan")));
    QVERIFY(!library.value()->find({}));
}

void PluginLibraryTest::pageLivesInAWizardAndGoesWithIt()
{
    auto library = PluginLibrary::open(kPlugin);
    QVERIFY(library.ok());
    const ImportPlugin *const plugin = library.value()->find(QStringLiteral("papywizard"));
    {
        QWizard wizard;
        wizard.addPage(plugin->page());
        wizard.show();
    }
    QVERIFY(!plugin->page());
    QVERIFY(library.value()->unload());
}

void PluginLibraryTest::deletedPlugInIsSkipped()
{
    auto library = PluginLibrary::open(kPlugin);
    QVERIFY(library.ok());
    delete library.value()->plugins()[1].object.data();
    QVERIFY(!library.value()->plugins()[1].page());
    QVERIFY(!library.value()->find(QStringLiteral("gigapan")));
    QVERIFY(library.value()->find(QStringLiteral("papywizard")));
    QVERIFY(library.value()->unload());
}

void PluginLibraryTest::translationComesWithTheLibraryAndGoesWithIt()
{
    const auto translated = [] { return QCoreApplication::translate("UIWPMerlin", "Warning"); };
    QCOMPARE(translated(), QStringLiteral("Warning"));
    // There is a French translation, and none for France: the territory is dropped.
    PanoHostApplication::instance()->setLocale(QLocale(QStringLiteral("fr_FR")));
    auto library = PluginLibrary::open(kPlugin);
    QVERIFY(library.ok());
    QVERIFY(!QFile::exists(QStringLiteral(":/Translation/XPanoHead_fr_FR.qm")));
    QVERIFY(QFile::exists(QStringLiteral(":/Translation/XPanoHead_fr.qm")));
    QCOMPARE(translated(), QStringLiteral("Avertissement"));
    QVERIFY(library.value()->unload());
    QCOMPARE(translated(), QStringLiteral("Warning"));
}

void PluginLibraryTest::libraryLoadsAgainAfterUnloading()
{
    const QString photo = TestPhotos::writeOrdinary(m_folder.filePath(QStringLiteral("a.jpg")));
    for (int i = 0; i < 3; ++i) {
        const auto library = PluginLibrary::open(kPlugin);
        QVERIFY(library.ok());
        QCOMPARE(library.value()->plugins().size(), static_cast<int>(allHostHeads().size()));
        QVERIFY(PanoHostApplication::instance()->CreateImageDef(photo));
    }
}

void PluginLibraryTest::environmentIsSearchedInOrder()
{
    const QString empty = m_folder.filePath(QStringLiteral("empty"));
    QVERIFY(QDir().mkpath(empty));
    qputenv("PANOHOST_PLUGIN_PATH", QFile::encodeName(empty + QStringLiteral("::") + kPlugin));
    const QStringList places = PluginLibrary::searchPath({});
    QCOMPARE(places[0], empty);
    QCOMPARE(places[1], kPlugin);
    QCOMPARE(places[2], QCoreApplication::applicationDirPath());
    const auto library = PluginLibrary::open({});
    QVERIFY(library.ok());
    QCOMPARE(library.value()->path(), kPlugin);
}

void PluginLibraryTest::askedForPlaceIsTheOnlyOne()
{
    qputenv("PANOHOST_PLUGIN_PATH", QFile::encodeName(kPlugin));
    QCOMPARE(PluginLibrary::searchPath(QStringLiteral("/some/where")),
             QStringList(QStringLiteral("/some/where")));
    QVERIFY(!PluginLibrary::open(m_folder.path()).ok());
}

void PluginLibraryTest::buildTreeIsSearchedFromWithin()
{
    const auto library = PluginLibrary::open({});
    QVERIFY2(library.ok(), library ? "" : qPrintable(library.error().text()));
    QCOMPARE(QFileInfo(library.value()->path()).canonicalFilePath(),
             QFileInfo(kPlugin).canonicalFilePath());
}

void PluginLibraryTest::whatIsNoLibraryIsRefused_data()
{
    QTest::addColumn<QString>("place");
    QTest::addColumn<QString>("text");
    const QString words
        = TestPhotos::writeFile(m_folder.filePath(QStringLiteral("words.so")), "words");
    const QString empty = m_folder.filePath(QStringLiteral("nothing"));
    QVERIFY(QDir().mkpath(empty));
    const QString tryThis
        = QStringLiteral("; set --plugin or PANOHOST_PLUGIN_PATH to libXPanoHead.so");
    QTest::newRow("missing") << "/no/where.so"
                             << QStringLiteral("/no/where.so: no such file or folder") + tryThis;
    QTest::newRow("folder without one")
        << empty
        << QStringLiteral("import plug-ins: no plug-in library in %1").arg(empty) + tryThis;
    QTest::newRow("words") << words
                           << words + QStringLiteral(": is not a Qt plug-in library") + tryThis;
    QTest::newRow("another kind of plug-in") << foreignPlugin()
                                             << foreignPlugin()
            + QStringLiteral(": its interface is 'org.qt-project.Qt.QImageIOHandlerFactoryInterface"
                             "', 'com.orvane.panohead' is needed")
            + tryThis;
    const QString impostor = QStringLiteral(PANOHOST_TEST_IMPOSTOR);
    QTest::newRow("impostor") << impostor
                              << impostor + QStringLiteral(": offers no list of plug-ins")
            + tryThis;
}

void PluginLibraryTest::whatIsNoLibraryIsRefused()
{
    QFETCH(QString, place);
    QFETCH(QString, text);
    const auto library = PluginLibrary::open(place);
    QVERIFY(!library.ok());
    QCOMPARE(library.error().text(), text);
    QCOMPARE(library.error().code, ExitCode::NoPlugin);
}

TEST_CLASS(PluginLibraryTest, PanoHostApplication)
#include "tst_pluginlibrary.moc"
