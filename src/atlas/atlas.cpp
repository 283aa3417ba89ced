#include "atlas/atlas.h"

#include "atlas/callbacks/mi_callback.h"
#include "atlas/shell/frm_inicio.h"
#include "atlas/shell/frm_principal.h"
#include "atlas/thematic/frm_tematicos.h"
#include "text/failure.h"

namespace atlas {
namespace {

template <class Window>
Window& createdOnFirstUse(std::unique_ptr<Window>& window, Atlas& atlas, forms::Listener& listener) {
  if (window == nullptr) window = std::make_unique<Window>(atlas, listener);
  return *window;
}

}  // namespace

Atlas::Atlas(const platform::Ports& outside, forms::Listener& listener) : ports(outside), listener_(listener) {}

Atlas::~Atlas() = default;

void Atlas::Main() { frmInicio().show(); }

FrmInicio& Atlas::frmInicio() { return createdOnFirstUse(frmInicio_, *this, listener_); }
FrmTematicos& Atlas::frmTematicos() { return createdOnFirstUse(frmTematicos_, *this, listener_); }
FrmPrincipal& Atlas::frmPrincipal() { return createdOnFirstUse(frmPrincipal_, *this, listener_); }

std::vector<forms::Form*> Atlas::forms() const {
  std::vector<forms::Form*> created;
  for (forms::Form* form : {static_cast<forms::Form*>(frmInicio_.get()), static_cast<forms::Form*>(frmPrincipal_.get()),
                            static_cast<forms::Form*>(frmTematicos_.get())}) {
    if (form != nullptr) created.push_back(form);
  }
  return created;
}

void Atlas::Do(const std::string& statement) { engine()->run(statement); }

platform::Variant Atlas::Eval(const std::string& expression) { return engine()->eval(expression); }

void Atlas::SetCallback(const std::shared_ptr<MICallback>& callback) { engine()->setCallback(callback); }

const std::string& Atlas::year() { return frmPrincipal().year(); }

void Atlas::endProgram() {
  ports.programs.end();
  throw platform::ProgramEnd{};
}

std::shared_ptr<platform::MapEngine> Atlas::engine() const {
  if (motormapa == nullptr) throw failures::noObject();
  return motormapa;
}

}  // namespace atlas
