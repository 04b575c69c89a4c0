// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QHash>
#include <QString>
#include <QStringList>
#include <QTemporaryDir>

#include <memory>

namespace PanoHost
{

/**
 * Names for photos that a page cannot take as they are. Pages sort photos by name and their dialog
 * takes no double quotes; so the page gets numbered symbolic links in a private temporary folder,
 * which sort in the wanted order. The folder goes with the object.
 */
class PhotoAliases
{
public:
    /**
     * Whether the page can be given \p photos (absolute paths, wanted order) as they are: no name
     * that its dialog would misread, and sorting them case-sensitively changes nothing.
     */
    [[nodiscard]] static bool areNeeded(const QStringList &photos);

    /**
     * Makes one link per photo, in order; an empty file for each empty name.
     * \return the paths of the links; empty, with \p error set, when a link could not be made.
     */
    [[nodiscard]] QStringList create(const QStringList &photos, QString *error);

    /** Link to photo; without the empty files, and empty when no links were made. */
    [[nodiscard]] const QHash<QString, QString> &truePaths() const { return m_truePaths; }

private:
    std::unique_ptr<QTemporaryDir> m_folder;
    QHash<QString, QString> m_truePaths;
};

} // namespace PanoHost
