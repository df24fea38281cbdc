#include <nvlist/platform/qt/designer/NvListPlugin.h>

#include <QIcon>
#include <QPainter>
#include <QtUiPlugin/QDesignerCustomWidgetInterface>
#include <functional>

#include <nvlist/platform/qt/NvListWidget.h>
#include <nvlist/platform/qt/NvScrollWidget.h>

namespace norvane {
namespace {

/// Rows in a frame, the second one selected, or a bar with a thumb.
QIcon iconOf(bool isList, bool isUpright) {
  constexpr int size = 22;
  QPixmap pixmap(size, size);
  pixmap.fill(Qt::transparent);
  QPainter painter(&pixmap);
  const QColor frame(0x7F, 0x9D, 0xB9), selection(0x31, 0x6A, 0xC5), thumb(0xC2, 0xD5, 0xFD);
  painter.setPen(frame);
  if (!isList) {
    const QRect bar = isUpright ? QRect(7, 1, 8, 19) : QRect(1, 7, 19, 8);
    painter.fillRect(bar, Qt::white);
    painter.drawRect(bar);
    painter.fillRect(isUpright ? QRect(8, 5, 7, 7) : QRect(5, 8, 7, 7), thumb);
    painter.end();
    return pixmap;
  }
  painter.fillRect(2, 2, 18, 18, Qt::white);
  painter.drawRect(2, 2, 17, 17);
  for (int row = 0; row < 3; ++row) {
    const bool isSelected = row == 1;
    if (isSelected) painter.fillRect(3, 8, 16, 6, selection);
    painter.fillRect(5, 5 + 5 * row + row, 10 - 2 * row, 2, isSelected ? Qt::white : Qt::black);
  }
  painter.end();
  return pixmap;
}

using Make = std::function<QWidget*(QWidget* parent, bool isDesigned)>;

/// One widget of the collection.
class Entry final : public QDesignerCustomWidgetInterface {
 public:
  Entry(QString type, QString object, QString header, QString hint, QSize size, QIcon icon,
        Make make)
      : type_(std::move(type)),
        object_(std::move(object)),
        header_(std::move(header)),
        hint_(std::move(hint)),
        size_(size),
        icon_(std::move(icon)),
        make_(std::move(make)) {}

  QString name() const override { return type_; }
  QString group() const override { return "nvList"; }
  QString toolTip() const override { return hint_; }
  QString whatsThis() const override { return hint_; }
  QString includeFile() const override { return header_; }
  QIcon icon() const override { return icon_; }
  bool isContainer() const override { return false; }
  /// Only Designer calls this; a form that QUiLoader makes is running.
  void initialize(QDesignerFormEditorInterface*) override { isDesigned_ = true; }
  bool isInitialized() const override { return isDesigned_; }
  QWidget* createWidget(QWidget* parent) override { return make_(parent, isDesigned_); }
  QString domXml() const override {
    return QString(R"(<ui language="c++"><widget class="%1" name="%2"><property name="geometry">)"
                   R"(<rect><x>0</x><y>0</y><width>%3</width><height>%4</height></rect>)"
                   R"(</property></widget></ui>)")
        .arg(type_, object_)
        .arg(size_.width())
        .arg(size_.height());
  }

 private:
  const QString type_, object_, header_, hint_;
  const QSize size_;
  const QIcon icon_;
  const Make make_;
  bool isDesigned_ = false;
};

template <class Bar>
QWidget* makeBar(QWidget* parent, bool) {
  return new Bar(parent);
}

}  // namespace

NvListPlugin::NvListPlugin() {
  const QString bars = "nvlist/platform/qt/NvScrollWidget.h";
  widgets_ = {
      new Entry("norvane::NvListWidget", "list", "nvlist/platform/qt/NvListWidget.h",
                "A list with check boxes, icons and colours", {160, 120}, iconOf(true, false),
                [](QWidget* parent, bool isDesigned) {
                  auto* const widget = new NvListWidget(parent);
                  widget->setDesignMode(isDesigned);
                  return widget;
                }),
      new Entry("norvane::NvVScrollWidget", "verticalBar", bars, "A vertical scroll bar", {17, 120},
                iconOf(false, true), makeBar<NvVScrollWidget>),
      new Entry("norvane::NvHScrollWidget", "horizontalBar", bars, "A horizontal scroll bar",
                {120, 17}, iconOf(false, false), makeBar<NvHScrollWidget>)};
}

NvListPlugin::~NvListPlugin() { qDeleteAll(widgets_); }

}  // namespace norvane
