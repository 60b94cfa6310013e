// Renders the artwork while building: render_artwork LIST DIRECTORY
// LIST is the resource list of the drawings. Every drawing comes as a PNG in each scale into DIRECTORY, with
// a resource list of them all: under the drawing's name, an '@' and the scale.

#include "forms/svg.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>
#include <QSvgRenderer>

#include <cstdio>

using namespace Qt::StringLiterals;

namespace {

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

// The PNG of a drawing, made anew unless another name asked for it before; empty if that fails.
QString rendered(const QString &file, qreal scale, const QDir &directory)
{
    const QString png = u"%1@%2.png"_s.arg(QFileInfo(file).baseName()).arg(scale);
    static QStringList done;
    if (done.contains(png))
        return png;
    const QSize size = QSvgRenderer(file).defaultSize();
    if (size.isEmpty() || !forms::renderSvg(file, forms::pixelsOf(size, scale)).save(directory.filePath(png)))
        return {};
    done.append(png);
    return png;
}

} // namespace

int main(int argc, char **argv)
{
    if (argc < 3)
        return 2;
    const QDir directory(QString::fromLocal8Bit(argv[2]));
    const QList<Drawing> drawings = drawingsIn(QString::fromLocal8Bit(argv[1]));
    QString list = u"<RCC><qresource prefix=\"/artwork\">\n"_s;
    for (const Drawing &drawing : drawings) {
        for (const qreal scale : forms::RenderedScales) {
            const QString png = rendered(drawing.file, scale, directory);
            if (png.isEmpty()) {
                std::fprintf(stderr, "render_artwork: can't render %s\n", qPrintable(drawing.file));
                return 1;
            }
            list += u"<file alias=\"%1@%2.png\">%3</file>\n"_s.arg(drawing.name).arg(scale).arg(png);
        }
    }
    list += u"</qresource></RCC>\n"_s;
    QFile out(directory.filePath(u"rendered.qrc"_s));
    const bool written =
        !drawings.isEmpty() && out.open(QIODevice::WriteOnly) && out.write(list.toUtf8()) > 0;
    return written ? 0 : 1;
}
