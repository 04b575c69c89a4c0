// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#include "dialogclicker.h"
#include "foreignhost.h"
#include "hosthead.h"
#include "longruns.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDir>
#include <QDoubleSpinBox>
#include <QFileInfo>
#include <QLibrary>
#include <QLineEdit>
#include <QPixmap>
#include <QProcess>
#include <QPushButton>
#include <QRadioButton>
#include <QRandomGenerator>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

#include <algorithm>
#include <memory>
#include <utility>

namespace
{

const QString kLibraryUid = QStringLiteral("7A21C94E-5B20-2020-2020-2D91D0DDB961");
const QString kGigapanUid = QStringLiteral("7A21C94E-5B20-2020-2020-6028D47773DF");

QStringList objectNames(const QList<QPointer<QObject>> &plugins)
{
    QStringList names;
    for (const QPointer<QObject> &plugin : plugins) {
        names.append(plugin.isNull() ? QString() : plugin->objectName());
    }
    return names;
}

/** The plug-ins of all heads, or of those that are made whatever kinds the host asks for. */
QStringList importNames(bool everyKindOnly = false)
{
    QStringList names;
    for (const HostHead *head : allHostHeads()) {
        if (head->hasEveryKind || !everyKindOnly) {
            names.append(QString::fromLatin1(head->plugin));
        }
    }
    return names;
}

int headCount()
{
    return static_cast<int>(allHostHeads().size());
}

QString runTool(const QString &program, const QStringList &arguments)
{
    QProcess process;
    process.start(program, arguments);
    if (!process.waitForFinished() || process.exitCode() != 0) {
        qFatal("%s did not run", qPrintable(program));
    }
    return QString::fromUtf8(process.readAllStandardOutput());
}

} // namespace

class TestPlugin : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void metadataHasTheKeysThatHostsRead();
    void theMetadataBlockIsQtsOwn();
    void onlyTheTwoEntryPointsAreExported();
    void theRuntimesOfTheHostAreNeeded();

    void theRootObjectAnswersItsInterfaces();
    void theRootObjectIsOneUntilItIsDeleted();
    void theTranslationOfTheHostsLocaleIsLoaded_data();
    void theTranslationOfTheHostsLocaleIsLoaded();
    void aboutDataOfTheLibrary();

    void theLibraryOffersTheseHeads();
    void kindsChooseThePlugins_data();
    void kindsChooseThePlugins();
    void pluginsAccumulate();
    void aDeletedPluginLeavesANullEntry();
    void theRootObjectDeletesItsPlugins();
    void anyOrderOfDeletionIsTolerated();

    void aboutDataOfThePlugins_data();
    void aboutDataOfThePlugins();
    void everyPluginHasOnePage_data();
    void everyPluginHasOnePage();
    void aDeletedPageIsTolerated();
    void aPageDeletedWhileItReadsStopsItsThread();
    void stateGoesThroughTheHostsSettings_data();
    void stateGoesThroughTheHostsSettings();
    void storedStateOfAnyKindIsAccepted();

    void aDescriptionArrivesWithEveryFieldInItsPlace();
    void aFisheyeDescriptionHasNoLinks();
    void eachOptionReachesItsOwnField_data();
    void eachOptionReachesItsOwnField();
    void fileDialogsFollowTheHostsChoice();

    void theModuleUnloadsForGood();
    void textsOfTheModuleOutliveIt();
    void theModuleUnloadsWhilePhotosAreRead();
    void theModuleLoadsAndUnloadsAgainAndAgain();

    void aHostWithoutUiSettingsIsServedToo();
    void aPageWhoseStateTheHostCannotReadIsNotLeftBehind();
    void aPageWhoseStateTheHostCannotWriteIsNotLeftBehind();

private:
    /** A Papywizard page with a record of two bracketed positions and its four photos read. */
    void prepare(Contract::Module &module);
    /** Chooses the photos; the thread waits in the host for the first, the others will be slow. */
    void startReadingSlowly();
    template <typename Widget> Widget *widget(const char *name) const
    {
        auto *found = m_page->findChild<Widget *>(QString::fromLatin1(name));
        if (found == nullptr) {
            qFatal("The page has no %s", name);
        }
        return found;
    }

    std::unique_ptr<QTemporaryDir> m_dir;
    QStringList m_photos;
    QWizardPage *m_page = nullptr;
};

void TestPlugin::init()
{
    QVERIFY(!Contract::isMapped()); // every test loads the module afresh
    host().forget();
    m_page = nullptr;
}

void TestPlugin::metadataHasTheKeysThatHostsRead()
{
    Contract::Module module;
    const QJsonObject data = module.loader().metaData();
    QCOMPARE(data.value(QStringLiteral("IID")).toString(), QStringLiteral("com.orvane.panohead"));
    QCOMPARE(data.value(QStringLiteral("className")).toString(), QStringLiteral("Library"));
    // Qt writes major and minor version into the block; the loader fills the rest with zero.
    QCOMPARE(data.value(QStringLiteral("version")).toInt(), QT_VERSION & 0xffff00);
    QCOMPARE(data.value(QStringLiteral("debug")), QJsonValue(false));
    QVERIFY(data.value(QStringLiteral("MetaData")).toObject().isEmpty());
    QStringList keys = data.keys();
    keys.removeAll(QStringLiteral("archreq")); // added by the loader
    keys.removeAll(QStringLiteral("MetaData")); // left out by the loader when empty
    QCOMPARE(keys,
             QStringList({ QStringLiteral("IID"), QStringLiteral("className"),
                           QStringLiteral("debug"), QStringLiteral("version") }));
    QVERIFY2(!Contract::isMapped(), "metadata is read without loading the library");
}

void TestPlugin::theMetadataBlockIsQtsOwn()
{
    QLibrary library(Contract::libraryPath());
    library.setLoadHints({});
    const auto query
        = reinterpret_cast<const char *(*)()>(library.resolve("qt_plugin_query_metadata"));
    QVERIFY2(query, qPrintable(library.errorString()));
    QCOMPARE(QByteArray(query(), 12), QByteArray("QTMETADATA !"));
    QVERIFY(library.unload());
}

void TestPlugin::onlyTheTwoEntryPointsAreExported()
{
    const QString symbols
        = runTool(QStringLiteral("nm"),
                  { QStringLiteral("--dynamic"), QStringLiteral("--defined-only"),
                    QStringLiteral("--format=just-symbols"), Contract::libraryPath() });
    QStringList names = symbols.split(QLatin1Char('\n'), Qt::SkipEmptyParts);
    names.sort();
    QCOMPARE(names,
             QStringList({ QStringLiteral("qt_plugin_instance"),
                           QStringLiteral("qt_plugin_query_metadata") }));
}

void TestPlugin::theRuntimesOfTheHostAreNeeded()
{
    const QString header = runTool(QStringLiteral("readelf"),
                                   { QStringLiteral("--dynamic"), Contract::libraryPath() });
    const QStringList runtimes
        = qEnvironmentVariable("TEST_RUNTIMES").split(QLatin1Char(','), Qt::SkipEmptyParts);
    for (const QString &runtime :
         { QStringLiteral("OpenCL"), QStringLiteral("gomp"), QStringLiteral("tbb") }) {
        const bool needed = header.contains(QStringLiteral("[lib%1.so").arg(runtime));
        QVERIFY2(needed == runtimes.contains(runtime), qPrintable(runtime));
    }
    for (const char *needless : { "libQt5Quick", "libQt5Qml", "libQt5Test", "libQt5Network" }) {
        QVERIFY2(!header.contains(QLatin1String(needless)), needless);
    }
}

void TestPlugin::theRootObjectAnswersItsInterfaces()
{
    Contract::Module module;
    QObject *root = module.root();
    QVERIFY2(root, qPrintable(module.loader().errorString()));
    QCOMPARE(root->metaObject()->className(), "Library");
    QCOMPARE(root->objectName(), QStringLiteral("XPanoHead"));
    QVERIFY(root->parent() == nullptr);
    QCOMPARE(root->qt_metacast("Library"), static_cast<void *>(root));
    QCOMPARE(root->qt_metacast("QObject"), static_cast<void *>(root));
    void *library = root->qt_metacast("XIPluginLibrary");
    void *about = root->qt_metacast("XIAbout");
    QVERIFY(library != nullptr);
    QVERIFY(about != nullptr);
    // The interfaces are bases of their own, behind the object and in this order.
    QVERIFY(static_cast<void *>(root) < library);
    QVERIFY(library < about);
    QVERIFY(root->qt_metacast("XIPluginImport") == nullptr);
    QVERIFY(root->qt_metacast("XIApplication") == nullptr);
    const QMetaObject *meta = root->metaObject();
    QCOMPARE(meta->methodCount(), meta->methodOffset());
    QCOMPARE(meta->propertyCount(), meta->propertyOffset());
}

void TestPlugin::theRootObjectIsOneUntilItIsDeleted()
{
    Contract::Module module;
    QObject *root = module.root();
    QCOMPARE(module.root(), root);
    QLibrary library(Contract::libraryPath());
    library.setLoadHints({});
    const auto instance = reinterpret_cast<QObject *(*)()>(library.resolve("qt_plugin_instance"));
    QVERIFY2(instance, qPrintable(library.errorString()));
    QCOMPARE(instance(), root);
    const QPointer<QObject> old(root);
    delete root;
    QPointer<QObject> fresh(instance());
    QVERIFY(old.isNull());
    QVERIFY(!fresh.isNull());
    QCOMPARE(fresh->objectName(), QStringLiteral("XPanoHead"));
    QCOMPARE(instance(), fresh.data());
    delete fresh;
    library.unload();
}

void TestPlugin::theTranslationOfTheHostsLocaleIsLoaded_data()
{
    QTest::addColumn<QLocale>("locale");
    QTest::addColumn<QString>("fileName");
    QTest::newRow("French") << QLocale(QLocale::French, QLocale::France)
                            << QStringLiteral("XPanoHead_fr_FR.qm");
    QTest::newRow("Chinese, Taiwan")
        << QLocale(QStringLiteral("zh_TW")) << QStringLiteral("XPanoHead_zh_TW.qm");
    QTest::newRow("Chinese, China")
        << QLocale(QStringLiteral("zh_CN")) << QStringLiteral("XPanoHead_zh_CN.qm");
    QTest::newRow("the C locale") << QLocale::c() << QStringLiteral("XPanoHead_C.qm");
}

void TestPlugin::theTranslationOfTheHostsLocaleIsLoaded()
{
    QFETCH(const QLocale, locale);
    QFETCH(const QString, fileName);
    host().userLocale = locale;
    Contract::Module module;
    QVERIFY(module.root() != nullptr);
    QCOMPARE(host().calls,
             QStringList({ QStringLiteral("locale"), QStringLiteral("loadTranslation ") + fileName,
                           QStringLiteral("uiInstances") }));
}

void TestPlugin::aboutDataOfTheLibrary()
{
    Contract::Module module;
    const Contract::About *about = Contract::asAbout(module.root());
    QCOMPARE(about->name(), QStringLiteral("XPanoHead"));
    QCOMPARE(about->author(), QStringLiteral("Orvane"));
    QCOMPARE(about->company(), QStringLiteral("Orvane"));
    QCOMPARE(about->comment(), QStringLiteral("Comment"));
    QCOMPARE(about->version(), QStringLiteral("3.0.0.400"));
    QCOMPARE(about->uid(), kLibraryUid);
    // The library's own folder holds no picture.
    const QIcon icon = about->icon();
    QVERIFY(icon.availableSizes().isEmpty());
    QVERIFY(icon.pixmap(32, 32).isNull());
    QVERIFY(!QFile::exists(QStringLiteral(":/%1/Resources/XGigapan.png").arg(kLibraryUid)));
}

/** What this library ships; a further head adds its line. */
void TestPlugin::theLibraryOffersTheseHeads()
{
    const QStringList shipped{
        QStringLiteral("XClaussImport"),
        QStringLiteral("XGigapanImport"),
        QStringLiteral("XMerlinImport"),
        QStringLiteral("XVRDrive2Import"),
    };
    Contract::Module module;
    QCOMPARE(objectNames(module.library()->plugins(2)), shipped);
    QCOMPARE(importNames(), shipped);
}

void TestPlugin::kindsChooseThePlugins_data()
{
    QTest::addColumn<int>("kinds");
    QTest::addColumn<QStringList>("names");
    const QStringList all = importNames();
    const QStringList some = importNames(true);
    QTest::newRow("none") << 0 << QStringList();
    QTest::newRow("1") << 1 << some;
    QTest::newRow("2") << 2 << all;
    QTest::newRow("1 and 2") << 3 << all;
    QTest::newRow("a flag of the host's own") << 4 << some;
    QTest::newRow("that flag and 2") << 6 << all;
    QTest::newRow("every flag") << -1 << all;
    QTest::newRow("the sign bit alone") << std::numeric_limits<int>::min() << some;
}

void TestPlugin::kindsChooseThePlugins()
{
    QFETCH(const int, kinds);
    QFETCH(const QStringList, names);
    Contract::Module module;
    const QList<QPointer<QObject>> plugins = module.library()->plugins(kinds);
    QCOMPARE(objectNames(plugins), names);
    for (const QPointer<QObject> &plugin : plugins) {
        QVERIFY(plugin->parent() == nullptr);
        QCOMPARE(QString::fromLatin1(plugin->metaObject()->className()), plugin->objectName());
    }
}

void TestPlugin::pluginsAccumulate()
{
    Contract::Module module;
    const QList<QPointer<QObject>> first = module.library()->plugins(1);
    const QList<QPointer<QObject>> second = module.library()->plugins(1);
    const QStringList some = importNames(true);
    const int count = some.size();
    QCOMPARE(objectNames(first), some);
    QCOMPARE(objectNames(second), some + some);
    QCOMPARE(second.mid(0, count), first);
    for (int i = 0; i < count; ++i) {
        QVERIFY(second.at(count + i) != first.at(i));
    }
    QCOMPARE(module.library()->plugins(0), second);
    QCOMPARE(objectNames(module.library()->plugins(2)), some + some + importNames());
}

void TestPlugin::aDeletedPluginLeavesANullEntry()
{
    Contract::Module module;
    delete module.library()->plugins(2).at(1).data();
    const QList<QPointer<QObject>> plugins = module.library()->plugins(0);
    QCOMPARE(plugins.size(), headCount());
    QVERIFY(plugins.at(1).isNull());
    QVERIFY(!plugins.at(0).isNull());
    QVERIFY(!plugins.at(2).isNull());
    host().written.clear();
    delete module.root();
    QCOMPARE(host().written.size(), headCount() - 1); // those that were left
}

void TestPlugin::theRootObjectDeletesItsPlugins()
{
    Contract::Module module;
    const QList<QPointer<QObject>> plugins = module.library()->plugins(2);
    QList<QPointer<QWizardPage>> pages;
    for (const QPointer<QObject> &plugin : plugins) {
        pages.append(Contract::asImport(plugin)->pages().first());
    }
    delete module.root();
    QCOMPARE(plugins.size(), headCount());
    for (const QPointer<QObject> &plugin : plugins) {
        QVERIFY(plugin.isNull());
    }
    for (const QPointer<QWizardPage> &page : pages) {
        QVERIFY(page.isNull());
    }
}

void TestPlugin::anyOrderOfDeletionIsTolerated()
{
    QRandomGenerator random(20260502);
    Contract::Module module;
    const int orders = rounds(100, 1'000);
    for (int round = 0; round < orders; ++round) {
        const QList<QPointer<QObject>> plugins = module.library()->plugins(2);
        QList<QPointer<QObject>> objects = plugins;
        for (const QPointer<QObject> &plugin : plugins) {
            objects.append(Contract::asImport(plugin)->pages().first());
        }
        objects.append(module.root());
        std::shuffle(objects.begin(), objects.end(), random);
        for (const QPointer<QObject> &object : qAsConst(objects)) {
            delete object.data();
        }
        QCOMPARE(host().written.size(), headCount()); // once for each plug-in, whoever deleted it
        host().written.clear();
        QVERIFY(module.root() != nullptr);
    }
}

void TestPlugin::aboutDataOfThePlugins_data()
{
    QTest::addColumn<QString>("objectName");
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("comment");
    QTest::addColumn<QString>("uid");
    QTest::addColumn<QString>("picture");
    for (const HostHead *head : allHostHeads()) {
        QTest::newRow(head->title)
            << QString::fromLatin1(head->plugin) << QString::fromLatin1(head->name)
            << QString::fromLatin1(head->comment) << QString::fromLatin1(head->uid)
            << QString::fromLatin1(head->icon);
    }
}

void TestPlugin::aboutDataOfThePlugins()
{
    QFETCH(const QString, objectName);
    QFETCH(const QString, uid);
    QFETCH(const QString, picture);
    Contract::Module module;
    QObject *plugin = pluginCalled(module.library(), objectName);
    QVERIFY(plugin != nullptr);

    const QByteArray className = objectName.toLatin1();
    QCOMPARE(plugin->qt_metacast(className.constData()), static_cast<void *>(plugin));
    void *import = plugin->qt_metacast("XIPluginImport");
    QVERIFY(static_cast<void *>(plugin) < import);
    QVERIFY(import < plugin->qt_metacast("XIAbout"));
    QVERIFY(plugin->qt_metacast("XIPluginLibrary") == nullptr);

    const Contract::About *about = Contract::asAbout(plugin);
    QTEST(about->name(), "name");
    QTEST(about->comment(), "comment");
    QCOMPARE(about->author(), QStringLiteral("Orvane"));
    QCOMPARE(about->company(), QStringLiteral("Orvane"));
    QCOMPARE(about->version(), QStringLiteral("3.0.0.400"));
    QCOMPARE(about->uid(), uid);

    const QString path = QStringLiteral(":/%1/Resources/%2").arg(uid, picture);
    const QPixmap expected(path);
    QVERIFY2(!expected.isNull(), qPrintable(path));
    const QIcon icon = about->icon();
    QVERIFY(icon.availableSizes().contains(expected.size()));
    QCOMPARE(icon.pixmap(expected.size()).toImage(), expected.toImage());

    const QMetaObject *meta = plugin->metaObject();
    QCOMPARE(meta->methodCount(), meta->methodOffset());
    QCOMPARE(meta->propertyCount(), meta->propertyOffset());
}

void TestPlugin::everyPluginHasOnePage_data()
{
    QTest::addColumn<QString>("objectName");
    QTest::addColumn<QByteArray>("pageClass");
    for (const HostHead *head : allHostHeads()) {
        QTest::newRow(head->title) << QString::fromLatin1(head->plugin) << QByteArray(head->page);
    }
}

void TestPlugin::everyPluginHasOnePage()
{
    QFETCH(const QString, objectName);
    QFETCH(const QByteArray, pageClass);
    Contract::Module module;
    Contract::PluginImport *import = Contract::asImport(pluginCalled(module.library(), objectName));
    const QList<QWizardPage *> pages = import->pages();
    QCOMPARE(pages.size(), 1);
    QVERIFY(pages.first()->inherits(pageClass.constData()));
    QVERIFY(pages.first()->parent() == nullptr);
    QVERIFY(!pages.first()->title().isEmpty());
    QCOMPARE(import->pages(), pages); // the same page each time
}

void TestPlugin::aDeletedPageIsTolerated()
{
    Contract::Module module;
    QObject *plugin = pluginCalled(module.library(), QStringLiteral("XMerlinImport"));
    Contract::PluginImport *import = Contract::asImport(plugin);
    delete import->pages().first();
    QCOMPARE(import->pages(), QList<QWizardPage *>{ nullptr });
    host().written.clear();
    delete plugin;
    QCOMPARE(host().written.size(), 1);
    QCOMPARE(host().written.first().key, QStringLiteral("XMerlinImport"));
    QCOMPARE(host().written.first().value, QVariant(QByteArray()));
}

void TestPlugin::startReadingSlowly()
{
    host().slowness = 2000;
    host().holdsPhotos = true;
    DialogClicker clicker;
    clicker.chooseFiles(m_photos);
    widget<QPushButton>("m_pbSelectImages")->click();
    host().photoAsked.pass();
    host().holdsPhotos = false;
}

void TestPlugin::aPageDeletedWhileItReadsStopsItsThread()
{
    Contract::Module module;
    for (int round = 0; round < 20; ++round) {
        prepare(module);
        startReadingSlowly();
        host().photoGiven.open();
        delete m_page;
        // Nobody reads any more: the host gives out no further photo.
        const std::size_t photos = host().photos().size();
        host().slowness = 0;
        QCoreApplication::processEvents();
        QCOMPARE(host().photos().size(), photos);
    }
    delete module.root();
}

void TestPlugin::stateGoesThroughTheHostsSettings_data()
{
    aboutDataOfThePlugins_data();
}

void TestPlugin::stateGoesThroughTheHostsSettings()
{
    QFETCH(const QString, objectName);
    QFETCH(const QString, uid);
    const auto ofThisPlugin = [&](const QList<Setting> &settings) {
        QList<Setting> answer;
        std::copy_if(settings.cbegin(), settings.cend(), std::back_inserter(answer),
                     [&](const Setting &setting) {
                         return setting.group == uid && setting.key == objectName;
                     });
        return answer;
    };
    Contract::Module module;
    QObject *plugin = pluginCalled(module.library(), objectName);
    QCOMPARE(host().read.size(), headCount());
    QCOMPARE(ofThisPlugin(host().read).size(), 1);
    QVERIFY(!ofThisPlugin(host().read).first().value.isValid()); // the default it offered
    QVERIFY(host().written.isEmpty());

    delete plugin;
    QCOMPARE(host().written.size(), 1);
    QCOMPARE(ofThisPlugin(host().written).size(), 1);
    const QVariant state = ofThisPlugin(host().written).first().value;
    QCOMPARE(state.type(), QVariant::ByteArray);
    QCOMPARE(state.toByteArray(), QByteArray());
}

void TestPlugin::storedStateOfAnyKindIsAccepted()
{
    for (const QVariant &stored :
         { QVariant(QByteArray("\0\xff state", 8)), QVariant(42), QVariant(QStringLiteral("text")),
           QVariant(QByteArray(100000, 'x')) }) {
        host().stored = stored;
        Contract::Module module;
        QCOMPARE(module.library()->plugins(2).size(), headCount());
    }
}

void TestPlugin::prepare(Contract::Module &module)
{
    m_dir = std::make_unique<QTemporaryDir>();
    const QString record = m_dir->filePath(QStringLiteral("shoot.xml"));
    QFile file(record);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write("<papywizard><header><camera><sensor coef=\"1.0\"/><bracketing nbPicts=\"2\"/>"
               "</camera><lens type=\"rectilinear\"><focal>35.0</focal></lens></header><shoot>"
               "<pict id=\"1\" bracket=\"1\"><position yaw=\"0.0\" pitch=\"10.0\"/></pict>"
               "<pict id=\"2\" bracket=\"2\"><position yaw=\"0.0\" pitch=\"10.0\"/></pict>"
               "<pict id=\"3\" bracket=\"1\"><position yaw=\"30.0\" pitch=\"10.0\"/></pict>"
               "<pict id=\"4\" bracket=\"2\"><position yaw=\"30.0\" pitch=\"10.0\"/></pict>"
               "</shoot></papywizard>");
    file.close();
    m_photos.clear();
    for (int i = 0; i < 4; ++i) {
        m_photos.append(m_dir->filePath(QStringLiteral("IMG_%1.jpg").arg(i)));
        QFile photo(m_photos.last());
        QVERIFY(photo.open(QIODevice::WriteOnly));
    }

    m_page = Contract::asImport(pluginCalled(module.library(), QStringLiteral("XMerlinImport")))
                 ->pages()
                 .first();
    widget<QLineEdit>("m_leConfigFile")->setText(record);
    QVERIFY(QMetaObject::invokeMethod(widget<QLineEdit>("m_leConfigFile"), "textEdited",
                                      Q_ARG(QString, record)));
    DialogClicker clicker;
    clicker.chooseFiles(m_photos);
    widget<QPushButton>("m_pbSelectImages")->click();
    QVERIFY(clicker.isSettled());
    QTRY_VERIFY(m_page->isComplete());
    // The last signal of the run has arrived too, so the photos' focal length is on the page.
    QTRY_COMPARE(widget<QDoubleSpinBox>("m_spFocal")->value(), 35.0);
}

void TestPlugin::aDescriptionArrivesWithEveryFieldInItsPlace()
{
    Contract::Module module;
    prepare(module);
    widget<QPushButton>("m_pbRot90")->click();
    QVERIFY(m_page->validatePage());
    QCOMPARE(host().descriptions.size(), 1);
    const Contract::Description got = host().descriptions.first();

    QCOMPARE(got.groups, QVector<QStringList>({ m_photos.mid(0, 2), m_photos.mid(2, 2) }));
    // Half a field of 35 mm, atan(43.2666 / 70) = 0.5537, reaches further than 0.65 times the
    // 0.5155 radians between the two positions; the second one lies to the right.
    QCOMPARE(got.links.size(), 1);
    QCOMPARE(got.links.first().kind, 2);
    QCOMPARE(got.links.first().positions, QVector<qint32>({ 0, 1 }));
    const auto radians
        = [](double degrees) { return static_cast<float>(degrees * 3.141592653589793 / 180.0); };
    QCOMPARE(got.yaw, QVector<float>({ 0.0F, 0.0F, radians(30.0), radians(30.0) }));
    QCOMPARE(got.pitch, QVector<float>(4, radians(10.0)));
    QCOMPARE(got.roll, QVector<float>(4, radians(90.0)));
    QCOMPARE(got.positionsKnown, true);
    QCOMPARE(got.focalLength, 35.0F);
    QCOMPARE(got.rollKnown, true);
    QCOMPARE(got.lens, 0);
    for (const qint32 value : got.reserved10) {
        QCOMPARE(value, 0);
    }
    QCOMPARE(got.reserved11, false);
    QCOMPARE(got.autoDetection, true);
    QCOMPARE(got.stackLinking, 0);
    QCOMPARE(got.levelLinking, 0);
    QCOMPARE(got.useRecordedLocation, true);
    QCOMPARE(got.skipOptimization, false);
    QCOMPARE(got.cleanWrongLinks, false);
    QCOMPARE(got.gridMode, 0);
    QCOMPARE(got.gridRows, 0);
    QCOMPARE(got.gridBracketCount, 1);
    QCOMPARE(got.gridWrap360, false);
    QCOMPARE(got.overlap, 80.0);
    QCOMPARE(got.reserved23, -1);
    QCOMPARE(got.renderMode, -1);
    QCOMPARE(got.reserved25, QString());
    QCOMPARE(got.reserved26, QString());
    QCOMPARE(got.reserved27, false);

    QCOMPARE(host().photosOnTheGuiThread.load(), 0);
    QCOMPARE(host().setPaths, QStringList{ m_photos.first() });
    for (const Photo *photo : host().photos()) {
        QVERIFY(photo->thumbnails > 0);
        QVERIFY(photo->shotTimes > 0);
    }
}

void TestPlugin::aFisheyeDescriptionHasNoLinks()
{
    host().lens = 1;
    Contract::Module module;
    prepare(module);
    QTRY_COMPARE(widget<QComboBox>("m_cbLensType")->currentIndex(), 1);
    QVERIFY(m_page->validatePage());
    QCOMPARE(host().descriptions.first().lens, 1);
    QVERIFY(host().descriptions.first().links.isEmpty());
    QCOMPARE(host().descriptions.first().groups.size(), 2);
}

using Options = QVector<int>;

void TestPlugin::eachOptionReachesItsOwnField_data()
{
    QTest::addColumn<QByteArray>("button");
    // auto detection, stack, level, recorded location, skip optimisation, clean links
    QTest::addColumn<Options>("options");
    QTest::newRow("as it opens") << QByteArray() << Options{ 1, 0, 0, 1, 0, 0 };
    QTest::newRow("auto detection") << QByteArray("m_autoStart") << Options{ 0, 0, 0, 1, 0, 0 };
    QTest::newRow("detect within stacks")
        << QByteArray("m_rbStackLinking1") << Options{ 1, 1, 0, 1, 0, 0 };
    QTest::newRow("all levels, which detects within stacks too")
        << QByteArray("m_rbLevelLinking1") << Options{ 1, 1, 1, 1, 0, 0 };
    QTest::newRow("recorded location") << QByteArray("m_GridOptim") << Options{ 1, 0, 0, 0, 0, 0 };
    QTest::newRow("skip optimisation") << QByteArray("m_noOptim") << Options{ 1, 0, 0, 1, 1, 0 };
    QTest::newRow("clean wrong links") << QByteArray("m_cleanLink") << Options{ 1, 0, 0, 1, 0, 1 };
}

void TestPlugin::eachOptionReachesItsOwnField()
{
    QFETCH(const QByteArray, button);
    QFETCH(const Options, options);
    Contract::Module module;
    prepare(module);
    if (!button.isEmpty()) {
        widget<QAbstractButton>(button.constData())->click();
    }
    QVERIFY(m_page->validatePage());
    const Contract::Description got = host().descriptions.first();
    QCOMPARE(Options({ got.autoDetection ? 1 : 0, got.stackLinking, got.levelLinking,
                       got.useRecordedLocation ? 1 : 0, got.skipOptimization ? 1 : 0,
                       got.cleanWrongLinks ? 1 : 0 }),
             options);
}

void TestPlugin::fileDialogsFollowTheHostsChoice()
{
    for (const bool system : { false, true }) {
        host().uiSettings.systemDialogs = system;
        Contract::Module module;
        QWizardPage *page
            = Contract::asImport(pluginCalled(module.library(), QStringLiteral("XMerlinImport")))
                  ->pages()
                  .first();
        DialogClicker clicker;
        clicker.cancelFiles();
        page->findChild<QPushButton *>(QStringLiteral("m_pbSelectImages"))->click();
        QCOMPARE(clicker.fileDialogs().size(), 1);
        QCOMPARE(clicker.fileDialogs().first().options.testFlag(QFileDialog::DontUseNativeDialog),
                 !system);
    }
    host().uiSettings.systemDialogs = false;
}

void TestPlugin::theModuleUnloadsForGood()
{
    {
        Contract::Module module;
        prepare(module);
        QVERIFY(m_page->validatePage());
        QVERIFY(Contract::isMapped());
        QVERIFY(QFile::exists(QStringLiteral(":/%1/Resources/XGigapan.png").arg(kGigapanUid)));
        QVERIFY2(module.loader().unload(), qPrintable(module.loader().errorString()));
        QVERIFY(!Contract::isMapped());
    }
    // What was delivered belongs to the host, and nothing else is left.
    QCOMPARE(host().descriptions.first().groups.size(), 2);
    QVERIFY(!QFile::exists(QStringLiteral(":/%1/Resources/XGigapan.png").arg(kGigapanUid)));
    QVERIFY(!QFile::exists(QStringLiteral(":/UI/help_16.png")));
    QCoreApplication::sendPostedEvents();
    QCoreApplication::processEvents();
}

void TestPlugin::textsOfTheModuleOutliveIt()
{
    QStringList names;
    QStringList texts;
    {
        Contract::Module module;
        QList<QObject *> objects{ module.root() };
        for (const QPointer<QObject> &plugin : module.library()->plugins(2)) {
            objects.append(plugin);
        }
        for (const QObject *object : qAsConst(objects)) {
            names.append(object->objectName());
        }
        for (QObject *object : qAsConst(objects)) {
            const Contract::About *about = Contract::asAbout(object);
            texts += { about->name(),    about->author(),  about->company(),
                       about->comment(), about->version(), about->uid() };
        }
    }
    QVERIFY(!Contract::isMapped());
    QCOMPARE(names, QStringList(QStringLiteral("XPanoHead")) + importNames());
    const int objects = headCount() + 1;
    QCOMPARE(texts.size(), objects * 6);
    QCOMPARE(texts.count(QStringLiteral("3.0.0.400")), objects);
    QCOMPARE(texts.count(QStringLiteral("Orvane")), 2 * objects);
    QVERIFY(texts.contains(kLibraryUid));
}

void TestPlugin::theModuleUnloadsWhilePhotosAreRead()
{
    for (int round = 0; round < 20; ++round) {
        {
            Contract::Module module;
            prepare(module);
            startReadingSlowly();
            const bool complete = m_page->isComplete();
            host().photoGiven.open();
            QVERIFY(!complete);
        }
        QVERIFY(!Contract::isMapped());
        host().slowness = 0;
        QCoreApplication::processEvents();
    }
}

void TestPlugin::theModuleLoadsAndUnloadsAgainAndAgain()
{
    const int loads = rounds(20, 200);
    for (int round = 0; round < loads; ++round) {
        {
            Contract::Module module;
            QCOMPARE(module.library()->plugins(2).size(), headCount());
        }
        QVERIFY(!Contract::isMapped());
    }
    QCOMPARE(host().written.size(), loads * headCount());
}

void TestPlugin::aHostWithoutUiSettingsIsServedToo()
{
    host().offeredUi = nullptr;
    {
        Contract::Module module;
        QWizardPage *page
            = Contract::asImport(pluginCalled(module.library(), QStringLiteral("XMerlinImport")))
                  ->pages()
                  .first();
        DialogClicker clicker;
        clicker.cancelFiles();
        page->findChild<QPushButton *>(QStringLiteral("m_pbSelectImages"))->click();
        QVERIFY(clicker.isSettled());
        const QFileDialog::Options options = clicker.fileDialogs().first().options;
        QVERIFY(!options.testFlag(QFileDialog::DontUseNativeDialog));
        QCOMPARE(QDir::searchPaths(QStringLiteral("UI")), QStringList{ QStringLiteral(":/UI") });
    }
    // The settings that it made go with it: leak checkers watch.
    QVERIFY(!Contract::isMapped());
    host().offeredUi = &host().ui;
}

void TestPlugin::aPageWhoseStateTheHostCannotReadIsNotLeftBehind()
{
    Contract::Module module;
    Contract::PluginLibrary *library = module.library();
    const int widgets = QApplication::allWidgets().size();
    host().readsSettings = false;
    QVERIFY_EXCEPTION_THROWN(library->plugins(2), std::runtime_error);
    QCOMPARE(QApplication::allWidgets().size(), widgets);
    host().readsSettings = true;
    QCOMPARE(library->plugins(2).size(), headCount());
}

void TestPlugin::aPageWhoseStateTheHostCannotWriteIsNotLeftBehind()
{
    {
        Contract::Module module;
        Contract::PluginLibrary *library = module.library();
        const int widgets = QApplication::allWidgets().size();
        host().writesSettings = false;
        QList<QPointer<QObject>> plugins = library->plugins(2);
        delete plugins.takeFirst().data();
        delete Contract::asImport(plugins.last())->pages().first(); // its state is gone before
        delete plugins.takeLast().data();
        delete module.root(); // and with it the others
        for (const QPointer<QObject> &plugin : std::as_const(plugins)) {
            QVERIFY(plugin.isNull());
        }
        QCOMPARE(QApplication::allWidgets().size(), widgets);
        QVERIFY(host().written.isEmpty());
    }
    QVERIFY(!Contract::isMapped());
}

TEST_CLASS(TestPlugin, Host)
#include "tst_plugin.moc"
