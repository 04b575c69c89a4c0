// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/import/importjob.h"

#include "host/import/lenschoice.h"
#include "host/import/pagetime.h"
#include "host/model/commanderror.h"
#include "host/model/displayname.h"
#include "host/model/said.h"
#include "hostlink/xiabout.h"

#include <QFileInfo>
#include <QWizardPage>

namespace PanoHost
{

namespace
{

/** What the user is told of an import. Of one that changes something, all that led to it. Recorded
 * shots without a photo are named one by one, once it is known where they point. */
QStringList warningsOf(const QVector<Finding> &findings, bool isFitted, bool withMissing)
{
    static const QStringList kOfFit{ QStringLiteral("shots"), QStringLiteral("left"),
                                     QStringLiteral("clock") };
    QStringList warnings;
    for (const Finding &finding : findings) {
        const bool isMissing = finding.topic == QLatin1String("missing");
        if (isMissing ? withMissing
                      : finding.kind == Finding::Kind::Trouble
                    || (isFitted && kOfFit.contains(finding.topic))) {
            warnings += finding.text;
        }
    }
    return warnings;
}

} // namespace

ImportJob::ImportJob(PanoHostApplication &app, ImportRequest request, JobWatch watch)
    : m_app(app)
    , m_request(std::move(request))
    , m_watch(std::move(watch))
    , m_check(m_app, m_request, m_watch)
    , m_names(m_app)
{
    m_app.photos().setReadsPictures(m_request.wantsLayout);
}

ImportJob::~ImportJob()
{
    m_app.photos().stop();
}

void ImportJob::checkInputs()
{
    m_check.require();
}

void ImportJob::examine()
{
    m_check.examine();
}

void ImportJob::preparePage()
{
    const ImportPlugin &plugin = openPlugin();
    plugin.page()->initializePage();
    m_page = std::make_unique<PageDriver>(plugin.page(), m_app, m_watch);
    if (!m_request.record.isEmpty()) {
        m_page->enterRecord(m_request.record);
    }
    m_page->choosePhotos(namesForPage());
    if (m_names.haveStandIns()) {
        // The page has remembered the place of the first one, which may be a stand-in's.
        m_app.SetLastPath(m_check.photos().first());
    }
    chooseLensFor(photoInfos());
    if (m_request.grid) {
        enterGrid(*m_page, *m_request.grid);
    }
    turnCamera();
    pressButtons();
}

const ImportPlugin &ImportJob::openPlugin()
{
    m_app.SetLastPath(m_dialogFolder.path());
    m_library = valueOrThrow(PluginLibrary::open(m_request.pluginPath));
    m_watch.note(JobWatch::Note::Detail, Said::tr("using %1").arg(m_library->path()));
    const QString head = m_request.head->name();
    const ImportPlugin *plugin = m_library->find(head);
    if (plugin == nullptr || plugin->page() == nullptr) {
        throw CommandError({ ExitCode::NoPlugin, m_library->path(),
                             Said::tr("has no import plug-in for %1").arg(head),
                             Said::tr("set --plugin to another library") });
    }
    m_source = plugin->source(m_request.record);
    return *plugin;
}

QStringList ImportJob::namesForPage()
{
    if (!m_check.fit()) {
        return m_names.of(m_check.photos());
    }
    const int levels
        = m_request.grid ? m_request.grid->bracketCount : m_check.record().bracketCount;
    return m_names.of(
        { *m_check.fit(), photoInfos(), levels, m_request.grid.has_value(), m_check.findings() },
        m_request.wantsLayout);
}

QVector<PhotoInfo> ImportJob::photoInfos() const
{
    QVector<PhotoInfo> infos;
    infos.reserve(m_check.photos().size());
    for (const QString &photo : m_check.photos()) {
        m_watch.check();
        infos += valueOrThrow(m_app.photoInfo(photo));
    }
    return infos;
}

void ImportJob::chooseLensFor(const QVector<PhotoInfo> &photos)
{
    const KnownLens recordFacts{ m_check.record().focal35mm, m_check.record().lens };
    const LensChoice choice = chooseLens(m_request, knownLensOf(photos), recordFacts);
    m_warnings += choice.warnings;
    if (!m_request.head->hasLens) {
        m_warnings += focalSpreadWarnings(m_request, photos);
        m_wishes.ignoreExifRotation = m_request.ignoreExifRotation;
        m_wishes.focal35mm = m_request.focal35mm;
        m_wishes.lens
            = m_request.lensSource == ValueSource::Given ? choice.lens : LensModel::NotChosen;
        return;
    }
    m_page->setNumber(QStringLiteral("m_spFocal"), choice.focal35mm);
    m_page->setIndex(QStringLiteral("m_cbLensType"), static_cast<int>(choice.lens));
}

void ImportJob::turnCamera()
{
    if (m_request.invertPitch) {
        m_page->click(QStringLiteral("m_pInverseCoordinates"));
    }
    const QString button
        = m_request.clockwiseTurns > 0 ? QStringLiteral("m_pbRot90") : QStringLiteral("m_pbRot270");
    for (int turn = std::abs(m_request.clockwiseTurns); turn > 0; --turn) {
        m_page->click(button);
    }
}

void ImportJob::pressButtons()
{
    for (const ButtonState &button : m_request.buttons) {
        m_page->setChecked(button.name, button.checked);
    }
}

QPixmap ImportJob::layout()
{
    return m_page->layout();
}

Panorama ImportJob::handOver()
{
    StructuredPanoramaProperties description = m_page->handOver();
    m_warnings
        += warningsOf(m_check.findings(), m_check.fit().has_value(), m_request.grid.has_value());
    if (m_check.fit()) {
        m_warnings += m_names.takeOutStandIns(description, m_wishes);
    }
    Panorama panorama = valueOrThrow(joinPanorama(
        description, m_source, [this](const QString &path) { return m_app.photoInfo(path); },
        m_wishes));
    panorama.warnings = m_warnings + panorama.warnings;
    for (const QString &warning : qAsConst(panorama.warnings)) {
        m_watch.note(JobWatch::Note::Warning, warning);
    }
    panorama.warnings
        = m_check.record().remarks + panorama.warnings; // those were said at the start
    return panorama;
}

namespace
{

/** From the page that the user has filled in. */
Result<Panorama> importFilled(PanoHostApplication &app, const FilledPage &filled)
{
    const int before = app.deliveryCount();
    const bool isAccepted = [&filled] {
        const PageTime working;
        return filled.page->validatePage();
    }();
    if (!isAccepted || app.deliveryCount() == before) {
        return Failure{
            ExitCode::InputRefused, Said::tr("photos"), Said::tr("the page refuses them"), {}
        };
    }
    StructuredPanoramaProperties description = filled.deliveries->take(filled.page, app.delivery());
    JoinWishes wishes = filled.wishes;
    QStringList warnings;
    if (filled.names != nullptr) {
        const FittedPhotos &fitted = filled.names->fitted();
        warnings = warningsOf(fitted.findings, true, fitted.isGrid)
            + filled.names->takeOutStandIns(description, wishes);
    }
    Result<Panorama> panorama = joinPanorama(
        description, filled.source, [&app](const QString &path) { return app.photoInfo(path); },
        wishes);
    if (panorama) {
        panorama.value().warnings = warnings + panorama.value().warnings;
    }
    return panorama;
}

} // namespace

Result<Panorama> importShoot(PanoHostApplication &app, const ImportRequest &request,
                             const JobWatch &watch, QImage *layout)
{
    if (request.filled) {
        return importFilled(app, *request.filled);
    }
    try {
        ImportRequest wanted = request;
        wanted.wantsLayout = layout != nullptr;
        ImportJob job(app, wanted, watch);
        job.checkInputs();
        job.preparePage();
        if (layout != nullptr) {
            *layout = job.layout().toImage();
        }
        return job.handOver();
    } catch (const CommandError &error) {
        return error.failure();
    }
}

} // namespace PanoHost
