// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/gui/choicepage.h"

#include "hostlink/xiabout.h"

#include <QLabel>
#include <QListWidget>
#include <QVBoxLayout>
#include <QWizard>

namespace PanoHost
{

namespace
{

constexpr int kIconSide = 48;

QListWidgetItem *itemFor(const XIAbout &about)
{
    auto *item
        = new QListWidgetItem(about.Icon(), about.Name() + QLatin1Char('\n') + about.Comment());
    item->setToolTip(
        ChoicePage::tr("%1 %2 by %3").arg(about.Name(), about.Version(), about.Company()));
    item->setData(Qt::AccessibleTextRole, about.Name());
    item->setData(Qt::AccessibleDescriptionRole, about.Comment());
    return item;
}

} // namespace

ChoicePage::ChoicePage(const QVector<ImportPlugin> &plugins, QWidget *parent)
    : QWizardPage(parent)
    , m_list(new QListWidget)
{
    setTitle(tr("Which head took the photos?"));
    setSubTitle(tr("Choose the head, or drop its record and the photos onto this window."));
    m_list->setObjectName(QStringLiteral("m_heads"));
    m_list->setAccessibleName(tr("Heads"));
    m_list->setIconSize(QSize(kIconSide, kIconSide));
    m_list->setUniformItemSizes(true);
    for (const ImportPlugin &plugin : plugins) {
        m_list->addItem(itemFor(*plugin.about));
    }
    auto *label = new QLabel(tr("&Head:"));
    label->setBuddy(m_list);
    auto *layout = new QVBoxLayout(this);
    layout->addWidget(label);
    layout->addWidget(m_list);
    connect(m_list, &QListWidget::currentRowChanged, this, &ChoicePage::completeChanged);
    // Enter needs nothing here: it presses Next, the wizard's default button.
    connect(m_list, &QListWidget::itemDoubleClicked, this, [this] { wizard()->next(); });
}

int ChoicePage::chosen() const
{
    return m_list->currentRow();
}

void ChoicePage::choose(int index)
{
    m_list->setCurrentRow(index);
}

bool ChoicePage::isComplete() const
{
    return chosen() >= 0;
}

} // namespace PanoHost
