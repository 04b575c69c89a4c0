// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#pragma once

#include "tests/support/fakeimage.h"

#include <QByteArray>
#include <QMetaType>
#include <QString>
#include <QStringList>
#include <QTemporaryDir>
#include <QVector>

/**
 * A folder with the files of one shoot. Photos are empty files that a dialog can choose; what the
 * host double reads from them is given here.
 */
class ShootFolder
{
public:
    ShootFolder();

    /** Full path of \p name, whether it exists or not. */
    [[nodiscard]] QString path(const QString &name = {}) const;
    /** Writes a file and answers its full path; folders in \p name are made. */
    // NOLINTNEXTLINE(modernize-use-nodiscard): often the file alone is wanted
    QString write(const QString &name, const QByteArray &content) const;
    /** A photo that the host reads as \p photo. */
    // NOLINTNEXTLINE(modernize-use-nodiscard)
    QString addPhoto(const QString &name, const FakePhoto &photo = {}) const;
    /** The photos "IMG_0001.jpg", "IMG_0002.jpg"... */
    [[nodiscard]] QStringList addPhotos(int count, const FakePhoto &photo = {}) const;

private:
    QTemporaryDir m_folder;
};

/** The files without their folders. */
[[nodiscard]] QStringList namesOf(const QStringList &files);

/** The text of a Papywizard record, in the form in which the head's controller writes it. */
struct RecordXml {
    struct Shot {
        QString yaw; ///< degrees
        QString pitch; ///< degrees
    };

    QVector<Shot> shots;
    QString title = QStringLiteral("A title");
    QString gps = QStringLiteral("45.5,6.5");
    QString comment = QStringLiteral("A comment");
    QString nbPicts; ///< null: the record does not say
    QString coef; ///< null: no sensor element
    QString focal; ///< mm; null: no lens element
    QString lensType = QStringLiteral("rectilinear");

    /** \p count shots in one row, 30 degrees apart from yaw 0. */
    [[nodiscard]] static RecordXml row(int count);
    [[nodiscard]] QByteArray bytes() const;
};

/** The text of a Clauss script: \p shots in one row, 30 degrees apart from yaw 0. */
[[nodiscard]] QByteArray scriptRow(int shots);

Q_DECLARE_METATYPE(RecordXml)
