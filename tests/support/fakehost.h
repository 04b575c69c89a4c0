// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#pragma once

#include "hostlink/xiapplication.h"
#include "hostlink/xuiinstances.h"
#include "model/structuredpanoramaproperties.h"
#include "tests/support/fakeimage.h"

#include <QHash>
#include <QList>
#include <QPair>
#include <QStringList>
#include <QVector>

#include <memory>
#include <mutex>
#include <vector>

// Lets the application classes of fakeapplication.h answer to the interface's plain name.
Q_DECLARE_INTERFACE(XIApplication, "XIApplication")

/**
 * A host double: remembers what it is asked and answers from tables.
 *
 * CreateImageDef() may be called from several threads at a time; everything else is for the GUI
 * thread. A reserved operation that is called ends the test.
 */
class FakeHost : public XIApplication
{
public:
    struct Written {
        QString group;
        QString key;
        QVariant value;
    };

    FakeHost();
    ~FakeHost() override;

    /** Forgets every call, photo and setting; photos given out so far stay valid. */
    void forget();

    /** From now on \p fileName reads as \p photo. Names never given cannot be read. */
    void setPhoto(const QString &fileName, const FakePhoto &photo);
    /** The same for several names at once. */
    void setPhotos(const QStringList &fileNames, const FakePhoto &photo);
    /** The name of every photo that was begun, in the order of the calls. */
    [[nodiscard]] QStringList readFiles() const;
    /** The photos given out, in order; owned by this object. */
    [[nodiscard]] QList<FakeImage *> images() const;

    QString lastPath; ///< the answer of LastPath()
    QStringList setLastPaths; ///< every argument of SetLastPath()
    QLocale locale{ QLocale::French, QLocale::France };
    QStringList loadedTranslations; ///< every argument of LoadTranslation()
    QHash<QPair<QString, QString>, QVariant> settings; ///< by group and key
    QList<QPair<QString, QString>> readSettings; ///< group and key of every ReadSetting()
    QList<Written> writtenSettings; ///< every WriteSetting()
    QVector<StructuredPanoramaProperties> descriptions; ///< every delivered description
    XUISettings uiSettings{ false }; ///< Qt's own file dialogs, which tests can fill in
    XUIInstances uiInstances{ &uiSettings };
    XUIInstances *offeredUiInstances = &uiInstances; ///< the answer of UIInstances(); may be null
    int uiInstancesCalls = 0;
    int localeCalls = 0;

    void Reserved1() override;
    void Reserved2() override;
    QString LastPath() override;
    void SetLastPath(const QString &path) override;
    QVariant ReadSetting(const QString &group, const QString &key,
                         const QVariant &defaultValue) override;
    void WriteSetting(const QString &group, const QString &key, const QVariant &value) override;
    void Reserved3() override;
    QLocale Locale() override;
    void Reserved4() override;
    void Reserved5() override;
    void LoadTranslation(const QString &fileName) override;
    XIImageDef *CreateImageDef(const QString &fileName) override;
    void ImportStructuredPanorama(StructuredPanoramaProperties spp) override;
    void Reserved6() override;
    void Reserved7() override;
    XUIInstances *UIInstances() override;

private:
    mutable std::mutex m_mutex; ///< guards the four members below
    QHash<QString, FakePhoto> m_photos;
    QStringList m_readFiles;
    std::vector<std::unique_ptr<FakeImage>> m_images;
    std::size_t m_firstImage = 0; ///< images before this one were given out before forget()
};
