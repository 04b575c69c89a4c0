// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QLabel>

namespace PanoHost
{

/**
 * One line of plain text, cut where there is no room for it. All of it stands in the tool tip, is
 * told to screen readers and can be copied.
 */
class ElidedLabel : public QLabel
{
    Q_OBJECT
public:
    explicit ElidedLabel(const QString &text = {}, QWidget *parent = nullptr);

    void setFullText(const QString &text);
    [[nodiscard]] const QString &fullText() const { return m_text; }

    [[nodiscard]] QSize minimumSizeHint() const override;
    [[nodiscard]] QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void changeEvent(QEvent *event) override;
    void contextMenuEvent(QContextMenuEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;

private:
    void elide();
    void copy() const;

    QString m_text;
};

} // namespace PanoHost
