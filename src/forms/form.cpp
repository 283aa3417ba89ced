#include "forms/form.h"

#include "text/utf8.h"

namespace forms {

Form::Form(Listener& listener, std::string name) : Control(IsForm{}, *this, std::move(name)), listener_(listener) {
  setVisible(false);
}

Control* Form::find(const std::string& name) const {
  for (Control* control : controls_) {
    if (text::equalsIgnoringCase(control->name(), name)) return control;
  }
  return nullptr;
}

void Form::setCaption(const std::string& caption) {
  caption_ = caption;
  tell(Property::Caption);
}

void Form::endDefinition() {
  keepAsStored();
  storedCaption_ = caption_;
  for (Control* control : controls_) control->keepAsStored();
  defining_ = false;
}

void Form::load() {
  if (loaded_) return;
  restoreStored();
  caption_ = storedCaption_;
  for (Control* control : controls_) control->restoreStored();
  loaded_ = true;
  shownOnce_ = false;
  minimized_ = false;
  listener_.formLoaded(*this);
  Load.raise();
}

void Form::show() {
  load();
  setVisible(true);
  listener_.formShown(*this);
  if (shownOnce_) return;
  shownOnce_ = true;
  Resize.raise();
}

void Form::hide() {
  setVisible(false);
  listener_.formHidden(*this);
}

void Form::unload() {
  if (!loaded_ || unloading_) return;
  unloading_ = true;
  struct Reset {
    bool& flag;
    ~Reset() { flag = false; }
  } const reset{unloading_};
  Unload.raise();
  loaded_ = false;
  listener_.formUnloaded(*this);
}

void Form::userResize(Twips width, Twips height) {
  setWidth(width);
  setHeight(height);
  if (loaded_) Resize.raise();
}

void Form::userMinimize() {
  minimized_ = true;
  Resize.raise();
}

void Form::userRestore() {
  minimized_ = false;
  Resize.raise();
}

std::string Form::describe(Property property) const {
  return property == Property::Caption ? quoted(caption_) : Control::describe(property);
}

}  // namespace forms
