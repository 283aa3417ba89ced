#include <exdisp.h>

#include "com/class_factory.h"
#include "com/module.h"
#include "com/registration.h"
#include "page_view/page_view.h"

// The page view as a DLL, for the class of the system's browser control.

extern "C" HRESULT STDMETHODCALLTYPE DllGetClassObject(REFCLSID classId, REFIID id, void** result) {
  static comserver::ClassFactory factory(pageview::PageView::create);
  *result = nullptr;
  if (classId != CLSID_WebBrowser) return CLASS_E_CLASSNOTAVAILABLE;
  return factory.QueryInterface(id, result);
}

extern "C" HRESULT STDMETHODCALLTYPE DllCanUnloadNow() { return S_FALSE; }

extern "C" HRESULT STDMETHODCALLTYPE DllRegisterServer() {
  return comserver::registerDll(CLSID_WebBrowser, comserver::thisFile()) ? S_OK : E_FAIL;
}

extern "C" HRESULT STDMETHODCALLTYPE DllUnregisterServer() {
  comserver::unregisterClass(CLSID_WebBrowser);
  return S_OK;
}
