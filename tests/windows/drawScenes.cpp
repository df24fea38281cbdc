// Draws the scenes with Qt: drawScenes FOLDER. The pictures of the Windows platform are compared
// with them.
#include <nvlist/platform/qt/drawing/QtCanvas.h>

#include <QGuiApplication>
#include <exception>
#include <iostream>

#include "scenes.h"

int main(int argc, char** argv) {
  const QGuiApplication application(argc, argv);
  if (argc != 2) return 2;
  const std::string folder = argv[1];
  try {
    scenes::forEachImage([&](const scenes::Image& image) {
      norvane::QtCanvas canvas;
      canvas.resize(QSize(static_cast<int>(image.surface.ScaleWidth()),
                          static_cast<int>(image.surface.ScaleHeight())),
                    1);
      image.surface.replay(canvas);
      const QImage& drawn = canvas.image();
      scenes::Pixels pixels{drawn.width(), drawn.height(), {}};
      for (int y = 0; y < drawn.height(); ++y)
        for (int x = 0; x < drawn.width(); ++x)
          pixels.values.push_back(drawn.pixel(x, y) & 0xFFFFFF);
      scenes::write(pixels, folder + "/" + image.name + ".ppm");
    });
  } catch (const std::exception& failure) {
    std::cerr << failure.what() << '\n';
    return 1;
  }
  return 0;
}
