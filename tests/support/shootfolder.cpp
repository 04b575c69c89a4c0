// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#include "tests/support/shootfolder.h"

#include "tests/support/fakeapplication.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

ShootFolder::ShootFolder()
{
    if (!m_folder.isValid()) {
        qFatal("No temporary folder for the test's photos");
    }
}

QString ShootFolder::path(const QString &name) const
{
    return name.isEmpty() ? m_folder.path() : m_folder.filePath(name);
}

QString ShootFolder::write(const QString &name, const QByteArray &content) const
{
    const QString fullName = path(name);
    QDir().mkpath(QFileInfo(fullName).absolutePath());
    QFile file(fullName);
    if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size()) {
        qFatal("Cannot write the test's file %s", qPrintable(fullName));
    }
    return fullName;
}

QString ShootFolder::addPhoto(const QString &name, const FakePhoto &photo) const
{
    const QString fullName = write(name, {});
    fakeHost().setPhoto(fullName, photo);
    return fullName;
}

QStringList ShootFolder::addPhotos(int count, const FakePhoto &photo) const
{
    QStringList names;
    for (int i = 1; i <= count; ++i) {
        names.append(addPhoto(QStringLiteral("IMG_%1.jpg").arg(i, 4, 10, QLatin1Char('0')), photo));
    }
    return names;
}

QStringList namesOf(const QStringList &files)
{
    QStringList names;
    for (const QString &file : files) {
        names.append(QFileInfo(file).fileName());
    }
    return names;
}

RecordXml RecordXml::row(int count)
{
    RecordXml record;
    for (int i = 0; i < count; ++i) {
        record.shots.append(
            { QString::number(i * 30) + QLatin1String(".0"), QStringLiteral("0.0") });
    }
    return record;
}

QByteArray RecordXml::bytes() const
{
    QString text = QStringLiteral("<?xml version=\"1.0\" encoding=\"utf-8\"?>\n"
                                  "<papywizard version=\"c\">\n<header>\n<general>\n");
    text += QLatin1String("<title>\n    ") + title.toHtmlEscaped() + QLatin1String("\n</title>\n");
    text += QLatin1String("<gps>\n    ") + gps.toHtmlEscaped() + QLatin1String("\n</gps>\n");
    text += QLatin1String("<comment>\n    ") + comment.toHtmlEscaped()
        + QLatin1String("\n</comment>\n</general>\n<camera>\n");
    if (!nbPicts.isNull()) {
        text += QLatin1String("<bracketing nbPicts=\"") + nbPicts + QLatin1String("\"/>\n");
    }
    if (!coef.isNull()) {
        text += QLatin1String("<sensor coef=\"") + coef + QLatin1String("\"/>\n");
    }
    text += QLatin1String("</camera>\n");
    if (!focal.isNull()) {
        text += QLatin1String("<lens type=\"") + lensType + QLatin1String("\">\n<focal>\n    ")
            + focal + QLatin1String("\n</focal>\n</lens>\n");
    }
    text += QLatin1String("</header>\n<shoot>\n");
    int id = 0;
    for (const Shot &shot : shots) {
        text += QStringLiteral("<pict id=\"%1\" bracket=\"1\">\n").arg(++id);
        text += QLatin1String("<time>\n    2010-05-01_10h20m30s\n</time>\n<position yaw=\"")
            + shot.yaw + QLatin1String("\" pitch=\"") + shot.pitch
            + QLatin1String("\" roll=\"0.0\"/>\n</pict>\n");
    }
    text += QLatin1String("</shoot>\n</papywizard>\n");
    return text.toUtf8();
}

QByteArray scriptRow(int shots)
{
    QByteArray script;
    for (int i = 0; i < shots; ++i) {
        script += "op_h-angle=" + QByteArray::number(i * 30) + "\nop_shoot\n";
    }
    return script;
}
