// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#include "incidents.h"

#include <QCheckBox>
#include <QDoubleSpinBox>
#include <QScrollArea>
#include <QScrollBar>

namespace
{

QPalette otherPalette()
{
    QPalette palette;
    palette.setColor(QPalette::Window, QColor(0xff, 0xf0, 0xc0));
    palette.setColor(QPalette::WindowText, QColor(0x40, 0x00, 0x60));
    return palette;
}

QFont otherFont()
{
    QFont font = QApplication::font();
    font.setPointSize(font.pointSize() + 5);
    font.setBold(true);
    return font;
}

void enterOptions(PhotoShoot &shoot)
{
    for (QCheckBox *box : shoot.page()->findChildren<QCheckBox *>()) {
        box->click();
    }
    for (QDoubleSpinBox *number : shoot.page()->findChildren<QDoubleSpinBox *>()) {
        number->stepUp();
    }
}

void scroll(PhotoShoot &shoot)
{
    const auto *area = shoot.find<QScrollArea>("m_saPreview");
    for (QScrollBar *bar : { area->horizontalScrollBar(), area->verticalScrollBar() }) {
        bar->setValue(bar->maximum());
        bar->setValue(bar->minimum());
    }
}

void moveToAnotherWizard(PhotoShoot &shoot)
{
    auto *other = new QWizard(&shoot.wizard());
    other->addPage(new QWizardPage);
    other->addPage(shoot.page());
    other->show();
}

} // namespace

const std::vector<Incident> &incidents()
{
    static const std::vector<Incident> all = {
        { "a turn of the event loop", Incident::Kind::Always, [](PhotoShoot &) {} },
        { "palette of the application", Incident::Kind::Always,
          [](PhotoShoot &) { QApplication::setPalette(otherPalette()); } },
        { "palette of the page", Incident::Kind::WithPage,
          [](PhotoShoot &shoot) { shoot.page()->setPalette(otherPalette()); } },
        { "font of the application", Incident::Kind::Always,
          [](PhotoShoot &) { QApplication::setFont(otherFont()); } },
        { "font of the page", Incident::Kind::WithPage,
          [](PhotoShoot &shoot) { shoot.page()->setFont(otherFont()); } },
        { "style of the application", Incident::Kind::Always,
          [](PhotoShoot &) { QApplication::setStyle(QStringLiteral("windows")); } },
        { "style sheet of the application", Incident::Kind::Always,
          [](PhotoShoot &) {
              host().setStyleSheet(QStringLiteral("QLabel { color: red; font-size: 20pt }"));
              turnEventLoop();
              host().setStyleSheet({});
          } },
        { "style sheet of the page", Incident::Kind::WithPage,
          [](PhotoShoot &shoot) {
              shoot.page()->setStyleSheet(QStringLiteral("* { background: yellow }"));
              turnEventLoop();
              shoot.page()->setStyleSheet({}); // with one, Qt does not survive another style
          } },
        { "right to left", Incident::Kind::Always,
          [](PhotoShoot &) { QApplication::setLayoutDirection(Qt::RightToLeft); } },
        { "another language", Incident::Kind::WithPage,
          [](PhotoShoot &shoot) {
              QEvent event(QEvent::LanguageChange);
              QCoreApplication::sendEvent(shoot.page(), &event);
          } },
        { "disabled and enabled", Incident::Kind::WithPage,
          [](PhotoShoot &shoot) {
              shoot.page()->setEnabled(false);
              turnEventLoop();
              shoot.page()->setEnabled(true);
          } },
        { "another size", Incident::Kind::WithPage,
          [](PhotoShoot &shoot) { shoot.wizard().resize(1200, 900); } },
        { "hidden and shown", Incident::Kind::WithPage,
          [](PhotoShoot &shoot) {
              shoot.wizard().hide();
              turnEventLoop();
              shoot.wizard().show();
          } },
        { "painted", Incident::Kind::WithPage,
          [](PhotoShoot &shoot) { (void)shoot.page()->grab(); } },
        { "scrolled", Incident::Kind::WithPage, &scroll },
        { "in another wizard", Incident::Kind::Last, &moveToAnotherWizard },
        { "asked whether it is complete", Incident::Kind::WithPage,
          [](PhotoShoot &shoot) { (void)shoot.page()->isComplete(); } },
        { "options entered", Incident::Kind::WithPage, &enterOptions },
    };
    return all;
}

QString wrongAfter(const Incident &incident, PhotoShoot &shoot)
{
    const int asked = photoHost().asked();
    const QImage picture = shoot.picture();
    incident.happen(shoot);
    turnEventLoop();
    if (const int more = photoHost().asked() - asked; more != 0) {
        return QStringLiteral("photos were asked %1 times, %2 of them gone")
            .arg(more)
            .arg(photoHost().askedWhileGone());
    }
    return LayoutPicture::difference(shoot.picture(), picture);
}

QString wrongAfterAny(PhotoShoot &shoot)
{
    for (const Incident &incident : incidents()) {
        const QString wrong = wrongAfter(incident, shoot);
        if (!wrong.isEmpty()) {
            return QStringLiteral("%1: %2").arg(QLatin1String(incident.name), wrong);
        }
    }
    return {};
}
