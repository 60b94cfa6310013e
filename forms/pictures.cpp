#include "forms/pictures.h"

#include "forms/rasters.h"
#include "forms/rendered.h"
#include "forms/svg.h"

#include "host/failure.h"
#include "host/filestate.h"
#include "host/numberedfiles.h"

#include <QCoreApplication>
#include <QFile>
#include <QHash>
#include <QImage>
#include <QResource>

#include <optional>
#include <utility>

using namespace Qt::StringLiterals;

namespace forms {

namespace {

QHash<QString, QPixmap> drawn;

// A press on the row that stands selected, as the second of a double click, loads the same picture again.
struct Loaded {
    QString path;
    host::FileState file;
    QPixmap picture;
};
std::optional<Loaded> lastLoaded;

// Pictures must be gone before the application object.
void forgetAtTheEnd()
{
    static const bool once = [] {
        qAddPostRoutine([] {
            drawn.clear();
            lastLoaded.reset();
        });
        return true;
    }();
    Q_UNUSED(once)
}

// The build has rendered the artwork in its own size at the usual scales; any other one is drawn here.
QImage imageOf(const QString &name, const QSize &pixels, qreal devicePixelRatio)
{
    const QImage rendered =
        unpacked(QResource(renderedPath(name, pixels, devicePixelRatio)).uncompressedData());
    return rendered.isNull() ? renderSvg(u":/artwork/%1.svg"_s.arg(name), pixels) : rendered;
}

QPixmap draw(const QString &name, const QSize &size, qreal devicePixelRatio)
{
    QPixmap picture = QPixmap::fromImage(imageOf(name, pixelsOf(size, devicePixelRatio), devicePixelRatio));
    picture.setDevicePixelRatio(devicePixelRatio);
    return picture;
}

QImage decodeFile(const QString &path, std::optional<host::FileState> *state = nullptr)
{
    return decodeRaster(host::readBytes(path, MostRasterBytes + 1, state));
}

} // namespace

QPixmap LoadPicture(const QString &path)
{
    if (lastLoaded && lastLoaded->path == path && host::stateOfFile(path) == lastLoaded->file)
        return lastLoaded->picture;
    std::optional<host::FileState> file;
    QImage image = decodeFile(path, &file);
    if (image.isNull())
        throw host::Failure(host::InvalidPicture, u"load a picture"_s, path);
    const QPixmap picture = QPixmap::fromImage(std::move(image));
    forgetAtTheEnd();
    lastLoaded = file ? std::optional(Loaded { path, *file, picture }) : std::nullopt;
    return picture;
}

bool isPicture(const QString &path)
{
    return !decodeFile(path).isNull();
}

QPixmap artwork(const QString &name, const QSize &size, qreal devicePixelRatio)
{
    if (size.isEmpty() || !QFile::exists(u":/artwork/%1.svg"_s.arg(name)))
        return {};
    const QString key = u"%1 %2 %3 %4"_s.arg(name).arg(size.width()).arg(size.height()).arg(devicePixelRatio);
    auto found = drawn.constFind(key);
    if (found == drawn.constEnd()) {
        forgetAtTheEnd();
        found = drawn.insert(key, draw(name, size, devicePixelRatio));
    }
    return *found;
}

QIcon artworkIcon(const QString &name)
{
    QIcon icon;
    for (const int side : IconSides)
        icon.addPixmap(artwork(name, { side, side }, 1));
    return icon;
}

} // namespace forms
