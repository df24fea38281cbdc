#include <nvlist/platform/windows/ConnectionPoint.h>

#include <algorithm>

#include <nvlist/platform/windows/Enumerator.h>
#include <nvlist/platform/windows/failures.h>

namespace norvane {

bool ConnectionPoint::holds(DWORD cookie) const {
  return std::ranges::any_of(sinks_, [&](const Sink& sink) { return sink.cookie == cookie; });
}

STDMETHODIMP ConnectionPoint::QueryInterface(REFIID id, void** out) {
  if (!out) return E_POINTER;
  *out = id == IID_IUnknown || id == IID_IConnectionPoint ? this : nullptr;
  if (!*out) return E_NOINTERFACE;
  AddRef();
  return S_OK;
}

STDMETHODIMP ConnectionPoint::GetConnectionInterface(IID* out) {
  if (!out) return E_POINTER;
  *out = id_;
  return S_OK;
}

STDMETHODIMP ConnectionPoint::GetConnectionPointContainer(IConnectionPointContainer** out) {
  if (!out) return E_POINTER;
  *out = ComPtr<IConnectionPointContainer>(&owner_).detach();
  return S_OK;
}

STDMETHODIMP ConnectionPoint::Advise(IUnknown* sink, DWORD* cookie) {
  if (!sink || !cookie) return E_POINTER;
  *cookie = 0;
  ComPtr<IUnknown> object;
  if (FAILED(sink->QueryInterface(id_, object.putVoid())) &&
      (!takesDispatch_ || FAILED(sink->QueryInterface(IID_IDispatch, object.putVoid()))))
    return CONNECT_E_CANNOTCONNECT;
  return guarded([&] {
    sinks_.push_back({lastCookie_ + 1, object});
    *cookie = ++lastCookie_;
  });
}

STDMETHODIMP ConnectionPoint::Unadvise(DWORD cookie) {
  const auto found = std::ranges::find(sinks_, cookie, &Sink::cookie);
  if (found == sinks_.end()) return CONNECT_E_NOCONNECTION;
  const ComPtr<IUnknown> object = found->object;  // its destruction may call back
  sinks_.erase(found);
  return S_OK;
}

STDMETHODIMP ConnectionPoint::EnumConnections(IEnumConnections** out) {
  if (!out) return E_POINTER;
  *out = nullptr;
  return guarded([&] {
    std::vector<CONNECTDATA> connections;
    for (const Sink& sink : sinks_) connections.push_back({sink.object.get(), sink.cookie});
    *out = new Enumerator<IEnumConnections, CONNECTDATA>(std::move(connections));
  });
}

}  // namespace norvane
