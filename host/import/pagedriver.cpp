// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/import/pagedriver.h"

#include "host/import/pagetime.h"
#include "host/model/commanderror.h"
#include "host/model/delivery.h"
#include "host/model/said.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QDoubleSpinBox>
#include <QEventLoop>
#include <QFileInfo>
#include <QLabel>
#include <QLineEdit>
#include <QScrollArea>
#include <QSlider>
#include <QSpinBox>
#include <QTextDocumentFragment>
#include <QThread>
#include <QTimer>
#include <QWizardPage>

#include <utility>

namespace PanoHost
{

PageDriver::PageDriver(QWizardPage *page, PanoHostApplication &app, const JobWatch &watch)
    : m_page(page)
    , m_app(app)
    , m_watch(watch)
{
}

namespace
{

constexpr int kStopWatchMs = 100;

CommandError missingOnPage(const QString &name)
{
    return CommandError({ ExitCode::NoPlugin, Said::tr("plug-in page"),
                          Said::tr("has no '%1'").arg(name),
                          Said::tr("is this library of another version? set --plugin") });
}

template <typename SpinBox, typename Number> void setWithin(SpinBox *box, Number value)
{
    if (value < box->minimum() || value > box->maximum()) {
        throw usageError(Said::tr("%1 is not between %2 and %3")
                             .arg(QString::number(value), QString::number(box->minimum()),
                                  QString::number(box->maximum())));
    }
    box->setValue(value);
}

} // namespace

template <typename Widget> Widget *PageDriver::widget(const QString &name) const
{
    auto *found = m_page->findChild<Widget *>(name);
    if (found == nullptr) {
        throw missingOnPage(name);
    }
    return found;
}

void PageDriver::enterRecord(const QString &path)
{
    auto *edit = widget<QLineEdit>(QStringLiteral("m_leConfigFile"));
    const PageTime working;
    edit->setText(path);
    // Pages read it at each letter or at the Enter key.
    Q_EMIT edit->textEdited(path);
    Q_EMIT edit->editingFinished();
    throwOnMessage();
}

void PageDriver::choosePhotos(const QStringList &names)
{
    QEventLoop loop;
    int read = 0;
    // The application reports from the page's reading thread.
    QObject::connect(
        &m_app, &PanoHostApplication::photoRead, &loop,
        [&](const QString &path) {
            ++read;
            m_watch.report(read, names.size(),
                           QStringLiteral("reading %1").arg(QFileInfo(path).fileName()));
            if (read == names.size()) {
                loop.quit();
            }
        },
        Qt::QueuedConnection);
    QTimer stopWatch;
    QObject::connect(&stopWatch, &QTimer::timeout, &loop, [&] {
        if (m_watch.stopWanted()) {
            loop.quit();
        }
    });
    stopWatch.start(kStopWatchMs);
    offerPhotos(names);
    if (read < names.size() && !m_watch.stopWanted()) {
        loop.exec();
    }
    m_watch.check();
    requireReadable(names);
    requireComplete();
}

void PageDriver::offerPhotos(const QStringList &names)
{
    const PageTime working;
    m_app.clearUnreadablePhotos();
    m_dialogs.answerNextFileDialog(names);
    // Qt's own dialog is the one that can be filled in.
    XUISettings &settings = *m_app.UIInstances()->settings;
    const bool usesSystemDialog = std::exchange(settings.useSystemFileDialog, false);
    widget<QAbstractButton>(QStringLiteral("m_pbSelectImages"))->click();
    settings.useSystemFileDialog = usesSystemDialog;
    throwOnMessage();
    if (!m_dialogs.fileDialogAnswered()) {
        throw CommandError({ ExitCode::NoPlugin, Said::tr("plug-in page"),
                             Said::tr("its photo button opens no file dialog"),
                             Said::tr("set --plugin to another library") });
    }
}

void PageDriver::requireReadable(const QStringList &names) const
{
    const QVector<UnreadablePhoto> unreadable = m_app.unreadablePhotos();
    if (unreadable.isEmpty()) {
        return;
    }
    const UnreadablePhoto &first = unreadable.first();
    const QString others = unreadable.size() == 1
        ? QString()
        : Said::tr(" (and %1 more of %2 photos)")
              .arg(QString::number(unreadable.size() - 1), QString::number(names.size()));
    throw inputRefused(QFileInfo(first.path).fileName(),
                       Said::tr("cannot read (%1)%2").arg(first.why, others),
                       Said::tr("is it a photo? try 'panohost check'"));
}

void PageDriver::requireComplete()
{
    // The thread reports its last photo before it hands it to the page.
    const QList<QThread *> readers = m_page->findChildren<QThread *>();
    for (QThread *reader : readers) {
        reader->wait();
    }
    QCoreApplication::sendPostedEvents();
    throwOnMessage();
    if (m_page->isComplete()) {
        return;
    }
    const auto *warning = m_page->findChild<QLabel *>(QStringLiteral("m_lbWarning"));
    const QString reason = warning == nullptr
        ? QString()
        : QTextDocumentFragment::fromHtml(warning->text()).toPlainText().trimmed();
    throw inputRefused(Said::tr("photos"),
                       reason.isEmpty() ? Said::tr("the page does not accept them") : reason,
                       Said::tr("try 'panohost check'"));
}

void PageDriver::click(const QString &button)
{
    widget<QAbstractButton>(button)->click();
    throwOnMessage();
}

void PageDriver::setChecked(const QString &button, bool checked)
{
    auto *box = widget<QAbstractButton>(button);
    if (box->isChecked() != checked) {
        box->click();
    }
}

void PageDriver::toggle(const char *slot)
{
    if (!QMetaObject::invokeMethod(m_page, slot, Qt::DirectConnection, Q_ARG(bool, true))) {
        throw missingOnPage(QString::fromLatin1(slot));
    }
    throwOnMessage();
}

void PageDriver::setWholeNumber(const QString &spinBox, int value)
{
    setWithin(widget<QSpinBox>(spinBox), value);
}

void PageDriver::setNumber(const QString &spinBox, double value)
{
    setWithin(widget<QDoubleSpinBox>(spinBox), value);
}

double PageDriver::number(const QString &spinBox) const
{
    return widget<QDoubleSpinBox>(spinBox)->value();
}

void PageDriver::setIndex(const QString &comboBox, int index)
{
    widget<QComboBox>(comboBox)->setCurrentIndex(index);
}

int PageDriver::index(const QString &comboBox) const
{
    return widget<QComboBox>(comboBox)->currentIndex();
}

QPixmap PageDriver::layout()
{
    auto *zoom = widget<QSlider>(QStringLiteral("m_hSlider"));
    zoom->setValue(zoom->maximum());
    const auto *area = widget<QScrollArea>(QStringLiteral("m_saPreview"));
    const auto *label = qobject_cast<QLabel *>(area->widget());
    return label == nullptr ? QPixmap() : label->pixmap(Qt::ReturnByValue);
}

StructuredPanoramaProperties PageDriver::handOver()
{
    const PageTime working;
    const int before = m_app.deliveryCount();
    const bool accepted = m_page->validatePage();
    throwOnMessage();
    if (!accepted || m_app.deliveryCount() == before) {
        throw inputRefused(Said::tr("photos"), Said::tr("the page refuses them"),
                           Said::tr("try 'panohost check'"));
    }
    DeliveryLog log;
    return log.take(m_page, m_app.delivery());
}

void PageDriver::throwOnMessage()
{
    const QStringList messages = m_dialogs.takeMessages();
    if (!messages.isEmpty()) {
        throw inputRefused(Said::tr("refused by the plug-in"), messages.join(QLatin1Char(' ')));
    }
}

} // namespace PanoHost
