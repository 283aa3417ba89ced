#pragma once

#include <array>
#include <memory>
#include <string>
#include <vector>

#include "forms/form.h"
#include "platform/ports.h"

namespace atlas {

class FrmInicio;
class FrmPrincipal;
class FrmTematicos;
class MICallback;

// The unit shown last: the base name of its table ("Provincias" or "ZonasBasicas") and its name; both empty when no
// consultation is shown.
struct CurrentUnit {
  std::string Tabla;
  std::string Nombre;
};

// The elements of the remembered thematic choice.
enum ThematicChoice : std::size_t { kIndicator, kFrame, kUnit, kSex };

// Where the outside programs were found when the main window was loaded.
struct ExecutablePaths {
  std::string mapEngine;
  std::string acrobatReader;
  std::string acrobat;
};

// The program: its windows, each created on first use, and the state that they share. One object is one run of the
// program; everything happens on one thread.
class Atlas {
 public:
  // The ports and the listener (the host) outlive the program.
  Atlas(const platform::Ports& ports, forms::Listener& listener);
  ~Atlas();
  Atlas(const Atlas&) = delete;
  Atlas& operator=(const Atlas&) = delete;

  // Starts the program: shows the splash and returns. What a handler ends the program with (platform::ProgramEnd)
  // leaves every call into the program; the host then stops.
  void Main();

  [[nodiscard]] FrmInicio& frmInicio();
  [[nodiscard]] FrmTematicos& frmTematicos();
  [[nodiscard]] FrmPrincipal& frmPrincipal();
  // The windows created so far.
  [[nodiscard]] std::vector<forms::Form*> forms() const;

  // Opens a workspace: the one way to do it. `ruta` is the full path of a .wor file. All outcomes are shown to the
  // user.
  void AbrirMapa(const std::string& ruta);
  // Writes "Comando actual: " and the tool's name into lblComando.
  void MostrarComando(const std::string& nombre);

  // The engine operations on the current engine; with none they fail with 91.
  void Do(const std::string& statement);
  [[nodiscard]] platform::Variant Eval(const std::string& expression);
  void SetCallback(const std::shared_ptr<MICallback>& callback);

  // The caption of the year tab selected in the main window.
  [[nodiscard]] const std::string& year();

  // Ends the program at once: no trap catches it and no unload handler runs.
  [[noreturn]] void endProgram();

  platform::Ports ports;

  std::shared_ptr<platform::MapEngine> motormapa;  // the current engine; empty before the first map
  std::shared_ptr<MICallback> callbackmapa;        // what it calls back
  std::string RutaTematica;                        // the chosen thematic workspace, relative to the year's folder
  std::array<std::string, 4> SeleccionTematica;    // by ThematicChoice
  std::string nombreinfo;                          // the last unit found by the Info tool
  CurrentUnit unit;
  bool MarcaConsulta = false;
  std::string archivotabla;   // the full path of the HTML table shown
  std::string tablabusqueda;  // base name of the table searched
  bool AcrobatInstalado = false;
  bool AcrobatProInstalado = false;
  ExecutablePaths executables;

 private:
  // The engine, kept alive over the call that is made on it; fails with 91 when there is none.
  [[nodiscard]] std::shared_ptr<platform::MapEngine> engine() const;
  void openWorkspace(const std::string& ruta);
  void createEngine();
  void embedMapWindow(const std::string& ruta);
  void addShortcutMenu();
  void addToolButtons();
  void chooseStartTool();
  void reportOpening(int number, const std::string& description);
  void leaveOpening();

  forms::Listener& listener_;
  std::unique_ptr<FrmInicio> frmInicio_;
  std::unique_ptr<FrmTematicos> frmTematicos_;
  std::unique_ptr<FrmPrincipal> frmPrincipal_;
};

}  // namespace atlas
