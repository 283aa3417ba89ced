#include "consultation.h"

#include "atlas/shell/frm_inicio.h"
#include "atlas/shell/frm_principal.h"

namespace figures {
namespace {

constexpr int kDatos = 2;

std::size_t nodesBelow(const std::vector<std::unique_ptr<forms::Node>>& nodes) {
  std::size_t count = nodes.size();
  for (const auto& node : nodes) count += nodesBelow(node->children());
  return count;
}

}  // namespace

HeadlessProgram::HeadlessProgram(const std::string& applicationFolder) : engine_(applicationFolder) {
  const std::string key = R"(Software\Microsoft\Windows\CurrentVersion\App Paths\Mapinfor.exe)";
  registry_.addText(key, "Path", "C:\\Motor");
  files_.pretendFile("C:\\Motor\\mapinfor.exe");
  const platform::Ports ports{engine_.engines(), windows_,  registry_, files_,
                              programs_,         messages_, dialogs_,  applicationFolder};
  atlas_ = std::make_unique<atlas::Atlas>(ports, listener_);
  atlas_->Main();
  atlas_->frmInicio().userDoubleClick();
  atlas_->frmPrincipal().Ficha.userPick(kDatos);
}

HeadlessProgram::~HeadlessProgram() { atlas_->frmPrincipal().userClose(); }

void HeadlessProgram::consultProvince(int index) { atlas_->frmPrincipal().CmbProvincias.userPick(index); }

std::size_t HeadlessProgram::nodeCount() { return nodesBelow(atlas_->frmPrincipal().TreeView1.roots()); }

}  // namespace figures
