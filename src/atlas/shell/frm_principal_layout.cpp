#include <algorithm>

#include "atlas/atlas.h"
#include "atlas/shell/frm_principal.h"
#include "atlas/thematic/selector_window.h"
#include "text/number_text.h"

// How the main window's controls follow its size. Sizes are in twips; W and H are those of the whole window.
namespace atlas {
namespace {

// The engine's unit of window sizes in twips, and the margin that it adds.
constexpr double kTwipsPerEngineUnit = 1063.46894701793;
constexpr double kEngineMargin = 3;

constexpr forms::Twips kWindowFrame = 380;  // about what the frame takes of H
constexpr forms::Twips kSkirt = 200;        // by which the cards of tab controls reach below these
constexpr forms::Twips kBelowCard = 45;

std::string inEngineUnits(forms::Twips length) { return text::number(length / kTwipsPerEngineUnit - kEngineMargin); }

}  // namespace

void FrmPrincipal::DisponerMapa() {
  const forms::Twips W = width();
  const forms::Twips H = height();
  ShpFondo.setWidth(W * 66 / 100);
  ShpFondo.setHeight(H);
  Ficha.setWidth(W * 64 / 100);
  Ficha.setHeight(H * 85 / 100);
  FichaAños.setLeft(Ficha.left() + Ficha.width() - FichaAños.width());
  placeMap();
  ShpDerecha.setLeft(Ficha.width() + 400);
  ShpDerecha.setWidth(W * 30 / 100);
  ShpDerecha.setHeight(H * 60.8 / 100);
  placeTreeSide();
  if (Ficha.tab() > 0) {
    const std::string id = atlas_.Eval("windowid(1)").text();
    atlas_.Do("set window " + id + " width " + inEngineUnits(PictureMapa.width()) + " height " +
              inEngineUnits(PictureMapa.height()));
    atlas_.Do("set window " + atlas_.Eval("WindowID(1)").text() + "Max");
  }
  Internet.setWidth(Ficha.width() - 550);
  Internet.setHeight(Ficha.height() - Image4.at(0).height() - 460);
}

void FrmPrincipal::DisponerInicio() {
  const forms::Twips W = width();
  const forms::Twips H = height();
  ShpFondo.setWidth(W);
  ShpFondo.setHeight(H);
  Ficha.setWidth(W - Ficha.left() - 300);
  Ficha.setHeight(H - Ficha.top() - 700);
  placeMap();
  ShpDerecha.setLeft(W * 64 / 100 + 400);
  ShpDerecha.setWidth(W * 30 / 100);
  ShpDerecha.setHeight(H * 60.8 / 100);
  placeTreeSide();
  Internet.setWidth(Ficha.width() - 550);
  Internet.setHeight(Ficha.height() - ShpCabecera.height() - 220);
  closeSelectorIfOpen(atlas_);
}

void FrmPrincipal::placeMap() {
  PictureMapa.setHeight(Ficha.height() - 800);
  PictureMapa.setWidth(Ficha.width() - 500);
  Panel.setTop(PictureMapa.top());
  Panel.setLeft(PictureMapa.left());
  Panel.setWidth(PictureMapa.width());
  Panel.setHeight(PictureMapa.height());
  ProgressBar1.setTop(PictureMapa.top() + PictureMapa.height() - ProgressBar1.height());
  ProgressBar1.setWidth(PictureMapa.width());
}

void FrmPrincipal::placeTreeSide() {
  const auto centredOnShape = [&](const forms::Control& control) {
    return ShpDerecha.left() + (ShpDerecha.width() - control.width()) / 2;
  };
  Image1.setLeft(ShpDerecha.left() + 200);
  TreeView1.setLeft(ShpDerecha.left() + 100);
  TreeView1.setWidth(ShpDerecha.width() - 215);
  TreeView1.setHeight(ShpDerecha.height() - 500);
  txtEspere.setLeft(TreeView1.left());
  txtEspere.setWidth(TreeView1.width());
  txtEspere.setHeight(TreeView1.height());
  txtespere1.setLeft(TreeView1.left() + (TreeView1.width() - txtespere1.width()) / 2);
  txtespere1.setTop(TreeView1.top() + (TreeView1.height() - txtespere1.height()) / 2);
  lblComando.setTop(txtEspere.top() + txtEspere.height() + 60);
  lblComando.setLeft(txtEspere.left() + 180);
  placeBelowTree(centredOnShape(FichaConsultasDatos), centredOnShape(ImageEscudo));
}

// The consultations end where Ficha does, but begin below the tree's card. The coat of arms has what is left below
// both; where that is too little for it, it is put out of sight.
void FrmPrincipal::placeBelowTree(forms::Twips consultationsLeft, forms::Twips escudoLeft) {
  const forms::Twips fichaEnd = Ficha.top() + Ficha.height();
  const forms::Twips belowTree = ShpDerecha.top() + ShpDerecha.height() + kBelowCard;
  const forms::Twips consultationsTop = std::max(fichaEnd - FichaConsultasDatos.height(), belowTree);
  const forms::Twips end = std::max(fichaEnd, consultationsTop + FichaConsultasDatos.height()) + kSkirt;
  const forms::Twips spare = height() - kWindowFrame - end - ImageEscudo.height();
  ImageEscudo.setTop(spare < 0 ? height() : end + spare / 2);
  ImageEscudo.setLeft(escudoLeft);
  FichaConsultasDatos.setTop(consultationsTop);
  FichaConsultasDatos.setLeft(consultationsLeft);
}

void FrmPrincipal::layOutMap() {
  Ficha.setWidth(width() * 64 / 100);
  PictureMapa.setWidth(Ficha.width() - 550);
  Panel.setWidth(PictureMapa.width());
  ProgressBar1.setTop(PictureMapa.top() + PictureMapa.height() - ProgressBar1.height());
  ProgressBar1.setWidth(PictureMapa.width());
  ShpCabecera.setWidth(width() * 66 / 100);
}

}  // namespace atlas
