#include "workbench/window/pictures.h"

#include <QFile>

#include "spread/picture_size.h"

QImage imageOf(const CBitmap& picture, int64_t without) {
    if (picture.isEmpty()) return {};
    QImage image(picture.width(), picture.height(), QImage::Format_ARGB32);
    for (int y = 0; y < picture.height(); ++y) {
        auto* line = reinterpret_cast<QRgb*>(image.scanLine(y));
        const CBitmap::Pixel* row = picture.row(y);
        for (int x = 0; x < picture.width(); ++x)
            line[x] = row[x] == without ? 0 : row[x] | 0xFF000000u;
    }
    return image;
}

QPixmap pixmapOf(const CBitmap& picture) {
    return QPixmap::fromImage(imageOf(picture));
}

QImage imageOfFile(const std::string& bytes) {
    std::string error;
    if (const std::optional<CBitmap> bitmap = decodeBitmap(bytes, error)) return imageOf(*bitmap);
    // Other readers go through whatever number of lines a bitmap's header claims.
    if (bytes.starts_with("BM") && !pictureSizeOf(bytes)) return {};
    return QImage::fromData(reinterpret_cast<const uchar*>(bytes.data()),
                            static_cast<int>(bytes.size()));
}

QIcon iconOf(int number) {
    const QString file = QStringLiteral(":/bitmaps/%1.svg").arg(number);
    if (QFile::exists(file)) return QIcon(file);
    const QPixmap own = pixmapOf(bitmapResource(number));
    return own.isNull() ? QIcon() : QIcon(own);
}
