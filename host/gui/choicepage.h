// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "host/plugin/pluginlibrary.h"

#include <QWizardPage>

class QListWidget;

namespace PanoHost
{

/** The first page: which head took the photos. */
class ChoicePage : public QWizardPage
{
    Q_OBJECT
public:
    explicit ChoicePage(const QVector<ImportPlugin> &plugins, QWidget *parent = nullptr);

    /** Place of the chosen plug-in in the list given; -1 for none. */
    [[nodiscard]] int chosen() const;
    void choose(int index);

    [[nodiscard]] bool isComplete() const override;

private:
    QListWidget *m_list;
};

} // namespace PanoHost
