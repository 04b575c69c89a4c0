// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/gui/shootdesk.h"

#include "host/gui/pagekeeper.h"
#include "host/gui/shootstrip.h"
#include "host/model/commanderror.h"
#include "host/model/latestjob.h"

#include <QAbstractButton>
#include <QFileDialog>
#include <QFileInfo>
#include <QMessageBox>
#include <QSet>

#include <algorithm>
#include <cmath>
#include <tuple>

namespace PanoHost
{

namespace
{

QString lensGroup()
{
    return QStringLiteral("panohost/lenses");
}

bool isSame(const ImportRequest &one, const ImportRequest &other)
{
    const auto grid = [](const ImportRequest &request) {
        const GridChoice choice = request.grid.value_or(GridChoice());
        return std::tuple(choice.rows, choice.bracketCount, choice.ignoredCount);
    };
    return one.head == other.head && one.record == other.record && one.photos == other.photos
        && one.clockwiseTurns == other.clockwiseTurns && one.invertPitch == other.invertPitch
        && grid(one) == grid(other) && one.focal35mm == other.focal35mm;
}

QString shotText(const NotedShot &shot, int number)
{
    return ShootDesk::tr("shot %1: yaw %2, pitch %3")
        .arg(QString::number(number + 1), QString::number(shot.yawDegrees, 'g', 6),
             QString::number(shot.pitchDegrees, 'g', 6));
}

} // namespace

ShootDesk::ShootDesk(PanoHostApplication &app, ShootStrip *strip, QWidget *window)
    : QObject(window)
    , m_app(app)
    , m_strip(strip)
    , m_window(window)
    , m_looking(new LatestJob(this))
{
    m_soon.setSingleShot(true);
    connect(&m_soon, &QTimer::timeout, this, &ShootDesk::lookNow);
    connect(strip, &ShootStrip::wanted, this, &ShootDesk::act);
    connect(strip, &ShootStrip::focalEntered, this, &ShootDesk::enterFocal);
}

void ShootDesk::setPage(PageKeeper *page)
{
    if (page != m_page) {
        m_page = page;
        m_request = {};
        m_report.reset();
        m_rememberedFocal = 0.0;
        m_looking->stop();
    }
    lookNow();
}

void ShootDesk::lookNow()
{
    if (m_page == nullptr) {
        return;
    }
    m_page->pageChanged();
    const ImportRequest request = m_page->request();
    if (!isSame(request, m_request)) {
        m_request = request;
        m_report.reset();
        m_looking->start([this, request](const JobWatch &watch) -> std::function<void()> {
            auto report = std::make_shared<const ShootReport>(reportOn(m_app, request, watch));
            return [this, report] { take(report); };
        });
    }
    tell();
}

void ShootDesk::take(const std::shared_ptr<const ShootReport> &report)
{
    m_report = report;
    const QVector<PhotoInfo> &photos = report->photos;
    if (m_page != nullptr && !photos.isEmpty() && !(report->lens.focal35mm > 0.0)
        && !(report->summary.focal35mm > 0.0) && !(m_page->focal35mm() > 0.0)) {
        m_rememberedFocal = m_app.ReadSetting(lensGroup(), lensKey(photos.first()), 0.0).toDouble();
        if (m_rememberedFocal > 0.0) {
            m_page->setFocal35mm(m_rememberedFocal);
        }
    }
    tell();
    Q_EMIT looked();
}

QStringList ShootDesk::remarks() const
{
    if (m_page == nullptr || m_page->isFitted() || m_report == nullptr) {
        return {};
    }
    if (m_report->fitted) {
        QStringList texts{ tr("The photos do not stand at their shots: go back, and press Fix.") };
        for (const Finding &finding : m_report->fitted->findings) {
            if (finding.kind == Finding::Kind::Trouble && finding.topic != QLatin1String("bad")) {
                texts += finding.text;
            }
        }
        return texts;
    }
    return m_report->refusal ? QStringList(windowText(*m_report->refusal)) : QStringList();
}

void ShootDesk::tell()
{
    if (m_page == nullptr) {
        return;
    }
    PageState state;
    state.isComplete = m_page->page()->isComplete();
    state.isReading = m_page->isReading();
    state.given = m_page->photos().size();
    state.record = m_page->record();
    state.isFitted = m_page->isFitted();
    state.otherRecords = m_page->otherRecords();
    state.own = m_page->own();
    state.report = m_report.get();
    const double recorded = m_report == nullptr ? 0.0 : m_report->summary.focal35mm;
    constexpr double kSame = 0.001; // the field of a page has so many digits
    if (std::abs(m_page->focal35mm() - recorded) > kSame) {
        state.wishedFocal35mm = m_page->focal35mm();
        state.isWishRemembered = state.wishedFocal35mm == m_rememberedFocal;
    }
    m_strip->show(StripTexts(m_page->head(), state).rows(), m_page->focal35mm());
}

void ShootDesk::enterFocal(double focal35mm)
{
    m_page->setFocal35mm(focal35mm);
    m_rememberedFocal = 0.0;
    rememberFocal();
    look();
}

void ShootDesk::rememberFocal()
{
    if (m_page != nullptr && m_report != nullptr && !m_report->photos.isEmpty()
        && !(m_report->lens.focal35mm > 0.0) && m_page->focal35mm() > 0.0) {
        m_app.WriteSetting(lensGroup(), lensKey(m_report->photos.first()), m_page->focal35mm());
    }
}

void ShootDesk::act(StripAction action, const StripRow &row)
{
    try {
        switch (action) {
        case StripAction::ChooseRecord:
            press("m_pbSelectConfigFile");
            break;
        case StripAction::ChoosePhotos:
            press("m_pbSelectImages");
            break;
        case StripAction::RemovePhotos:
            giveWithout(row.files);
            break;
        case StripAction::ReplacePhotos:
            replace(row.files);
            break;
        case StripAction::FitPhotos:
            if (m_report != nullptr && m_report->fitted) {
                m_page->give(*m_report->fitted);
            }
            break;
        case StripAction::SwitchHead:
            if (m_report != nullptr && m_report->otherHead != nullptr) {
                Q_EMIT switchWanted(m_report->otherHead);
            }
            break;
        case StripAction::ShowShots:
            showShots(row);
            break;
        case StripAction::EnterFocal:
            break;
        }
    } catch (const CommandError &error) {
        Q_EMIT failed(error.failure().text());
    }
    look();
}

void ShootDesk::press(const char *button)
{
    if (auto *found = m_page->page()->findChild<QAbstractButton *>(QLatin1String(button))) {
        found->click();
    }
}

void ShootDesk::giveWithout(const QStringList &files)
{
    const QSet<QString> gone(files.begin(), files.end());
    QStringList photos;
    for (const QString &photo : m_page->photos()) {
        if (!gone.contains(photo)) {
            photos += photo;
        }
    }
    if (photos.isEmpty()) {
        press("m_pbSelectImages"); // others, then
        return;
    }
    m_page->give(photos);
}

/** Those for which the user chooses no other file stay. */
void ShootDesk::replace(const QStringList &files)
{
    QStringList photos = m_page->photos();
    for (const QString &file : files) {
        QFileDialog dialog(m_window,
                           tr("Another file in place of %1").arg(QFileInfo(file).fileName()),
                           QFileInfo(file).absolutePath());
        dialog.setFileMode(QFileDialog::ExistingFile);
        dialog.setOption(QFileDialog::DontUseNativeDialog,
                         !m_app.UIInstances()->settings->useSystemFileDialog);
        if (dialog.exec() != QDialog::Accepted) {
            break;
        }
        const QString other = dialog.selectedFiles().value(0);
        photos.removeAll(other);
        std::replace(photos.begin(), photos.end(), file, other);
    }
    if (photos != m_page->photos()) {
        photos.sort(Qt::CaseSensitive);
        m_page->give(photos);
    }
}

void ShootDesk::showShots(const StripRow &row)
{
    QStringList lines;
    for (const int shot : row.shots) {
        if (m_report != nullptr && shot < m_report->shots.size()) {
            lines += shotText(m_report->shots.at(shot), shot);
        }
    }
    QMessageBox box(QMessageBox::Information, tr("Shots without a photo"),
                    tr("Take these shots again if you can. The panorama is made without them "
                       "otherwise."),
                    QMessageBox::Ok, m_window);
    box.setTextFormat(Qt::PlainText);
    box.setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    box.setDetailedText(lines.join(QLatin1Char('\n')));
    box.exec();
}

} // namespace PanoHost
