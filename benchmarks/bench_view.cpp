// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT

// How fluidly the picture of a shoot of 10,000 photos moves: the processor time of whole repaints
// on all cores, which other programs do not change, as the view chooses where OpenGL is the
// processor's work and with that OpenGL, against drawing as many outlines.
#include "benchmarks/bars.h"
#include "host/view/shootview.h"
#include "tests/host/view/viewshoots.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QPainter>

#include <algorithm>
#include <ctime>
#include <functional>

using namespace PanoHost;

namespace
{

constexpr int kPhotos = 10'000;
const QSize kWindow(1280, 800);
constexpr int kFrames = 60;

/** The processor time of all threads. */
double secondsOf(const std::function<void()> &work)
{
    const std::clock_t start = std::clock();
    work();
    return static_cast<double>(std::clock() - start) / CLOCKS_PER_SEC;
}

/** A picture that no two photos share. */
std::optional<PhotoReading> madePhoto(const QString &path)
{
    PhotoReading reading;
    reading.info.path = path;
    reading.thumbnail = QImage(256, 171, QImage::Format_RGB32);
    const uint seed = qHash(path);
    for (int y = 0; y < reading.thumbnail.height(); ++y) {
        auto *row = reinterpret_cast<QRgb *>(reading.thumbnail.scanLine(y));
        for (int x = 0; x < reading.thumbnail.width(); ++x) {
            row[x] = 0xff000000U | (seed * 2654435761U + static_cast<uint>(x * y) * 40503U);
        }
    }
    return reading;
}

const ShootScene &scene()
{
    static const ShootScene scene = sceneOf(ViewShoots::sphereOf(kPhotos));
    return scene;
}

void waitForPhotos(const ShootView &view)
{
    while (!view.isLoaded()) {
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    }
    QCoreApplication::processEvents();
}

/** A view of 10,000 photos, all of them there. */
std::unique_ptr<ShootView> newView(ShootView::Drawing drawing, ViewMode mode)
{
    auto view = std::make_unique<ShootView>(nullptr, drawing);
    view->setPhotoSource(madePhoto);
    view->resize(kWindow);
    view->showScene(scene());
    view->setMode(mode);
    view->show();
    waitForPhotos(*view);
    return view;
}

enum class Move { Pan, Zoom };

struct Cost {
    double median = 0.0; ///< seconds a frame
    double worst = 0.0; ///< by the clock
    bool usesOpenGl = false;
};

/** As somebody does it: the events between two pictures are dealt with too, thumbnails arrive. */
Cost measure(ShootView::Drawing drawing, ViewMode mode, Move move)
{
    const auto view = newView(drawing, mode);
    view->setCamera(view->camera().zoomed(1.5, QPointF(640, 400)));
    waitForPhotos(*view);
    std::vector<double> seconds;
    double worst = 0.0;
    for (int i = 0; i < kFrames; ++i) {
        QElapsedTimer timer;
        timer.start();
        seconds.push_back(secondsOf([&] {
            const double factor = i < kFrames / 2 ? 1.1 : 1.0 / 1.1;
            view->setCamera(move == Move::Pan ? view->camera().dragged(QPointF(-17.0, 3.0))
                                              : view->camera().zoomed(factor, QPointF(700, 300)));
            view->repaint();
            QCoreApplication::processEvents();
        }));
        worst = std::max(worst, static_cast<double>(timer.nsecsElapsed()) / 1e9);
    }
    return { Bars::median(seconds), worst, view->usesOpenGl() };
}

/** What drawing the outlines of all frames takes, each a rectangle of its size. */
double outlineSeconds()
{
    static const double seconds = [] {
        QImage picture(kWindow, QImage::Format_ARGB32_Premultiplied);
        picture.fill(Qt::white);
        std::vector<double> runs;
        for (int run = 0; run < 5; ++run) {
            runs.push_back(secondsOf([&] {
                QPainter painter(&picture);
                for (int i = 0; i < kPhotos; ++i) {
                    const QPointF at(i * 37 % kWindow.width(), i * 91 % kWindow.height());
                    painter.drawPolyline(QPolygonF(QRectF(at, QSizeF(11.0, 8.0))));
                }
            }));
        }
        return Bars::median(runs);
    }();
    return seconds;
}

void addMoves(const char *name, ShootView::Drawing drawing, const Bars::Bar &bar)
{
    for (const ViewMode mode : { ViewMode::Flat, ViewMode::Sphere }) {
        for (const Move move : { Move::Pan, Move::Zoom }) {
            const std::string row
                = Bars::text("%s, %s, %s", name, mode == ViewMode::Flat ? "flat" : "sphere",
                             move == Move::Pan ? "pan" : "zoom");
            Bars::add(row, bar, [=] {
                const Cost cost = measure(drawing, mode, move);
                Bars::Figure figure;
                figure.value = 1.0 / cost.median;
                figure.detail = Bars::text(
                    "%.1f ms; worst %.1f ms by the clock; %.2f x drawing %d outlines",
                    cost.median * 1e3, cost.worst * 1e3, cost.median / outlineSeconds(), kPhotos);
                // The screen's OpenGL is the processor's, which views do without.
                if (cost.usesOpenGl != (drawing == ShootView::Drawing::OpenGl)) {
                    figure.mistake = "drawn the other way";
                }
                return figure;
            });
        }
    }
}

} // namespace

int main(int argc, char **argv)
{
    const QApplication application(argc, argv);
    Bars::add("first picture", { Bars::Need::AtMost, 1.0, " s" }, [] {
        const Panorama panorama = ViewShoots::sphereOf(kPhotos);
        ShootView view;
        view.setPhotoSource(madePhoto);
        view.resize(kWindow);
        view.show();
        Bars::Figure figure;
        double sceneSeconds = 0.0;
        figure.value = secondsOf([&] {
            ShootScene made;
            sceneSeconds = secondsOf([&] { made = sceneOf(panorama); });
            view.showScene(made);
            view.repaint();
        });
        const double gaps = secondsOf([&] { view.setGapsShown(true); });
        figure.detail = Bars::text("scene %.0f ms, gaps %.0f ms", sceneSeconds * 1e3, gaps * 1e3);
        return figure;
    });
    addMoves("as the view chooses", ShootView::Drawing::Best,
             { Bars::Need::AtLeast, 30.0, " frames/s" });
    addMoves("OpenGL by the processor", ShootView::Drawing::OpenGl,
             { Bars::Need::Nothing, 0.0, " frames/s" });
    return Bars::run(argc, argv);
}
