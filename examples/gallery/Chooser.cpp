#include "Chooser.h"

#include <QTimer>

#include <nvlist/platform/qt/QtPicture.h>

namespace gallery {

Chooser::Chooser(const QList<Page>& pages) {
  constexpr int iconSize = 32;
  setObjectName("chooser");
  setFollowsPalette(true);
  setMirrorsLayout(true);
  norvane::nvList& own = list();
  own.AutoRedraw(false);
  own.Style(norvane::cIcons);
  own.IconW(iconSize);
  own.IconH(iconSize);
  own.IndentLeft(8);
  own.DistPicText(10);
  own.MinHeight(iconSize + 12);
  const int pixels = qRound(iconSize * devicePixelRatioF());
  for (const Page& page : pages)
    own.ItemsAdd(
        {.aText = page.title, .aIcon = norvane::QtPicture::fromImage(drawn(page.icon, pixels))});
  own.AutoRedraw(true);

  own.addSink(*this);
}

Chooser::~Chooser() { list().removeSink(*this); }

/// Delayed, because the list is still handling its own event.
void Chooser::tell() {
  // Dragging past the end of a list as short as this one leaves its scroll bar below 0.
  list().CheckScroll();
  QTimer::singleShot(0, this, [this] {
    if (onChosen && list().ListIndex() >= 0) onChosen(list().ListIndex());
  });
}

}  // namespace gallery
