// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "tests/host/cardfiles.h"

#include "tests/host/cardshoots.h"

#include <QDir>
#include <QFileInfo>

CardFiles::CardFiles(QString folder)
    : m_folder(std::move(folder))
{
}

QString CardFiles::path(const QString &name) const
{
    return m_folder + QLatin1Char('/') + name;
}

void CardFiles::makeFolder(const QString &name) const
{
    QDir().mkpath(path(name));
}

void CardFiles::write(const QString &name, const QByteArray &content) const
{
    QDir().mkpath(QFileInfo(path(name)).path());
    TestPhotos::writeFile(path(name), content);
}

void CardFiles::take(const QString &name, double seconds) const
{
    QDir().mkpath(QFileInfo(path(name)).path());
    TestPhotos::Exif exif = TestPhotos::ordinaryExif();
    exif.remove("Exif.Photo.DateTimeOriginal");
    if (seconds >= 0.0) {
        exif["Exif.Photo.DateTimeOriginal"] = CardShoots::timeAt(seconds)
                                                  .toString(QStringLiteral("yyyy:MM:dd HH:mm:ss"))
                                                  .toLatin1();
    }
    TestPhotos::writeJpeg(path(name), TestPhotos::quarters(QSize(24, 16)), exif);
}

void CardFiles::takeShoot(const QString &folder, int number, int count, double start) const
{
    for (int shot = 0; shot < count; ++shot) {
        take(CardShoots::pathOf(number + shot, folder),
             start < 0.0 ? start : start + CardShoots::secondsOfShot(shot));
    }
}

void CardFiles::writeRecord(const QString &name, int count, double start) const
{
    QByteArray xml = "<papywizard version=\"c\"><header><general/>"
                     "<lens type=\"rectilinear\"><focal>24.0</focal></lens></header><shoot>";
    for (int shot = 0; shot < count; ++shot) {
        xml += "<pict bracket=\"1\" id=\"" + QByteArray::number(shot + 1) + "\"><time>"
            + CardShoots::timeAt(start + CardShoots::secondsOfShot(shot))
                  .toString(QStringLiteral("yyyy-MM-dd_HH'h'mm'm'ss's'"))
                  .toLatin1()
            + "</time><position pitch=\"0.0\" roll=\"0.0\" yaw=\"" + QByteArray::number(10 * shot)
            + ".0\"/></pict>";
    }
    write(name, xml + "</shoot></papywizard>");
}
