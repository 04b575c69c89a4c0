// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QPointer>

class QLabel;
class QWizardPage;

namespace PanoHead
{

/**
 * Hears of clicks on the links of a page's subtitle, in whatever wizard shows it. A wizard keeps
 * one label for the subtitles of all its pages and fills it after the page is shown; only the page
 * that it stands for answers. A label that opens links itself tells nobody of them.
 */
class SubtitleLinks : public QObject
{
    Q_OBJECT

public:
    /** Watches \p page, which becomes the parent. */
    explicit SubtitleLinks(QWizardPage *page);

Q_SIGNALS:
    /** The user followed a link to \p url. */
    void activated(const QString &url);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void connectLabel();

    QWizardPage *m_page;
    QPointer<QLabel> m_label; ///< null while no wizard shows the page
};

} // namespace PanoHead
