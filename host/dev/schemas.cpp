// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/align/alignmentreport.h"
#include "host/check/cardreport.h"
#include "host/check/findings.h"
#include "host/model/panoramajson.h"
#include "host/model/safefile.h"

#include <QDir>
#include <QTextStream>

#include <utility>

/* Writes the schemas of the JSON documents to a folder. scripts/update-schemas runs it. */

int main(int argc, char **argv)
{
    if (argc != 2) {
        QTextStream(stderr) << "Usage: schemas FOLDER\n";
        return 2;
    }
    const QDir folder(QFile::decodeName(argv[1]));
    const std::pair<QString, QByteArray> schemas[]{
        { QStringLiteral("panohost.schema.json"), PanoHost::panoramaSchema() },
        { QStringLiteral("panohost-alignment.schema.json"), PanoHost::alignmentSchema() },
        { QStringLiteral("panohost-check.schema.json"), PanoHost::findingsSchema() },
        { QStringLiteral("panohost-sort.schema.json"), PanoHost::planSchema() },
    };
    for (const auto &[name, schema] : schemas) {
        const auto written = PanoHost::writeFileAtomically(folder.filePath(name), schema);
        if (!written) {
            QTextStream(stderr) << "schemas: " << written.error().text() << '\n';
            return 1;
        }
    }
    return 0;
}
