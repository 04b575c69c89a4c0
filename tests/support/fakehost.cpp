// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#include "tests/support/fakehost.h"

#include "tests/support/gate.h"

#include <stdexcept>
#include <thread>

FakeHost::FakeHost() = default;
FakeHost::~FakeHost() = default;

void FakeHost::forget()
{
    lastPath.clear();
    setLastPaths.clear();
    loadedTranslations.clear();
    settings.clear();
    readSettings.clear();
    writtenSettings.clear();
    descriptions.clear();
    uiInstancesCalls = 0;
    localeCalls = 0;
    const std::lock_guard lock(m_mutex);
    m_photos.clear();
    m_readFiles.clear();
    m_firstImage = m_images.size();
}

void FakeHost::setPhoto(const QString &fileName, const FakePhoto &photo)
{
    const std::lock_guard lock(m_mutex);
    m_photos.insert(fileName, photo);
}

void FakeHost::setPhotos(const QStringList &fileNames, const FakePhoto &photo)
{
    for (const QString &fileName : fileNames) {
        setPhoto(fileName, photo);
    }
}

QStringList FakeHost::readFiles() const
{
    const std::lock_guard lock(m_mutex);
    return m_readFiles;
}

QList<FakeImage *> FakeHost::images() const
{
    const std::lock_guard lock(m_mutex);
    QList<FakeImage *> images;
    for (std::size_t i = m_firstImage; i < m_images.size(); ++i) {
        images.append(m_images[i].get());
    }
    return images;
}

QString FakeHost::LastPath()
{
    return lastPath;
}

void FakeHost::SetLastPath(const QString &path)
{
    setLastPaths.append(path);
}

QVariant FakeHost::ReadSetting(const QString &group, const QString &key,
                               const QVariant &defaultValue)
{
    readSettings.append({ group, key });
    return settings.value({ group, key }, defaultValue);
}

void FakeHost::WriteSetting(const QString &group, const QString &key, const QVariant &value)
{
    writtenSettings.append({ group, key, value });
    settings.insert({ group, key }, value);
}

QLocale FakeHost::Locale()
{
    ++localeCalls;
    return locale;
}

void FakeHost::LoadTranslation(const QString &fileName)
{
    loadedTranslations.append(fileName);
}

XIImageDef *FakeHost::CreateImageDef(const QString &fileName)
{
    FakePhoto photo;
    photo.reading = FakePhoto::Reading::Fails;
    {
        const std::lock_guard lock(m_mutex);
        m_readFiles.append(fileName);
        photo = m_photos.value(fileName, photo);
    }
    // Without the lock: a photo that is held back must not hold back another thread's.
    if (photo.enter) {
        photo.enter->open();
    }
    for (int i = 0; i < photo.spins; ++i) {
        std::this_thread::yield();
    }
    if (photo.leave) {
        photo.leave->pass();
    }
    switch (photo.reading) {
    case FakePhoto::Reading::Fails:
        return nullptr;
    case FakePhoto::Reading::Throws:
        throw std::runtime_error("The host cannot read this photo");
    case FakePhoto::Reading::Succeeds:
        break;
    }
    const std::lock_guard lock(m_mutex);
    m_images.push_back(std::make_unique<FakeImage>(fileName, photo));
    return m_images.back().get();
}

void FakeHost::ImportStructuredPanorama(StructuredPanoramaProperties spp)
{
    descriptions.append(spp);
}

XUIInstances *FakeHost::UIInstances()
{
    ++uiInstancesCalls;
    return offeredUiInstances;
}

void FakeHost::Reserved1()
{
    qFatal("Reserved1 of the host was called");
}
void FakeHost::Reserved2()
{
    qFatal("Reserved2 of the host was called");
}
void FakeHost::Reserved3()
{
    qFatal("Reserved3 of the host was called");
}
void FakeHost::Reserved4()
{
    qFatal("Reserved4 of the host was called");
}
void FakeHost::Reserved5()
{
    qFatal("Reserved5 of the host was called");
}
void FakeHost::Reserved6()
{
    qFatal("Reserved6 of the host was called");
}
void FakeHost::Reserved7()
{
    qFatal("Reserved7 of the host was called");
}
