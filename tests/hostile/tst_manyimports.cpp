// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#include "hostlink/xipluginimport.h"
#include "hostlink/xipluginlibrary.h"
#include "tests/support/fakeapplication.h"
#include "tests/support/hosthead.h"
#include "tests/support/pagedriver.h"
#include "tests/support/shootfolder.h"

#include <QFileInfo>
#include <QPluginLoader>
#include <QSlider>
#include <QtTest>

#include <memory>

namespace
{

constexpr int kPhotos = 4;

int importsPerPage()
{
    bool given = false;
    const int imports = qEnvironmentVariableIntValue("TEST_IMPORTS", &given);
    return given ? imports : 25;
}

QString modulePath()
{
    return qEnvironmentVariable("TEST_LIBRARY");
}

bool isMapped()
{
    QFile maps(QStringLiteral("/proc/self/maps"));
    return maps.open(QIODevice::ReadOnly)
        && maps.readAll().contains(QFileInfo(modulePath()).fileName().toUtf8());
}

template <typename Interface> Interface *interfaceOf(QObject *object, const char *name)
{
    return static_cast<Interface *>(object->qt_metacast(name));
}

QString recordNameOf(const HostHead &head)
{
    return QString::fromLatin1(head.page) + QLatin1String(head.recordName);
}

} // namespace

/**
 * Loads the built module, makes 25 imports (or TEST_IMPORTS of the environment) on each of its
 * pages and unloads it: the session that leak checkers watch.
 */
class TestManyImports : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void manyImportsLeaveNothingBehind();

private:
    void importOnPage(const HostHead &head, QWizardPage *page, int round) const;

    ShootFolder m_folder;
    QStringList m_photos;
};

void TestManyImports::importOnPage(const HostHead &head, QWizardPage *page, int round) const
{
    const PageDriver driver(page);
    driver.load("m_pbSelectImages", m_photos);
    if (head.recordName != nullptr) {
        driver.load("m_pbSelectConfigFile", { m_folder.path(recordNameOf(head)) });
    }
    driver.find<QSlider>("m_hSlider")->setValue(1 + round * 4);
    QVERIFY(page->isComplete());
    QVERIFY(page->validatePage());
    driver.click("m_pbReset");
}

void TestManyImports::manyImportsLeaveNothingBehind()
{
    m_photos = m_folder.addPhotos(kPhotos);
    QVector<ShotAngles> shots;
    for (int i = 0; i < kPhotos; ++i) {
        shots.append({ 30.0 * i, 0.0 });
    }
    for (const HostHead *head : allHostHeads()) {
        if (head->recordName != nullptr) {
            m_folder.write(recordNameOf(*head), head->record(shots));
        }
    }

    QPluginLoader loader(modulePath());
    loader.setLoadHints({}); // unloading is to be real
    QVERIFY2(loader.load(), qPrintable(loader.errorString()));
    auto *library = interfaceOf<XIPluginLibrary>(loader.instance(), "XIPluginLibrary");
    const QList<QPointer<QObject>> plugins = library->Plugins(XIPluginLibrary::AllHeads);
    const int heads = static_cast<int>(allHostHeads().size());
    QCOMPARE(plugins.size(), heads);
    for (int round = 0; round < importsPerPage(); ++round) {
        for (int i = 0; i < heads; ++i) {
            auto *import = interfaceOf<XIPluginImport>(plugins.at(i), "XIPluginImport");
            importOnPage(*allHostHeads()[i], import->WizardPages().first(), round);
        }
    }
    QCOMPARE(fakeHost().descriptions.size(), heads * importsPerPage());
    QVERIFY(isMapped());
    QVERIFY2(loader.unload(), qPrintable(loader.errorString()));
    QVERIFY(!isMapped());
}

TEST_CLASS(TestManyImports, FakeApplication)
#include "tst_manyimports.moc"
