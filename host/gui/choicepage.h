// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "host/plugin/pluginlibrary.h"

#include <QWizardPage>

class QLabel;
class QListWidget;
class QSettings;

namespace PanoHost
{

class RecentList;
struct GivenFiles;

/** The first page: which head took the photos. */
class ChoicePage : public QWizardPage
{
    Q_OBJECT
public:
    /** \p settings, which keep recent shoots, outlive it. */
    ChoicePage(const QVector<ImportPlugin> &plugins, QSettings &settings,
               QWidget *parent = nullptr);

    /** Place of the chosen plug-in in the list given; -1 for none. */
    [[nodiscard]] int chosen() const;
    void choose(int index);
    /** What has been dropped, as far as it is known. */
    void setGiven(const GivenFiles &given);
    /** Nothing has been dropped, or \p isLooking: it is being looked at. */
    void setNothingGiven(bool isLooking = false);

    [[nodiscard]] RecentList *recent() const { return m_recent; }

    [[nodiscard]] bool isComplete() const override;

private:
    void tell();

    QListWidget *m_list;
    RecentList *m_recent;
    QLabel *m_news; ///< what was recognised, and what Next waits for
    QString m_given;
};

} // namespace PanoHost
