// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "tests/host/gui/pseudolanguage.h"

#include <QRegularExpression>

namespace
{

const QChar kBegin(0x27e6); // brackets that no text of ours holds
const QChar kEnd(0x27e7);

} // namespace

QString PseudoLanguage::translate(const char *, const char *source, const char *, int) const
{
    static const QRegularExpression kCommands(QStringLiteral("--[a-z]+|panohost [a-z]+"));
    const QString text = QString::fromUtf8(source).remove(kCommands);
    return kBegin + text + QString(text.size() / 3, QLatin1Char('~')) + kEnd;
}

QString untranslated(QString text)
{
    static const QRegularExpression kTag(QStringLiteral("<[^>]*>"));
    text.remove(kTag);
    // Translated texts may hold others.
    static const QRegularExpression kTranslated(QStringLiteral("\u27e6[^\u27e6\u27e7]*\u27e7"));
    while (text.contains(kTranslated)) {
        text.replace(kTranslated, QString());
    }
    static const QRegularExpression kFile(
        QStringLiteral("[^\\s]*(/|\\.(jpg|xml|txt|html|pto))[^\\s]*"));
    text.remove(kFile);
    for (const char *name :
         { "Papywizard", "VR Drive 2", "Clauss", "Gigapan", "XML", "EXIF", "panohost", "Hugin",
           "Merlin", "mm", "JSON", "CSV", "IMG_", "shoot" }) {
        text.remove(QLatin1String(name));
    }
    static const QRegularExpression kNoLetters(QStringLiteral("[^\\p{L}]+"));
    return text.replace(kNoLetters, QStringLiteral(" ")).trimmed();
}
