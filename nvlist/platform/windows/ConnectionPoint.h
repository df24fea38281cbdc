#pragma once

#include <vector>

#include <nvlist/platform/windows/ole.h>

namespace norvane {

/// A connection point for sinks of one interface. It is a part of its container and shares its
/// reference count.
class ConnectionPoint final : public IConnectionPoint {
 public:
  /// Accepts sinks of `interfaceId` and, if `takesDispatch`, also sinks that have only IDispatch.
  ConnectionPoint(IConnectionPointContainer& owner, REFIID interfaceId, bool takesDispatch)
      : owner_(owner), id_(interfaceId), takesDispatch_(takesDispatch) {}

  const IID& id() const { return id_; }
  bool isEmpty() const { return sinks_.empty(); }
  /// Calls each sink. Sinks may be connected and disconnected meanwhile: a disconnected one is no
  /// longer called, a new one is called from the next time on.
  template <class Call>
  void forEach(Call&& call) {
    const std::vector<Sink> sinks = sinks_;
    for (const Sink& sink : sinks)
      if (holds(sink.cookie)) call(sink.object.get());
  }
  void disconnectAll() { std::vector<Sink>().swap(sinks_); }

  STDMETHODIMP QueryInterface(REFIID id, void** out) override;
  STDMETHODIMP_(ULONG) AddRef() override { return owner_.AddRef(); }
  STDMETHODIMP_(ULONG) Release() override { return owner_.Release(); }
  STDMETHODIMP GetConnectionInterface(IID* out) override;
  STDMETHODIMP GetConnectionPointContainer(IConnectionPointContainer** out) override;
  STDMETHODIMP Advise(IUnknown* sink, DWORD* cookie) override;
  STDMETHODIMP Unadvise(DWORD cookie) override;
  STDMETHODIMP EnumConnections(IEnumConnections** out) override;

 private:
  struct Sink {
    DWORD cookie;
    ComPtr<IUnknown> object;
  };
  bool holds(DWORD cookie) const;

  IConnectionPointContainer& owner_;
  const IID id_;
  const bool takesDispatch_;
  std::vector<Sink> sinks_;
  DWORD lastCookie_ = 0;
};

}  // namespace norvane
