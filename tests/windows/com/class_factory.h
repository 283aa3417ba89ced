#pragma once

#include <functional>

#include "hosts/windows/com/com_ptr.h"

namespace comserver {

// Makes the objects of a class. It lives as long as the process and counts no references.
class ClassFactory final : public IClassFactory {
 public:
  // A new object; std::runtime_error where none can be made.
  using Make = std::function<windows::ComPtr<IUnknown>()>;
  explicit ClassFactory(Make make) : make_(std::move(make)) {}

  HRESULT STDMETHODCALLTYPE QueryInterface(REFIID id, void** result) override;
  ULONG STDMETHODCALLTYPE AddRef() override { return 2; }
  ULONG STDMETHODCALLTYPE Release() override { return 1; }
  HRESULT STDMETHODCALLTYPE CreateInstance(IUnknown* outer, REFIID id, void** result) override;
  HRESULT STDMETHODCALLTYPE LockServer(BOOL /*lock*/) override { return S_OK; }

 private:
  Make make_;
};

}  // namespace comserver
