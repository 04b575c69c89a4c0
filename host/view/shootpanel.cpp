// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/view/shootpanel.h"

#include "host/model/latestjob.h"
#include "host/model/panorama.h"
#include "host/model/ptofile.h"
#include "host/view/shootview.h"

#include <QButtonGroup>
#include <QHBoxLayout>
#include <QLabel>
#include <QToolButton>
#include <QVBoxLayout>

#include <algorithm>
#include <memory>
#include <utility>

namespace PanoHost
{

ShootPanel::ShootPanel(QWidget *parent)
    : QWidget(parent)
    , m_maker(new LatestJob(this))
    , m_view(new ShootView(this))
    , m_named(new QLabel(this))
{
    auto *row = new QHBoxLayout;
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addLayout(row);
    layout->addWidget(m_view, 1);

    QToolButton *flat
        = addTool(QStringLiteral("m_flat"), tr("Flat"), tr("Show the photos on a map"));
    QToolButton *sphere = addTool(QStringLiteral("m_sphere"), tr("Sphere"),
                                  tr("Look around from where the camera stood"));
    auto *modes = new QButtonGroup(this);
    for (QToolButton *button : { flat, sphere }) {
        button->setCheckable(true);
        modes->addButton(button);
    }
    flat->setChecked(true);
    m_links = addTool(QStringLiteral("m_links"), tr("Links"),
                      tr("Show which photos are linked to each other"));
    m_gaps = addTool(QStringLiteral("m_gaps"), tr("Gaps"), tr("Hatch what no photo shows"));
    m_links->setCheckable(true);
    m_gaps->setCheckable(true);
    QToolButton *fit = addTool(QStringLiteral("m_fit"), tr("Fit"), tr("Show the whole shoot"));
    for (QToolButton *button : { flat, sphere, m_links, m_gaps, fit }) {
        row->addWidget(button);
    }
    m_named->setObjectName(QStringLiteral("m_named"));
    m_named->setTextFormat(Qt::PlainText);
    // Long names take no room from the page.
    m_named->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    row->addWidget(m_named, 1);

    connect(sphere, &QToolButton::toggled, this,
            [this](bool on) { m_view->setMode(on ? ViewMode::Sphere : ViewMode::Flat); });
    connect(m_links, &QToolButton::toggled, m_view, &ShootView::setLinksShown);
    connect(m_gaps, &QToolButton::toggled, this, [this](bool on) {
        m_view->setGapsShown(on);
        tell({});
    });
    connect(fit, &QToolButton::clicked, m_view, &ShootView::fit);
    connect(m_view, &ShootView::named, this, &ShootPanel::tell);
    connect(m_view, &ShootView::photoClicked, this, &ShootPanel::photoClicked);
}

QToolButton *ShootPanel::addTool(const QString &name, const QString &text, const QString &tip)
{
    auto *button = new QToolButton(this);
    button->setObjectName(name);
    button->setText(text);
    button->setToolTip(tip);
    button->setAccessibleName(text);
    button->setAccessibleDescription(tip);
    button->setFocusPolicy(Qt::StrongFocus);
    return button;
}

void ShootPanel::setPhotoSource(const PhotoSource &source)
{
    m_view->setPhotoSource(source);
}

void ShootPanel::show(const Panorama &panorama)
{
    present(panorama.positions.size(), [panorama] { return sceneOf(panorama); });
}

void ShootPanel::showAligned(const PtoFile &project)
{
    present(project.images().size(), [project] { return sceneOf(project); });
}

void ShootPanel::clear()
{
    m_maker->stop();
    showScene({});
}

void ShootPanel::present(int positions, const std::function<ShootScene()> &make)
{
    constexpr int kMostAtOnce = 500; // a few milliseconds
    clear();
    if (positions <= kMostAtOnce) {
        showScene(make());
        return;
    }
    m_maker->start([this, make](const JobWatch &) -> std::function<void()> {
        auto scene = std::make_shared<ShootScene>(make());
        return [this, scene] { showScene(std::move(*scene)); };
    });
}

void ShootPanel::showScene(ShootScene scene)
{
    m_view->showScene(std::move(scene));
    m_view->setGapsShown(m_gaps->isChecked());
    tell({});
}

void ShootPanel::tell(const QString &named)
{
    const ShootScene &scene = m_view->scene();
    QString text = named;
    if (text.isEmpty() && scene.assumesFocal) {
        text = tr("The focal length is not known: photos are drawn as by 50 mm");
    } else if (text.isEmpty() && m_gaps->isChecked() && m_view->gapCount() == 0) {
        text = tr("No gaps");
    } else if (text.isEmpty()) {
        const auto lone = std::count_if(scene.frames.cbegin(), scene.frames.cend(),
                                        [](const ShootFrame &frame) { return !frame.isLinked; });
        text = lone == 0 ? QString() : tr("Linked to no other photo: %1").arg(lone);
    }
    m_named->setText(text);
    m_named->setToolTip(text);
}

} // namespace PanoHost
