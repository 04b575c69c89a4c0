// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QMetaType>
#include <QStringList>
#include <QVector>

#include <functional>
#include <vector>

/** Where the head looked for one shot. */
struct ShotAngles {
    double yawDegrees;
    double pitchDegrees;
};

/** One file that nobody's head writes. */
struct HostileFile {
    QByteArray name; ///< says what is wrong with it
    std::function<QByteArray()> content; ///< made when it is needed: some are as large as may be
    bool isLarge = false; ///< or takes long; the others are left to a sanitizer, which is slow
};

/** What a page asks of its host and tells it after a click on a button that brings no choice. */
struct ButtonSteps {
    const char *button;
    bool control; ///< the Control key is held, else the button's dialog is cancelled
    QStringList steps; ///< "LastPath", "open FOLDER", "show", "completeChanged"
};

/**
 * A head as a host knows it that has none of the library's headers. Its own folder brings it, in
 * tests/hosthead.cpp; this file and that one include nothing but Qt and what the tests share.
 */
struct HostHead {
    const char *title = nullptr; ///< as people write it
    const char *plugin = nullptr; ///< class name and object name of its plug-in
    bool hasEveryKind = false; ///< the plug-in is made whatever kinds of heads the host asks for
    const char *name = nullptr; ///< what the plug-in tells: this and the next three
    const char *comment = nullptr;
    const char *uid = nullptr;
    const char *icon = nullptr; ///< file name of a picture
    const char *page = nullptr; ///< class name

    const char *recordName = nullptr; ///< of a record's file; null: the head keeps no record
    /** In whole degrees, of a shoot with a rectilinear lens of 35 mm if records name one. */
    QByteArray (*record)(const QVector<ShotAngles> &shots) = nullptr;
    QVector<HostileFile> (*hostileFiles)() = nullptr; ///< instead of a record

    bool hasLens = false; ///< its page presets focal length and lens type
    bool turnsCamera = false; ///< its page has buttons for a turned camera
    bool ordersByTime = false; ///< its page shows photos by their times, else as they are read
    std::vector<ButtonSteps> buttonSteps; ///< of the buttons that choose record and photos
};

Q_DECLARE_METATYPE(const HostHead *)
Q_DECLARE_METATYPE(QVector<ShotAngles>)

/** Every head, in the order in which hosts list them. */
[[nodiscard]] const std::vector<const HostHead *> &allHostHeads();
