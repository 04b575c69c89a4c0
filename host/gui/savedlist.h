// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QScrollArea>

class QLabel;
class QVBoxLayout;

namespace PanoHost
{

/**
 * Files that were saved, each with a button that shows it in its folder, and what could not be
 * saved; the last one on top. Always as high as two of them, so that nothing around it moves.
 */
class SavedList : public QScrollArea
{
    Q_OBJECT
public:
    explicit SavedList(QWidget *parent = nullptr);

    /** On top, and no longer further down. What was said of failures goes. */
    void addFile(const QString &path);
    /** Why something was not saved, or another thing not done. */
    void addProblem(const QString &text);
    /** The problem, when there is one. */
    void removeProblem();
    void clear();

    /** The last one first. */
    [[nodiscard]] QStringList files() const { return m_files; }

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

private:
    [[nodiscard]] QWidget *rowOf(const QString &path);
    void showFolder(const QString &path);

    QStringList m_files;
    QVBoxLayout *m_rows;
    QLabel *m_none;
    QWidget *m_problem;
    QLabel *m_problemText;
};

} // namespace PanoHost
