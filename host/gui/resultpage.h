// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "host/model/panorama.h"
#include "host/plugin/panohostapplication.h"

#include <QWizardPage>

#include <optional>

class QLabel;
class QPushButton;

namespace PanoHost
{

class LayoutPicture;

/** The last page: what was delivered, and saving it. */
class ResultPage : public QWizardPage
{
    Q_OBJECT
public:
    explicit ResultPage(PanoHostApplication &app, QWidget *parent = nullptr);

    /** Takes over the wizard's description. */
    void initializePage() override;
    /** Asks whether to go without having saved anything. */
    [[nodiscard]] bool confirmUnsaved();

    /** What is shown; nothing when the delivery could not be used. */
    [[nodiscard]] const std::optional<Panorama> &panorama() const { return m_panorama; }

    /** What was found out about the shoot, before or after this page was entered. */
    void setRemarks(const QStringList &remarks);
    /** There is something that has been saved nowhere. */
    [[nodiscard]] bool isUnsaved() const { return m_panorama && !m_somethingSaved; }

    /** Writes the project or the description; shows what happened. False when it failed. */
    bool saveProject(const QString &path);
    bool saveJson(const QString &path);

private:
    void createWidgets();
    void showPanorama(const Result<Panorama> &panorama);
    void showSaved(const Result<QString> &saved);
    void askForProject();
    void askForJson();
    void openInHugin();
    [[nodiscard]] QString askForFile(const QString &caption, const QString &suffix,
                                     const QString &filter);

    PanoHostApplication &m_app;
    std::optional<Panorama> m_panorama;
    QString m_projectPath;
    bool m_somethingSaved = false;
    QLabel *m_summary = nullptr;
    QLabel *m_warnings = nullptr;
    QLabel *m_warningIcon = nullptr;
    QLabel *m_remarks = nullptr;
    QLabel *m_saved = nullptr;
    LayoutPicture *m_layout = nullptr;
    QPushButton *m_saveProject = nullptr;
    QPushButton *m_saveJson = nullptr;
    QPushButton *m_openHugin = nullptr;
};

} // namespace PanoHost
