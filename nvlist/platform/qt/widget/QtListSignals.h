#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string_view>
#include <vector>

#include <nvlist/nvList.h>

namespace norvane {

class NvListWidget;

/// Emits the signals of a list's widget.
///
/// Only a signal that can stop something, or that reports progress, is emitted in the middle of a
/// call. The others are emitted when the event of the widget, or the host's call, has ended, so
/// that their slots may open dialogs. Signals that nobody is connected to are not prepared.
class QtListSignals final : public __nvList {
 public:
  QtListSignals(NvListWidget& widget, nvList& list) : widget_(&widget), list_(list) {}
  /// To be called when the widget ends, which this object may outlive.
  void end();
  bool hasEnded() const { return !widget_; }

  /// Runs a function that passes an event of the widget to the list, and then emits what it caused.
  /// Returns its result. A slot may have destroyed the widget.
  bool during(const std::function<bool()>& event);
  /// Watches the calls of the host as long as there may be something to emit after them. Called
  /// when a slot was connected. A disconnection is noticed after the next call: Qt reports it while
  /// it holds a lock, under which nobody can ask what is connected.
  void watch();

 private:
  /// What signals are compared with.
  struct Look {
    std::int32_t current = 0;
    std::uint64_t selection = 0;
    std::int32_t top = 0;
    std::int32_t left = 0;
    std::uint32_t edits = 0;
  };
  struct Check {
    std::int32_t index;
    bool wasChecked;
  };

  void propertyChanged(std::string_view name);

  void Click() override;
  void DblClick() override;
  void ItemCheck(std::int32_t& Item, Boolean& Cancel) override;
  void MouseUp(std::int16_t& Button, std::int16_t& Shift, float& X, float& Y) override;
  void MouseMove(Variant& TextUnderMouse, std::int32_t& IndexUnderMouse, std::int16_t& Button,
                 std::int16_t& Shift, float& X, float& Y) override;
  void MouseDown(std::int16_t& Button, std::int16_t& Shift, float& X, float& Y) override;
  void ErrorListInput() override;
  void ErrorListSave() override;
  void ListSaving(Variant& Index) override;
  void ListReading(Variant& Index) override;
  void ErrorWrongIndex(Variant& Index) override;

  std::uint32_t connected() const;
  template <auto signal>
  bool isConnected() const;
  /// Emits the signal as soon as no call is running.
  template <auto signal, class... Arguments>
  void later(Arguments... arguments);
  bool isCompared() const;
  Look look() const;
  void emitWaiting();

  NvListWidget* widget_;  ///< nullptr after its end
  nvList& list_;
  mutable std::uint32_t connected_ = 0;
  std::optional<Trap::Watch> watch_;
  Look seen_;
  std::vector<std::function<void()>> waiting_;
  std::vector<Check> checks_;
  int events_ = 0;
  std::int32_t currentBeforeEvent_ = 0;
  bool isCollecting_ = false;
};

}  // namespace norvane
