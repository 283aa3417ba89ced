#include "hosts/headless/control_report.h"

#include <array>
#include <memory>

#include "forms/form.h"
#include "forms/item_list.h"
#include "forms/tabs.h"

namespace headless {
namespace {

using forms::Property;

constexpr std::array kProperties{Property::Caption, Property::Text,         Property::ListIndex, Property::Value,
                                 Property::Tab,     Property::SelectedItem, Property::Visible,   Property::Enabled,
                                 Property::Left,    Property::Top,          Property::Width,     Property::Height};

void addBranch(std::vector<std::string>& lines, const std::vector<std::unique_ptr<forms::Node>>& nodes,
               const std::string& indent) {
  for (const auto& node : nodes) {
    lines.push_back(indent + node->text());
    addBranch(lines, node->children(), indent + "  ");
  }
}

}  // namespace

std::vector<std::string> propertyLines(const forms::Control& control) {
  std::vector<std::string> lines;
  const auto show = [&](const std::string& what, const std::string& value) {
    lines.push_back("show " + control.name() + "." + what + " " + value);
  };
  for (const Property property : kProperties) {
    const std::string value = control.describe(property);
    if (!value.empty()) show(std::string(forms::name(property)), value);
  }
  if (!control.toolTipText.empty()) show("ToolTipText", forms::quoted(control.toolTipText));
  const auto showEach = [&](const std::string& what, const std::vector<std::string>& texts) {
    for (std::size_t i = 0; i < texts.size(); ++i) show(what + "(" + std::to_string(i) + ")", forms::quoted(texts[i]));
  };
  if (const auto* list = dynamic_cast<const forms::ItemList*>(&control)) showEach("List", list->items());
  if (const auto* tabs = dynamic_cast<const forms::TabControl*>(&control)) showEach("TabCaption", tabs->captions);
  if (const auto* tabs = dynamic_cast<const forms::TabStrip*>(&control)) showEach("Tabs", tabs->captions);
  return lines;
}

std::vector<std::string> treeLines(const forms::TreeView& tree) {
  std::vector<std::string> lines;
  addBranch(lines, tree.roots(), "");
  return lines;
}

}  // namespace headless
