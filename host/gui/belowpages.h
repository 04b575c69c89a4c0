// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QObject>
#include <QSize>

#include <optional>

class QResizeEvent;
class QWidget;
class QWizard;

namespace PanoHost
{

class ReadingBar;
class ShootStrip;

/**
 * Has bar and strip stand below all that the wizard has laid out. Where there is no room for it
 * all, on a small screen or while the strip's rows are open, the upper end of the page is out of
 * sight: its title first, and never Next.
 */
class BelowPages : public QObject
{
    Q_OBJECT
public:
    /** Both are children of \p wizard, and so is this. */
    BelowPages(QWizard *wizard, ReadingBar *bar, ShootStrip *strip);

    void makeRoom();
    /** To be called after the wizard has dealt with \p event itself. */
    void follow(const QResizeEvent &event);
    /** That leaves the window on its screen, with its frame. */
    [[nodiscard]] QSize largestSize() const;

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void fitPages();
    [[nodiscard]] int barHeight() const;
    [[nodiscard]] int lineHeight() const;

    QWizard *m_wizard;
    QWidget *m_content; ///< all of the wizard's own parts lie in it, its buttons too
    ReadingBar *m_bar;
    ShootStrip *m_strip;
    std::optional<bool> m_wantsOpenStrip; ///< nothing: the user has not said
};

} // namespace PanoHost
