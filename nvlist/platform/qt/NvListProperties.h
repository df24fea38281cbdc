#pragma once

#include <QColor>
#include <QWidget>

#include <nvlist/nvList.h>

namespace norvane {

/// The stored properties of a list as properties of Qt: those of core/storedProperties.h, in Qt's
/// spelling and types, for Designer, style sheets and QObject::setProperty. Each sets and reads the
/// property of that name of the list, where it is described. Two are properties that every widget
/// has: `font` and `enabled`. `listStyle` is the list's Style.
///
/// A colour that is set to the value it already shows stays as it is, so that a system colour goes
/// on following the palette.
class NvListProperties : public QWidget {
  Q_OBJECT
  Q_PROPERTY(QColor foreColor READ foreColor WRITE setForeColor)
  Q_PROPERTY(QColor backColor READ backColor WRITE setBackColor)
  Q_PROPERTY(bool clickOnIndexChange READ clickOnIndexChange WRITE setClickOnIndexChange)
  Q_PROPERTY(ColorStyle colorStyle READ colorStyle WRITE setColorStyle)
  Q_PROPERTY(QColor borderColor READ borderColor WRITE setBorderColor)
  Q_PROPERTY(bool hoverSelect READ hoverSelect WRITE setHoverSelect)
  Q_PROPERTY(ListStyle listStyle READ listStyle WRITE setListStyle)
  Q_PROPERTY(bool fullRowSelect READ fullRowSelect WRITE setFullRowSelect)
  Q_PROPERTY(bool allowEdit READ allowEdit WRITE setAllowEdit)
  Q_PROPERTY(QColor valueColor READ valueColor WRITE setValueColor)
  Q_PROPERTY(bool iconSelect READ iconSelect WRITE setIconSelect)
  Q_PROPERTY(bool borderVisible READ borderVisible WRITE setBorderVisible)
  Q_PROPERTY(double indentTop READ indentTop WRITE setIndentTop)
  Q_PROPERTY(double indentLeft READ indentLeft WRITE setIndentLeft)
  Q_PROPERTY(double indentRight READ indentRight WRITE setIndentRight)
  Q_PROPERTY(double indentBottom READ indentBottom WRITE setIndentBottom)
  Q_PROPERTY(double distPicText READ distPicText WRITE setDistPicText)
  Q_PROPERTY(bool autoCheckScroll READ autoCheckScroll WRITE setAutoCheckScroll)
  Q_PROPERTY(double iconW READ iconW WRITE setIconW)
  Q_PROPERTY(double iconH READ iconH WRITE setIconH)
  Q_PROPERTY(ScrollColorStyle scrollColorStyle READ scrollColorStyle WRITE setScrollColorStyle)
  Q_PROPERTY(bool gridLines READ gridLines WRITE setGridLines)
  Q_PROPERTY(QColor gridLineColor READ gridLineColor WRITE setGridLineColor)
  Q_PROPERTY(bool multiSelect READ multiSelect WRITE setMultiSelect)
  Q_PROPERTY(bool showFocusRect READ showFocusRect WRITE setShowFocusRect)
  Q_PROPERTY(WheelFunction wheelFunction READ wheelFunction WRITE setWheelFunction)
  Q_PROPERTY(int wheelScrollLines READ wheelScrollLines WRITE setWheelScrollLines)
  Q_PROPERTY(double minHeight READ minHeight WRITE setMinHeight)
  Q_PROPERTY(bool autoRedraw READ autoRedraw WRITE setAutoRedraw)
  Q_PROPERTY(ScrollBars scrollBars READ scrollBars WRITE setScrollBars)
  Q_PROPERTY(bool allowItemMoving READ allowItemMoving WRITE setAllowItemMoving)

 public:
  /// The values of colorStyle.
  enum class ColorStyle {
    XPBlue = cXPBlue,
    XPSilver = cXPSilver,
    XPOlive = cXPOlive,
    Custom = cCustom
  };
  Q_ENUM(ColorStyle)
  /// The values of scrollColorStyle.
  enum class ScrollColorStyle {
    XPBlue = cXPScrollBlue,
    XPSilver = cXPScrollSilver,
    XPOlive = cXPScrollOlive
  };
  Q_ENUM(ScrollColorStyle)
  /// The values of listStyle.
  enum class ListStyle {
    Default = cDefault,
    CheckBoxes = cCheckBoxes,
    Icons = cIcons,
    CheckBoxesIcons = cCheckBoxesIcons
  };
  Q_ENUM(ListStyle)
  /// The values of wheelFunction.
  enum class WheelFunction { Scroll = cWheelScroll, ListIndex = cWheelListIndex, Off = cWheelOff };
  Q_ENUM(WheelFunction)
  /// The values of scrollBars.
  enum class ScrollBars {
    Neither = vbSBNone,
    Horizontal = vbHorizontal,
    Vertical = vbVertical,
    Both = vbBoth
  };
  Q_ENUM(ScrollBars)

  /// The list itself. Valid as long as the widget.
  virtual nvList& list() = 0;
  virtual const nvList& list() const = 0;

  /// The property of the list with this name (nvList.h).
  QColor foreColor() const { return shown(list().ForeColor()); }
  void setForeColor(const QColor& value) { list().ForeColor(chosen(value, list().ForeColor())); }
  QColor backColor() const { return shown(list().BackColor()); }
  void setBackColor(const QColor& value) { list().BackColor(chosen(value, list().BackColor())); }
  bool clickOnIndexChange() const { return static_cast<bool>(list().ClickOnIndexChange()); }
  void setClickOnIndexChange(bool value) { list().ClickOnIndexChange(value); }
  ColorStyle colorStyle() const { return static_cast<ColorStyle>(list().ColorStyle()); }
  void setColorStyle(ColorStyle value) { list().ColorStyle(static_cast<cColorStyle>(value)); }
  QColor borderColor() const { return shown(list().BorderColor()); }
  void setBorderColor(const QColor& value) {
    list().BorderColor(chosen(value, list().BorderColor()));
  }
  bool hoverSelect() const { return static_cast<bool>(list().HoverSelect()); }
  void setHoverSelect(bool value) { list().HoverSelect(value); }
  ListStyle listStyle() const { return static_cast<ListStyle>(list().Style()); }
  void setListStyle(ListStyle value) { list().Style(static_cast<cListStyle>(value)); }
  bool fullRowSelect() const { return static_cast<bool>(list().FullRowSelect()); }
  void setFullRowSelect(bool value) { list().FullRowSelect(value); }
  bool allowEdit() const { return static_cast<bool>(list().AllowEdit()); }
  void setAllowEdit(bool value) { list().AllowEdit(value); }
  QColor valueColor() const { return shown(list().ValueColor()); }
  void setValueColor(const QColor& value) { list().ValueColor(chosen(value, list().ValueColor())); }
  bool iconSelect() const { return static_cast<bool>(list().IconSelect()); }
  void setIconSelect(bool value) { list().IconSelect(value); }
  bool borderVisible() const { return static_cast<bool>(list().BorderVisible()); }
  void setBorderVisible(bool value) { list().BorderVisible(value); }
  double indentTop() const { return list().IndentTop(); }
  void setIndentTop(double value) { list().IndentTop(static_cast<float>(value)); }
  double indentLeft() const { return list().IndentLeft(); }
  void setIndentLeft(double value) { list().IndentLeft(static_cast<float>(value)); }
  double indentRight() const { return list().IndentRight(); }
  void setIndentRight(double value) { list().IndentRight(static_cast<float>(value)); }
  double indentBottom() const { return list().IndentBottom(); }
  void setIndentBottom(double value) { list().IndentBottom(static_cast<float>(value)); }
  double distPicText() const { return list().DistPicText(); }
  void setDistPicText(double value) { list().DistPicText(static_cast<float>(value)); }
  bool autoCheckScroll() const { return static_cast<bool>(list().AutoCheckScroll()); }
  void setAutoCheckScroll(bool value) { list().AutoCheckScroll(value); }
  double iconW() const { return list().IconW(); }
  void setIconW(double value) { list().IconW(static_cast<float>(value)); }
  double iconH() const { return list().IconH(); }
  void setIconH(double value) { list().IconH(static_cast<float>(value)); }
  ScrollColorStyle scrollColorStyle() const {
    return static_cast<ScrollColorStyle>(list().ScrollColorStyle());
  }
  void setScrollColorStyle(ScrollColorStyle value) {
    list().ScrollColorStyle(static_cast<cScrollColorStyle>(value));
  }
  bool gridLines() const { return static_cast<bool>(list().GridLines()); }
  void setGridLines(bool value) { list().GridLines(value); }
  QColor gridLineColor() const { return shown(list().GridLineColor()); }
  void setGridLineColor(const QColor& value) {
    list().GridLineColor(chosen(value, list().GridLineColor()));
  }
  bool multiSelect() const { return static_cast<bool>(list().MultiSelect()); }
  void setMultiSelect(bool value) { list().MultiSelect(value); }
  bool showFocusRect() const { return static_cast<bool>(list().ShowFocusRect()); }
  void setShowFocusRect(bool value) { list().ShowFocusRect(value); }
  WheelFunction wheelFunction() const { return static_cast<WheelFunction>(list().WheelFunction()); }
  void setWheelFunction(WheelFunction value) {
    list().WheelFunction(static_cast<cWheelFunction>(value));
  }
  int wheelScrollLines() const { return list().WheelScrollLines(); }
  void setWheelScrollLines(int value) { list().WheelScrollLines(value); }
  double minHeight() const { return list().MinHeight(); }
  void setMinHeight(double value) { list().MinHeight(static_cast<float>(value)); }
  bool autoRedraw() const { return static_cast<bool>(list().AutoRedraw()); }
  void setAutoRedraw(bool value) { list().AutoRedraw(value); }
  ScrollBars scrollBars() const { return static_cast<ScrollBars>(list().ScrollBars()); }
  void setScrollBars(ScrollBars value) {
    list().ScrollBars(static_cast<ScrollBarConstants>(value));
  }
  bool allowItemMoving() const { return static_cast<bool>(list().AllowItemMoving()); }
  void setAllowItemMoving(bool value) { list().AllowItemMoving(value); }

 protected:
  using QWidget::QWidget;

 private:
  QColor shown(Colour colour) const;
  Colour chosen(const QColor& colour, Colour before) const;
};

}  // namespace norvane
