// Renders the artwork while building: render_artwork LIST DIRECTORY, render_artwork --icon DRAWING SIDE PNG
// LIST is the resource list of the drawings. Every drawing comes as a packed picture in each scale into
// DIRECTORY, with a resource list of those in their own size, and another one of the rest. An icon has SIDE
// pixels each way.

#include "forms/rendered.h"
#include "forms/svg.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>
#include <QSvgRenderer>

#include <cstdio>

using namespace Qt::StringLiterals;

namespace {

constexpr QStringView Prefix = u":/artwork/";

struct Drawing {
    QString name; // as in ":/artwork/NAME.svg"
    QString file;
};

QList<Drawing> drawingsIn(const QString &list)
{
    QFile file(list);
    if (!file.open(QIODevice::ReadOnly))
        return {};
    const QString text = QString::fromUtf8(file.readAll());
    static const QRegularExpression entry(u"alias=\"(.+?)\\.svg\">(.+?)<"_s);
    QList<Drawing> drawings;
    for (const QRegularExpressionMatch &match : entry.globalMatch(text))
        drawings.append({ match.captured(1), QFileInfo(list).dir().filePath(match.captured(2)) });
    return drawings;
}

// The sizes in pixels in which a drawing is shown at a scale.
QList<QSize> sizesOf(const Drawing &drawing, qreal scale)
{
    QList<QSize> sizes { forms::pixelsOf(QSvgRenderer(drawing.file).defaultSize(), scale) };
    for (const int side : forms::IconSides) {
        if (scale == 1 && drawing.name == u"icono" && !sizes.contains(QSize(side, side)))
            sizes.append({ side, side });
    }
    return sizes;
}

// The file of a drawing rendered in this size, made unless another name asked for it before; empty if that
// fails.
QString rendered(const QString &file, const QSize &size, const QDir &directory)
{
    const QString name =
        u"%1@%2x%3.raw"_s.arg(QFileInfo(file).baseName()).arg(size.width()).arg(size.height());
    static QStringList done;
    if (done.contains(name))
        return name;
    QFile out(directory.filePath(name));
    const QByteArray bytes = forms::packed(forms::renderSvg(file, size));
    if (size.isEmpty() || !out.open(QIODevice::WriteOnly) || out.write(bytes) != bytes.size())
        return {};
    done.append(name);
    return name;
}

// Of resources. Most starts show the drawings in their own size: the program holds those as they are shown.
struct Lists {
    QString ownSize;
    QString otherScales;
};

// False if a drawing can't be rendered.
bool addEntries(Lists &lists, const Drawing &drawing, const QDir &directory)
{
    for (const qreal scale : forms::RenderedScales) {
        for (const QSize &size : sizesOf(drawing, scale)) {
            const QString file = rendered(drawing.file, size, directory);
            if (file.isEmpty())
                return false;
            const QString path = forms::renderedPath(drawing.name, size, scale);
            (scale == 1 ? lists.ownSize : lists.otherScales) +=
                u"<file alias=\"%1\">%2</file>\n"_s.arg(path.sliced(Prefix.size()), file);
        }
    }
    return true;
}

bool writeList(const QString &path, const QString &entries)
{
    QFile out(path);
    const QString list = u"<RCC><qresource prefix=\"/artwork\">\n%1</qresource></RCC>\n"_s.arg(entries);
    return !entries.isEmpty() && out.open(QIODevice::WriteOnly) && out.write(list.toUtf8()) > 0;
}

int renderIcon(const QString &drawing, int side, const QString &file)
{
    if (side > 0 && QDir().mkpath(QFileInfo(file).path())
        && forms::renderSvg(drawing, { side, side }).save(file))
        return 0;
    std::fprintf(stderr, "render_artwork: can't render %s\n", qPrintable(file));
    return 1;
}

} // namespace

int main(int argc, char **argv)
{
    if (argc == 5 && argv[1] == "--icon"_L1)
        return renderIcon(
            QString::fromLocal8Bit(argv[2]), QByteArray(argv[3]).toInt(), QString::fromLocal8Bit(argv[4]));
    if (argc != 3)
        return 2;
    const QDir directory(QString::fromLocal8Bit(argv[2]));
    const QList<Drawing> drawings = drawingsIn(QString::fromLocal8Bit(argv[1]));
    Lists lists;
    for (const Drawing &drawing : drawings) {
        if (!addEntries(lists, drawing, directory)) {
            std::fprintf(stderr, "render_artwork: can't render %s\n", qPrintable(drawing.file));
            return 1;
        }
    }
    const bool written = writeList(directory.filePath(u"own_size.qrc"_s), lists.ownSize)
        && writeList(directory.filePath(u"other_scales.qrc"_s), lists.otherScales);
    return written ? 0 : 1;
}
