#pragma once

#include "forms/tabs.h"
#include "hosts/windows/views/tab_row.h"

namespace windows {

// Tabs over a page; the controls of all pages lie in its window, and those of the page in front are seen.
class TabControlView : public TabRowView {
 public:
  TabControlView(forms::TabControl& tabs, ViewContext& context, HWND parent);
  void sync(forms::Property property) override;
  void rescale() override;
  [[nodiscard]] forms::Color surface() const override;

  [[nodiscard]] bool isBehind() const override { return shownTab_ != tabs_.tab(); }

 protected:
  void picked(int index, bool again) override;
  void paint(Canvas& canvas, UINT state) const override;
  [[nodiscard]] RECT place() const override;

 private:
  void paintHeading(Canvas& canvas, int index) const;

  forms::TabControl& tabs_;
  int shownTab_ = -1;
};

// A row of tabs without pages.
class TabStripView : public TabRowView {
 public:
  TabStripView(forms::TabStrip& strip, ViewContext& context, HWND parent);
  void sync(forms::Property property) override;

 protected:
  void picked(int index, bool again) override;
  void paint(Canvas& canvas, UINT state) const override;

 private:
  forms::TabStrip& strip_;
};

}  // namespace windows
