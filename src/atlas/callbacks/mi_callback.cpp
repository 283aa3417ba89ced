#include "atlas/callbacks/mi_callback.h"

#include <array>

#include "atlas/atlas.h"
#include "atlas/callbacks/callback_message.h"
#include "atlas/mapengine/query_layer.h"
#include "atlas/shell/frm_principal.h"
#include "atlas/titles.h"
#include "atlas/trap.h"
#include "text/utf8.h"

namespace atlas {
namespace {

struct Method {
  const char* name;
  void (MICallback::*call)(const std::string&);
};

// In dispatch order, with the names as the class declares them.
constexpr std::array kMethods = std::to_array<Method>({
    {"infoEstadisticas", &MICallback::infoEstadisticas},
    {"info", &MICallback::info},
    {"InfoDatos", &MICallback::InfoDatos},
    {"borraseleccion", &MICallback::borraseleccion},
});

}  // namespace

std::vector<std::string> MICallback::methods() const {
  std::vector<std::string> names;
  for (const Method& method : kMethods) names.emplace_back(method.name);
  return names;
}

bool MICallback::invoke(const std::string& method, const std::string& message) {
  for (const Method& candidate : kMethods) {
    if (!text::equalsIgnoringCase(candidate.name, method)) continue;
    (this->*candidate.call)(message);
    return true;
  }
  return false;
}

void MICallback::borraseleccion(const std::string& message) {
  silently([&] {
    if (!parseCallbackMessage(message)) return;
    atlas_.Do("run menu command 304");
    atlas_.frmPrincipal().TreeView1.clear();
    removeQueryLayer(atlas_, "set map layer 1 label default");
    atlas_.frmPrincipal().TreeView1.clear();
  });
}

void MICallback::showWaitNotice() {
  atlas_.frmPrincipal().txtEspere.setVisible(true);
  atlas_.frmPrincipal().txtespere1.setVisible(true);
}

void MICallback::hideWaitNotice() {
  atlas_.frmPrincipal().txtEspere.setVisible(false);
  atlas_.frmPrincipal().txtespere1.setVisible(false);
}

std::optional<MICallback::Point> MICallback::parseCallbackMessage(const std::string& message) {
  if (!isCallbackMessage(message)) {
    atlas_.ports.messages.show("Callback incorrecto " + message, platform::kOkOnly, kProgramTitle);
    return std::nullopt;
  }
  const CallbackFields fields = callbackFields(message);
  return Point{fields[1], fields[2]};
}

}  // namespace atlas
