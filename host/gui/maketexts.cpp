// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/gui/maketexts.h"

#include "host/stitch/stitchneeds.h"

#include <QCoreApplication>
#include <QLocale>
#include <QRegularExpression>

#include <utility>

namespace PanoHost
{

namespace
{

/** Texts of this window. */
struct MakeTexts {
    Q_DECLARE_TR_FUNCTIONS(MakeTexts)
};

QString workText(const QString &work)
{
    const std::pair<const char *, QString> known[] = {
        { "reading record and photos", MakeTexts::tr("Reading the photos") },
        { "developing photos", MakeTexts::tr("Developing RAW files") },
        { "looking for features", MakeTexts::tr("Looking for details in the photos") },
        { "matching neighbours", MakeTexts::tr("Comparing neighbouring photos") },
        { "placing photos", MakeTexts::tr("Putting the photos in their places") },
        { "comparing light", MakeTexts::tr("Comparing the light of the photos") },
        { "joining brackets to light", MakeTexts::tr("Joining brackets") },
        { "warping photos with nona", MakeTexts::tr("Bending the photos into shape") },
        { "joining warped brackets", MakeTexts::tr("Joining brackets") },
        { "blending", MakeTexts::tr("Blending the photos") },
        { "fusing brackets with enfuse", MakeTexts::tr("Fusing brackets") },
        { "writing the picture", MakeTexts::tr("Writing the picture") },
        { "making the page", MakeTexts::tr("Making the page") },
        { "cutting tiles", MakeTexts::tr("Cutting tiles to zoom into") },
        { "done", MakeTexts::tr("Done") },
    };
    for (const auto &[words, text] : known) {
        if (work == QLatin1String(words)) {
            return text;
        }
    }
    return work;
}

} // namespace

QString stepText(const QString &text)
{
    static const QRegularExpression kStep(QStringLiteral("^(.*) \\(step (\\d+) of (\\d+)\\)$"));
    const QRegularExpressionMatch found = kStep.match(text);
    return found.hasMatch()
        ? MakeTexts::tr("%1 (step %2 of %3)")
              .arg(workText(found.captured(1)), found.captured(2), found.captured(3))
        : workText(text);
}

QString inWindow(const QString &text)
{
    // Where the field or button is that does it here; nothing: it is said already. Translations
    // name no options.
    constexpr std::pair<const char *, const char *> kOptions[] = {
        { " with -o", "" },
        { "or choose a smaller --size", "or choose a smaller size" },
        { "choose --jobs 1 or a smaller --size", "choose a smaller size" },
        { "choose another --size", "choose another size" },
        { "make it smaller with --size", "choose a smaller size" },
        { "RAW files, or TIFFs without a curve and --linear, make it exact",
          "RAW files make it exact" },
        { ": the same command goes on from there", "" },
        { "go on with the same command", "press Make panorama again" },
        { "give it with --focal", "go back and enter it" },
        { "import them with --mode ", "import them again with the order " },
        { "the same command goes on from here", "Make panorama goes on from here" },
    };
    QString answer = text;
    for (const auto &[words, instead] : kOptions) {
        answer.replace(QLatin1String(words), QLatin1String(instead));
    }
    return answer;
}

QString needsText(const StitchNeeds &needs, bool inInches)
{
    // Prints that are looked at closely have so many.
    constexpr double kPixelsPerInch = 300.0;
    constexpr double kInchCentimetres = 2.54;
    const QLocale locale;
    const auto printed = [&](int pixels) {
        const double length = pixels / kPixelsPerInch * (inInches ? 1.0 : kInchCentimetres);
        constexpr double kLong = 10.0;
        return locale.toString(length, 'f', length < kLong ? 1 : 0);
    };
    const QSize picture = needs.picture;
    const QString print
        = (inInches ? MakeTexts::tr("%1 x %2 in at %3 dpi") : MakeTexts::tr("%1 x %2 cm at %3 dpi"))
              .arg(printed(picture.width()), printed(picture.height()),
                   locale.toString(kPixelsPerInch));
    return MakeTexts::tr(
               "%1 x %2 pixels at most (%3); takes up to %4 of the disk and %5 of memory.")
        .arg(locale.toString(picture.width()), locale.toString(picture.height()), print,
             bytesText(needs.diskBytes), bytesText(needs.memoryBytes));
}

} // namespace PanoHost
