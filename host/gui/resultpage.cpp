// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/gui/resultpage.h"

#include "host/gui/importwizard.h"
#include "host/gui/positionstable.h"
#include "host/gui/resulttexts.h"
#include "host/gui/savedlist.h"
#include "host/import/proposedplace.h"
#include "host/import/striprows.h"
#include "host/model/panoramajson.h"
#include "host/model/ptoproject.h"
#include "host/model/safefile.h"
#include "host/view/shootpanel.h"
#include "host/view/shootview.h"

#include <QDir>
#include <QEventLoop>
#include <QFileDialog>
#include <QFileInfo>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QMessageBox>
#include <QProcess>
#include <QPushButton>
#include <QScrollArea>
#include <QShowEvent>
#include <QStandardPaths>
#include <QStyle>
#include <QTabWidget>
#include <QThread>
#include <QVBoxLayout>

#include <algorithm>
#include <future>
#include <memory>

namespace PanoHost
{

namespace
{

/** Has \p work done on a thread of its own, while the window is still painted and takes nothing
 * else: thousands of photos take a while. */
template <typename Work> auto aside(const Work &work)
{
    std::packaged_task<decltype(work())()> task(work);
    auto answer = task.get_future();
    const std::unique_ptr<QThread> thread(QThread::create([&task] { task(); }));
    QEventLoop loop;
    QObject::connect(thread.get(), &QThread::finished, &loop, &QEventLoop::quit);
    thread->start();
    loop.exec(QEventLoop::ExcludeUserInputEvents);
    thread->wait();
    return answer.get();
}

/** Each line with its title before it. */
QWidget *formOf(const QVector<SummaryLine> &lines)
{
    auto *content = new QWidget;
    auto *form = new QFormLayout(content);
    form->setLabelAlignment(Qt::AlignLeading);
    for (const SummaryLine &line : lines) {
        QStringList parts;
        if (!line.value.isEmpty()) {
            parts += QStringLiteral("<b>%1</b>").arg(line.value.toHtmlEscaped());
        }
        if (!line.meaning.isEmpty()) {
            parts += line.meaning.toHtmlEscaped();
        }
        auto *text = new QLabel(parts.join(QStringLiteral(" &ndash; ")));
        text->setTextFormat(Qt::RichText);
        text->setWordWrap(true);
        auto *title = new QLabel(line.title);
        title->setAlignment(Qt::AlignLeading | Qt::AlignTop);
        for (QLabel *label : { title, text }) {
            label->setToolTip(line.tip);
            label->setAccessibleDescription(line.tip);
        }
        form->addRow(title, text);
    }
    return content;
}

/** What the program keeps of a photo that the import page has read; any thread. */
std::optional<PhotoReading> readingOf(PhotoReader &photos, const QString &path)
{
    const PhotoReader::Answer answer = photos.read(path);
    if (!answer) {
        return {};
    }
    return PhotoReading{ answer.value()->info(), answer.value()->keptThumbnail().picture() };
}

} // namespace

ResultPage::ResultPage(PanoHostApplication &app, QWidget *parent)
    : QWizardPage(parent)
    , m_app(app)
{
    setTitle(tr("The panorama"));
    setSubTitle(tr("Look whether the photos stand where they belong, then save the panorama."));
    setFinalPage(true); // making the picture may be left to others
    createWidgets();
}

void ResultPage::createWidgets()
{
    m_summary = new QLabel;
    m_summary->setObjectName(QStringLiteral("m_summary"));
    m_summary->setTextFormat(Qt::PlainText);
    m_summary->setWordWrap(true);
    QFont bold = m_summary->font();
    bold.setBold(true);
    m_summary->setFont(bold);
    m_summary->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    m_warningIcon = new QLabel;
    m_warnings = new QLabel;
    m_warnings->setObjectName(QStringLiteral("m_warnings"));
    m_warnings->setTextFormat(Qt::PlainText);
    m_warnings->setWordWrap(true);
    m_remarks = new QLabel;
    m_remarks->setObjectName(QStringLiteral("m_remarks"));
    m_remarks->setTextFormat(Qt::PlainText);
    m_remarks->setWordWrap(true);
    m_saved = new SavedList;
    m_saved->setObjectName(QStringLiteral("m_saved"));
    m_picture = new ShootPanel;
    m_picture->setObjectName(QStringLiteral("m_picture"));
    m_picture->setPhotoSource(
        [photos = &m_app.photos()](const QString &path) { return readingOf(*photos, path); });
    m_table = new PositionsTable;
    m_table->setObjectName(QStringLiteral("m_table"));
    m_views = new QTabWidget;
    m_views->setObjectName(QStringLiteral("m_views"));
    m_views->setAccessibleName(tr("Views of the panorama"));
    m_views->addTab(m_picture, tr("Pictu&re"));
    m_views->addTab(m_table, tr("P&ositions"));
    m_lines = new QScrollArea;
    m_lines->setObjectName(QStringLiteral("m_lines"));
    m_lines->setAccessibleName(tr("Summary"));
    m_lines->setWidgetResizable(true);
    m_lines->setFrameShape(QFrame::NoFrame);
    m_views->addTab(m_lines, tr("S&ummary"));
    m_enterFocal = new QPushButton(tr("Back to &enter it"));
    m_enterFocal->setObjectName(QStringLiteral("m_enterFocal"));
    m_saveProject = new QPushButton(tr("Save &project..."));
    m_saveProject->setObjectName(QStringLiteral("m_saveProject"));
    m_saveJson = new QPushButton(tr("Save &description..."));
    m_saveJson->setObjectName(QStringLiteral("m_saveJson"));
    m_saveTable = new QPushButton(tr("Save &table..."));
    m_saveTable->setObjectName(QStringLiteral("m_saveTable"));
    m_openHugin = new QPushButton(tr("Open in Hu&gin"));
    m_openHugin->setObjectName(QStringLiteral("m_openHugin"));
    connect(m_enterFocal, &QPushButton::clicked, this, [this] { wizard()->back(); });
    connect(m_saveProject, &QPushButton::clicked, this, &ResultPage::askForProject);
    connect(m_saveJson, &QPushButton::clicked, this, &ResultPage::askForJson);
    connect(m_saveTable, &QPushButton::clicked, this, &ResultPage::askForTable);
    connect(m_table, &PositionsTable::positionSelected, this, &ResultPage::positionSelected);
    connect(m_table, &PositionsTable::positionSelected, m_picture->view(), &ShootView::select);
    connect(m_picture, &ShootPanel::photoClicked, this, [this](int position) {
        m_table->selectPosition(position);
        Q_EMIT positionSelected(position);
    });
    connect(m_openHugin, &QPushButton::clicked, this, &ResultPage::openInHugin);

    auto *warningTexts = new QVBoxLayout;
    warningTexts->addWidget(m_remarks);
    warningTexts->addWidget(m_warnings);
    auto *warningRow = new QHBoxLayout;
    warningRow->addWidget(m_warningIcon, 0, Qt::AlignTop);
    warningRow->addLayout(warningTexts, 1);
    warningRow->addWidget(m_enterFocal, 0, Qt::AlignTop);
    auto *buttonRow = new QHBoxLayout;
    buttonRow->addWidget(m_saveProject);
    buttonRow->addWidget(m_saveJson);
    buttonRow->addWidget(m_saveTable);
    buttonRow->addWidget(m_openHugin);
    buttonRow->addStretch();
    auto *layout = new QVBoxLayout(this);
    layout->addWidget(m_summary);
    layout->addLayout(warningRow);
    layout->addWidget(m_views, 1);
    layout->addLayout(buttonRow);
    layout->addWidget(m_saved);
}

void ResultPage::initializePage()
{
    const auto *import = qobject_cast<const ImportWizard *>(wizard());
    m_folder.clear();
    m_openHugin->setVisible(!QStandardPaths::findExecutable(QStringLiteral("hugin")).isEmpty());
    showPanorama(import->panorama());
    recallFiles();
}

const QByteArray &ResultPage::identity()
{
    if (m_identity.isEmpty()) {
        m_identity = identityOf(*m_panorama);
    }
    return m_identity;
}

/** Whoever goes back and comes again with the same panorama has saved it already. */
void ResultPage::recallFiles()
{
    m_identity.clear();
    // It takes long of thousands of photos, and most users save once.
    m_files = m_panorama && !m_memory.isEmpty() ? m_memory.value(identity()) : SavedFiles();
    QStringList &paths = m_files.paths;
    paths.erase(std::remove_if(paths.begin(), paths.end(),
                               [](const QString &path) { return !QFileInfo::exists(path); }),
                paths.end());
    m_saved->clear();
    for (const QString &path : qAsConst(paths)) {
        m_saved->addFile(path);
    }
    if (m_files.project && !QFileInfo::exists(m_files.project->path)) {
        m_files.project.reset();
    }
    if (m_panorama) {
        m_panorama->project = m_files.project;
    }
    m_openHugin->setEnabled(m_files.project.has_value());
}

/** Else Help would have the focus, once Next is gone. */
void ResultPage::showEvent(QShowEvent *event)
{
    QWizardPage::showEvent(event);
    if (!event->spontaneous()) {
        m_views->setFocus();
    }
}

bool ResultPage::confirmUnsaved()
{
    const QMessageBox::StandardButton answer = QMessageBox::question(
        this, tr("Nothing saved"), tr("The panorama has not been saved. Go on all the same?"),
        QMessageBox::Save | QMessageBox::Discard | QMessageBox::Cancel, QMessageBox::Save);
    if (answer == QMessageBox::Save) {
        askForProject();
    }
    return answer == QMessageBox::Discard || !isUnsaved();
}

void ResultPage::showPanorama(const Result<Panorama> &panorama)
{
    m_panorama.reset();
    if (panorama) {
        m_panorama = panorama.value();
    }
    showTexts(panorama);
    const int iconSide = style()->pixelMetric(QStyle::PM_SmallIconSize);
    m_warningIcon->setPixmap(
        style()->standardIcon(QStyle::SP_MessageBoxWarning).pixmap(iconSide, iconSide));
    setRemarks({});
    m_picture->show(panorama ? panorama.value() : Panorama());
    m_table->setPanorama(panorama ? panorama.value() : Panorama());
    m_saveProject->setEnabled(panorama.ok());
    m_saveJson->setEnabled(panorama.ok());
    m_saveTable->setEnabled(panorama.ok());
}

void ResultPage::showTexts(const Result<Panorama> &panorama)
{
    constexpr int kMostWarnings = 3; // more would take the picture's room
    QStringList warnings;
    QVector<SummaryLine> lines;
    if (panorama) {
        warnings = ResultTexts::warnings(panorama.value());
        lines = ResultTexts::lines(panorama.value());
        m_summary->setText(ResultTexts::headline(panorama.value()));
    } else {
        warnings += windowText(panorama.error());
        m_summary->setText(tr("Nothing that can be saved."));
    }
    if (warnings.size() > kMostWarnings) {
        const QStringList others = warnings.mid(kMostWarnings);
        for (const QString &other : others) {
            lines += { tr("To look at"), {}, other, {} };
        }
        warnings = warnings.mid(0, kMostWarnings);
        warnings += others.size() == 1 ? tr("One more stands in the summary.")
                                       : tr("%1 more stand in the summary.").arg(others.size());
    }
    m_warnings->setText(warnings.join(QLatin1Char('\n')));
    m_lines->setWidget(formOf(lines));
    m_enterFocal->setVisible(panorama && ResultTexts::needsFocal(panorama.value()));
}

void ResultPage::setRemarks(const QStringList &remarks)
{
    m_remarks->setText(remarks.join(QLatin1Char('\n')));
    m_remarks->setVisible(!remarks.isEmpty());
    m_warnings->setVisible(!m_warnings->text().isEmpty());
    m_warningIcon->setVisible(!remarks.isEmpty() || !m_warnings->text().isEmpty());
}

bool ResultPage::saveProject(const QString &path)
{
    if (!m_panorama) {
        return false;
    }
    if (ResultTexts::needsFocal(*m_panorama)) {
        m_saved->addProblem(tr("The project was not saved: the focal length is not known. Go back "
                               "and enter it in the line below the page."));
        return false;
    }
    const Result<PtoProject> project
        = aside([this, &path] { return writePtoProject(*m_panorama, path); });
    if (!project) {
        showSaved(project.error(), path);
        return false;
    }
    m_files.project = ProjectReference{ path, project.value().yawCentreDegrees };
    m_panorama->project = m_files.project;
    m_openHugin->setEnabled(true);
    showSaved(path, path);
    return true;
}

bool ResultPage::saveJson(const QString &path)
{
    if (!m_panorama) {
        return false;
    }
    const Result<QString> written
        = aside([this, &path] { return writePanoramaJson(*m_panorama, path); });
    showSaved(written, path);
    return written.ok();
}

bool ResultPage::saveTable(const QString &path)
{
    if (!m_panorama) {
        return false;
    }
    const Result<QString> written = writeFileAtomically(path, m_table->csv());
    showSaved(written, path);
    return written.ok();
}

void ResultPage::setAlignment(const Alignment &alignment, const PhotoResiduals &residuals)
{
    m_table->setAlignment(alignment, residuals);
    m_picture->showAligned(alignment.project);
}

void ResultPage::selectPosition(int position)
{
    m_table->selectPosition(position);
    m_picture->view()->select(position);
}

void ResultPage::showSaved(const Result<QString> &saved, const QString &path)
{
    if (saved) {
        m_files.paths += path;
        m_memory.insert(aside([this] { return identity(); }), m_files);
        m_saved->addFile(path);
    } else {
        m_saved->addProblem(ResultTexts::savingProblem(saved.error(), path));
    }
}

void ResultPage::askForProject()
{
    askAndSave(tr("Save the project"), QStringLiteral("pto"), tr("Hugin projects (*.pto)"),
               &ResultPage::saveProject);
}

void ResultPage::askForJson()
{
    askAndSave(tr("Save the description"), QStringLiteral("json"), tr("Descriptions (*.json)"),
               &ResultPage::saveJson);
}

void ResultPage::askForTable()
{
    askAndSave(tr("Save the table"), QStringLiteral("csv"), tr("Comma-separated values (*.csv)"),
               &ResultPage::saveTable);
}

void ResultPage::askAndSave(const QString &caption, const QString &suffix, const QString &filter,
                            bool (ResultPage::*save)(const QString &))
{
    const QString folder = m_folder.isEmpty() ? proposedFolder(*m_panorama) : m_folder;
    // Dialogs open only in folders that are there.
    const bool isMade = !QFileInfo::exists(folder) && QDir().mkpath(folder);
    QFileDialog dialog(this, caption, folder, filter);
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setDefaultSuffix(suffix);
    dialog.selectFile(proposedName(*m_panorama) + QLatin1Char('.') + suffix);
    dialog.setOption(QFileDialog::DontUseNativeDialog,
                     !m_app.UIInstances()->settings->useSystemFileDialog);
    if (dialog.exec() == QDialog::Accepted) {
        const QString path = dialog.selectedFiles().value(0);
        if ((this->*save)(path)) {
            m_folder = QFileInfo(path).absolutePath();
        }
    }
    if (isMade) {
        QDir().rmdir(folder); // unless something is in it now
    }
}

void ResultPage::openInHugin()
{
    if (!QProcess::startDetached(QStringLiteral("hugin"), { m_files.project->path })) {
        m_saved->addProblem(tr("Hugin could not be started. Is it installed? Try to open the "
                               "saved project from Hugin itself."));
    }
}

} // namespace PanoHost
