// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#pragma once

#include <QDialog>
#include <QFileDialog>
#include <QMessageBox>
#include <QObject>
#include <QQueue>
#include <QStringList>
#include <QVector>

#include <functional>

/**
 * Answers the modal dialogs that the code under test opens, and remembers what they showed.
 *
 * Answers are queued before the click that opens the dialog. A dialog that comes without an answer
 * is closed and counted as unexpected, so that a test fails instead of hanging:
 *
 *     DialogClicker clicker;
 *     clicker.chooseFiles({QStringLiteral("/photos/a.jpg")});
 *     QTest::mouseClick(button, Qt::LeftButton);
 *     QCOMPARE(clicker.fileDialogs().size(), 1);
 *     QVERIFY(clicker.isSettled());
 *
 * File dialogs must be Qt's own ones (the host double's UI settings see to that).
 */
class DialogClicker : public QObject
{
    Q_OBJECT

public:
    struct SeenFileDialog {
        QString caption;
        QString directory; ///< absolute path of the folder shown
        QString fileName; ///< what stood in the name field
        QStringList nameFilters;
        QString selectedNameFilter;
        QFileDialog::FileMode fileMode = QFileDialog::AnyFile;
        QFileDialog::Options options;
    };

    struct SeenMessageBox {
        QString title;
        QString text;
        Qt::TextFormat textFormat = Qt::AutoText;
        QMessageBox::Icon icon = QMessageBox::NoIcon;
        QMessageBox::StandardButtons buttons;
    };

    explicit DialogClicker(QObject *parent = nullptr);
    ~DialogClicker() override;

    /** The next file dialog ends with these existing files; full paths without quotes in them. */
    void chooseFiles(const QStringList &fileNames);
    /** The next file dialog is cancelled. */
    void cancelFiles();
    /** The next message box is closed with \p button. */
    void pressButton(QMessageBox::StandardButton button = QMessageBox::Ok);
    /** Runs while the next dialog is open, before it is answered (for instance: delete its page).
     */
    void beforeNextAnswer(std::function<void()> action);

    [[nodiscard]] const QVector<SeenFileDialog> &fileDialogs() const { return m_fileDialogs; }
    [[nodiscard]] const QVector<SeenMessageBox> &messageBoxes() const { return m_messageBoxes; }
    /** Every queued answer was used and no other dialog came. */
    [[nodiscard]] bool isSettled() const;

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    struct FileAnswer {
        bool accepted = false;
        QStringList fileNames;
    };

    void answer(QFileDialog *dialog);
    void answer(QMessageBox *box);

    QQueue<FileAnswer> m_fileAnswers;
    QQueue<QMessageBox::StandardButton> m_buttonAnswers;
    std::function<void()> m_beforeNextAnswer;
    QVector<SeenFileDialog> m_fileDialogs;
    QVector<SeenMessageBox> m_messageBoxes;
    int m_unexpected = 0;
};
