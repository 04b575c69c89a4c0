// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#include "ui/xuipixmaphelper.h"

#include <QIcon>
#include <QPainter>

// NOLINTNEXTLINE(performance-unnecessary-value-param): a fixed signature
QPixmap XuiPixmapHelper::CreateHighDpiPixmap(QString path, int alpha, QSize size)
{
    const QIcon icon(path);
    const QList<QSize> sizes = icon.availableSizes(QIcon::Normal, QIcon::Off);
    if (sizes.isEmpty()) {
        return {};
    }
    QPixmap pixmap = icon.pixmap(sizes.first(), QIcon::Normal, QIcon::Off);
    if (alpha != 255) {
        SetAlpha(pixmap, alpha);
    }
    return size.width() >= 1 && size.height() >= 1 ? Scaled(pixmap, size) : pixmap;
}

void XuiPixmapHelper::SetAlpha(QPixmap &pixmap, int alpha)
{
    const qreal ratio = pixmap.devicePixelRatio();
    pixmap.setDevicePixelRatio(1.0);
    QPixmap faded(pixmap.size());
    faded.fill(Qt::transparent);
    if (!pixmap.isNull()) {
        QPainter painter(&faded);
        painter.setOpacity(static_cast<qreal>(static_cast<float>(alpha) / 255.0F));
        painter.drawPixmap(pixmap.rect(), pixmap);
    }
    pixmap = faded;
    pixmap.setDevicePixelRatio(static_cast<int>(ratio));
}

QPixmap XuiPixmapHelper::Scaled(QPixmap &pixmap, QSize size)
{
    const qreal ratio = pixmap.devicePixelRatio();
    return pixmap.scaled(qRound(size.width() * ratio), qRound(size.height() * ratio),
                         Qt::IgnoreAspectRatio, Qt::FastTransformation);
}

QRect XuiPixmapHelper::GetDisplayRect(QPixmap &pixmap)
{
    const qreal ratio = pixmap.devicePixelRatio();
    return { 0, 0, qRound(pixmap.width() / ratio), qRound(pixmap.height() / ratio) };
}
