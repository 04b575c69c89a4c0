// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#include "hostlink/xipluginimport.h"
#include "hostlink/xipluginlibrary.h"
#include "tests/support/fakeapplication.h"
#include "tests/support/pagedriver.h"
#include "tests/support/shootfolder.h"

#include <QFileInfo>
#include <QLineEdit>
#include <QPluginLoader>
#include <QSlider>
#include <QtTest>

#include <memory>

namespace
{

constexpr int kImportsPerPage = 25;
constexpr int kPhotos = 4;

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

} // namespace

/**
 * Loads the built module, makes a hundred imports on its four pages and unloads it: the session
 * that leak checkers watch.
 */
class TestManyImports : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aHundredImportsLeaveNothingBehind();

private:
    void importOnPage(QWizardPage *page, int round) const;

    ShootFolder m_folder;
    QStringList m_photos;
};

void TestManyImports::importOnPage(QWizardPage *page, int round) const
{
    const PageDriver driver(page);
    driver.load("m_pbSelectImages", m_photos);
    if (page->findChild<QLineEdit *>(QStringLiteral("m_leConfigFile")) != nullptr) {
        const bool isScript = page->inherits("UIWPClauss");
        driver.load("m_pbSelectConfigFile",
                    { m_folder.path(isScript ? QStringLiteral("shoot.txt")
                                             : QStringLiteral("shoot.xml")) });
    }
    driver.find<QSlider>("m_hSlider")->setValue(1 + round * 4);
    QVERIFY(page->isComplete());
    QVERIFY(page->validatePage());
    driver.click("m_pbReset");
}

void TestManyImports::aHundredImportsLeaveNothingBehind()
{
    m_photos = m_folder.addPhotos(kPhotos);
    m_folder.write(QStringLiteral("shoot.xml"), RecordXml::row(kPhotos).bytes());
    m_folder.write(QStringLiteral("shoot.txt"),
                   QByteArray("op_h-angle=9\nop_shoot\n").repeated(kPhotos));

    QPluginLoader loader(modulePath());
    loader.setLoadHints({}); // unloading is to be real
    QVERIFY2(loader.load(), qPrintable(loader.errorString()));
    auto *library = interfaceOf<XIPluginLibrary>(loader.instance(), "XIPluginLibrary");
    const QList<QPointer<QObject>> plugins = library->Plugins(XIPluginLibrary::AllHeads);
    QCOMPARE(plugins.size(), 4);
    for (int round = 0; round < kImportsPerPage; ++round) {
        for (const QPointer<QObject> &plugin : plugins) {
            auto *import = interfaceOf<XIPluginImport>(plugin, "XIPluginImport");
            importOnPage(import->WizardPages().first(), round);
        }
    }
    QCOMPARE(fakeHost().descriptions.size(), 4 * kImportsPerPage);
    QVERIFY(isMapped());
    QVERIFY2(loader.unload(), qPrintable(loader.errorString()));
    QVERIFY(!isMapped());
}

TEST_CLASS(TestManyImports, FakeApplication)
#include "tst_manyimports.moc"
