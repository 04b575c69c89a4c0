// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#pragma once

#include "shoot/mismatch.h"

#include <QString>
#include <QStringList>

class ReadingThread;
class QComboBox;
class QDoubleSpinBox;
class QLabel;
class QLineEdit;
class QPushButton;

namespace PanoHead
{

struct ShootState;

/** A line edit that lists photos; it is written again only when the list has changed. */
class PhotoNames
{
public:
    void show(QLineEdit *edit, const QStringList &files);

private:
    QStringList m_shown;
};

/** The widgets that show record and photos side by side, on every page with a record. */
struct ShootView {
    QLineEdit *record;
    QLabel *shotCount;
    QLabel *yawRange;
    QLabel *pitchRange;
    QLineEdit *photos;
    QLabel *photoCount;
    PhotoNames *photoNames; ///< what \c photos shows
};

/** Every chosen photo has been read, and there are as many as recorded shots. */
[[nodiscard]] bool isReadAndRecorded(const ShootState &state, ReadingThread &thread);

/** What stands for an unknown value, translated by the page. */
struct NotAvailable {
    QString count;
    QString range; ///< one head leaves this one untranslated
};

void showShoot(const ShootView &view, const ShootState &state, const NotAvailable &notAvailable);

/** Bracket count and focal lengths, on the pages for records in the Papywizard schema. */
struct LensView {
    QLabel *bracket;
    QLabel *recordFocal;
    QPushButton *useRecord;
    QLabel *photoFocal;
    QPushButton *usePhotos;
    QDoubleSpinBox *focal;
    QComboBox *lensType;
};

/** Shows what record and photos say; a button works only when its side knows the focal length. */
void showLens(const LensView &view, int bracketCount, double recordFocalMm, double photoFocalMm,
              const QString &notAvailable);

/** Puts \p lens into the controls from which the description takes it. */
void setLens(const LensView &view, const LensFacts &lens);

/** One text per kind of mismatch, translated by the page. */
struct MismatchTexts {
    QString bracketing;
    QString count;
    QString focalLength;
    QString lensType;
};

/** The text for \p mismatch; empty for none. */
[[nodiscard]] QString textOf(Mismatch mismatch, const MismatchTexts &texts);

} // namespace PanoHead
