// Build tool: renders one SVG icon source to a PNG of the given size, optionally turned about its
// centre, so that the library ships pixels drawn from sources kept in the repository.
//
//     kes_iconrender <source.svg> <output.png> <size> [<degrees clockwise>]

#include <QCoreApplication>
#include <QImage>
#include <QPainter>
#include <QString>
#include <QStringList>
#include <QSvgRenderer>

#include <cstdio>

namespace {

int fail(const QString& message)
{
    std::fprintf(stderr, "kes_iconrender: %s\n", qPrintable(message));
    return 1;
}

} // namespace

int main(int argc, char** argv)
{
    // Raster painting into a QImage needs no platform plugin, so the build needs no display.
    QCoreApplication app(argc, argv);

    const QStringList args = QCoreApplication::arguments();
    if (args.size() != 4 && args.size() != 5)
        return fail(QStringLiteral("usage: kes_iconrender <source.svg> <output.png> <size> [<degrees>]"));

    bool sizeOk = false;
    const int size = args.at(3).toInt(&sizeOk);
    if (!sizeOk || size <= 0 || size > 1024)
        return fail(QStringLiteral("invalid size '%1'").arg(args.at(3)));
    bool angleOk = true;
    const double degrees = args.size() == 5 ? args.at(4).toDouble(&angleOk) : 0.0;
    if (!angleOk)
        return fail(QStringLiteral("invalid angle '%1'").arg(args.at(4)));

    QSvgRenderer renderer(args.at(1));
    if (!renderer.isValid())
        return fail(QStringLiteral("cannot read SVG '%1'").arg(args.at(1)));

    QImage image(size, size, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    {
        QPainter painter(&image);
        painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
        const double centre = size / 2.0;
        painter.translate(centre, centre);
        painter.rotate(degrees);
        painter.translate(-centre, -centre);
        renderer.render(&painter, QRectF(0, 0, size, size));
    }
    if (!image.convertToFormat(QImage::Format_ARGB32).save(args.at(2), "PNG"))
        return fail(QStringLiteral("cannot write '%1'").arg(args.at(2)));
    return 0;
}
