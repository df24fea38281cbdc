#include <nvlist/platform/qt/QtFont.h>

#include <QFontInfo>
#include <algorithm>

namespace norvane {

Font fontFrom(const QFont& font) {
  auto result = makeRef<FontObject>();
  result->Name = font.family().toStdString();
  const qreal points = font.pointSizeF();
  result->Size = static_cast<float>(points > 0 ? points : QFontInfo(font).pointSizeF());
  result->Bold = font.bold();
  result->Italic = font.italic();
  result->Underline = font.underline();
  result->Strikethrough = font.strikeOut();
  return result;
}

QFont toQFont(const FontObject& font) {
  QFont result(QString::fromStdString(font.Name));
  result.setPointSizeF(font.Size > 1 ? std::min(font.Size, 1000.0F) : 1.0F);
  result.setBold(static_cast<bool>(font.Bold));
  result.setItalic(static_cast<bool>(font.Italic));
  result.setUnderline(static_cast<bool>(font.Underline));
  result.setStrikeOut(static_cast<bool>(font.Strikethrough));
  return result;
}

}  // namespace norvane
