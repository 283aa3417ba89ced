#include "hosts/windows/com/ole_failure.h"

#include <oleauto.h>

#include <algorithm>
#include <array>
#include <memory>
#include <string_view>

#include "hosts/windows/win32/wide_text.h"

namespace windows {
namespace {

struct Known {
  HRESULT result;
  int number;
  const char* description;
  bool isGone = false;  // the other side

  [[nodiscard]] constexpr int failure() const { return number != 0 ? number : static_cast<int>(result); }
};

constexpr HRESULT kServerUnavailable = static_cast<HRESULT>(0x800706BA);
constexpr HRESULT kCallFailed = static_cast<HRESULT>(0x800706BE);
constexpr HRESULT kCallNotMade = static_cast<HRESULT>(0x800706BF);  // it failed before the other side had it

// Those with the number 0 keep their own.
constexpr std::array kKnown{
    Known{DISP_E_EXCEPTION, 0, "El motor de mapas ha rechazado la instrucción."},
    Known{DISP_E_UNKNOWNNAME, 438, "El objeto no admite esta propiedad o método."},
    Known{DISP_E_MEMBERNOTFOUND, 438, "El objeto no admite esta propiedad o método."},
    Known{DISP_E_TYPEMISMATCH, 13, "No coinciden los tipos."},
    Known{DISP_E_OVERFLOW, 6, "Desbordamiento."},
    Known{DISP_E_BADINDEX, 9, "Subíndice fuera del intervalo."},
    Known{DISP_E_BADPARAMCOUNT, 450, "Número de argumentos incorrecto."},
    Known{E_OUTOFMEMORY, 7, "Memoria insuficiente."},
    Known{E_NOTIMPL, 445, "El objeto no admite esta acción."},
    Known{E_ACCESSDENIED, 70, "Permiso denegado."},
    Known{REGDB_E_CLASSNOTREG, 429, "El componente ActiveX no puede crear el objeto."},
    Known{CO_E_CLASSSTRING, 429, "El componente ActiveX no puede crear el objeto."},
    Known{CO_E_SERVER_EXEC_FAILURE, 429, "El componente ActiveX no puede crear el objeto."},
    Known{kServerUnavailable, 462, "El motor de mapas no existe o no está disponible.", true},
    Known{kCallFailed, 0, "El motor de mapas ha dejado de funcionar.", true},
    Known{kCallNotMade, 0, "El motor de mapas ha dejado de funcionar.", true},
    Known{RPC_E_SERVER_DIED, 0, "El motor de mapas ha dejado de funcionar.", true},
    Known{RPC_E_SERVER_DIED_DNE, 0, "El motor de mapas ha dejado de funcionar.", true},
    Known{RPC_E_DISCONNECTED, 0, "El motor de mapas se ha desconectado.", true},
    Known{CO_E_OBJNOTCONNECTED, 0, "El motor de mapas se ha desconectado.", true},
    Known{RPC_E_SERVERFAULT, 0, "El motor de mapas ha fallado."},
    Known{RPC_E_CALL_REJECTED, 0, "El motor de mapas está ocupado."},
    Known{RPC_E_SERVERCALL_RETRYLATER, 0, "El motor de mapas está ocupado."},
    Known{RPC_E_CALL_CANCELED, 0, "Se ha cancelado la operación."},
};

std::string systemText(HRESULT result) {
  constexpr DWORD kFlags = FORMAT_MESSAGE_ALLOCATE_BUFFER | FORMAT_MESSAGE_FROM_SYSTEM | FORMAT_MESSAGE_IGNORE_INSERTS;
  wchar_t* buffer = nullptr;
  const DWORD length =
      FormatMessageW(kFlags, nullptr, static_cast<DWORD>(result), 0, reinterpret_cast<wchar_t*>(&buffer), 0, nullptr);
  const std::unique_ptr<wchar_t, decltype(&LocalFree)> owner(buffer, &LocalFree);
  std::wstring_view text(buffer == nullptr ? L"" : buffer, length);
  while (!text.empty() && (text.back() == L'\n' || text.back() == L'\r' || text.back() == L' ')) text.remove_suffix(1);
  return text.empty() ? "Error de automatización." : utf8(text);
}

std::string taken(BSTR& text) {
  std::string result = text == nullptr ? "" : utf8({text, SysStringLen(text)});
  SysFreeString(text);
  text = nullptr;
  return result;
}

}  // namespace

Failure failureOf(HRESULT result, const std::string& said) {
  const auto* known = std::ranges::find(kKnown, result, &Known::result);
  const bool isKnown = known != kKnown.end();
  const int number = isKnown ? known->failure() : static_cast<int>(result);
  if (!said.empty()) return {number, said};
  return {number, isKnown ? known->description : systemText(result)};
}

bool saysItIsGone(int number) {
  return std::ranges::any_of(kKnown,
                             [number](const Known& known) { return known.isGone && known.failure() == number; });
}

std::string takeDescription(EXCEPINFO& exception) {
  if (exception.pfnDeferredFillIn != nullptr) exception.pfnDeferredFillIn(&exception);
  taken(exception.bstrSource);
  taken(exception.bstrHelpFile);
  return taken(exception.bstrDescription);
}

}  // namespace windows
