// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#include "ui/subtitlelinks.h"

#include <QEvent>
#include <QLabel>
#include <QWizard>

namespace PanoHead
{

namespace
{

QWizard *wizardAround(const QWidget *page)
{
    for (QWidget *above = page->parentWidget(); above != nullptr; above = above->parentWidget()) {
        if (auto *wizard = qobject_cast<QWizard *>(above)) {
            return wizard;
        }
    }
    return nullptr;
}

/** The label in which a wizard shows the subtitle of \p page; null when none does. */
QLabel *subtitleLabel(const QWizardPage *page)
{
    const QWizard *wizard = wizardAround(page);
    if (wizard == nullptr || wizard->testOption(QWizard::IgnoreSubTitles)
        || wizard->currentPage() != page || !page->isVisible() || page->subTitle().isEmpty()) {
        return nullptr;
    }
    const QList<QLabel *> labels = wizard->findChildren<QLabel *>();
    for (QLabel *label : labels) {
        if (label->isVisibleTo(wizard) && label->text() == page->subTitle()) {
            return label;
        }
    }
    return nullptr;
}

} // namespace

SubtitleLinks::SubtitleLinks(QWizardPage *page)
    : QObject(page)
    , m_page(page)
{
    page->installEventFilter(this);
}

bool SubtitleLinks::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::Show || event->type() == QEvent::Hide) {
        if (const QWizard *wizard = wizardAround(m_page)) {
            // The label gets its text after the page is shown, unless the wizard itself comes last.
            connect(wizard, &QWizard::currentIdChanged, this, &SubtitleLinks::connectLabel,
                    Qt::UniqueConnection);
        }
        connectLabel();
    }
    return QObject::eventFilter(watched, event);
}

void SubtitleLinks::connectLabel()
{
    QLabel *label = subtitleLabel(m_page);
    if (label == m_label) {
        return;
    }
    if (m_label != nullptr) {
        m_label->disconnect(this);
    }
    m_label = label;
    if (label != nullptr) {
        connect(label, &QLabel::linkActivated, this, &SubtitleLinks::activated);
    }
}

} // namespace PanoHead
