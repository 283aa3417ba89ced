#include "com/module.h"
#include "com/registration.h"
#include "engine/engine_class.h"
#include "engine/test_engine.h"

// The test engine as a DLL.

extern "C" HRESULT STDMETHODCALLTYPE DllGetClassObject(REFCLSID classId, REFIID id, void** result) {
  *result = nullptr;
  if (classId != testengine::kEngineClass) return CLASS_E_CLASSNOTAVAILABLE;
  return testengine::engineFactory().QueryInterface(id, result);
}

// Its window classes stay registered.
extern "C" HRESULT STDMETHODCALLTYPE DllCanUnloadNow() { return S_FALSE; }

extern "C" HRESULT STDMETHODCALLTYPE DllRegisterServer() {
  const bool done = comserver::registerDll(testengine::kEngineClass, comserver::thisFile()) &&
                    comserver::registerName(testengine::kProgramId, testengine::kEngineClass);
  return done ? S_OK : E_FAIL;
}

extern "C" HRESULT STDMETHODCALLTYPE DllUnregisterServer() {
  comserver::unregisterClass(testengine::kEngineClass);
  comserver::unregisterName(testengine::kProgramId);
  return S_OK;
}
