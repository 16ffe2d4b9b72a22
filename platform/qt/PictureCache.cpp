#include "platform/qt/PictureCache.h"

#include <QPainter>

namespace tumble {

namespace {

QImage decoded(const Picture& picture) {
    return QImage::fromData(reinterpret_cast<const uchar*>(picture.data.data()), static_cast<int>(picture.data.size()));
}

QImage crossedCard(QSize size) {
    QImage image(size, QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(Qt::red, size.width() / 20.0));
    painter.drawLine(0, 0, size.width(), size.height());
    painter.drawLine(size.width(), 0, 0, size.height());
    return image;
}

} // namespace

const QImage& PictureCache::image(const Picture& picture, QSize size) {
    const auto [place, isNew] = images_.try_emplace({&picture, size.width(), size.height()});
    if (isNew) {
        place->second = make(picture, size);
    }
    return place->second;
}

QImage PictureCache::make(const Picture& picture, QSize size) const {
    QImage image = painter_ ? painter_(picture, size) : QImage();
    if (image.isNull()) {
        image = decoded(picture);
    }
    if (image.isNull()) {
        image = crossedCard(size);
    }
    return image.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation).convertToFormat(QImage::Format_RGB32);
}

} // namespace tumble
