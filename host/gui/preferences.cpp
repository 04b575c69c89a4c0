// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/gui/preferences.h"

#include "host/plugin/panohostapplication.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QDir>
#include <QFileDialog>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QStandardPaths>

namespace PanoHost
{

namespace
{

QString group()
{
    return QStringLiteral("panohost");
}
QString languageKey()
{
    return QStringLiteral("language");
}
QString unitsKey()
{
    return QStringLiteral("units");
}
QString centimetres()
{
    return QStringLiteral("centimetres");
}
QString inches()
{
    return QStringLiteral("inches");
}
QString toolsKey()
{
    return QStringLiteral("toolFolder");
}
QString dialogsKey()
{
    return QStringLiteral("systemFileDialog");
}
QString thumbnailsKey()
{
    return QStringLiteral("sharedThumbnails");
}

} // namespace

Preferences::Preferences(PanoHostApplication &app, QWidget *parent)
    : QDialog(parent)
    , m_app(app)
    , m_language(new QComboBox)
    , m_units(new QComboBox)
    , m_toolFolder(new QLineEdit(app.ReadSetting(group(), toolsKey(), QString()).toString()))
    , m_tools(new QLabel)
    , m_systemDialogs(new QCheckBox(tr("Use the &desktop's file dialogs")))
    , m_thumbnails(new QCheckBox(tr("Share &thumbnails with the desktop")))
{
    setWindowTitle(tr("Preferences"));
    m_language->setObjectName(QStringLiteral("m_language"));
    m_units->setObjectName(QStringLiteral("m_units"));
    m_units->addItem(tr("As the desktop"), QString());
    m_units->addItem(tr("Centimetres"), centimetres());
    m_units->addItem(tr("Inches"), inches());
    m_units->setCurrentIndex(
        std::max(0, m_units->findData(app.ReadSetting(group(), unitsKey(), QString()))));
    m_toolFolder->setObjectName(QStringLiteral("m_toolFolder"));
    m_toolFolder->setPlaceholderText(tr("where the system has them"));
    m_tools->setObjectName(QStringLiteral("m_tools"));
    m_tools->setTextFormat(Qt::PlainText);
    m_systemDialogs->setObjectName(QStringLiteral("m_systemDialogs"));
    m_systemDialogs->setChecked(app.UIInstances()->settings->useSystemFileDialog);
    m_thumbnails->setObjectName(QStringLiteral("m_thumbnails"));
    m_thumbnails->setChecked(app.ReadSetting(group(), thumbnailsKey(), true).toBool());
    auto *choose = new QPushButton(tr("Choo&se..."));
    choose->setAccessibleName(tr("Choose the folder of the tools"));
    auto *folder = new QHBoxLayout;
    folder->addWidget(m_toolFolder, 1);
    folder->addWidget(choose);
    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
    auto *form = new QFormLayout(this);
    form->addRow(tr("&Language:"), m_language);
    form->addRow(tr("&Units of prints:"), m_units);
    auto *label = new QLabel(tr("&Folder of the tools:"));
    label->setBuddy(m_toolFolder);
    form->addRow(label, folder);
    form->addRow(tr("Tools:"), m_tools);
    form->addRow(m_systemDialogs);
    form->addRow(m_thumbnails);
    form->addRow(new QLabel(tr("The language changes with the next start.")));
    form->addRow(buttons);
    connect(choose, &QPushButton::clicked, this, &Preferences::chooseFolder);
    connect(m_toolFolder, &QLineEdit::textChanged, this, &Preferences::lookForTools);
    connect(buttons, &QDialogButtonBox::accepted, this, &Preferences::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &Preferences::reject);
    fillLanguages();
    lookForTools();
}

void Preferences::fillLanguages()
{
    m_language->addItem(tr("As the desktop"), QString());
    m_language->addItem(QLocale(QLocale::English).nativeLanguageName(), QStringLiteral("en"));
    // Those of the library that is loaded.
    const QString prefix = QStringLiteral("XPanoHead_");
    const QDir folder(QStringLiteral(":/Translation"));
    for (const QString &file : folder.entryList({ prefix + QStringLiteral("*.qm") })) {
        const QString code = file.mid(prefix.size()).section(QLatin1Char('.'), 0, 0);
        if (code != QLatin1String("en")) {
            m_language->addItem(QLocale(code).nativeLanguageName(), code);
        }
    }
    const QString now = m_app.ReadSetting(group(), languageKey(), QString()).toString();
    m_language->setCurrentIndex(std::max(0, m_language->findData(now)));
}

void Preferences::chooseFolder()
{
    QFileDialog dialog(this, tr("Folder of the tools"), m_toolFolder->text());
    dialog.setFileMode(QFileDialog::Directory);
    dialog.setOption(QFileDialog::ShowDirsOnly);
    dialog.setOption(QFileDialog::DontUseNativeDialog, !m_systemDialogs->isChecked());
    if (dialog.exec() == QDialog::Accepted) {
        m_toolFolder->setText(dialog.selectedFiles().value(0));
    }
}

void Preferences::lookForTools()
{
    QStringList lines;
    for (const char *const word : { "nona", "enblend", "enfuse", "vips", "hugin" }) {
        const QString tool = QLatin1String(word);
        QString path = QStandardPaths::findExecutable(tool, { m_toolFolder->text() });
        if (path.isEmpty()) {
            path = QStandardPaths::findExecutable(tool);
        }
        lines
            += path.isEmpty() ? tr("%1: not found").arg(tool) : tr("%1: found, %2").arg(tool, path);
    }
    m_tools->setText(lines.join(QLatin1Char('\n')));
}

void Preferences::accept()
{
    const QString folder = m_toolFolder->text();
    if (!folder.isEmpty() && !QFileInfo(folder).isDir()) {
        QMessageBox box(
            QMessageBox::Warning, tr("No such folder"),
            tr("%1 is no folder; choose another one, or leave the field empty.").arg(folder),
            QMessageBox::Ok, this);
        box.setTextFormat(Qt::PlainText);
        box.exec();
        return;
    }
    m_app.WriteSetting(group(), languageKey(), m_language->currentData());
    m_app.WriteSetting(group(), unitsKey(), m_units->currentData());
    m_app.WriteSetting(group(), toolsKey(), folder);
    m_app.WriteSetting(group(), dialogsKey(), m_systemDialogs->isChecked());
    m_app.WriteSetting(group(), thumbnailsKey(), m_thumbnails->isChecked());
    m_app.shareThumbnails();
    apply(m_app, true);
    QDialog::accept();
}

bool Preferences::usesInches(PanoHostApplication &app)
{
    const QString units = app.ReadSetting(group(), unitsKey(), QString()).toString();
    return units == inches()
        || (units != centimetres()
            && QLocale::system().measurementSystem() != QLocale::MetricSystem);
}

void Preferences::apply(PanoHostApplication &app, bool isLanguageSaid)
{
    app.setUseSystemFileDialog(app.ReadSetting(group(), dialogsKey(), true).toBool());
    const QString language = app.ReadSetting(group(), languageKey(), QString()).toString();
    if (!isLanguageSaid && !language.isEmpty()) {
        app.setLocale(QLocale(language));
    }
    // Here and in all programs that are started.
    const QByteArray folder
        = QFile::encodeName(app.ReadSetting(group(), toolsKey(), QString()).toString());
    static const QByteArray usual = qgetenv("PATH");
    qputenv("PATH", folder.isEmpty() ? usual : folder + ':' + usual);
}

} // namespace PanoHost
