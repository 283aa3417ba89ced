#pragma once

#include <string>

#include "forms/form.h"

namespace headless {

// The hands of the user of a replay. What a control cannot be made to do is a ScriptError; a failure that leaves the
// program, and its end (platform::ProgramEnd), leave these. Each returns when everything that follows has happened.
class Hands {
 public:
  virtual ~Hands() = default;

  // A label, an image, a button or an option button.
  virtual void click(forms::Control& control) = 0;
  // Picks an item of a list, or a tab; the index is one of theirs, from 0.
  virtual void pick(forms::Control& control, int index) = 0;
  virtual void enter(forms::Control& control) = 0;
  // Presses and releases the mouse button on an option button.
  virtual void release(forms::Control& control) = 0;
  virtual void pointAt(forms::Control& control) = 0;
  // Enters a box, empties it, and types the text one character after the other.
  virtual void type(forms::Control& control, const std::string& text) = 0;
  // Changes a box's text into another at once, as by pasting over it or by deleting a part.
  virtual void edit(forms::Control& control, const std::string& text) = 0;

  virtual void doubleClick(forms::Form& form) = 0;
  virtual void close(forms::Form& form) = 0;
  virtual void resize(forms::Form& form, forms::Twips width, forms::Twips height) = 0;
  virtual void minimize(forms::Form& form) = 0;
  virtual void restore(forms::Form& form) = 0;
  // No hand's doing: the time of all running timers of the form has come.
  virtual void tick(forms::Form& form) = 0;
};

}  // namespace headless
