// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "host/gui/makerunner.h"
#include "host/plugin/panohostapplication.h"

#include <QWizardPage>

#include <optional>

class QCheckBox;
class QComboBox;
class QLabel;
class QLineEdit;
class QPlainTextEdit;
class QProgressBar;
class QPushButton;
class QStackedWidget;

namespace PanoHost
{

class LatestJob;
class PictureView;

/** From the panorama that a page has delivered to the finished picture. */
class MakePage : public QWizardPage
{
    Q_OBJECT
public:
    /** \p app outlives it. */
    MakePage(PanoHostApplication &app, MakeSteps steps, QWidget *parent = nullptr);
    ~MakePage() override;

    /** What is to be made; what was made of the same stays. */
    void take(const Result<Panorama> &panorama);
    /** What is being made is stopped; what was finished is kept. */
    void cleanupPage() override;
    [[nodiscard]] bool isComplete() const override { return !isRunning(); }

    [[nodiscard]] bool isRunning() const { return m_runner->isRunning(); }
    /** What was taken last was made. */
    [[nodiscard]] bool hasMade() const { return !m_made.paths.isEmpty(); }
    /** Whether that is \p panorama. */
    [[nodiscard]] bool hasMade(const Panorama &panorama) const;
    /** Where it will be. */
    [[nodiscard]] QString path() const;

Q_SIGNALS:
    void made(const PanoHost::MadePanorama &made);

private:
    void createWidgets();
    [[nodiscard]] QWidget *createSettings();
    void offerSettings();
    void estimate();
    void askForPath();
    [[nodiscard]] MakeRequest request() const;
    void startOrStop();
    void showTold();
    void showMade(const Result<MadePanorama> &made);
    void showRunning();
    void showState(const QString &text, bool isTrouble);
    void open(const QString &path);

    PanoHostApplication &m_app;
    MakeSteps m_steps;
    MakeRunner *m_runner;
    LatestJob *m_estimator;
    std::optional<Panorama> m_panorama;
    QByteArray m_identity; ///< of it
    MadePanorama m_made;
    bool m_isStopping = false;

    QWidget *m_settings = nullptr;
    QLineEdit *m_path = nullptr;
    QComboBox *m_size = nullptr;
    QLabel *m_outputLabel = nullptr;
    QComboBox *m_output = nullptr;
    QCheckBox *m_webPage = nullptr;
    QCheckBox *m_zoomFolder = nullptr;
    QCheckBox *m_trust = nullptr;
    QPushButton *m_make = nullptr;
    QProgressBar *m_progress = nullptr;
    QLabel *m_stateIcon = nullptr;
    QLabel *m_state = nullptr;
    QPushButton *m_showLog = nullptr;
    QStackedWidget *m_shown = nullptr; ///< log, or picture
    QPlainTextEdit *m_log = nullptr;
    PictureView *m_picture = nullptr;
    QWidget *m_results = nullptr;
    QPushButton *m_openFolder = nullptr;
    QPushButton *m_openBrowser = nullptr;
    QPushButton *m_openHugin = nullptr;
    QPushButton *m_again = nullptr;
    QWidget *m_rest = nullptr;
};

} // namespace PanoHost
