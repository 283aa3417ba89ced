#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "forms/event.h"
#include "forms/listener.h"
#include "forms/property.h"

namespace forms {

// One twip is 1/1440 inch, 1/15 of a pixel at 96 dots per inch.
using Twips = double;

// Colours are red + green * 256 + blue * 65536.
using Color = std::int32_t;

struct FontSpec {
  std::string name = "Tahoma";
  double points = 8.25;
  bool bold = false;
};

// A control of a form: where it stands, whether it is seen, and what the user may do to it. A control is a model: hosts
// show it and tell it what the user does; programs write its properties.
//
// While its form is being defined (in the form's constructor) the setters store the values that the control has each
// time the form is loaded: they raise nothing and tell nobody.
class Control {
 public:
  Control(Form& form, std::string name);
  virtual ~Control() = default;
  Control(const Control&) = delete;
  Control& operator=(const Control&) = delete;

  [[nodiscard]] Form& form() const { return form_; }
  // The control's own name, with its index when it belongs to an array: "Image2(3)".
  [[nodiscard]] const std::string& name() const { return name_; }

  // --- place: twips, from the container's top left corner; a control with no container lies on its form ---
  [[nodiscard]] Twips left() const { return base_.left; }
  [[nodiscard]] Twips top() const { return base_.top; }
  [[nodiscard]] Twips width() const { return base_.width; }
  [[nodiscard]] Twips height() const { return base_.height; }
  void setLeft(Twips left);
  void setTop(Twips top);
  void setWidth(Twips width);
  void setHeight(Twips height);
  void place(Twips left, Twips top, Twips width, Twips height);

  // The frame or tab control that holds it, and on which of its pages; null on the form itself. Part of the definition.
  [[nodiscard]] Control* container() const { return container_; }
  [[nodiscard]] int page() const { return page_; }
  void putInto(Control& container, int page = 0);

  // --- state ---
  [[nodiscard]] bool visible() const { return base_.visible; }
  void setVisible(bool visible);
  [[nodiscard]] bool enabled() const { return base_.enabled; }
  void setEnabled(bool enabled);
  // Visible, and so is every frame and page that holds it. (The form itself may still be hidden.)
  [[nodiscard]] bool isSeen() const;

  // --- part of the definition: how a host draws and names it ---
  FontSpec font;
  std::optional<Color> foreColor;
  std::optional<Color> backColor;
  std::string toolTipText;
  std::string accessibleName;  // empty: the caption or tool tip says it

  // --- what the user does ---
  Event<> MouseMove;
  Event<> GotFocus;
  virtual void userMouseMove();
  virtual void userFocus();

  // The host's token of the control's native window; 0 when there is none.
  [[nodiscard]] std::int64_t hWnd() const;

  // The text of a property's value: True or False, a number, a text in double quotes.
  [[nodiscard]] virtual std::string describe(Property property) const;

  // The form's own business: the values of its definition, kept and put back at each load.
  virtual void keepAsStored() { storedBase_ = base_; }
  virtual void restoreStored() { base_ = storedBase_; }

  // Whether the control is one that a page of `container` shows now; containers answer for their pages.
  [[nodiscard]] virtual bool showsPage(int page) const { return page >= 0; }

 protected:
  // For the form, which is its own form.
  struct IsForm {};
  Control(IsForm, Form& form, std::string name);

  // False while the form is being defined: nothing is raised or told.
  [[nodiscard]] bool isLive() const;
  // Tells the host that a property was written.
  void tell(Property property);

 private:
  struct Base {
    Twips left = 0;
    Twips top = 0;
    Twips width = 1200;
    Twips height = 300;
    bool visible = true;
    bool enabled = true;
  };

  Form& form_;
  std::string name_;
  Control* container_ = nullptr;
  int page_ = 0;
  Base base_;
  Base storedBase_;
};

// A control with state of its own that its form's load puts back.
template <class State>
class ControlWith : public Control {
 public:
  using Control::Control;

  void keepAsStored() override {
    Control::keepAsStored();
    stored_ = state_;
  }
  void restoreStored() override {
    Control::restoreStored();
    state_ = stored_;
  }

 protected:
  State state_;

 private:
  State stored_;
};

// A text as transcripts quote it: "like ""this""".
[[nodiscard]] std::string quoted(const std::string& s);

}  // namespace forms
