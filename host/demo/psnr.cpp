// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/demo/psnr.h"

#include <cmath>

namespace PanoHost
{

Agreement agreementOf(const QImage &picture, const QImage &truth)
{
    if (picture.size() != truth.size() || picture.isNull()) {
        return {};
    }
    const QImage actual = picture.convertToFormat(QImage::Format_ARGB32);
    const QImage expected = truth.convertToFormat(QImage::Format_RGB32);
    qint64 covered = 0;
    qint64 squares = 0;
    const auto squared
        = [](int difference) { return static_cast<qint64>(difference) * difference; };
    for (int row = 0; row < actual.height(); ++row) {
        const auto *const a = reinterpret_cast<const QRgb *>(actual.constScanLine(row));
        const auto *const e = reinterpret_cast<const QRgb *>(expected.constScanLine(row));
        for (int column = 0; column < actual.width(); ++column) {
            if (qAlpha(a[column]) != 255) {
                continue;
            }
            ++covered;
            squares += squared(qRed(a[column]) - qRed(e[column]))
                + squared(qGreen(a[column]) - qGreen(e[column]))
                + squared(qBlue(a[column]) - qBlue(e[column]));
        }
    }
    if (covered == 0) {
        return {};
    }
    const double meanSquare = static_cast<double>(squares) / (3.0 * static_cast<double>(covered));
    const double pixels = static_cast<double>(actual.width()) * actual.height();
    return { 10.0 * std::log10(255.0 * 255.0 / meanSquare), static_cast<double>(covered) / pixels };
}

} // namespace PanoHost
