// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#include "ui/pagesetup.h"

#include "model/lensmodel.h"
#include "ui/previewlabel.h"
#include "ui/xuipixmaphelper.h"

#include <QComboBox>
#include <QCompleter>
#include <QDesktopServices>
#include <QDirModel>
#include <QLineEdit>
#include <QPixmap>
#include <QScrollArea>
#include <QUrl>
#include <QWizardPage>

#include <limits>

namespace PanoHead
{

namespace
{

constexpr qreal kLogoSide = 64.0; // pixels of the page

} // namespace

PreviewLabel *placePreview(QScrollArea *area)
{
    auto *preview = new PreviewLabel;
    preview->setAlignment(Qt::AlignHCenter | Qt::AlignVCenter);
    area->setWidget(preview);
    return preview;
}

void completePaths(QLineEdit *edit)
{
    auto *completer = new QCompleter(edit);
    // Lists at once and needs no thread, unlike its successor.
    QT_WARNING_PUSH
    QT_WARNING_DISABLE_DEPRECATED
    auto *model = new QDirModel(completer);
    model->setFilter(QDir::AllDirs | QDir::Files | QDir::Drives | QDir::NoDotAndDotDot);
    QT_WARNING_POP
    completer->setModel(model);
    edit->setCompleter(completer);
}

void liftLengthLimit(QLineEdit *edit)
{
    edit->setMaxLength(std::numeric_limits<int>::max());
}

void keepPlaceWhenHidden(QWidget *widget)
{
    QSizePolicy policy = widget->sizePolicy();
    policy.setRetainSizeWhenHidden(true);
    widget->setSizePolicy(policy);
}

void fillLensTypes(QComboBox *box, const QStringList &names)
{
    box->clear();
    box->addItems(names);
    box->setCurrentIndex(static_cast<int>(LensModel::Fisheye));
}

void recolourSubtitle(QWizardPage *page, const QWidget *label)
{
    const QColor colour = label->palette().brush(QPalette::Current, QPalette::WindowText).color();
    page->setSubTitle(page->subTitle().replace(QLatin1String("#DCDCDC"), colour.name()));
}

void setLogo(QWizardPage *page, const QString &resourcePath)
{
    QPixmap logo = XuiPixmapHelper::CreateHighDpiPixmap(resourcePath, 255, QSize(-1, -1));
    // A wider one would take a line of the subtitle and the place of the preview.
    logo.setDevicePixelRatio(logo.width() / kLogoSide);
    page->setPixmap(QWizard::LogoPixmap, logo);
}

void openInBrowser(const QString &url)
{
    QDesktopServices::openUrl(QUrl(url));
}

} // namespace PanoHead
