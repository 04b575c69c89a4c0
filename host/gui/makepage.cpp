// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/gui/makepage.h"

#include "host/gui/maketexts.h"
#include "host/gui/pictureview.h"
#include "host/gui/preferences.h"
#include "host/import/proposedplace.h"
#include "host/make/rawconverter.h"
#include "host/model/displayname.h"
#include "host/model/latestjob.h"
#include "host/model/panoramajson.h"
#include "host/stitch/panoramastitch.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDesktopServices>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QProcess>
#include <QProgressBar>
#include <QPushButton>
#include <QStackedWidget>
#include <QStandardPaths>
#include <QStyle>
#include <QUrl>
#include <QVBoxLayout>

#include <algorithm>
#include <utility>

namespace PanoHost
{

namespace
{

/** A button or field with the name by which it is found. */
template <typename Widget> Widget *named(Widget *widget, const char *name)
{
    widget->setObjectName(QLatin1String(name));
    return widget;
}

/** The first converter of those that are known that is installed here; empty: none is. */
QString installedRawConverter()
{
    for (const char *program : { "dcraw_emu", "dcraw", "darktable-cli", "rawtherapee-cli" }) {
        if (!QStandardPaths::findExecutable(QLatin1String(program)).isEmpty()) {
            return QLatin1String(program);
        }
    }
    return {};
}

} // namespace

MakePage::MakePage(PanoHostApplication &app, MakeSteps steps, QWidget *parent)
    : QWizardPage(parent)
    , m_app(app)
    , m_steps(std::move(steps))
    , m_runner(new MakeRunner(m_steps, this))
    , m_estimator(new LatestJob(this))
{
    setTitle(tr("Make the panorama"));
    setSubTitle(tr("Every photo is put where it belongs, and all are joined to one picture."));
    createWidgets();
    connect(m_runner, &MakeRunner::toldMore, this, &MakePage::showTold);
    connect(m_runner, &MakeRunner::finished, this, &MakePage::showMade);
}

MakePage::~MakePage() = default;

void MakePage::createWidgets()
{
    m_settings = createSettings();
    m_make = named(new QPushButton, "m_make");
    m_progress = named(new QProgressBar, "m_makeProgress");
    m_progress->setAccessibleName(tr("Progress"));
    m_progress->setRange(0, 1);
    m_showLog = named(new QPushButton(tr("&Log")), "m_showLog");
    m_showLog->setCheckable(true);
    m_stateIcon = new QLabel;
    m_state = named(new QLabel, "m_makeState");
    m_state->setTextFormat(Qt::PlainText);
    m_state->setWordWrap(true);
    m_log = named(new QPlainTextEdit, "m_makeLog");
    m_log->setReadOnly(true);
    m_log->setAccessibleName(tr("Log"));
    m_log->setLineWrapMode(QPlainTextEdit::WidgetWidth);
    m_picture = named(new PictureView, "m_madePicture");
    m_shown = new QStackedWidget;
    m_shown->addWidget(m_log);
    m_shown->addWidget(m_picture);
    connect(m_make, &QPushButton::clicked, this, &MakePage::startOrStop);
    connect(m_showLog, &QPushButton::toggled, this, [this](bool shows) {
        m_shown->setCurrentWidget(shows || !hasMade() ? static_cast<QWidget *>(m_log) : m_picture);
    });

    m_openFolder = named(new QPushButton(tr("Show in fol&der")), "m_openFolder");
    m_openBrowser = named(new QPushButton(tr("Open &in browser")), "m_openBrowser");
    m_openHugin = named(new QPushButton(tr("Open in H&ugin")), "m_openMadeInHugin");
    m_again = named(new QPushButton(tr("S&ettings")), "m_makeAgain");
    m_again->setToolTip(tr("Make it again, in another size or as other files."));
    connect(m_again, &QPushButton::clicked, this, [this] {
        m_made = {};
        showRunning();
        estimate();
        m_make->setFocus();
    });
    connect(m_openFolder, &QPushButton::clicked, this,
            [this] { open(QFileInfo(m_made.paths.value(0)).absolutePath()); });
    connect(m_openBrowser, &QPushButton::clicked, this, [this] {
        for (const QString &path : qAsConst(m_made.paths)) {
            if (path.endsWith(QLatin1String(".html"))) {
                open(path);
                return;
            }
        }
    });
    connect(m_openHugin, &QPushButton::clicked, this, [this] {
        if (!QProcess::startDetached(QStringLiteral("hugin"), { m_made.project })) {
            showState(tr("Hugin could not be started. Is it installed?"), true);
        }
    });

    auto *runRow = new QHBoxLayout;
    runRow->addWidget(m_make);
    runRow->addWidget(m_progress, 1);
    runRow->addStretch();
    auto *stateRow = new QHBoxLayout;
    stateRow->addWidget(m_stateIcon, 0, Qt::AlignTop);
    stateRow->addWidget(m_state, 1);
    m_results = new QWidget;
    auto *resultRow = new QHBoxLayout(m_results);
    resultRow->setContentsMargins(0, 0, 0, 0);
    for (QPushButton *button : { m_openFolder, m_openBrowser, m_openHugin, m_again }) {
        resultRow->addWidget(button);
    }
    resultRow->addStretch();
    resultRow->addWidget(m_showLog);
    auto *layout = new QVBoxLayout(this);
    layout->addWidget(m_settings);
    layout->addLayout(runRow);
    layout->addLayout(stateRow);
    layout->addWidget(m_shown, 1);
    layout->addWidget(m_results);
    m_rest = new QWidget; // takes the room while nothing is shown
    layout->addWidget(m_rest, 1);
}

QWidget *MakePage::createSettings()
{
    m_path = named(new QLineEdit, "m_makePath");
    auto *change = named(new QPushButton(tr("&Change...")), "m_changePath");
    connect(change, &QPushButton::clicked, this, &MakePage::askForPath);
    m_size = named(new QComboBox, "m_makeSize");
    m_size->addItem(tr("As sharp as the photos"), 100);
    m_size->addItem(tr("Half as wide"), 50);
    m_size->addItem(tr("A quarter as wide: a quick look"), 25);
    connect(m_size, QOverload<int>::of(&QComboBox::currentIndexChanged), this, &MakePage::estimate);
    m_output = named(new QComboBox, "m_makeOutput");
    m_output->addItem(tr("Fused: shows lights and shadows"),
                      QVariant::fromValue(static_cast<int>(StitchOutput::Fused)));
    m_output->addItem(tr("The reference exposure only"),
                      QVariant::fromValue(static_cast<int>(StitchOutput::Ldr)));
    m_output->addItem(tr("The light itself (HDR)"),
                      QVariant::fromValue(static_cast<int>(StitchOutput::Hdr)));
    connect(m_output, QOverload<int>::of(&QComboBox::currentIndexChanged), this,
            &MakePage::estimate);
    m_webPage = named(new QCheckBox(tr("A pa&ge that opens in any browser")), "m_makeWebPage");
    m_webPage->setChecked(true);
    m_zoomFolder = named(new QCheckBox(tr("A folder to &zoom into, of any size")), "m_makeZoom");
    m_trust = named(new QCheckBox(tr("&Trust the head: skip the alignment")), "m_trustHead");
    m_trust->setToolTip(tr("Photos stay at the angles that the head has recorded. Quicker, and "
                           "right where the photos show nothing to go by."));

    auto *pathRow = new QHBoxLayout;
    pathRow->addWidget(m_path, 1);
    pathRow->addWidget(change);
    auto *settings = new QWidget;
    auto *form = new QFormLayout(settings);
    form->setContentsMargins(0, 0, 0, 0);
    form->addRow(tr("&Picture:"), pathRow);
    qobject_cast<QLabel *>(form->labelForField(pathRow))->setBuddy(m_path);
    form->addRow(tr("&Size:"), m_size);
    m_outputLabel = new QLabel(tr("B&rackets:"));
    m_outputLabel->setBuddy(m_output);
    form->addRow(m_outputLabel, m_output);
    form->addRow(tr("Also:"), m_webPage);
    form->addRow(QString(), m_zoomFolder);
    form->addRow(tr("Angles:"), m_trust);
    return settings;
}

void MakePage::take(const Result<Panorama> &panorama)
{
    const QByteArray identity = panorama ? identityOf(panorama.value()) : QByteArray();
    if (identity != m_identity || !panorama) {
        m_identity = identity;
        m_panorama.reset();
        m_made = {};
        m_log->clear();
        m_progress->setValue(0);
        if (panorama) {
            m_panorama = panorama.value();
            offerSettings();
        }
    }
    showRunning();
    estimate();
    // Enter starts; the wizard has given the focus to somebody else.
    QMetaObject::invokeMethod(m_make, QOverload<>::of(&QWidget::setFocus), Qt::QueuedConnection);
}

void MakePage::offerSettings()
{
    const QDir folder(proposedFolder(*m_panorama));
    m_path->setText(QDir::toNativeSeparators(
        folder.filePath(proposedName(*m_panorama) + QStringLiteral(".jpg"))));
    const int renderMode = m_panorama->description.renderMode;
    const bool brackets = hasBrackets(*m_panorama);
    const StitchOutput usual = outputFor({}, renderMode, brackets);
    m_output->setCurrentIndex(
        m_output->findData(static_cast<int>(brackets ? usual : StitchOutput::Ldr)));
    m_output->setVisible(brackets);
    m_outputLabel->setVisible(brackets);
    m_trust->setChecked(m_panorama->description.skipOptimization);
}

bool MakePage::hasMade(const Panorama &panorama) const
{
    return hasMade() && identityOf(panorama) == m_identity;
}

void MakePage::cleanupPage()
{
    m_estimator->stop();
    m_runner->stop();
}

QString MakePage::path() const
{
    QString path = QDir::fromNativeSeparators(m_path->text().trimmed());
    const QString suffix = QFileInfo(path).suffix().toLower();
    const QStringList known{ QStringLiteral("jpg"), QStringLiteral("jpeg"), QStringLiteral("tif"),
                             QStringLiteral("tiff") };
    if (!path.isEmpty() && !known.contains(suffix)) {
        path += QStringLiteral(".jpg");
    }
    return QFileInfo(path).absoluteFilePath();
}

void MakePage::askForPath()
{
    QFileDialog dialog(this, tr("Where the panorama goes"), QFileInfo(path()).absolutePath(),
                       tr("Pictures (*.jpg *.tif)"));
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setDefaultSuffix(QStringLiteral("jpg"));
    dialog.selectFile(QFileInfo(path()).fileName());
    dialog.setOption(QFileDialog::DontConfirmOverwrite, false);
    dialog.setOption(QFileDialog::DontUseNativeDialog,
                     !m_app.UIInstances()->settings->useSystemFileDialog);
    if (dialog.exec() == QDialog::Accepted) {
        m_path->setText(QDir::toNativeSeparators(dialog.selectedFiles().value(0)));
    }
}

MakeRequest MakePage::request() const
{
    MakeRequest request;
    request.imported = m_panorama;
    request.imported->description.skipOptimization = m_trust->isChecked();
    if (rawCount(*m_panorama) > 0) {
        request.rawConverter = installedRawConverter();
    }
    PictureWishes &picture = request.picture;
    picture.path = path();
    const int percent = m_size->currentData().toInt();
    constexpr int kAll = 100;
    if (percent < kAll) {
        picture.stitch.size = { StitchSize::Unit::Percent, static_cast<double>(percent) };
    }
    if (hasBrackets(*m_panorama)) {
        picture.output = static_cast<StitchOutput>(m_output->currentData().toInt());
    }
    picture.kinds += Delivery::Picture;
    if (m_webPage->isChecked()) {
        picture.kinds += Delivery::Page;
    }
    if (m_zoomFolder->isChecked()) {
        picture.kinds += Delivery::Zoom;
    }
    if (picture.output == StitchOutput::Hdr) {
        picture.kinds += Delivery::Radiance;
    }
    return request;
}

/** Says what it takes, before anybody waits for it. */
void MakePage::estimate()
{
    if (!m_panorama || isRunning() || hasMade()) {
        return;
    }
    if (rawCount(*m_panorama) > 0 && installedRawConverter().isEmpty()) {
        showState(tr("Photos are RAW files, and no program is installed that develops them. "
                     "Install libraw-bin, dcraw, darktable or rawtherapee, or take the JPEGs of "
                     "these photos."),
                  true);
        m_make->setEnabled(false);
        return;
    }
    showState(tr("Estimating..."), false);
    m_estimator->start([this, needsOf = m_steps.needs,
                        request = request()](const JobWatch &) -> std::function<void()> {
        PtoOptions options;
        options.projectFolder = QFileInfo(request.picture.path).absolutePath();
        const Result<PtoFile> project = projectOf(*request.imported, options);
        StitchOptions stitch = request.picture.stitch;
        stitch.output = request.picture.output.value_or(StitchOutput::Ldr);
        const Result<StitchNeeds> needs
            = project ? needsOf(project.value(), stitch) : project.error();
        return [this, needs] {
            needs ? showState(needsText(needs.value(), Preferences::usesInches(m_app)), false)
                  : showState(inWindow(needs.error().text()), true);
        };
    });
}

void MakePage::startOrStop()
{
    if (isRunning()) {
        m_isStopping = true;
        m_make->setEnabled(false);
        showState(tr("Stopping..."), false);
        m_runner->stop();
        return;
    }
    if (!m_panorama) {
        return;
    }
    m_estimator->stop();
    m_made = {};
    m_log->clear();
    m_showLog->setChecked(false);
    const MakeRequest wanted = request();
    QDir().mkpath(QFileInfo(wanted.picture.path).absolutePath());
    m_runner->start(wanted);
    showState(tr("Starting..."), false);
    showRunning();
    Q_EMIT completeChanged();
}

/** Which controls there are: before, while and after. */
void MakePage::showRunning()
{
    const bool runs = isRunning();
    m_isStopping = m_isStopping && runs;
    m_settings->setEnabled(!runs);
    m_make->setEnabled(!m_isStopping && m_panorama.has_value());
    m_make->setText(runs ? tr("St&op") : tr("&Make panorama"));
    m_make->setDefault(!runs && !hasMade());
    m_results->setVisible(hasMade());
    m_settings->setVisible(!hasMade());
    m_make->setVisible(!hasMade());
    m_progress->setVisible(runs);
    const bool showsText = !m_log->document()->isEmpty();
    m_shown->setVisible(runs || hasMade() || showsText);
    m_rest->setVisible(!m_shown->isVisibleTo(this));
    if (!hasMade()) {
        m_shown->setCurrentWidget(m_log);
    }
}

void MakePage::showTold()
{
    const MakeRunner::Told told = m_runner->told();
    for (const MakeRunner::Line &line : told.lines) {
        m_log->appendPlainText(line.note == JobWatch::Note::Warning
                                   ? tr("Warning: %1").arg(inWindow(line.text))
                                   : inWindow(line.text));
    }
    if (!isRunning() || m_isStopping || told.text.isEmpty()) {
        return;
    }
    m_progress->setRange(0, told.pace.total);
    m_progress->setValue(told.pace.done);
    QString text = stepText(told.text);
    if (const auto left = told.pace.left()) {
        text += QStringLiteral(", ") + timeLeftText(*left);
    }
    showState(text, false);
}

void MakePage::showMade(const Result<MadePanorama> &made)
{
    const bool isStopped = !made && made.error().code == ExitCode::Interrupted;
    m_progress->setValue(0);
    if (made) {
        m_made = made.value();
        m_picture->setVisible(!m_made.picture.isNull());
        m_picture->setPicture(m_made.picture);
        m_shown->setCurrentWidget(m_made.picture.isNull() ? static_cast<QWidget *>(m_log)
                                                          : m_picture);
        QStringList names;
        for (const QString &path : qAsConst(m_made.paths)) {
            names += QDir::toNativeSeparators(path);
        }
        showState(tr("Done:") + QLatin1Char('\n') + names.join(QLatin1Char('\n')), false);
        const bool hasPage = std::any_of(names.begin(), names.end(), [](const QString &name) {
            return name.endsWith(QLatin1String(".html"));
        });
        m_openBrowser->setVisible(hasPage);
        m_openHugin->setVisible(
            !m_made.project.isEmpty()
            && !QStandardPaths::findExecutable(QStringLiteral("hugin")).isEmpty());
    } else if (isStopped) {
        showState(tr("Stopped. What was finished is kept: Make panorama goes on from there."),
                  false);
    } else {
        showState(inWindow(made.error().text()), true);
    }
    showRunning();
    (made ? m_openFolder : m_make)->setFocus();
    Q_EMIT completeChanged();
    if (made) {
        Q_EMIT this->made(m_made);
    }
}

void MakePage::showState(const QString &text, bool isTrouble)
{
    m_state->setText(text);
    const int side = style()->pixelMetric(QStyle::PM_SmallIconSize);
    m_stateIcon->setPixmap(style()->standardIcon(QStyle::SP_MessageBoxWarning).pixmap(side, side));
    m_stateIcon->setVisible(isTrouble);
}

void MakePage::open(const QString &path)
{
    if (!QDesktopServices::openUrl(QUrl::fromLocalFile(path))) {
        showState(tr("No program is set up here that opens %1.").arg(displayName(path)), true);
    }
}

} // namespace PanoHost
