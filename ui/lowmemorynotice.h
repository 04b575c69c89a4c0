// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#pragma once

#include "ui/messageboxes.h"

#include <QObject>
#include <QPointer>

#include <memory>

class ReadingThread;

namespace PanoHead
{

/**
 * Tells the user of a page that memory has run out. What the message needs itself is put aside from
 * the start, so that it can be shown while memory is still short.
 */
class LowMemoryNotice : public QObject
{
    Q_OBJECT

public:
    /** \p page owns it. Photos that \p thread could not keep make it show up by itself. */
    LowMemoryNotice(QWidget *page, ReadingThread *thread, BoxTexts texts);
    ~LowMemoryNotice() override;

    /**
     * Shows the message until the user has closed it; page and notice may be gone then. When what
     * was put aside does not suffice either, nothing is shown.
     */
    void show();

protected:
    void customEvent(QEvent *event) override;

private:
    void showLater();
    void putAside();

    QWidget *m_page;
    BoxTexts m_texts;
    std::unique_ptr<char[]> m_reserve;
    bool m_isShown = false;
    /** With one pointer of this kind made, further ones cost no memory. */
    QPointer<LowMemoryNotice> m_self;
};

} // namespace PanoHead
