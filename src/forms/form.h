#pragma once

#include <string>
#include <vector>

#include "forms/control.h"

namespace forms {

// A window. Its controls register themselves, back to front, and belong to whoever declares them (members of the
// derived form). Load comes before Show; the first Show after a load raises Resize.
class Form : public Control {
 public:
  // `listener` outlives the form.
  Form(Listener& listener, std::string name);

  [[nodiscard]] Listener& listener() const { return listener_; }
  // Back to front; the form itself is not among them.
  [[nodiscard]] const std::vector<Control*>& controls() const { return controls_; }
  // The control of that name (without regard to case, "Image2(3)" for an array's), or null.
  [[nodiscard]] Control* find(const std::string& name) const;

  [[nodiscard]] const std::string& caption() const { return caption_; }
  void setCaption(const std::string& caption);

  // --- life; a failure that a handler lets out leaves these too ---
  [[nodiscard]] bool isLoaded() const { return loaded_; }
  // Gives all controls their stored values and raises Load; nothing when it is loaded already.
  void load();
  // Loads it if need be, shows it modeless and raises Resize the first time.
  void show();
  void hide();
  // Raises Unload, then closes the window; nothing when it is not loaded or already unloading.
  void unload();

  Event<> Load;
  Event<> Resize;
  Event<> Unload;
  Event<> DblClick;

  // --- what the user does ---
  [[nodiscard]] bool isMinimized() const { return minimized_; }
  // Only the host sets the size: twips, the whole window with its frame. Raises Resize when the form is loaded.
  void userResize(Twips width, Twips height);
  void userMinimize();
  void userRestore();
  void userDoubleClick() { DblClick.raise(); }
  void userClose() { unload(); }

  // While true, the form is being defined; the last line of a derived form's constructor ends it.
  [[nodiscard]] bool isBeingDefined() const { return defining_; }

  [[nodiscard]] std::string describe(Property property) const override;

 protected:
  void endDefinition();

 private:
  friend class Control;
  Listener& listener_;
  std::vector<Control*> controls_;
  std::string caption_;
  std::string storedCaption_;
  bool defining_ = true;
  bool loaded_ = false;
  bool unloading_ = false;
  bool shownOnce_ = false;
  bool minimized_ = false;
};

}  // namespace forms
