// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/gui/choicepage.h"

#include "host/gui/recentlist.h"
#include "host/import/givenfiles.h"
#include "hostlink/xiabout.h"

#include <QFileInfo>
#include <QHBoxLayout>
#include <QLabel>
#include <QListWidget>
#include <QVBoxLayout>
#include <QWizard>

namespace PanoHost
{

namespace
{

constexpr int kIconSide = 48;

/** Which files the import needs. */
QString needs(const HeadFacts *head)
{
    return head == nullptr ? QString()
        : head->isGrid()   ? ChoicePage::tr("Needs photos only")
                           : ChoicePage::tr("Needs *.%1 record and photos")
                               .arg(QFileInfo(QString::fromLatin1(head->record)).suffix());
}

QListWidgetItem *itemFor(const ImportPlugin &plugin)
{
    const XIAbout &about = *plugin.about;
    const QStringList lines{ about.Name(), about.Comment(),
                             needs(PanoHead::headFactsOf(plugin.head())) };
    auto *item = new QListWidgetItem(about.Icon(), lines.join(QLatin1Char('\n')).trimmed());
    item->setToolTip(
        ChoicePage::tr("%1 %2 by %3").arg(about.Name(), about.Version(), about.Company()));
    item->setData(Qt::AccessibleTextRole, about.Name());
    item->setData(Qt::AccessibleDescriptionRole, lines.mid(1).join(QStringLiteral(". ")));
    return item;
}

} // namespace

ChoicePage::ChoicePage(const QVector<ImportPlugin> &plugins, QSettings &settings, QWidget *parent)
    : QWizardPage(parent)
    , m_list(new QListWidget)
    , m_recent(new RecentList(settings))
    , m_news(new QLabel)
{
    setTitle(tr("Which head took the photos?"));
    setSubTitle(tr("Choose the head, or drop its record and the photos onto this window."));
    m_list->setObjectName(QStringLiteral("m_heads"));
    m_list->setAccessibleName(tr("Heads"));
    m_list->setIconSize(QSize(kIconSide, kIconSide));
    m_list->setUniformItemSizes(true);
    for (const ImportPlugin &plugin : plugins) {
        m_list->addItem(itemFor(plugin));
    }
    m_list->setCurrentIndex({}); // the view would choose the first one when it gets the focus
    auto *label = new QLabel(tr("&Head:"));
    label->setBuddy(m_list);
    m_news->setObjectName(QStringLiteral("m_news"));
    m_news->setTextFormat(Qt::PlainText);
    m_news->setWordWrap(true);
    auto *heads = new QVBoxLayout;
    heads->addWidget(label);
    heads->addWidget(m_list);
    auto *lists = new QHBoxLayout;
    lists->addLayout(heads, 1);
    lists->addWidget(m_recent, 1);
    auto *layout = new QVBoxLayout(this);
    layout->addLayout(lists);
    layout->addWidget(m_news);
    connect(m_list, &QListWidget::currentRowChanged, this, &ChoicePage::completeChanged);
    connect(m_list, &QListWidget::currentRowChanged, this, &ChoicePage::tell);
    tell();
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

void ChoicePage::setGiven(const GivenFiles &given)
{
    QStringList parts;
    if (given.reader != nullptr) {
        parts += tr("%1 record with %2 shots")
                     .arg(QString::fromUtf8(given.reader->title), QString::number(given.shots));
    } else if (!given.record.isEmpty()) {
        parts += tr("%1, which no head can read").arg(QFileInfo(given.record).fileName());
    }
    if (!given.photos.isEmpty()) {
        parts += given.photos.size() == 1 ? tr("one photo")
                                          : tr("%1 photos").arg(given.photos.size());
    }
    m_given = parts.join(QStringLiteral(", "));
    tell();
}

void ChoicePage::setNothingGiven(bool isLooking)
{
    m_given = isLooking ? tr("Looking at the files") : QString();
    tell();
}

void ChoicePage::tell()
{
    QStringList sentences;
    if (!m_given.isEmpty()) {
        sentences += m_given + QLatin1Char('.');
    }
    if (chosen() < 0) {
        sentences += tr("Next waits for the head that took the photos.");
    }
    m_news->setText(sentences.join(QLatin1Char(' ')));
}

bool ChoicePage::isComplete() const
{
    return chosen() >= 0;
}

} // namespace PanoHost
