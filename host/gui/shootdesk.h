// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "host/import/shootreport.h"
#include "host/import/striprows.h"

#include <QObject>
#include <QTimer>

#include <memory>

class QWidget;

namespace PanoHost
{

class LatestJob;
class PageKeeper;
class ShootStrip;

/**
 * Has the shoot on a page looked at whenever it changes, tells the strip what was found and does
 * what its buttons ask for.
 */
class ShootDesk : public QObject
{
    Q_OBJECT
public:
    /** \p app and \p strip outlive it. */
    ShootDesk(PanoHostApplication &app, ShootStrip *strip, QWidget *window);

    /** From now on the shoot on this page; null: there is none. */
    void setPage(PageKeeper *page);
    /** Files or fields may have changed; looks in the next turn of the event loop. */
    void look() { m_soon.start(); }
    /** The photos of this shoot name no focal length: the one used counts for the next such ones.
     */
    void rememberFocal();
    /** What is wrong with the photos as they stand on the page, and was not put right. */
    [[nodiscard]] QStringList remarks() const;

Q_SIGNALS:
    void switchWanted(const PanoHost::HeadFacts *head);
    void failed(const QString &why);
    /** `remarks` may be others. */
    void looked();

private:
    void lookNow();
    void take(const std::shared_ptr<const ShootReport> &report);
    void tell();
    void act(StripAction action, const StripRow &row);
    void enterFocal(double focal35mm);
    void press(const char *button);
    void giveWithout(const QStringList &files);
    void replace(const QStringList &files);
    void showShots(const StripRow &row);

    PanoHostApplication &m_app;
    ShootStrip *m_strip;
    QWidget *m_window;
    LatestJob *m_looking;
    QTimer m_soon;
    PageKeeper *m_page = nullptr;
    ImportRequest m_request; ///< that `m_report` answers, or will
    std::shared_ptr<const ShootReport> m_report;
    double m_rememberedFocal = 0.0; ///< of an earlier shoot, used for this one
};

} // namespace PanoHost
