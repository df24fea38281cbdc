#pragma once

#include <QPlainTextEdit>
#include <initializer_list>
#include <memory>
#include <utility>

#include <nvlist/input/events.h>

namespace gallery {

/// A running log, one line an entry: the events of the lists it listens to with their arguments,
/// every failure of the program's lists, and what others write. It has to outlive those lists.
class EventLog : public QPlainTextEdit, public norvane::__nvList {
 public:
  EventLog();
  ~EventLog() override;

  void write(const QString& line);

  void Click() override { event("Click"); }
  void DblClick() override { event("DblClick"); }
  void ItemCheck(std::int32_t& Item, norvane::Boolean& Cancel) override {
    event("ItemCheck", {{"Item", Item}, {"Cancel", Cancel}});
  }
  void ErrorWrongIndex(norvane::Variant& Index) override {
    event("ErrorWrongIndex", {{"Index", Index}});
  }

 private:
  class Failures;
  struct Argument {
    const char* name;
    norvane::Variant value;
  };

  void event(const char* name, std::initializer_list<Argument> arguments = {});

  std::shared_ptr<Failures> failures_;
};

}  // namespace gallery
