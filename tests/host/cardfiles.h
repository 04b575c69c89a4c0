// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "tests/host/testphotos.h"

#include <QString>

/** Writes records and photos of a card below a folder. Times as in `CardShoots`. */
class CardFiles
{
public:
    explicit CardFiles(QString folder);

    [[nodiscard]] QString path(const QString &name) const;
    void makeFolder(const QString &name) const;
    /** Any file; its folder is made. */
    void write(const QString &name, const QByteArray &content) const;
    /** A photo taken at \p seconds; negative: without a time. */
    void take(const QString &name, double seconds) const;
    /** \p count photos "FOLDER/IMG_0001.jpg", numbered from \p number. */
    void takeShoot(const QString &folder, int number, int count, double start) const;
    /** A record of the Papywizard. */
    void writeRecord(const QString &name, int count, double start) const;

private:
    QString m_folder;
};
