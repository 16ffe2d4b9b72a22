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

QImage PictureCache::image(const Picture& picture, QSize size) {
    const std::pair key(&picture, std::pair(size.width(), size.height()));
    if (const QImage* kept = images_.object(key)) {
        return *kept;
    }
    QImage made = make(picture, size);
    images_.insert(key, new QImage(made));
    return made;
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
