// Draws an SVG file in the sizes that are given, as bare pixels (QImage::Format_RGBA8888_Premultiplied). Runs while the
// program is built.
#include <QFile>
#include <QImage>
#include <QPainter>
#include <QString>
#include <QSvgRenderer>

#include <cstdio>
#include <cstdlib>

namespace {

bool draw(QSvgRenderer &drawing, int size, const QString &fileName)
{
    QImage picture(size, size, QImage::Format_ARGB32_Premultiplied);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    drawing.render(&painter);
    painter.end();
    picture.convertTo(QImage::Format_RGBA8888_Premultiplied);
    QFile file(fileName);
    return file.open(QIODevice::WriteOnly)
        && file.write(reinterpret_cast<const char *>(picture.constBits()), picture.sizeInBytes())
        == picture.sizeInBytes();
}

} // namespace

int main(int argc, char **argv)
{
    if (argc < 3) {
        std::fputs("Usage: tarvo_draw_pictures DRAWING.svg START-OF-NAMES SIZE...\n", stderr);
        return EXIT_FAILURE;
    }
    QSvgRenderer drawing(QString::fromLocal8Bit(argv[1]));
    drawing.setAspectRatioMode(Qt::KeepAspectRatio);
    bool drawn = drawing.isValid();
    for (int i = 3; i < argc; ++i) {
        const int size = std::atoi(argv[i]);
        const QString name = QString::fromLocal8Bit(argv[2]) + QString::number(size) + QStringLiteral(".rgba");
        drawn = drawn && size > 0 && draw(drawing, size, name);
    }
    return drawn ? EXIT_SUCCESS : EXIT_FAILURE;
}
