// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#include "ui/shootview.h"

#include "hostlink/readingthread.h"
#include "shoot/displaytexts.h"
#include "shoot/shootstate.h"

#include <QComboBox>
#include <QDoubleSpinBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

namespace PanoHead
{

void PhotoNames::show(QLineEdit *edit, const QStringList &files)
{
    if (files != m_shown) {
        edit->setText(photoNames(files));
        edit->setCursorPosition(0); // the first photos are the ones to see
        m_shown = files;
    }
}

bool isReadAndRecorded(const ShootState &state, ReadingThread &thread)
{
    const int photos = state.images.size();
    return photos == thread.XIImageDefs().size() && photos == state.shotCount;
}

void showShoot(const ShootView &view, const ShootState &state, const NotAvailable &notAvailable)
{
    // While a user types in the middle of the path, setting the same text would move the cursor.
    if (view.record->text() != state.configPath) {
        view.record->setText(state.configPath);
    }
    view.shotCount->setText(countText(state.shotCount, notAvailable.count));
    view.yawRange->setText(rangeText(state.extents().yaw, notAvailable.range));
    view.pitchRange->setText(rangeText(state.extents().pitch, notAvailable.range));
    view.photoNames->show(view.photos, state.images);
    view.photoCount->setText(countText(state.images.size(), notAvailable.count));
}

void showLens(const LensView &view, int bracketCount, double recordFocalMm, double photoFocalMm,
              const QString &notAvailable)
{
    const bool recordKnows = recordFocalMm != kNoRecordedFocal;
    const bool photosKnow = photoFocalMm > 0.0;
    view.bracket->setText(bracketCount == -1 ? notAvailable
                                             : QStringLiteral("%1").arg(bracketCount));
    view.recordFocal->setText(recordKnows ? focalText(recordFocalMm) : notAvailable);
    view.useRecord->setEnabled(recordKnows);
    view.photoFocal->setText(photosKnow ? focalText(photoFocalMm) : notAvailable);
    view.usePhotos->setEnabled(photosKnow);
}

void setLens(const LensView &view, const LensFacts &lens)
{
    view.focal->setValue(lens.focalMm);
    view.lensType->setCurrentIndex(lens.lensType);
}

QString textOf(Mismatch mismatch, const MismatchTexts &texts)
{
    switch (mismatch) {
    case Mismatch::None:
        break;
    case Mismatch::Bracketing:
        return texts.bracketing;
    case Mismatch::Count:
        return texts.count;
    case Mismatch::FocalLength:
        return texts.focalLength;
    case Mismatch::LensType:
        return texts.lensType;
    }
    return {};
}

} // namespace PanoHead
