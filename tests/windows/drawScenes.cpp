// Draws the scenes with Qt: drawScenes FOLDER. Each file there has the pixels of a picture, row by
// row as 0xFFRRGGBB, with which that of the Windows platform is compared.
#include <nvlist/platform/qt/drawing/QtCanvas.h>

#include <QGuiApplication>
#include <fstream>

#include "scenes.h"

int main(int argc, char** argv) {
  const QGuiApplication application(argc, argv);
  if (argc != 2) return 2;
  const std::string folder = argv[1];
  scenes::forEachImage([&](const scenes::Image& image) {
    norvane::QtCanvas canvas;
    canvas.resize(QSize(static_cast<int>(image.surface.ScaleWidth()),
                        static_cast<int>(image.surface.ScaleHeight())),
                  1);
    image.surface.replay(canvas);
    const QImage drawn = canvas.image().convertToFormat(QImage::Format_RGB32);
    std::ofstream(folder + "/" + image.name, std::ios::binary)
        .write(reinterpret_cast<const char*>(drawn.constBits()), drawn.sizeInBytes());
  });
  return 0;
}
