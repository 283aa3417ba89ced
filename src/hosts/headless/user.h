#pragma once

#include <optional>
#include <string>

#include "forms/form.h"
#include "hosts/headless/script_line.h"

// What a user does to controls. Whatever a control cannot be made to do is a ScriptError.
namespace headless::user {

void click(forms::Control& control);
// Picks an item or tab: "#N" (unquoted) by its index from 0, anything else by its text, which is matched exactly.
void select(forms::Control& control, const Word& what);
// Presses and releases the mouse button on an option button.
void release(forms::Control& control);
// Enters the box, empties it, and types the text one character after the other.
void type(forms::Control& control, const std::string& text);
// Changes the box's text into another at once, as by pasting over it or by deleting a part.
void edit(forms::Control& control, const std::string& text);
// The time of all enabled timers of a form has come.
void tick(const forms::Form& form);

}  // namespace headless::user
