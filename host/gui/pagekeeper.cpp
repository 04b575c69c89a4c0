// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/gui/pagekeeper.h"

#include "host/import/givenfiles.h"
#include "host/model/commanderror.h"
#include "host/model/displayname.h"

#include <QAbstractButton>
#include <QCheckBox>
#include <QComboBox>
#include <QDoubleSpinBox>
#include <QFileInfo>
#include <QLineEdit>
#include <QRadioButton>
#include <QScopedValueRollback>
#include <QSlider>
#include <QSpinBox>
#include <QThread>

#include <algorithm>
#include <iterator>

namespace PanoHost
{

namespace
{

// The buttons that turn what the record says.
const QString kTurnRight = QStringLiteral("m_pbRot90");
const QString kTurnLeft = QStringLiteral("m_pbRot270");
const QString kInvert = QStringLiteral("m_pInverseCoordinates");

/** The page's own field; null for heads whose page does not ask. */
QDoubleSpinBox *focalField(const QWizardPage *page)
{
    return page->findChild<QDoubleSpinBox *>(QStringLiteral("m_spFocal"));
}

int wholeNumber(const QWizardPage *page, const char *field, int otherwise)
{
    const auto *box = page->findChild<QSpinBox *>(QLatin1String(field));
    return box == nullptr ? otherwise : box->value();
}

/** The grid as it stands on the page. */
GridChoice gridOn(const QWizardPage *page)
{
    GridChoice grid;
    grid.rows = wholeNumber(page, "m_sbRow", 1);
    grid.bracketCount = wholeNumber(page, "m_sbBracket", 1);
    grid.ignoredCount = wholeNumber(page, "m_sbIgnore", 0);
    return grid;
}

/** A field that has a name and takes what the user enters. */
template <typename Field> QList<Field *> fieldsOf(const QWizardPage *page)
{
    QList<Field *> fields = page->findChildren<Field *>();
    fields.erase(std::remove_if(fields.begin(), fields.end(),
                                [](const Field *field) {
                                    return !field->objectName().startsWith(QLatin1String("m_"))
                                        || field->property("readOnly").toBool();
                                }),
                 fields.end());
    return fields;
}

} // namespace

PageKeeper::PageKeeper(QWizardPage *page, const HeadFacts &head, PanoHostApplication &app,
                       QObject *parent)
    : QObject(parent)
    , m_page(page)
    , m_head(head)
    , m_app(app)
{
    connect(page, &QWizardPage::completeChanged, this, &PageKeeper::changed);
    followFields();
}

PageKeeper::~PageKeeper() = default;

void PageKeeper::followFields()
{
    for (const QString &name : { kTurnRight, kTurnLeft, kInvert }) {
        if (const auto *button = m_page->findChild<QAbstractButton *>(name)) {
            connect(button, &QAbstractButton::clicked, this, [this, name] {
                pageChanged();
                m_turns += name;
            });
        }
    }
    for (const char *name : { "m_sbRow", "m_sbBracket", "m_sbIgnore" }) {
        if (const auto *box = m_page->findChild<QSpinBox *>(QLatin1String(name))) {
            connect(box, QOverload<int>::of(&QSpinBox::valueChanged), this, &PageKeeper::changed);
        }
    }
    if (const auto *focal = focalField(m_page)) {
        connect(focal, QOverload<double>::of(&QDoubleSpinBox::valueChanged), this,
                &PageKeeper::changed);
    }
}

QString PageKeeper::record() const
{
    return recordPath(m_page);
}

bool PageKeeper::isReading() const
{
    const QList<QThread *> readers = m_page->findChildren<QThread *>();
    return std::any_of(readers.begin(), readers.end(),
                       [](const QThread *reader) { return reader->isRunning(); });
}

ImportRequest PageKeeper::request() const
{
    ImportRequest request;
    request.head = &m_head;
    request.record = record();
    request.photos = m_photos;
    request.matchesPhotos = true;
    request.clockwiseTurns = m_turns.count(kTurnRight) - m_turns.count(kTurnLeft);
    request.invertPitch = m_turns.count(kInvert) % 2 == 1;
    if (m_head.isGrid()) {
        request.grid = gridOn(m_page);
    }
    if (m_focal35mm > 0.0) {
        request.focalSource = ValueSource::Given;
        request.focal35mm = m_focal35mm;
    }
    return request;
}

FilledPage PageKeeper::filled() const
{
    FilledPage filled;
    filled.page = m_page;
    filled.names = m_names.get();
    filled.wishes.focal35mm = m_focal35mm;
    return filled;
}

void PageKeeper::enterRecord(const QString &path)
{
    const JobWatch watch;
    PageDriver(m_page, m_app, watch).enterRecord(path);
}

void PageKeeper::offer(const QStringList &names)
{
    const QScopedValueRollback<bool> offering(m_isOffering, true);
    const JobWatch watch;
    PageDriver(m_page, m_app, watch).offerPhotos(names);
}

void PageKeeper::give(const QStringList &photos)
{
    // A file dialog does not take what is not there.
    QStringList there;
    std::copy_if(photos.begin(), photos.end(), std::back_inserter(there),
                 [](const QString &photo) { return QFileInfo::exists(photo); });
    if (there.isEmpty()) {
        throw inputRefused(displayName(photos.value(0)), QStringLiteral("no such photo"),
                           QStringLiteral("check the name"));
    }
    m_photos = photos;
    m_fitted.reset();
    m_names.reset();
    offer(there);
}

void PageKeeper::give(const FittedPhotos &fitted)
{
    const Fields entered = fields();
    m_names.reset(); // the application knows the names of one only
    m_names = std::make_unique<PageNames>(m_app);
    m_fitted = fitted;
    try {
        offer(m_names->of(fitted, true));
    } catch (const CommandError &) {
        m_names.reset();
        m_fitted.reset();
        throw;
    }
    if (m_names->haveStandIns()) {
        // The page has remembered the place of the first one, which may be a stand-in's.
        m_app.SetLastPath(fitted.photos.first().path);
    }
    if (fitted.isGrid) {
        setFields(entered); // new photos make the page guess the grid anew
    }
}

void PageKeeper::note(const QStringList &files)
{
    if (m_isOffering) {
        return;
    }
    QStringList photos;
    std::remove_copy_if(files.begin(), files.end(), std::back_inserter(photos),
                        [this](const QString &file) { return m_head.isRecord(file); });
    if (!photos.isEmpty()) {
        m_photos = photos;
        m_fitted.reset();
        m_names.reset();
    }
}

void PageKeeper::pageChanged()
{
    const auto *names = m_page->findChild<QLineEdit *>(QStringLiteral("m_leImage"));
    if (names != nullptr && names->text().isEmpty() && !m_isOffering) {
        m_photos.clear();
        m_own.clear();
        m_fitted.reset();
        m_names.reset();
    }
    if (record() != m_turnedRecord) {
        m_turnedRecord = record();
        m_turns.clear();
        m_otherRecords.clear();
    }
}

void PageKeeper::readingEnded()
{
    if (m_awaited) {
        setFields(*std::exchange(m_awaited, {}));
    }
}

void PageKeeper::keep()
{
    pageChanged();
    if (record().isEmpty() && m_photos.isEmpty()) {
        return;
    }
    m_kept = Kept{ record(), m_photos, m_fitted, m_turns, fields(), m_focal35mm };
    if (m_awaited) {
        m_kept->fields = *std::exchange(m_awaited, {});
    }
    m_focal35mm = 0.0;
}

void PageKeeper::giveBack()
{
    if (!m_kept) {
        return;
    }
    const Kept kept = *std::exchange(m_kept, {});
    m_focal35mm = kept.focal35mm;
    try {
        if (!kept.record.isEmpty()) {
            enterRecord(kept.record);
            pageChanged();
            for (const QString &turn : kept.turns) {
                if (auto *button = m_page->findChild<QAbstractButton *>(turn)) {
                    button->click();
                }
            }
        }
        if (kept.fitted) {
            m_photos = kept.photos;
            give(*kept.fitted);
        } else if (!kept.photos.isEmpty()) {
            give(kept.photos);
        }
    } catch (const CommandError &) { // NOLINT(bugprone-empty-catch): what is missing is seen
    }
    m_awaited = kept.fields;
    if (m_photos.isEmpty()) {
        setFields(*std::exchange(m_awaited, {}));
    }
    Q_EMIT changed();
}

void PageKeeper::setNotTaken(const QStringList &otherRecords, const QStringList &own)
{
    m_otherRecords = otherRecords;
    m_own = own;
}

double PageKeeper::focal35mm() const
{
    const auto *field = focalField(m_page);
    // The least that the field takes stands there when nothing is known.
    return field == nullptr                 ? m_focal35mm
        : field->value() > field->minimum() ? field->value()
                                            : 0.0;
}

void PageKeeper::setFocal35mm(double focal35mm)
{
    if (auto *field = focalField(m_page)) {
        field->setValue(focal35mm);
    } else {
        m_focal35mm = focal35mm;
    }
    Q_EMIT changed();
}

PageKeeper::Fields PageKeeper::fields() const
{
    Fields fields;
    for (const auto *button : fieldsOf<QAbstractButton>(m_page)) {
        if (button->isCheckable()) {
            fields.insert(button->objectName(), button->isChecked());
        }
    }
    for (const auto *box : fieldsOf<QSpinBox>(m_page)) {
        fields.insert(box->objectName(), box->value());
    }
    for (const auto *box : fieldsOf<QDoubleSpinBox>(m_page)) {
        fields.insert(box->objectName(), box->value());
    }
    for (const auto *box : fieldsOf<QComboBox>(m_page)) {
        fields.insert(box->objectName(), box->currentIndex());
    }
    for (const auto *slider : fieldsOf<QSlider>(m_page)) {
        fields.insert(slider->objectName(), slider->value());
    }
    return fields;
}

void PageKeeper::setFields(const Fields &fields)
{
    const auto known
        = [&fields](const QWidget *widget) { return fields.contains(widget->objectName()); };
    for (auto *button : fieldsOf<QAbstractButton>(m_page)) {
        // A click lets the page follow. Of radio buttons only one is pressed.
        if (known(button) && fields.value(button->objectName()).toBool() != button->isChecked()
            && (!button->isChecked() || qobject_cast<QCheckBox *>(button) != nullptr)) {
            button->click();
        }
    }
    for (auto *box : fieldsOf<QSpinBox>(m_page)) {
        if (known(box)) {
            box->setValue(fields.value(box->objectName()).toInt());
        }
    }
    for (auto *box : fieldsOf<QDoubleSpinBox>(m_page)) {
        if (known(box)) {
            box->setValue(fields.value(box->objectName()).toDouble());
        }
    }
    for (auto *box : fieldsOf<QComboBox>(m_page)) {
        if (known(box)) {
            box->setCurrentIndex(fields.value(box->objectName()).toInt());
        }
    }
    for (auto *slider : fieldsOf<QSlider>(m_page)) {
        if (known(slider)) {
            slider->setValue(fields.value(slider->objectName()).toInt());
        }
    }
}

} // namespace PanoHost
