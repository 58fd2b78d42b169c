// SPDX-License-Identifier: MIT
#include "app/icons/PictureReference.h"

#include <QImageReader>

namespace {

QImage readPicture(const QString& path, QSize size) {
    for (const char* ending : {".svg", ".png"}) {
        QImageReader reader(path + QLatin1String(ending));
        reader.setScaledSize(size);
        QImage image = reader.read();
        if (!image.isNull()) return image;
    }
    return {};
}

}  // namespace

QPixmap PictureReference::pixmap(QSize size, qreal ratio) const {
    const QSize deviceSize = size * ratio;
    if (m_readSize != deviceSize) {
        m_readSize = deviceSize;
        m_read = QPixmap::fromImage(readPicture(m_path, deviceSize));
        m_read.setDevicePixelRatio(ratio);
    }
    return m_read;
}
