#include "Windows.h"

#include "packs/CardPack.h"
#include "platform/paint/Replay.h"
#include "platform/qt/QtCanvas.h"
#include "platform/qt/SurfaceWidget.h"
#include "table/CardTracker.h"

#include <QBackingStore>
#include <QImage>

#include <memory>
#include <random>

namespace tumble {

namespace {

/// Random painting on the table, in a window of random sizes.
class SurfaceWidgetTest : public Windows {
protected:
    SurfaceWidgetTest() {
        tracker.picture(&box);
        mainMod.table().Show();
        window = Windows::window("Tumble");
        surface = control("Tumble", "picTable");
    }

    unsigned below(unsigned limit) { return static_cast<unsigned>(random() % limit); }
    float place(unsigned limit) { return static_cast<float>(below(limit)) / 2 - 700; }

    void step() {
        const unsigned kind = below(100);
        const float X = place(20000);
        const float Y = place(14000);
        const auto size = static_cast<CardSize>(below(3));
        if (desktop.log.size() > 400) {
            desktop.log.clear();
            tracker = {};
            tracker.picture(&box);
            box.Cls();
        } else if (kind < 15) {
            const auto rank = static_cast<CardRank>(rkTwo + below(13));
            tracker.addCard(rank, suHeart, X, Y, size, fdFaceUp, bsFirst);
            if (kind < 5) { // another at the same place, on its edge or a little aside
                const float aside = 150 * static_cast<float>(below(3));
                tracker.addJoker(X + aside, Y + 1000 * static_cast<float>(below(2)), size, fdFaceDown, bsLast);
            }
        } else if (kind < 22) {
            const auto pack = std::make_shared<CardPack>();
            pack->tracker(&tracker);
            pack->init(size, fdFaceUp, bsFirst, kind < 18 ? dtEmpty : kind < 20 ? dt24Card : dtDouble);
            pack->placeAsPile(X, Y);
        } else if (kind < 35) {
            tracker.identifyCard(X, Y);
            tracker.flipCurCard();
        } else if (kind < 40) {
            tracker.identifyCard(X, Y);
            tracker.removeCurCard();
        } else if (kind < 50) {
            tracker.endCurCardMove();
        } else if (kind < 60) {
            window->resize(window->minimumSize() + QSize(static_cast<int>(below(300)), static_cast<int>(below(300))));
        } else if (kind < 70) {
            window->resize(window->width() + static_cast<int>(below(2)), window->height() + static_cast<int>(below(2)));
        } else {
            tracker.identifyCard(X, Y);
            tracker.startCurCardMove(X, Y);
            tracker.moveCurCard(place(20000), place(14000));
        }
    }

    /// What the window shows of the surface, in device pixels.
    QImage shown() const {
        QCoreApplication::processEvents();
        QEvent now(QEvent::UpdateRequest);
        QCoreApplication::sendEvent(window, &now);
        const double ratio = window->devicePixelRatioF();
        const QImage all = *dynamic_cast<QImage*>(window->backingStore()->paintDevice());
        const QRect place(surface->mapTo(window, QPoint()), surface->size());
        const QPoint corner = (QPointF(place.topLeft()) * ratio).toPoint();
        const QPoint end = (QPointF(place.bottomRight() + QPoint(1, 1)) * ratio).toPoint();
        return all.copy({corner, end - QPoint(1, 1)}).convertToFormat(QImage::Format_RGB32);
    }

    QImage painted(QSize size) {
        QtCanvas canvas({size.width(), size.height()}, tableGreen);
        const PixelScale scale(scaleOf(window) * window->devicePixelRatioF());
        for (const DisplayItem& item : desktop.log) {
            paint(canvas, item, scale, pictures);
        }
        return canvas.image();
    }

    PictureBox& box = mainMod.table().picTable;
    CardTracker tracker;
    PictureCache pictures{{}, decoded};
    QWidget* window = nullptr;
    QWidget* surface = nullptr;
    std::mt19937 random{1};
};

TEST_F(SurfaceWidgetTest, EveryPixelOfTheWidgetShowsWhatWasPainted) {
    for (int i = 0; i < 600; ++i) {
        step();
        const QImage image = shown();
        ASSERT_EQ(image, painted(image.size())) << "step " << i << ", " << image.width() << " by " << image.height();
    }
}

} // namespace

} // namespace tumble
