// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#include "importers/vrdrive2/vrdrive2tospp.h"

#include "hostlink/xiimagedef.h"

#include <algorithm>
#include <cmath>

namespace PanoHead
{

int referenceIndex(const QVector<double> &exposures)
{
    if (exposures.isEmpty()) {
        return 0;
    }
    QVector<double> sorted = exposures;
    // Values that are not a number would leave the order undefined; they go to the end.
    std::sort(sorted.begin(), sorted.end(),
              [](double a, double b) { return std::isnan(b) ? !std::isnan(a) : a < b; });
    const double median = sorted.at((sorted.size() - 1) / 2);
    return std::max(exposures.lastIndexOf(median), 0);
}

} // namespace PanoHead

void VRDrive2ToSPP::generateSPP(QStringList &images, const QList<XIImageDef *> &imageDefs,
                                double focal, LensModel lens)
{
    const int firstGroup = imageGroups.size();
    MerlinToSPP::generateSPP(images, focal, lens);
    if (nbPicts < 1 || nbPicts > imageDefs.size()) {
        return;
    }
    QVector<double> exposures;
    for (int i = 0; i < nbPicts; ++i) {
        exposures.append(static_cast<double>(imageDefs.at(i)->Exposure()));
    }
    const int reference = PanoHead::referenceIndex(exposures);
    if (reference == 0) {
        return;
    }
    for (int group = firstGroup; group < imageGroups.size(); ++group) {
        imageGroups[group].swapItemsAt(0, reference);
    }
}
