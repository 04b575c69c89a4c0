// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/gui/aboutbox.h"

#include "host/model/exivimage.h"
#include "host/plugin/pluginlibrary.h"
#include "hostlink/xiabout.h"

#include <QApplication>
#include <QDialogButtonBox>
#include <QFile>
#include <QHBoxLayout>
#include <QIcon>
#include <QLabel>
#include <QPlainTextEdit>
#include <QVBoxLayout>

namespace PanoHost
{

namespace
{

QStringList versions(const PluginLibrary &library)
{
    QStringList lines{
        QStringLiteral("panohost %1").arg(QApplication::applicationVersion()),
        QStringLiteral("Qt %1").arg(QLatin1String(qVersion())),
        QStringLiteral("libexiv2 %1").arg(exivVersion()),
    };
    if (const XIAbout *about = library.about()) {
        lines += QStringLiteral("%1 %2, %3").arg(about->Name(), about->Version(), about->Company());
    }
    lines += library.path();
    return lines;
}

/** "OpenCV: Apache-2.0 AND BSD-3-Clause (2000-2022 Intel Corporation ...)", a line for each. */
QStringList components(const QString &table)
{
    QFile file(table);
    QStringList lines;
    if (!file.open(QIODevice::ReadOnly)) {
        return lines;
    }
    for (const QString &line : QString::fromUtf8(file.readAll()).split(QLatin1Char('\n'))) {
        const QStringList columns = line.split(QLatin1Char('|'));
        constexpr int kHome = 7;
        if (line.startsWith(QLatin1Char('#')) || columns.size() <= kHome) {
            continue;
        }
        lines += QStringLiteral("%1: %2 (%3) %4")
                     .arg(columns.at(1).trimmed(), columns.at(3).trimmed(), columns.at(2).trimmed(),
                          columns.at(kHome).trimmed());
    }
    return lines;
}

} // namespace

AboutBox::AboutBox(const PluginLibrary &library, QWidget *parent)
    : QDialog(parent)
{
    setWindowTitle(tr("About panohost"));
    constexpr int kIconSide = 64;
    auto *icon = new QLabel;
    icon->setPixmap(parent->windowIcon().pixmap(kIconSide, kIconSide));
    auto *text = new QLabel(versions(library).join(QLatin1Char('\n')));
    text->setObjectName(QStringLiteral("m_versions"));
    text->setTextFormat(Qt::PlainText);
    text->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    auto *licences = new QPlainTextEdit;
    licences->setObjectName(QStringLiteral("m_licences"));
    licences->setAccessibleName(tr("Licences"));
    licences->setReadOnly(true);
    licences->setTabChangesFocus(true);
    QStringList lines{ tr("panohost as a program: GPL-3.0-or-later; its source: GPL-2.0-or-later."),
                       tr("The plug-in library XPanoHead: MIT."), QString(), tr("They stand on:") };
    lines += components(QStringLiteral(":/panohost/licenses-library"));
    lines += components(QStringLiteral(":/panohost/licenses-host"));
    licences->setPlainText(lines.join(QLatin1Char('\n')));
    auto *label = new QLabel(tr("&Licences:"));
    label->setBuddy(licences);
    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Close);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    auto *head = new QHBoxLayout;
    head->addWidget(icon);
    head->addWidget(text, 1);
    auto *layout = new QVBoxLayout(this);
    layout->addLayout(head);
    layout->addWidget(label);
    layout->addWidget(licences, 1);
    layout->addWidget(buttons);
    constexpr QSize kSize(560, 420);
    resize(kSize);
}

} // namespace PanoHost
