// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/gui/pagefiller.h"

#include "host/import/dialogcatcher.h"
#include "host/import/heads.h"
#include "host/import/photoaliases.h"

#include <QAbstractButton>
#include <QDir>
#include <QLineEdit>
#include <QWizardPage>

#include <algorithm>

namespace PanoHost
{

namespace
{

bool isRecord(const QString &path)
{
    const std::vector<const HeadFacts *> heads = PanoHead::allHeadFacts();
    return std::any_of(heads.begin(), heads.end(),
                       [&path](const HeadFacts *head) { return head->isRecord(path); });
}

QLineEdit *recordEdit(const QWizardPage *page)
{
    return page->findChild<QLineEdit *>(QStringLiteral("m_leConfigFile"));
}

} // namespace

FilledFiles sortFiles(const QStringList &files)
{
    FilledFiles sorted;
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

int headFor(const FilledFiles &files, const QVector<ImportPlugin> &plugins, int chosen)
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
    const QLineEdit *edit = recordEdit(page);
    return edit == nullptr ? QString() : edit->text();
}

QString fillPage(PanoHostApplication &app, QWizardPage *page, const FilledFiles &files)
{
    // Sorted as they are, only their names can be in the way.
    if (PhotoAliases::areNeeded(files.photos)) {
        return QCoreApplication::translate(
            "PanoHost::ImportWizard",
            "The name of a photo holds a double quote or a line end, which file dialogs cannot "
            "take. "
            "Rename it, or use \"panohost import\" on the command line.");
    }
    QLineEdit *edit = recordEdit(page);
    if (edit != nullptr && !files.record.isEmpty()) {
        edit->setText(files.record);
        Q_EMIT edit->textEdited(files.record);
        Q_EMIT edit->editingFinished();
    }
    auto *button = page->findChild<QAbstractButton *>(QStringLiteral("m_pbSelectImages"));
    if (button == nullptr || files.photos.isEmpty()) {
        return {};
    }
    XUISettings &settings = *app.UIInstances()->settings;
    const bool systemDialog = settings.useSystemFileDialog;
    settings.useSystemFileDialog = false;
    DialogCatcher dialogs;
    dialogs.answerNextFileDialog(files.photos);
    button->click();
    settings.useSystemFileDialog = systemDialog;
    return dialogs.fileDialogAnswered() ? QString()
                                        : dialogs.takeMessages().join(QLatin1Char('\n'));
}

} // namespace PanoHost
