// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#pragma once

class QComboBox;
class QLineEdit;
class QScrollArea;
class QString;
class QStringList;
class QWidget;
class QWizardPage;

namespace PanoHead
{

class PreviewLabel;

/** Puts an empty, centred preview into \p area; the area owns it. */
[[nodiscard]] PreviewLabel *placePreview(QScrollArea *area);

/** Completes paths while the user types: directories, files and drives, no "." and "..". */
void completePaths(QLineEdit *edit);

/** Lets \p edit show the names of as many photos as a shoot may have. */
void liftLengthLimit(QLineEdit *edit);

/** Hiding \p widget does not move its neighbours. */
void keepPlaceWhenHidden(QWidget *widget);

/** Items in the order of `LensModel`, with the fisheye preselected: the page presets the lens. */
void fillLensTypes(QComboBox *box, const QStringList &names);

/** Gives the links of the page's about text the text colour of \p label. */
void recolourSubtitle(QWizardPage *page, const QWidget *label);

/** The page's logo, 64 pixels wide on the page however many it holds. */
void setLogo(QWizardPage *page, const QString &resourcePath);

/** Lets the desktop's browser open \p url as it is. */
void openInBrowser(const QString &url);

} // namespace PanoHead
