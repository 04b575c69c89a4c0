// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "tests/host/cli/clibench.h"

/** A folder with a record, record.xml, of six small photos that make a panorama. */
class MakeBench : public CliBench
{
public:
    /** In "photos"; empty: they could not be taken. */
    [[nodiscard]] const QStringList &shotPhotos() const { return m_photos; }

    MakeBench();
    void makeFolder(const QString &name) const;

    /** The command; without \p output it has no -o. */
    [[nodiscard]] QStringList makeWords(const QString &output,
                                        const QStringList &options = {}) const;
    [[nodiscard]] Run make(const QString &output, const QStringList &options = {}) const
    {
        return run(makeWords(output, options));
    }
    /** The picture of an uninterrupted run into the folder "whole"; empty: there is none. */
    [[nodiscard]] QByteArray wholePicture() const;

private:
    QStringList m_photos;
};
