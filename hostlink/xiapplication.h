// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#pragma once

#include <QLocale>
#include <QString>
#include <QVariant>

class XIImageDef;
struct StructuredPanoramaProperties;
struct XUIInstances;

/**
 * The host application, as far as this library uses it.
 *
 * Host interface: the application object answers `qt_metacast("XIApplication")`; the order of the
 * operations is fixed. The reserved ones are the host's own and are never called from here.
 */
class XIApplication
{
public:
    virtual ~XIApplication() = default;
    virtual void Reserved1() = 0;
    virtual void Reserved2() = 0;
    /** Start location for file dialogs. */
    virtual QString LastPath() = 0;
    /** Remembers \p path, a file that the user has just chosen. */
    virtual void SetLastPath(const QString &path) = 0;
    virtual QVariant ReadSetting(const QString &group, const QString &key,
                                 const QVariant &defaultValue)
        = 0;
    virtual void WriteSetting(const QString &group, const QString &key, const QVariant &value) = 0;
    virtual void Reserved3() = 0;
    /** The user-interface locale. */
    virtual QLocale Locale() = 0;
    virtual void Reserved4() = 0;
    virtual void Reserved5() = 0;
    /** Loads and installs a translation named like "XPanoHead_fr_FR.qm". */
    virtual void LoadTranslation(const QString &fileName) = 0;
    /**
     * Reads one photo; null when it cannot be read. Worker thread: called from the pages' reading
     * threads, several at a time when several pages read, and may take long.
     */
    virtual XIImageDef *CreateImageDef(const QString &fileName) = 0;
    /** Receives a finished description; the host keeps its own copy. */
    virtual void ImportStructuredPanorama(StructuredPanoramaProperties spp) = 0;
    virtual void Reserved6() = 0;
    virtual void Reserved7() = 0;
    /** The host's UI settings; may be null. */
    virtual XUIInstances *UIInstances() = 0;
};
