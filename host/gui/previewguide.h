// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QObject>
#include <QPointer>

class QLabel;
class QLineEdit;
class QScrollArea;
class QSlider;
class QWizardPage;

namespace PanoHost
{

/**
 * What the host adds to the preview of a plug-in's page: the wheel zooms, a double click shows all
 * of it, and while the page has no files words say where they can be dropped. Goes with the page.
 */
class PreviewGuide : public QObject
{
    Q_OBJECT
public:
    /** Does nothing on a page that has no preview of the usual kind. \p needsRecord: besides
     * photos. */
    PreviewGuide(QWizardPage *page, bool needsRecord, QObject *parent);

    /** Zooms so that the picture fills the preview. */
    void fit();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void update();
    void zoomBy(double steps);

    QPointer<QScrollArea> m_area;
    QPointer<QSlider> m_zoom;
    QPointer<QLabel> m_hint;
    QPointer<QLineEdit> m_record;
    QPointer<QLineEdit> m_photos;
};

} // namespace PanoHost
