// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#pragma once

#include "gate.h"
#include "hostcontract.h"
#include "hosthead.h"
#include "testprogram.h"

#include <QApplication>
#include <QPixmap>
#include <QThread>

#include <atomic>
#include <memory>
#include <mutex>
#include <stdexcept>
#include <thread>
#include <vector>

/** Photo object of the double; every operation that no page may call ends the test. */
class Photo : public Contract::Image
{
public:
    float focal = 35.0F;
    int lens = 0;
    float light = 1.0F;
    int thumbnails = 0;
    int shotTimes = 0;

    QPixmap *thumbnail() override
    {
        ++thumbnails;
        if (m_pixmap.isNull()) {
            m_pixmap = QPixmap(60, 40);
            m_pixmap.fill(Qt::darkGreen);
        }
        return &m_pixmap;
    }
    void slot2() override { qFatal("slot 2 of a photo was called"); }
    void slot3() override { qFatal("slot 3 of a photo was called"); }
    void slot4() override { qFatal("slot 4 of a photo was called"); }
    void slot5() override { qFatal("slot 5 of a photo was called"); }
    void slot6() override { qFatal("slot 6 of a photo was called"); }
    void slot7() override { qFatal("slot 7 of a photo was called"); }
    void slot8() override { qFatal("slot 8 of a photo was called"); }
    void slot9() override { qFatal("slot 9 of a photo was called"); }
    void slot10() override { qFatal("slot 10 of a photo was called"); }
    void slot11() override { qFatal("slot 11 of a photo was called"); }
    float focalLength() override { return focal; }
    int lensType() override { return lens; }
    long shotTime() override
    {
        ++shotTimes;
        return 1;
    }
    float exposure() override { return light; }
    void slot16() override { qFatal("slot 16 of a photo was called"); }

private:
    QPixmap m_pixmap;
};

struct Setting {
    QString group;
    QString key;
    QVariant value;
};

/** The host double: answers the interface's plain name, whatever its own class is called. */
class Host : public QApplication, public Contract::Application
{
public:
    Host(int &argc, char **argv)
        : QApplication(argc, argv)
    {
    }

    void *qt_metacast(const char *name) override
    {
        if (qstrcmp(name, "XIApplication") == 0) {
            return static_cast<Contract::Application *>(this);
        }
        return QApplication::qt_metacast(name);
    }

    void forget()
    {
        userLocale = QLocale(QLocale::French, QLocale::France);
        calls.clear();
        stored.clear();
        readsSettings = true;
        writesSettings = true;
        read.clear();
        written.clear();
        descriptions.clear();
        setPaths.clear();
        lens = 0;
        exposures.clear();
        const std::lock_guard lock(m_mutex);
        m_photos.clear();
        photosOnTheGuiThread = 0;
    }

    [[nodiscard]] std::vector<Photo *> photos() const
    {
        const std::lock_guard lock(m_mutex);
        std::vector<Photo *> answer;
        for (const auto &photo : m_photos) {
            answer.push_back(photo.get());
        }
        return answer;
    }

    QLocale userLocale;
    QStringList calls; ///< "locale", "loadTranslation NAME", "uiInstances"
    bool readsSettings = true; ///< else it throws
    bool writesSettings = true; ///< else it throws
    QVariant stored; ///< what every setting reads as; invalid: nothing is stored
    QList<Setting> read;
    QList<Setting> written;
    QVector<Contract::Description> descriptions;
    QStringList setPaths;
    int lens = 0; ///< of every photo
    QVector<float> exposures; ///< of the photos in the order of reading; 1 for those behind them
    std::atomic<int> slowness{ 0 }; ///< how often the processor is yielded for each photo
    std::atomic<bool> holdsPhotos{ false }; ///< each photo says that it is asked for, then waits
    Gate photoAsked; ///< opened by each photo that is held
    Gate photoGiven; ///< passed by each photo that is held
    std::atomic<int> photosOnTheGuiThread{ 0 };
    Contract::UiSettings uiSettings{ false };
    Contract::UiInstances ui{ &uiSettings };
    Contract::UiInstances *offeredUi = &ui;

    void slot1() override { qFatal("slot 1 of the host was called"); }
    void slot2() override { qFatal("slot 2 of the host was called"); }
    QString lastPath() override { return QStringLiteral("/"); }
    void setLastPath(const QString &path) override { setPaths.append(path); }
    QVariant readSetting(const QString &group, const QString &key,
                         const QVariant &defaultValue) override
    {
        if (!readsSettings) {
            throw std::runtime_error("the settings cannot be read");
        }
        read.append({ group, key, defaultValue });
        return stored.isValid() ? stored : defaultValue;
    }
    void writeSetting(const QString &group, const QString &key, const QVariant &value) override
    {
        if (!writesSettings) {
            throw std::runtime_error("the settings cannot be written");
        }
        written.append({ group, key, value });
    }
    void slot7() override { qFatal("slot 7 of the host was called"); }
    QLocale locale() override
    {
        calls.append(QStringLiteral("locale"));
        return userLocale;
    }
    void slot9() override { qFatal("slot 9 of the host was called"); }
    void slot10() override { qFatal("slot 10 of the host was called"); }
    void loadTranslation(const QString &fileName) override
    {
        calls.append(QStringLiteral("loadTranslation ") + fileName);
    }
    Contract::Image *createImage(const QString &) override
    {
        if (QThread::currentThread() == thread()) {
            ++photosOnTheGuiThread;
        }
        if (holdsPhotos) {
            photoAsked.open();
            photoGiven.pass();
        }
        for (int i = 0; i < slowness; ++i) {
            std::this_thread::yield();
        }
        const std::lock_guard lock(m_mutex);
        const int number = static_cast<int>(m_photos.size());
        m_photos.push_back(std::make_unique<Photo>());
        m_photos.back()->lens = lens;
        m_photos.back()->light = exposures.value(number, 1.0F);
        return m_photos.back().get();
    }
    void import(Contract::Description description) override { descriptions.append(description); }
    void slot14() override { qFatal("slot 14 of the host was called"); }
    void slot15() override { qFatal("slot 15 of the host was called"); }
    Contract::UiInstances *uiInstances() override
    {
        calls.append(QStringLiteral("uiInstances"));
        return offeredUi;
    }

private:
    mutable std::mutex m_mutex; ///< guards the photos
    std::vector<std::unique_ptr<Photo>> m_photos;
};

inline Host &host()
{
    return *static_cast<Host *>(QCoreApplication::instance());
}

/** The plug-in called \p name of a fresh set of all. */
inline QObject *pluginCalled(Contract::PluginLibrary *library, const QString &name)
{
    const QList<QPointer<QObject>> plugins = library->plugins(2);
    const int heads = static_cast<int>(allHostHeads().size());
    for (const QPointer<QObject> &plugin : plugins.mid(plugins.size() - heads)) {
        if (plugin->objectName() == name) {
            return plugin;
        }
    }
    return nullptr;
}
