#pragma once

#include <string>

#include "forms/listener.h"
#include "hosts/headless/recorder.h"

namespace headless {

// Writes what a host hears of the forms, and passes it on. Of a form itself, whether it is seen and how large it is go
// unwritten: its "form" lines say the one, and only the host decides the other.
class RecordingListener : public forms::Listener {
 public:
  RecordingListener(forms::Listener& inner, Recorder& recorder) : inner_(inner), recorder_(recorder) {}

  void formLoaded(forms::Form& form) override;
  void formShown(forms::Form& form) override;
  void formHidden(forms::Form& form) override;
  void formUnloaded(forms::Form& form) override;
  void written(forms::Control& control, forms::Property property) override;
  void itemAdded(forms::Control& control, const std::string& item) override;
  void cleared(forms::Control& control) override;
  void nodeAdded(forms::TreeView& tree, const forms::Node& node) override;
  void nodeExpanded(forms::TreeView& tree, const forms::Node& node) override;
  void navigated(forms::WebBrowser& browser, const std::string& path) override;
  [[nodiscard]] std::int64_t windowHandle(const forms::Control& control) override;
  [[nodiscard]] std::string locationName(const forms::WebBrowser& browser) override;

 private:
  forms::Listener& inner_;
  Recorder& recorder_;
};

}  // namespace headless
