// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/import/givenfiles.h"

#include "host/import/heads.h"

#include <QDir>
#include <QLineEdit>
#include <QWizardPage>

#include <algorithm>

namespace PanoHost
{

bool isRecord(const QString &path)
{
    const std::vector<const HeadFacts *> heads = PanoHead::allHeadFacts();
    return std::any_of(heads.begin(), heads.end(),
                       [&path](const HeadFacts *head) { return head->isRecord(path); });
}

GivenFiles sortFiles(const QStringList &files)
{
    GivenFiles sorted;
    for (const QString &file : files) {
        const QString path = QDir().absoluteFilePath(file);
        if (isRecord(path)) {
            sorted.record = path;
        } else {
            sorted.photos += path;
        }
    }
    sorted.photos.sort(Qt::CaseSensitive);
    return sorted;
}

int headFor(const GivenFiles &files, const QVector<ImportPlugin> &plugins, int chosen)
{
    const auto reads = [&files](const ImportPlugin &plugin) {
        const HeadFacts *head = PanoHead::headFactsOf(plugin.head());
        return head != nullptr && head->isRecord(files.record);
    };
    if (files.record.isEmpty() || (chosen >= 0 && reads(plugins.at(chosen)))) {
        return chosen;
    }
    const auto *found = std::find_if(plugins.begin(), plugins.end(), reads);
    return found == plugins.end() ? chosen : static_cast<int>(found - plugins.begin());
}

QString recordPath(const QWizardPage *page)
{
    const auto *edit = page->findChild<QLineEdit *>(QStringLiteral("m_leConfigFile"));
    return edit == nullptr ? QString() : edit->text();
}

} // namespace PanoHost
