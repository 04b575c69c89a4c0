// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "host/model/result.h"

#include <QString>

namespace PanoHost
{

/** A folder for what is not finished, made empty and removed with all that is still in it. */
class PartFolder
{
public:
    /** Makes \p name in \p workFolder; what a killed predecessor left there goes. */
    [[nodiscard]] static Result<PartFolder> make(const QString &workFolder, const QString &name);
    PartFolder(PartFolder &&other) noexcept;
    PartFolder &operator=(PartFolder &&other) = delete;
    ~PartFolder();

    [[nodiscard]] QString path() const { return m_path; }
    /** The absolute path of \p name. */
    [[nodiscard]] QString path(const QString &name) const;

private:
    explicit PartFolder(QString path);

    QString m_path; ///< empty: moved from
};

} // namespace PanoHost
