#pragma once

#include <QPlainTextEdit>
#include <QTimer>
#include <initializer_list>
#include <memory>
#include <utility>

#include <nvlist/input/events.h>

namespace gallery {

/// A log with one line per entry: the events of the lists it is a sink of, with their arguments,
/// every failure of the program's lists, and the lines that others write. Equal entries in a row
/// are counted in one line. It must outlive those lists.
class EventLog : public QPlainTextEdit, public norvane::__nvList {
 public:
  using DataObject = norvane::Ref<norvane::Object>;

  EventLog();
  ~EventLog() override;

  void write(const QString& line);

  // All events of the list.

  void Click() override { logEvent("Click"); }
  void DblClick() override { logEvent("DblClick"); }
  void ItemCheck(std::int32_t& Item, norvane::Boolean& Cancel) override {
    logEvent("ItemCheck", {{"Item", Item}, {"Cancel", Cancel}});
  }
  void MouseUp(std::int16_t& Button, std::int16_t& Shift, float& X, float& Y) override {
    logEvent("MouseUp", {{"Button", Button}, {"Shift", Shift}, {"X", X}, {"Y", Y}});
  }
  /// Only the last of several in a row is kept.
  void MouseMove(norvane::Variant& TextUnderMouse, std::int32_t& IndexUnderMouse,
                 std::int16_t& Button, std::int16_t& Shift, float& X, float& Y) override;
  void MouseDown(std::int16_t& Button, std::int16_t& Shift, float& X, float& Y) override {
    logEvent("MouseDown", {{"Button", Button}, {"Shift", Shift}, {"X", X}, {"Y", Y}});
  }
  void ErrorListInput() override { logEvent("ErrorListInput"); }
  void ErrorListSave() override { logEvent("ErrorListSave"); }
  void ListSaving(norvane::Variant& Index) override { progress("ListSaving", Index); }
  void ListReading(norvane::Variant& Index) override { progress("ListReading", Index); }
  void Scroll() override { logEvent("Scroll"); }
  void KeyDown(std::int16_t& KeyCode, std::int16_t& Shift) override {
    logEvent("KeyDown", {{"KeyCode", KeyCode}, {"Shift", Shift}});
  }
  void KeyPress(std::int16_t& KeyAscii) override { logEvent("KeyPress", {{"KeyAscii", KeyAscii}}); }
  void KeyUp(std::int16_t& KeyCode, std::int16_t& Shift) override {
    logEvent("KeyUp", {{"KeyCode", KeyCode}, {"Shift", Shift}});
  }
  void OLECompleteDrag(std::int32_t& Effect) override {
    logEvent("OLECompleteDrag", {{"Effect", Effect}});
  }
  void OLEDragDrop(DataObject& Data, std::int32_t& Effect, std::int16_t& Button,
                   std::int16_t& Shift, float& X, float& Y) override;
  void OLEDragOver(DataObject& Data, std::int32_t& Effect, std::int16_t& Button,
                   std::int16_t& Shift, float& X, float& Y, std::int16_t& State) override;
  void OLEGiveFeedback(std::int32_t& Effect, norvane::Boolean& DefaultCursors) override {
    logEvent("OLEGiveFeedback", {{"Effect", Effect}, {"DefaultCursors", DefaultCursors}});
  }
  void OLESetData(DataObject& Data, std::int16_t& DataFormat) override {
    logEvent("OLESetData", {{"Data", Data}, {"DataFormat", DataFormat}});
  }
  void OLEStartDrag(DataObject& Data, std::int32_t& AllowedEffects) override {
    logEvent("OLEStartDrag", {{"Data", Data}, {"AllowedEffects", AllowedEffects}});
  }
  void ErrorWrongIndex(norvane::Variant& Index) override {
    logEvent("ErrorWrongIndex", {{"Index", Index}});
  }

 private:
  class Failures;
  struct Argument {
    const char* name;
    norvane::Variant value;
  };

  void logEvent(const char* name, std::initializer_list<Argument> arguments = {});
  /// An event that is raised for every item. Only the last of several in a row is kept.
  void progress(const char* name, const norvane::Variant& index);
  void showProgress();
  void removeLastLine();

  QString lastLine_;
  int times_ = 0;                   ///< how often it was written in a row
  const char* progress_ = nullptr;  ///< name of an event that is not shown yet
  norvane::Variant reached_;
  QTimer showingProgress_;
  std::shared_ptr<Failures> failures_;
};

}  // namespace gallery
