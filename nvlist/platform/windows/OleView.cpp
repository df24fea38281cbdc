#include <array>

#include <nvlist/platform/windows/Enumerator.h>
#include <nvlist/platform/windows/OleControl.h>
#include <nvlist/platform/windows/failures.h>

/// Draws a control without a window: on a printer, in a bitmap, in a designer.
namespace norvane {
namespace {

const std::array<FORMATETC, 2> formats{
    FORMATETC{CF_ENHMETAFILE, nullptr, DVASPECT_CONTENT, -1, TYMED_ENHMF},
    FORMATETC{CF_METAFILEPICT, nullptr, DVASPECT_CONTENT, -1, TYMED_MFPICT}};

}  // namespace

STDMETHODIMP OleControl::Draw(DWORD aspect, LONG, void*, DVTARGETDEVICE*, HDC, HDC target,
                              LPCRECTL bounds, LPCRECTL, BOOL(CALLBACK*)(ULONG_PTR), ULONG_PTR) {
  if (aspect != DVASPECT_CONTENT) return DV_E_DVASPECT;
  if (!bounds) return E_POINTER;
  if (!target) return E_INVALIDARG;
  return guarded([&] {
    ensureRead();
    window_.draw(target, {bounds->left, bounds->top, bounds->right, bounds->bottom});
  });
}

STDMETHODIMP OleControl::GetColorSet(DWORD, LONG, void*, DVTARGETDEVICE*, HDC, LOGPALETTE** out) {
  if (!out) return E_POINTER;
  *out = nullptr;
  return S_FALSE;
}

STDMETHODIMP OleControl::SetAdvise(DWORD aspect, DWORD flags, IAdviseSink* sink) {
  if (aspect & ~static_cast<DWORD>(DVASPECT_CONTENT)) return DV_E_DVASPECT;
  view_ = sink;
  viewAspect_ = aspect;
  viewFlags_ = flags;
  if (sink && (flags & ADVF_PRIMEFIRST)) viewChanged();
  return S_OK;
}

STDMETHODIMP OleControl::GetAdvise(DWORD* aspect, DWORD* flags, IAdviseSink** out) {
  if (aspect) *aspect = viewAspect_;
  if (flags) *flags = viewFlags_;
  if (out) *out = ComPtr<IAdviseSink>(view_).detach();
  return S_OK;
}

void OleControl::viewChanged() {
  if (const ComPtr<IAdviseSink> view = view_) {
    if (viewFlags_ & ADVF_ONLYONCE) view_.reset();
    view->OnViewChange(DVASPECT_CONTENT, -1);
  }
  if (const ComPtr<IDataAdviseHolder> holder = dataHolder_) holder->SendOnDataChange(this, 0, 0);
}

// ---- the picture as data ----

STDMETHODIMP OleControl::QueryGetData(FORMATETC* format) {
  if (!format) return E_POINTER;
  for (const FORMATETC& known : formats)
    if (format->cfFormat == known.cfFormat)
      return format->dwAspect != DVASPECT_CONTENT ? DV_E_DVASPECT
             : format->tymed & known.tymed        ? S_OK
                                                  : DV_E_TYMED;
  return DV_E_FORMATETC;
}

STDMETHODIMP OleControl::GetData(FORMATETC* format, STGMEDIUM* medium) {
  if (!medium) return E_POINTER;
  *medium = {};
  if (const HRESULT answer = QueryGetData(format); answer != S_OK) return answer;
  HRESULT drawn = E_FAIL;
  const HRESULT answer = guarded([&] {
    ensureRead();
    drawn =
        format->cfFormat == CF_ENHMETAFILE ? drawEnhancedMetafile(*medium) : drawMetafile(*medium);
  });
  return FAILED(answer) ? answer : drawn;
}

HRESULT OleControl::drawEnhancedMetafile(STGMEDIUM& medium) {
  const SIZE size = pixelsOf(extent_);
  const RECT frame{0, 0, extent_.cx, extent_.cy};
  const HDC target = CreateEnhMetaFileW(nullptr, nullptr, &frame, nullptr);
  if (!target) return E_OUTOFMEMORY;
  window_.draw(target, {0, 0, size.cx, size.cy});
  medium.hEnhMetaFile = CloseEnhMetaFile(target);
  medium.tymed = TYMED_ENHMF;
  return medium.hEnhMetaFile ? S_OK : E_OUTOFMEMORY;
}

HRESULT OleControl::drawMetafile(STGMEDIUM& medium) {
  const SIZE size = pixelsOf(extent_);
  const HDC target = CreateMetaFileW(nullptr);
  if (!target) return E_OUTOFMEMORY;
  SetWindowOrgEx(target, 0, 0, nullptr);
  SetWindowExtEx(target, size.cx, size.cy, nullptr);
  window_.draw(target, {0, 0, size.cx, size.cy});
  const HMETAFILE picture = CloseMetaFile(target);
  const HGLOBAL memory = GlobalAlloc(GMEM_MOVEABLE, sizeof(METAFILEPICT));
  if (!picture || !memory) {
    DeleteMetaFile(picture);
    GlobalFree(memory);
    return E_OUTOFMEMORY;
  }
  *static_cast<METAFILEPICT*>(GlobalLock(memory)) = {MM_ANISOTROPIC, extent_.cx, extent_.cy,
                                                     picture};
  GlobalUnlock(memory);
  medium.hMetaFilePict = memory;
  medium.tymed = TYMED_MFPICT;
  return S_OK;
}

STDMETHODIMP OleControl::GetCanonicalFormatEtc(FORMATETC* format, FORMATETC* out) {
  if (!format || !out) return E_POINTER;
  *out = *format;
  out->ptd = nullptr;
  return DATA_S_SAMEFORMATETC;
}

STDMETHODIMP OleControl::EnumFormatEtc(DWORD direction, IEnumFORMATETC** out) {
  if (!out) return E_POINTER;
  *out = nullptr;
  if (direction != DATADIR_GET) return E_NOTIMPL;
  return guarded([&] {
    *out = new Enumerator<IEnumFORMATETC, FORMATETC>({formats.begin(), formats.end()});
  });
}

STDMETHODIMP OleControl::DAdvise(FORMATETC* format, DWORD flags, IAdviseSink* sink, DWORD* cookie) {
  if (!dataHolder_)
    if (const HRESULT answer = CreateDataAdviseHolder(dataHolder_.put()); FAILED(answer))
      return answer;
  return dataHolder_->Advise(this, format, flags, sink, cookie);
}

STDMETHODIMP OleControl::DUnadvise(DWORD cookie) {
  return dataHolder_ ? dataHolder_->Unadvise(cookie) : OLE_E_NOCONNECTION;
}

STDMETHODIMP OleControl::EnumDAdvise(IEnumSTATDATA** out) {
  if (!out) return E_POINTER;
  *out = nullptr;
  return dataHolder_ ? dataHolder_->EnumAdvise(out) : S_OK;
}

}  // namespace norvane
