#pragma once

#include <string>
#include <string_view>

#include "forms/label.h"
#include "forms/shape.h"

// What a control is for on the screen, where its kind alone does not say it.
namespace screen {

enum class ShapeLook { card, stage, header, line };
[[nodiscard]] ShapeLook lookOf(const forms::Shape& shape);

enum class LabelLook {
  text,       // says something
  menu,       // an entry of the side menu, on the header
  menuEntry,  // an entry of one of its pop-up frames
  link,       // anything else that may be clicked
};
[[nodiscard]] LabelLook lookOf(const forms::Label& label);

enum class FormLook { window, splash, palette };
[[nodiscard]] FormLook lookOf(const forms::Form& form);

// The label that names the tool in hand.
inline constexpr std::string_view kCommandLabel = "lblComando";

// Which toolbar picture is in hand while `command` stands in the label of the current tool; empty when none is.
[[nodiscard]] std::string pictureOfCommand(const std::string& command);

}  // namespace screen
