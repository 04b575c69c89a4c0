// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#pragma once

#include <QFile>
#include <QFileInfo>
#include <QIcon>
#include <QList>
#include <QLocale>
#include <QObject>
#include <QPluginLoader>
#include <QPointer>
#include <QString>
#include <QStringList>
#include <QVariant>
#include <QVector>
#include <QWizardPage>

/**
 * The interfaces between host and library, written down a second time.
 *
 * A host is compiled without this project's headers, against declarations of its own: what counts
 * is the order of virtual operations and of record fields alone. The names here differ on purpose,
 * so that nothing but the order can make the tests pass. Never include a header of the library.
 */
namespace Contract
{

struct Link {
    qint32 kind = 100;
    QVector<qint32> positions;
};

/** Every default differs from the library's, so that a field not copied over shows. */
struct Description {
    QVector<QStringList> groups;
    QVector<Link> links;
    QVector<float> yaw;
    QVector<float> pitch;
    QVector<float> roll;
    bool positionsKnown = false;
    float focalLength = -100.0F;
    bool rollKnown = false;
    qint32 lens = 100;
    qint32 reserved10[3] = { 100, 100, 100 };
    bool reserved11 = true;
    bool autoDetection = true;
    qint32 stackLinking = 100;
    qint32 levelLinking = 100;
    bool useRecordedLocation = false;
    bool skipOptimization = true;
    bool cleanWrongLinks = true;
    qint32 gridMode = 100;
    qint32 gridRows = 100;
    qint32 gridBracketCount = 100;
    bool gridWrap360 = true;
    double overlap = -100.0;
    qint32 reserved23 = 100;
    qint32 renderMode = 100;
    QString reserved25 = QStringLiteral("unset");
    QString reserved26 = QStringLiteral("unset");
    bool reserved27 = true;
};

struct UiSettings {
    bool systemDialogs = false;
};

struct UiInstances {
    UiSettings *settings = nullptr;
};

class About
{
public:
    virtual ~About() = default;
    virtual QString name() const = 0;
    virtual QString author() const = 0;
    virtual QString company() const = 0;
    virtual QString comment() const = 0;
    virtual QString version() const = 0;
    virtual QIcon icon() const = 0;
    virtual QString uid() const = 0;
};

class PluginLibrary
{
public:
    virtual ~PluginLibrary() = default;
    virtual QList<QPointer<QObject>> plugins(int kinds) = 0;
};

class PluginImport
{
public:
    virtual ~PluginImport() = default;
    virtual QList<QWizardPage *> pages() = 0;
};

class Image
{
public:
    virtual ~Image() = default;
    virtual QPixmap *thumbnail() = 0;
    virtual void slot2() = 0;
    virtual void slot3() = 0;
    virtual void slot4() = 0;
    virtual void slot5() = 0;
    virtual void slot6() = 0;
    virtual void slot7() = 0;
    virtual void slot8() = 0;
    virtual void slot9() = 0;
    virtual void slot10() = 0;
    virtual void slot11() = 0;
    virtual float focalLength() = 0;
    virtual int lensType() = 0;
    virtual long shotTime() = 0;
    virtual float exposure() = 0;
    virtual void slot16() = 0;
};

class Application
{
public:
    virtual ~Application() = default;
    virtual void slot1() = 0;
    virtual void slot2() = 0;
    virtual QString lastPath() = 0;
    virtual void setLastPath(const QString &path) = 0;
    virtual QVariant readSetting(const QString &group, const QString &key,
                                 const QVariant &defaultValue)
        = 0;
    virtual void writeSetting(const QString &group, const QString &key, const QVariant &value) = 0;
    virtual void slot7() = 0;
    virtual QLocale locale() = 0;
    virtual void slot9() = 0;
    virtual void slot10() = 0;
    virtual void loadTranslation(const QString &fileName) = 0;
    virtual Image *createImage(const QString &fileName) = 0;
    virtual void import(Description description) = 0;
    virtual void slot14() = 0;
    virtual void slot15() = 0;
    virtual UiInstances *uiInstances() = 0;
};

/** The interface that \p object answers under \p name, null when it answers none. */
template <typename Interface> Interface *cast(QObject *object, const char *name)
{
    return object == nullptr ? nullptr : static_cast<Interface *>(object->qt_metacast(name));
}

inline PluginLibrary *asLibrary(QObject *object)
{
    return cast<PluginLibrary>(object, "XIPluginLibrary");
}

inline PluginImport *asImport(QObject *object)
{
    return cast<PluginImport>(object, "XIPluginImport");
}

inline About *asAbout(QObject *object)
{
    return cast<About>(object, "XIAbout");
}

/** Path of the module under test. */
inline QString libraryPath()
{
    return qEnvironmentVariable("TEST_LIBRARY");
}

/** The module, really unloaded again at the end. */
class Module
{
public:
    Module()
        : m_loader(libraryPath())
    {
        // The default would keep the library in the process after unload().
        m_loader.setLoadHints({});
    }
    ~Module() { m_loader.unload(); }
    Module(const Module &) = delete;
    Module &operator=(const Module &) = delete;

    [[nodiscard]] QObject *root() { return m_loader.instance(); }
    [[nodiscard]] PluginLibrary *library() { return asLibrary(root()); }
    [[nodiscard]] QPluginLoader &loader() { return m_loader; }

private:
    QPluginLoader m_loader;
};

/** Whether the module is mapped into this process. */
inline bool isMapped()
{
    QFile maps(QStringLiteral("/proc/self/maps"));
    if (!maps.open(QIODevice::ReadOnly)) {
        qFatal("/proc/self/maps cannot be read");
    }
    return maps.readAll().contains(QFileInfo(libraryPath()).fileName().toUtf8());
}

} // namespace Contract
