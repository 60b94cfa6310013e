#include "forms/rendered.h"

#include <cstring>
#include <memory>

using namespace Qt::StringLiterals;

namespace forms {

namespace {

struct Head {
    qint32 width;
    qint32 height;
};

constexpr qint64 BytesPerPixel = 4;

void release(void *bytes)
{
    delete static_cast<QByteArray *>(bytes);
}

} // namespace

QString renderedPath(const QString &name, const QSize &pixels, qreal scale)
{
    return u":/artwork/%1/%2@%3x%4.raw"_s.arg(scale).arg(name).arg(pixels.width()).arg(pixels.height());
}

QByteArray packed(const QImage &image)
{
    const QImage pixels = image.convertToFormat(QImage::Format_ARGB32_Premultiplied);
    const Head head { pixels.width(), pixels.height() };
    return QByteArray(reinterpret_cast<const char *>(&head), sizeof head)
        + QByteArray(reinterpret_cast<const char *>(pixels.constBits()), pixels.sizeInBytes());
}

QImage unpacked(const QByteArray &bytes)
{
    Head head {};
    if (bytes.size() < qsizetype(sizeof head))
        return {};
    std::memcpy(&head, bytes.constData(), sizeof head);
    const bool whole = head.width > 0 && head.height > 0
        && bytes.size() == qsizetype(sizeof head) + BytesPerPixel * head.width * head.height;
    if (!whole)
        return {};
    // The image keeps the bytes instead of a copy.
    auto own = std::make_unique<QByteArray>(bytes);
    const auto *pixels = reinterpret_cast<const uchar *>(own->constData()) + sizeof head;
    return QImage(pixels, head.width, head.height, BytesPerPixel * head.width,
        QImage::Format_ARGB32_Premultiplied, release, own.release());
}

} // namespace forms
