// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/cli/commands.h"
#include "host/cli/requestline.h"
#include "host/import/importjob.h"
#include "host/import/inputcheck.h"
#include "host/model/commanderror.h"
#include "host/model/displayname.h"
#include "host/model/photofile.h"
#include "host/model/safefile.h"

#include <QBuffer>
#include <QDir>
#include <QFileInfo>
#include <QImageWriter>

namespace PanoHost
{

namespace
{

CommandLine previewLine()
{
    return importingLine(
        { "panohost preview HEAD [RECORD] PHOTO... -o LAYOUT.png",
          "Saves the picture that the import page shows: each photo at its place, with\n"
          "number, yaw and pitch. Works without a display.",
          "# does every photo sit where it belongs?\n"
          "panohost preview papywizard shoot.xml IMG_*.jpg -o layout.png\n"
          "# is this the order in which the head swept the grid?\n"
          "panohost preview gigapan IMG_*.jpg --rows 4 --mode rows-up -o layout.png" },
        QVector<OptionRow>{ { "-o|--output", "LAYOUT.png", "the picture to write" } });
}

QByteArray formatOf(const QString &path)
{
    QByteArray format = QFileInfo(path).suffix().toLower().toLatin1();
    if (!QImageWriter::supportedImageFormats().contains(format)) {
        throw usageError(QStringLiteral("-o %1: no picture format").arg(displayName(path)),
                         QStringLiteral("end the name in .png or .jpg"));
    }
    return format;
}

} // namespace

ExitCode runPreview(Session &session, const QStringList &arguments)
{
    CommandLine line = previewLine();
    if (!line.parse(arguments)) {
        return ExitCode::Done;
    }
    applyCommonOptions(session, line);
    ImportRequest request = importRequest(session, line);
    request.wantsLayout = true;
    if (!line.isSet(QStringLiteral("output"))) {
        throw usageError(QStringLiteral("no picture named"), QStringLiteral("add -o LAYOUT.png"));
    }
    const QString path = QDir().absoluteFilePath(line.value(QStringLiteral("output")));
    const QByteArray format = formatOf(path);
    requireWritable(path, QStringList(request.record) + request.photos);

    ImportJob job(session.app, request, session.watch());
    job.checkInputs();
    job.preparePage();
    QImage layout = job.layout().toImage();
    markAsOwn(layout);
    // Packing a PNG well takes longer than reading its photos' thumbnails.
    constexpr int kQuicklyPacked = 85;
    const int quality = format == "png" ? kQuicklyPacked : -1;
    QByteArray picture;
    QBuffer buffer(&picture);
    buffer.open(QIODevice::WriteOnly);
    if (layout.isNull() || !layout.save(&buffer, format.constData(), quality)) {
        throw inputRefused(displayName(path), QStringLiteral("the page shows no layout"),
                           QStringLiteral("try 'panohost check'"));
    }
    (void)valueOrThrow(writeFileAtomically(path, picture));
    session.console.info(QStringLiteral("%1: %2 x %3 pixels")
                             .arg(displayName(path), QString::number(layout.width()),
                                  QString::number(layout.height())));
    return ExitCode::Done;
}

} // namespace PanoHost
